#include "controls/row.h"

namespace tavrune {

double layOutRow(const std::vector<Label*>& labels, double left, double gap) {
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

double layOutFromFirst(const std::vector<Label*>& labels, double gap) {
    return layOutRow(labels, labels.front()->place().left(), gap);
}

std::vector<Label*> labelsOf(const QWidget& page, const QString& prefix,
                             std::initializer_list<const char*> names) {
    std::vector<Label*> labels;
    for (const char* name : names) {
        labels.push_back(page.findChild<Label*>(prefix + name));
    }
    return labels;
}

}  // namespace tavrune
