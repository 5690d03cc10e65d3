#pragma once

#include <string>
#include <vector>

#include "controls/answer_box.h"
#include "topics/addition/addition_model.h"

namespace tavrune {

/// The rows in which the segments of the sum are typed. A slot that a row does not have is null.
class AnswerRows {
public:
    struct Row {
        AnswerBox* slope;
        AnswerBox* intercept;
        AnswerBox* start;
        AnswerBox* end;
    };

    explicit AnswerRows(std::vector<Row> rows) : rows_(std::move(rows)) {}

    [[nodiscard]] AnswerBox* box(int row, Slot slot) const;
    [[nodiscard]] double typed(int row, Slot slot) const { return box(row, slot)->value(); }
    /// The function that a row spells.
    [[nodiscard]] Piece typedSegment(int row) const;

    /// Every box back to one blank, and white.
    void blank() const;
    void whiten() const;
    /// For screen readers: "hældning, andet stykke", counted over the rows that are shown.
    void nameShownBoxes() const;
    void write(int row, Slot slot, const TableCell& content) const;

    /// True if each of the fields holds its target.
    [[nodiscard]] bool areFit(const std::vector<AnswerField>& fields) const;
    /// Turns those red that are off their target.
    void mark(const std::vector<AnswerField>& fields) const;

private:
    std::vector<Row> rows_;
};

/// A given function as a whole, for screen readers: on the page its numbers are laid into gaps of a text.
/// wholeFunction("-3", "4", "Q ≥ 0, P ≥ 0") -> "P = -3Q + 4 for Q ≥ 0, P ≥ 0"
[[nodiscard]] QString wholeFunction(const std::string& slope, const std::string& intercept,
                                    const std::string& where);

/// Boxes of one column of a help table, from the top.
using HelpColumn = std::vector<AnswerBox*>;

/// Writes cells into a column, as many as it has boxes.
template <class Cells>
void writeColumn(const HelpColumn& column, const Cells& cells) {
    for (std::size_t row = 0; row < column.size(); ++row) {
        column[row]->setContent(cells[row].text());
    }
}

/// One blank into each box of a column; the colours stay.
void blankColumn(const HelpColumn& column);

}  // namespace tavrune
