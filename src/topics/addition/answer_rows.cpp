#include "topics/addition/answer_rows.h"

#include <algorithm>
#include <array>

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

void AnswerRows::nameShownBoxes() const {
    static constexpr std::array kOrdinals{"første", "andet", "tredje", "fjerde", "femte", "sjette"};
    std::vector<Row> shown;
    std::copy_if(rows_.begin(), rows_.end(), std::back_inserter(shown),
                 [](const Row& row) { return row.slope->isShown(); });
    for (std::size_t place = 0; place < shown.size() && place < kOrdinals.size(); ++place) {
        const Row& row = shown[place];
        const QString which =
            shown.size() == 1 ? QString() : QString(", %1 stykke").arg(fromUtf8(kOrdinals.at(place)));
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

QString wholeFunction(const std::string& slope, const std::string& intercept, const std::string& where) {
    const bool isNegative = intercept.front() == '-';
    return fromUtf8("P = " + slope + "Q " + (isNegative ? "- " + intercept.substr(1) : "+ " + intercept) +
                    " for " + where);
}

void blankColumn(const HelpColumn& column) {
    for (AnswerBox* box : column) {
        box->setContent(kBlankText);
    }
}

}  // namespace tavrune
