#include "support/page_record.h"

#include <cmath>
#include <sstream>

#include "controls/accessible_controls.h"
#include "graph/graph_box.h"
#include "numeric/text.h"
#include "support/digest.h"
#include "support/student.h"

namespace tavrune::test {
namespace {

std::string placeText(const Control& control) {
    const auto text = [](double units) { return NumberText(std::round(units * 100) / 100); };
    const QRectF place = control.place();
    const auto* const label = dynamic_cast<const Label*>(&control);
    // How wide a label is that fits its text hangs on the font.
    const bool isFitted = label != nullptr && label->isAutoSize();
    return text(place.x()) + " " + text(place.y()) +
           (isFitted ? "" : ", " + text(place.width()) + " x " + text(place.height()));
}

std::string strokeText(const Stroke& stroke) {
    std::ostringstream text;
    text << (stroke.kind == Stroke::Kind::Line ? "line " : "point ") << stroke.x1 << " " << stroke.y1;
    if (stroke.kind == Stroke::Kind::Line) {
        text << " " << stroke.x2 << " " << stroke.y2;
    }
    text << " " << stroke.colour.name().toStdString();
    if (stroke.style == LineStyle::Dotted) {
        text << " dotted";
    }
    if (stroke.width != 1) {
        text << " width " << stroke.width;
    }
    return text.str();
}

/// All strokes, or how many they are with their digest where they are more than can be read.
std::string strokesText(const std::vector<Stroke>& strokes) {
    constexpr std::size_t kReadable = 6;
    std::string text;
    for (const Stroke& stroke : strokes) {
        text += (text.empty() ? "" : ", ") + strokeText(stroke);
    }
    return strokes.size() <= kReadable ? text : std::to_string(strokes.size()) + " as " + digest(text);
}

std::string scaleText(const GraphScale& scale) {
    std::ostringstream text;
    text << scale.x1 << " " << scale.y1 << ", " << scale.x2 << " " << scale.y2;
    return text.str();
}

/// A quoted caption as it is read: without the quotes, and without the sign before its access key.
std::string bare(std::string text) {
    std::erase(text, '"');
    std::erase(text, '&');
    return text;
}

/// On one line.
std::string quoted(const std::string& text) {
    return '"' + QString::fromStdString(text).replace('\n', "\\n").toStdString() + '"';
}

/// What a property mostly is as long as nothing is done: it goes without saying.
std::string ordinary(const std::string& property) {
    static const std::map<std::string, std::string> values{
        {"back", "#ffffff"}, {"chosen", "no"}, {"colour", "#000000"},  {"enabled", "yes"},
        {"shown", "yes"},    {"strokes", ""},  {"size of text", "11"}, {"told", "\"\""}};
    const auto value = values.find(property);
    return value == values.end() ? "" : value->second;
}

std::map<std::string, std::string> propertiesOf(const QWidget& widget) {
    std::map<std::string, std::string> found{{"shown", widget.isHidden() ? "no" : "yes"},
                                             {"enabled", widget.isEnabled() ? "yes" : "no"}};
    const auto& control = dynamic_cast<const Control&>(widget);
    found["place"] = placeText(control);
    found["size of text"] = NumberText(control.textSize());
    if (const auto* const label = qobject_cast<const Label*>(&widget)) {
        found["text"] = quoted(label->caption());
        found["colour"] = label->textColour().name().toStdString();
    } else if (const auto* const box = qobject_cast<const AnswerBox*>(&widget)) {
        found["text"] = quoted(box->content());
        found["back"] = box->backColour().name().toStdString();
    } else if (const auto* const button = qobject_cast<const Button*>(&widget)) {
        found["text"] = quoted(button->caption());
    } else if (const auto* const option = qobject_cast<const OptionButton*>(&widget)) {
        found["text"] = quoted(option->caption());
        found["chosen"] = option->isChosen() ? "yes" : "no";
        found["back"] = option->backColour().name().toStdString();
    } else if (const auto* const graph = qobject_cast<const GraphBox*>(&widget)) {
        found["scale"] = scaleText(graph->scale());
        found["strokes"] = strokesText(graph->strokes());
    }
    // What a screen reader is told of what is in sight, where that is not what stands there.
    QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&widget));
    if (widget.isVisible() && told != nullptr) {
        const std::string name = nameOf(*told);
        if (const auto text = found.find("text"); text == found.end() || name != bare(text->second)) {
            found["told"] = quoted(name);
        }
        if (qobject_cast<const GraphBox*>(&widget) != nullptr) {
            found["told"] += " " + digest(descriptionOf(*told));
        }
    }
    return found;
}

}  // namespace

PageRecord::PageRecord(Page& page) : page_(page), ear_(page) {}

std::map<std::string, PageRecord::Properties> PageRecord::state() const {
    std::map<std::string, Properties> found;
    std::map<const QObject*, int> unnamed;
    for (const QWidget* widget : page_.findChildren<QWidget*>()) {
        if (dynamic_cast<const Control*>(widget) == nullptr) {
            continue;
        }
        std::string name = test::nameOf(*widget);
        if (name.empty()) {
            // Made as the exercise wants it: told by where it stands.
            name = test::nameOf(*widget->parentWidget()) + " " + std::to_string(++unnamed[widget->parent()]);
        }
        found[name] = propertiesOf(*widget);
    }
    const QWidget* const focused = page_.focusWidget();
    found["(focus)"] = {{"at", focused == nullptr ? "nothing" : test::nameOf(*focused)}};
    return found;
}

void PageRecord::note(const std::string& action) {
    lines_.push_back("> " + action);
    for (const std::string& words : ear_.heard()) {
        lines_.push_back("  " + quoted(words));
    }
    std::map<std::string, Properties> now = state();
    for (const auto& [name, properties] : now) {
        std::string changed;
        const auto then = last_.find(name);
        const Properties before = then == last_.end() ? Properties{} : then->second;
        for (const auto& [property, value] : properties) {
            const auto was = before.find(property);
            if (value != (was != before.end() ? was->second : ordinary(property))) {
                changed += "; " + property + " " + value;
            }
        }
        if (!changed.empty()) {
            lines_.push_back("  " + name + changed);
        }
    }
    for (const auto& [name, properties] : last_) {
        if (now.count(name) == 0) {
            lines_.push_back("  " + name + "; gone");
        }
    }
    last_ = std::move(now);
}

}  // namespace tavrune::test
