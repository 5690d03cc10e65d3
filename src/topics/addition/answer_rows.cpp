#include "topics/addition/answer_rows.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "controls/text.h"

namespace tavrune {
namespace {

constexpr const char* kBlankText = " ";

template <class Action>
void forEachBox(const std::vector<AnswerRows::Row>& rows, Action action) {
    for (const AnswerRows::Row& row : rows) {
        for (AnswerBox* box : {row.slope, row.intercept, row.start, row.end}) {
            if (box != nullptr) {
                action(box);
            }
        }
    }
}

QWidget* find(const QWidget& page, const QString& name) { return page.findChild<QWidget*>(name); }

AnswerRows::Row rowOf(const QWidget& page, const QString& name) {
    AnswerRows::Row row;
    for (const auto& [box, what] : {std::pair{&row.slope, "Slope"},
                                    {&row.intercept, "Intercept"},
                                    {&row.start, "Start"},
                                    {&row.end, "End"}}) {
        *box = page.findChild<AnswerBox*>(name + what);
    }
    for (const char* caption :
         {"PriceEquals", "TimesQuantityPlus", "ZeroLessThanQuantity", "ValidFor", "LessThanQuantity"}) {
        if (QWidget* const found = find(page, name + caption)) {
            row.captions.push_back(found);
        }
    }
    QWidget* const startSign = find(page, name + "StartLessOrEqual");
    if (row.start != nullptr) {
        row.startSign = startSign;
    } else if (startSign != nullptr) {
        // It stands after the 0 of the first row, which has no box.
        row.captions.push_back(startSign);
    }
    row.endSign = find(page, name + "EndLessOrEqual");
    if (row.endSign == nullptr) {
        row.endSign = find(page, name + "EndLess");
    }
    return row;
}

void setShown(bool isShown, QWidget* widget) {
    if (widget != nullptr) {
        widget->setVisible(isShown);
    }
}

}  // namespace

AnswerRows AnswerRows::of(const QWidget& page) {
    std::vector<Row> rows;
    for (int number = 1;; ++number) {
        Row row = rowOf(page, QString("segment%1").arg(number));
        if (row.slope == nullptr) {
            return AnswerRows(std::move(rows));
        }
        rows.push_back(std::move(row));
    }
}

void AnswerRows::show(int row, bool isUsed, bool hasEnd) const {
    const Row& shown = rows_.at(static_cast<std::size_t>(row));
    for (QWidget* widget : {shown.slope, shown.intercept, shown.start}) {
        setShown(isUsed, widget);
    }
    for (QWidget* caption : shown.captions) {
        setShown(isUsed, caption);
    }
    setShown(isUsed && hasEnd, shown.end);
    setShown(isUsed && hasEnd, shown.endSign);
}

void AnswerRows::showStartSign(int row, bool isLone) const {
    setShown(isLone, rows_.at(static_cast<std::size_t>(row)).startSign);
}

std::vector<AnswerBox*> AnswerRows::boxes() const {
    std::vector<AnswerBox*> all;
    forEachBox(rows_, [&all](AnswerBox* box) { all.push_back(box); });
    return all;
}

std::vector<AnswerBox*> AnswerRows::boxes(const std::vector<AnswerField>& fields) const {
    std::vector<AnswerBox*> asked;
    std::transform(fields.begin(), fields.end(), std::back_inserter(asked),
                   [this](const AnswerField& field) { return box(field.row, field.slot); });
    return asked;
}

AnswerBox* AnswerRows::box(int row, Slot slot) const {
    const Row& found = rows_.at(static_cast<std::size_t>(row));
    switch (slot) {
        case Slot::Slope:
            return found.slope;
        case Slot::Intercept:
            return found.intercept;
        case Slot::Start:
            return found.start;
        case Slot::End:
            return found.end;
    }
    return nullptr;
}

Piece AnswerRows::typedSegment(int row) const {
    return {typed(row, Slot::Slope), typed(row, Slot::Intercept)};
}

void AnswerRows::blank() const {
    forEachBox(rows_, [](AnswerBox* box) {
        box->setContent(kBlankText);
        box->mark(false);
    });
}

void AnswerRows::nameShownBoxes() const {
    static constexpr std::array kOrdinals{"første", "andet", "tredje", "fjerde", "femte", "sjette"};
    std::vector<Row> shown;
    std::copy_if(rows_.begin(), rows_.end(), std::back_inserter(shown),
                 [](const Row& row) { return row.slope->isShown(); });
    for (std::size_t place = 0; place < shown.size() && place < kOrdinals.size(); ++place) {
        const Row& row = shown[place];
        const QString which =
            shown.size() == 1 ? QString() : QString(" for %1 stykke").arg(fromUtf8(kOrdinals.at(place)));
        for (const auto& [box, what] : {std::pair{row.slope, "hældning"},
                                        {row.intercept, "konstantled"},
                                        {row.start, "begyndelse i Q"},
                                        {row.end, "slut i Q"}}) {
            if (box != nullptr) {
                box->setAccessibleName(fromUtf8(what) + which);
            }
        }
    }
}

void AnswerRows::whiten() const {
    forEachBox(rows_, [](AnswerBox* box) { box->mark(false); });
}

void AnswerRows::write(int row, Slot slot, const TableCell& content) const {
    box(row, slot)->setContent(content.text());
}

void AnswerRows::write(int row, const Piece& segment) const {
    write(row, Slot::Slope, segment.slope);
    write(row, Slot::Intercept, segment.intercept);
}

void AnswerRows::write(const std::vector<AnswerField>& fields) const {
    for (const AnswerField& field : fields) {
        write(field.row, field.slot, field.target.value);
    }
}

QString wholeFunction(const std::string& slope, const std::string& intercept, const std::string& where) {
    const bool isNegative = intercept.front() == '-';
    return fromUtf8("P = " + slope + "Q " + (isNegative ? "- " + intercept.substr(1) : "+ " + intercept) +
                    " for " + where);
}

FunctionLabels FunctionLabels::of(const QWidget& page, const QString& prefix) {
    return {page.findChild<Label*>(prefix + "Text"), page.findChild<Label*>(prefix + "Slope"),
            page.findChild<Label*>(prefix + "Intercept")};
}

void FunctionLabels::fill(const std::string& slopeText, const std::string& interceptText) const {
    slope->setCaption(slopeText);
    intercept->setCaption(interceptText);
}

void FunctionLabels::tell(const std::string& slopeText, const std::string& interceptText,
                          const std::string& where) const {
    fill(slopeText, interceptText);
    text->setAccessibleName(wholeFunction(slopeText, interceptText, where));
}

HelpTable helpTableOf(const QWidget& page, const std::vector<QString>& names) {
    HelpTable table;
    for (const QString& name : names) {
        table.push_back(helpColumnOf(page, name));
    }
    return table;
}

std::vector<AnswerBox*> rowByRow(const HelpTable& table) {
    std::vector<AnswerBox*> boxes;
    for (std::size_t row = 0; row < table.front().size(); ++row) {
        for (const HelpColumn& column : table) {
            boxes.push_back(column[row]);
        }
    }
    return boxes;
}

void blank(const HelpTable& table) {
    for (AnswerBox* box : rowByRow(table)) {
        box->setContent(kBlankText);
    }
}

}  // namespace tavrune
