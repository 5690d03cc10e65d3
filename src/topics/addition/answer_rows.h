#pragma once

#include <string>
#include <vector>

#include "controls/answer_box.h"
#include "controls/label.h"
#include "topics/addition/addition_model.h"

namespace tavrune {

/// The rows in which the segments of the sum are typed.
class AnswerRows {
public:
    /// A control that a row does not have is null.
    struct Row {
        AnswerBox* slope = nullptr;
        AnswerBox* intercept = nullptr;
        AnswerBox* start = nullptr;
        AnswerBox* end = nullptr;
        /// What stands between the boxes, without the two signs.
        std::vector<QWidget*> captions;
        /// Shown for a segment that begins at its start, not after it.
        QWidget* startSign = nullptr;
        QWidget* endSign = nullptr;
    };

    AnswerRows() = default;
    explicit AnswerRows(std::vector<Row> rows) : rows_(std::move(rows)) {}

    /// Returns the rows of a page, from the top: what is called `segment1Slope` and so on.
    [[nodiscard]] static AnswerRows of(const QWidget& page);

    [[nodiscard]] AnswerBox* box(int row, Slot slot) const;
    [[nodiscard]] double typed(int row, Slot slot) const { return box(row, slot)->value(); }
    /// Returns the function that is typed in a row.
    [[nodiscard]] Piece typedSegment(int row) const;

    /// Shows a row if it is used, and its end if it has one.
    void show(int row, bool isUsed, bool hasEnd) const;
    /// A lone segment begins at its start, one that follows another after it.
    void showStartSign(int row, bool isLone) const;

    [[nodiscard]] int count() const { return static_cast<int>(rows_.size()); }
    /// Returns all boxes in reading order.
    [[nodiscard]] std::vector<AnswerBox*> boxes() const;
    /// Returns the boxes of the fields, in their order.
    [[nodiscard]] std::vector<AnswerBox*> boxes(const std::vector<AnswerField>& fields) const;

    /// Writes a blank into every box and takes its red away.
    void blank() const;
    void whiten() const;
    /// Names the boxes for screen readers, "hældning for andet stykke", counted over the rows that are shown.
    void nameShownBoxes() const;
    void write(int row, Slot slot, const TableCell& content) const;
    /// Writes the slope and the intercept of a segment.
    void write(int row, const Piece& segment) const;
    /// Writes the targets of the fields.
    void write(const std::vector<AnswerField>& fields) const;

private:
    std::vector<Row> rows_;
};

/// Returns a given function as a whole, for screen readers: on the page its numbers lie in gaps of a text.
/// wholeFunction("-3", "4", "Q ≥ 0, P ≥ 0") -> "P = -3Q + 4 for Q ≥ 0, P ≥ 0"
[[nodiscard]] QString wholeFunction(const std::string& slope, const std::string& intercept,
                                    const std::string& where);

/// The labels of a given function, or of a part of one: a text with gaps, and the numbers that lie in them.
struct FunctionLabels {
    Label* text = nullptr;
    Label* slope = nullptr;
    Label* intercept = nullptr;

    /// Returns what is called `function1Text` and so on, for the prefix "function1".
    [[nodiscard]] static FunctionLabels of(const QWidget& page, const QString& prefix);

    /// Fills the gaps.
    void fill(const std::string& slopeText, const std::string& interceptText) const;
    /// Fills the gaps and tells screen readers the whole function, which holds `where`.
    void tell(const std::string& slopeText, const std::string& interceptText, const std::string& where) const;
};

/// Returns the controls of a page whose names are `pattern` with 1, 2 and so on for its "%1", up to the first
/// number that is missing.
template <class Widget>
[[nodiscard]] std::vector<Widget*> numbered(const QWidget& page, const QString& pattern) {
    std::vector<Widget*> found;
    while (auto* const widget = page.findChild<Widget*>(pattern.arg(found.size() + 1))) {
        found.push_back(widget);
    }
    return found;
}

/// The boxes of one column of a help table, from the top.
using HelpColumn = std::vector<AnswerBox*>;
/// The columns of a help table, from the left.
using HelpTable = std::vector<HelpColumn>;

/// Returns the column of `price1`, `price2` and so on, for the name "price".
[[nodiscard]] inline HelpColumn helpColumnOf(const QWidget& page, const QString& name) {
    return numbered<AnswerBox>(page, name + "%1");
}

/// Returns a column for each name.
[[nodiscard]] HelpTable helpTableOf(const QWidget& page, const std::vector<QString>& names);

/// Returns the boxes row by row. Precondition: there is a column, and all are as long as the first.
[[nodiscard]] std::vector<AnswerBox*> rowByRow(const HelpTable& table);

/// Writes cells into a column. Precondition: there are as many as it has boxes.
template <class Cells>
void writeColumn(const HelpColumn& column, const Cells& cells) {
    for (std::size_t row = 0; row < column.size(); ++row) {
        column[row]->setContent(cells[row].text());
    }
}

/// Writes a blank into each box; the colours stay.
void blank(const HelpTable& table);

}  // namespace tavrune
