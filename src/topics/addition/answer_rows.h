#pragma once

#include <string>
#include <vector>

#include "controls/answer_box.h"
#include "controls/label.h"
#include "graph/graph_box.h"
#include "topics/addition/addition_model.h"

namespace tavrune {

/// The rows in which the segments of the sum are typed.
class AnswerRows {
public:
    /// What a row does not have is null.
    struct Row {
        AnswerBox* slope = nullptr;
        AnswerBox* intercept = nullptr;
        AnswerBox* start = nullptr;
        AnswerBox* end = nullptr;
        /// What stands between the boxes, but for the signs of which not every exercise has both.
        std::vector<QWidget*> captions;
        /// The sign of a segment that begins at its start.
        QWidget* startSign = nullptr;
        QWidget* endSign = nullptr;
    };

    AnswerRows() = default;
    explicit AnswerRows(std::vector<Row> rows) : rows_(std::move(rows)) {}

    /// The rows of a page, from the top: what is called `segment1Slope` and so on.
    [[nodiscard]] static AnswerRows of(const QWidget& page);

    [[nodiscard]] AnswerBox* box(int row, Slot slot) const;
    [[nodiscard]] double typed(int row, Slot slot) const { return box(row, slot)->value(); }
    /// The function that a row spells.
    [[nodiscard]] Piece typedSegment(int row) const;

    /// Shows a row if it is used, and its end if it has one.
    void show(int row, bool isUsed, bool hasEnd) const;
    /// A lone segment begins at its start, one that follows another after it.
    void showStartSign(int row, bool isLone) const;

    [[nodiscard]] int count() const { return static_cast<int>(rows_.size()); }
    /// The boxes in reading order.
    [[nodiscard]] std::vector<AnswerBox*> boxes() const;
    /// Those of the fields, in their order.
    [[nodiscard]] std::vector<AnswerBox*> boxes(const std::vector<AnswerField>& fields) const;

    /// Every box back to one blank, and white.
    void blank() const;
    void whiten() const;
    /// For screen readers: "hældning, andet stykke", counted over the rows that are shown.
    void nameShownBoxes() const;
    void write(int row, Slot slot, const TableCell& content) const;

private:
    std::vector<Row> rows_;
};

/// A given function as a whole, for screen readers: on the page its numbers are laid into gaps of a text.
/// wholeFunction("-3", "4", "Q ≥ 0, P ≥ 0") -> "P = -3Q + 4 for Q ≥ 0, P ≥ 0"
[[nodiscard]] QString wholeFunction(const std::string& slope, const std::string& intercept,
                                    const std::string& where);

/// What a page has for a given function, or for a part of one: the text with gaps and the numbers that lie in
/// them.
struct GivenFunction {
    Label* text = nullptr;
    Label* slope = nullptr;
    Label* intercept = nullptr;

    /// What is called `function1Text` and so on, for the prefix "function1".
    [[nodiscard]] static GivenFunction of(const QWidget& page, const QString& prefix);

    /// Fills the gaps.
    void fill(const std::string& slopeText, const std::string& interceptText) const;
    /// Fills the gaps and tells screen readers the whole, which holds `where`.
    void tell(const std::string& slopeText, const std::string& interceptText, const std::string& where) const;
};

/// A graph in its frame.
struct FramedGraph {
    GraphBox* frame = nullptr;
    GraphBox* box = nullptr;

    /// What is called `function1GraphFrame` and `function1Graph`, for the prefix "function1".
    [[nodiscard]] static FramedGraph of(const QWidget& page, const QString& prefix);
};

/// The controls of a page whose names are `pattern` with 1, 2 and so on for its "%1", as far as they go.
template <class Widget>
[[nodiscard]] std::vector<Widget*> numbered(const QWidget& page, const QString& pattern) {
    std::vector<Widget*> found;
    while (auto* const widget = page.findChild<Widget*>(pattern.arg(found.size() + 1))) {
        found.push_back(widget);
    }
    return found;
}

/// Boxes of one column of a help table, from the top.
using HelpColumn = std::vector<AnswerBox*>;

/// What is called `price1`, `price2` and so on, for the name "price".
[[nodiscard]] inline HelpColumn helpColumnOf(const QWidget& page, const QString& name) {
    return numbered<AnswerBox>(page, name + "%1");
}

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
