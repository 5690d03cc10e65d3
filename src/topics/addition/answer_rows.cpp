#include "topics/addition/answer_rows.h"

#include <algorithm>

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

}  // namespace

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

void AnswerRows::whiten() const {
    forEachBox(rows_, [](AnswerBox* box) { box->mark(false); });
}

void AnswerRows::write(int row, Slot slot, const TableCell& content) const {
    box(row, slot)->setContent(content.text());
}

bool AnswerRows::areFit(const std::vector<AnswerField>& fields) const {
    return std::all_of(fields.begin(), fields.end(), [this](const AnswerField& field) {
        return field.target.isFit(typed(field.row, field.slot));
    });
}

void AnswerRows::mark(const std::vector<AnswerField>& fields) const {
    for (const AnswerField& field : fields) {
        AnswerBox* asked = box(field.row, field.slot);
        asked->mark(field.target.isMarked(asked->value()));
    }
}

void blankColumn(const HelpColumn& column) {
    for (AnswerBox* box : column) {
        box->setContent(kBlankText);
    }
}

}  // namespace tavrune
