#include "support/blind_student.h"

#include <algorithm>
#include <stdexcept>
#include <tuple>
#include <utility>

#include "support/student.h"

namespace tavrune::test {
namespace {

void collect(QAccessibleInterface& thing, std::vector<QAccessibleInterface*>& found) {
    if (thing.state().invisible) {
        return;
    }
    found.push_back(&thing);
    for (int i = 0; i < thing.childCount(); ++i) {
        if (QAccessibleInterface* const child = thing.child(i)) {
            collect(*child, found);
        }
    }
}

}  // namespace

std::string nameOf(const QAccessibleInterface& thing) { return thing.text(QAccessible::Name).toStdString(); }

std::string descriptionOf(const QAccessibleInterface& thing) {
    return thing.text(QAccessible::Description).toStdString();
}

std::vector<QAccessibleInterface*> BlindStudent::things() const {
    std::vector<QAccessibleInterface*> found;
    collect(*page_, found);
    return found;
}

std::vector<QAccessibleInterface*> BlindStudent::things(QAccessible::Role role) const {
    std::vector<QAccessibleInterface*> found = things();
    found.erase(std::remove_if(found.begin(), found.end(),
                               [role](const QAccessibleInterface* thing) { return thing->role() != role; }),
                found.end());
    return found;
}

std::vector<std::string> BlindStudent::names(QAccessible::Role role) const {
    std::vector<std::string> names;
    for (const QAccessibleInterface* thing : things(role)) {
        names.push_back(nameOf(*thing));
    }
    return names;
}

bool BlindStudent::hears(QAccessible::Role role, const std::string& name) const {
    const std::vector<std::string> all = names(role);
    return std::find(all.begin(), all.end(), name) != all.end();
}

QAccessibleInterface& BlindStudent::find(QAccessible::Role role, const std::string& name) const {
    for (QAccessibleInterface* thing : things(role)) {
        if (nameOf(*thing) == name) {
            return *thing;
        }
    }
    throw std::invalid_argument("nothing is called " + name);
}

void BlindStudent::act(QAccessible::Role role, const std::string& name) const {
    QAccessibleActionInterface* const actions = find(role, name).actionInterface();
    const QStringList names = actions->actionNames();
    if (names.isEmpty()) {
        throw std::invalid_argument("nothing can be done to " + name);
    }
    actions->doAction(names.front());
    settle();
}

void BlindStudent::press(const std::string& button) const { act(QAccessible::Button, button); }

void BlindStudent::choose(const std::string& option) const { act(QAccessible::RadioButton, option); }

void BlindStudent::type(const std::map<std::string, std::string>& texts) const {
    for (QAccessibleInterface* box : things(QAccessible::EditableText)) {
        if (const auto text = texts.find(nameOf(*box)); text != texts.end()) {
            box->editableTextInterface()->replaceText(0, box->textInterface()->characterCount(),
                                                      QString::fromStdString(text->second));
        }
    }
}

std::map<std::string, std::string> BlindStudent::fields() const {
    std::map<std::string, std::string> fields;
    for (const QAccessibleInterface* box : things(QAccessible::EditableText)) {
        fields[nameOf(*box)] = box->text(QAccessible::Value).toStdString();
    }
    return fields;
}

std::vector<std::string> BlindStudent::wrongFields() const {
    std::vector<QAccessibleInterface*> boxes = things(QAccessible::EditableText);
    std::stable_sort(boxes.begin(), boxes.end(),
                     [](const QAccessibleInterface* one, const QAccessibleInterface* other) {
                         const QPoint p = one->rect().topLeft();
                         const QPoint q = other->rect().topLeft();
                         return std::tuple(p.y(), p.x()) < std::tuple(q.y(), q.x());
                     });
    std::vector<std::string> wrong;
    for (const QAccessibleInterface* box : boxes) {
        if (descriptionOf(*box) == "forkert") {
            wrong.push_back(nameOf(*box));
        }
    }
    return wrong;
}

std::string BlindStudent::verdict() const {
    const std::vector<std::string> texts = names(QAccessible::StaticText);
    const auto verdict = std::find_if(texts.begin(), texts.end(), [](const std::string& text) {
        return text.rfind("RIGTIGT", 0) == 0 || text.rfind("FORKERT", 0) == 0;
    });
    return verdict == texts.end() ? "" : *verdict;
}

std::vector<std::string> BlindStudent::heard() {
    std::vector<std::string> heard;
    for (const QList<QVariant>& words : said_) {
        heard.push_back(words.front().toString().toStdString());
    }
    said_.clear();
    return heard;
}

}  // namespace tavrune::test
