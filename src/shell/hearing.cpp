#include "shell/hearing.h"

#include <algorithm>

#include <QAbstractButton>
#include <QRegularExpression>

#include "controls/accessible_controls.h"
#include "controls/answer_box.h"
#include "controls/label.h"
#include "controls/panel.h"
#include "controls/reading.h"
#include "controls/spoken.h"
#include "controls/text.h"
#include "graph/description.h"

namespace tavrune {
namespace {

QString sentence(QString words) {
    while (words.endsWith(',') || words.endsWith(' ')) {
        words.chop(1);
    }
    const bool isEnded = words.isEmpty() || words.endsWith('.') || words.endsWith(':') || words.endsWith('?');
    return isEnded ? words : words + '.';
}

QString fieldText(const AnswerBox& box) { return box.accessibleName() + ": " + spoken(box.text()); }

/// All that can be read, but for the verdict, which is announced with more words.
bool isText(const QWidget& widget) {
    const auto* const label = qobject_cast<const Label*>(&widget);
    return isSeen(widget) && (label == nullptr || !label->isVerdict());
}

bool isPanel(const QWidget& widget) { return qobject_cast<const Panel*>(&widget) != nullptr; }

QRect areaOn(const QWidget& page, const QWidget& widget) {
    return {widget.mapTo(&page, QPoint()), widget.size()};
}

bool overlap(int from, int to, int otherFrom, int otherTo) { return from < otherTo && otherFrom < to; }

QList<AnswerBox*> boxesOn(const QWidget& region) {
    return region.findChildren<AnswerBox*>(QString(), Qt::FindDirectChildrenOnly);
}

/// Numbers and names at an axis, heads of columns, and what has no words at all.
bool isMark(const QString& words) {
    static const QRegularExpression mark("^(\\d+|minus|[A-Z]\\d?[ab]?|Qtotal[ab]?|[ ,.;])*$");
    return mark.match(words).hasMatch();
}

/// True for what only joins the fields of an answer row, whose names say more: "Q +".
bool isGlue(const QWidget& page, const Passage& passage, const QList<AnswerBox*>& boxes) {
    if (isMark(passage.words)) {
        return true;
    }
    const QRect own = areaOn(page, *passage.lead);
    std::vector<QRect> columns;
    for (const AnswerBox* box : boxes) {
        const QRect place = areaOn(page, *box);
        const bool isBeside =
            isSeen(*box) && overlap(own.top() + 2, own.bottom() - 2, place.top(), place.bottom());
        if (isBeside && std::none_of(columns.begin(), columns.end(), [&place](const QRect& column) {
                return overlap(column.left(), column.right(), place.left(), place.right());
            })) {
            columns.push_back(place);
        }
    }
    const bool hasDigit =
        std::any_of(passage.words.begin(), passage.words.end(), [](QChar c) { return c.isDigit(); });
    return columns.size() > 1 || (columns.size() == 1 && !hasDigit);
}

}  // namespace

QString Hearing::task() const {
    const QList<AnswerBox*> boxes = boxesOn(*design_);
    QStringList words;
    for (const Passage& passage : passages(*design_, isText, isPanel)) {
        if (!isGlue(*design_, passage, boxes)) {
            words << sentence(passage.words);
        }
    }
    for (const GraphBox* graph : design_->findChildren<GraphBox*>()) {
        for (const Passage& passage : passages(*graph, isText)) {
            if (graph->isChart() && !isMark(passage.words)) {
                words << sentence(passage.words);
            }
        }
    }
    for (const AnswerBox* box : boxes) {
        if (isSeen(*box) && !box->text().trimmed().isEmpty()) {
            words << sentence(fieldText(*box));
        }
    }
    return words.join(' ');
}

QString Hearing::graphs() const {
    QStringList words;
    for (const GraphBox* graph : design_->findChildren<GraphBox*>()) {
        if (isSeen(*graph) && graph->isChart()) {
            words << sentence(graph->accessibleName()) + ' ' +
                         fromUtf8(describe(graph->strokes(), graph->scale()));
        }
    }
    return words.join(' ');
}

void Hearing::takeForSaid() {
    const std::vector<Said> now = shown();
    said_ = {now.begin(), now.end()};
    takeFieldsForSaid();
}

void Hearing::takeFieldsForSaid() {
    fields_ = fields();
    for (const GraphBox* graph : design_->findChildren<GraphBox*>()) {
        drawn_[graph] = graph->strokes();
    }
}

QStringList Hearing::news() { return newTexts() + newInFields() + newOnGraphs(); }

std::vector<Hearing::Said> Hearing::shown() const {
    QList<const QWidget*> regions{design_};
    for (const QWidget* box : design_->findChildren<QWidget*>()) {
        const auto* const graph = qobject_cast<const GraphBox*>(box);
        // Some help panels are drawn on.
        const bool isDrawnPanel =
            graph != nullptr && !graph->isChart() && !graph->findChildren<QAbstractButton*>().isEmpty();
        if (box->isVisible() && (isPanel(*box) || isDrawnPanel)) {
            regions << box;
        }
    }
    std::vector<Said> shown;
    for (const QWidget* region : regions) {
        const QList<AnswerBox*> boxes = boxesOn(*region);
        for (const Passage& passage : passagesOf(*region)) {
            if (!isGlue(*region, passage, boxes)) {
                shown.emplace_back(passage.lead, passage.words);
            }
        }
    }
    return shown;
}

QStringList Hearing::newTexts() {
    QStringList news;
    std::set<Said> said;
    for (const Said& each : shown()) {
        if (said_.count(each) == 0) {
            news << sentence(each.second);
        }
        said.insert(each);
    }
    // What was hidden is news when it comes again; what is merely covered is not.
    std::copy_if(said_.begin(), said_.end(), std::inserter(said, said.end()),
                 [](const Said& each) { return each.first->isVisible() && isCovered(*each.first); });
    said_ = std::move(said);
    return news;
}

std::map<const AnswerBox*, QString> Hearing::fields() const {
    std::map<const AnswerBox*, QString> fields;
    for (const AnswerBox* box : design_->findChildren<AnswerBox*>()) {
        if (box->isVisible()) {
            fields[box] = box->text();
        }
    }
    return fields;
}

QStringList Hearing::newInFields() {
    const std::map<const AnswerBox*, QString> before = std::exchange(fields_, fields());
    QStringList news;
    for (const AnswerBox* box : design_->findChildren<AnswerBox*>()) {
        const auto now = fields_.find(box);
        const auto then = before.find(box);
        const bool isFilled = now != fields_.end() && !now->second.trimmed().isEmpty();
        if (isFilled && (then == before.end() || then->second != now->second)) {
            news << sentence(fieldText(*box));
        }
    }
    return news;
}

QStringList Hearing::newOnGraphs() const {
    QStringList news;
    for (const GraphBox* graph : design_->findChildren<GraphBox*>()) {
        const auto before = drawn_.find(graph);
        if (before == drawn_.end() || !graph->isChart() || !isSeen(*graph)) {
            continue;
        }
        const std::vector<Stroke>& old = before->second;
        const std::vector<Stroke>& now = graph->strokes();
        // Most are drawn on further; some are cleared, or all is drawn once more.
        const auto further = std::mismatch(old.begin(), old.end(), now.begin(), now.end()).second;
        std::vector<Stroke> strokes;
        std::copy_if(further, now.end(), std::back_inserter(strokes), [&old](const Stroke& stroke) {
            return std::find(old.begin(), old.end(), stroke) == old.end();
        });
        const QString figures = fromUtf8(describeFigures(strokes));
        if (!figures.isEmpty()) {
            news << sentence("Nyt på " + graph->accessibleName()) + ' ' + figures;
        }
    }
    return news;
}

}  // namespace tavrune
