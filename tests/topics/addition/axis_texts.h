#pragma once

#include <set>
#include <string>

#include "graph/graph_box.h"
#include "support/form_driver.h"

namespace tavrune::test {

/// What is seen on a frame round a graph, in no order: numbers, names of axes, a title. The uppermost number
/// reaches over the edge of its frame.
[[nodiscard]] inline std::multiset<std::string> axisTexts(const FormDriver& f, const std::string& frame) {
    const auto& box = f.find<GraphBox>(frame);
    const QWidget& around = *box.parentWidget();
    std::multiset<std::string> texts;
    for (const Label* label : around.findChildren<Label*>()) {
        const QPoint middle = label->mapTo(&around, label->rect().center());
        if (label->isVisible() && box.geometry().contains(middle)) {
            texts.insert(label->caption());
        }
    }
    return texts;
}

}  // namespace tavrune::test
