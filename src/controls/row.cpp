#include "controls/row.h"

namespace tavrune {

double layOutRow(std::initializer_list<Label*> labels, double left, double gap) {
    double right = left;
    double next = left;
    for (Label* label : labels) {
        label->setAutoSize(true);
        label->setLeft(next);
        if (!label->text().isEmpty()) {
            right = label->place().right();
            next = right + gap;
        }
    }
    return right;
}

}  // namespace tavrune
