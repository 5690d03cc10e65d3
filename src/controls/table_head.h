#pragma once

#include <utility>
#include <vector>

#include "controls/label.h"

namespace tavrune {

/// The names of the columns of a table, in one text: each word is placed over the middle of its column.
class TableHead : public Label {
    Q_OBJECT

public:
    explicit TableHead(QWidget* parent = nullptr) : Label(parent) {}

    /// Sets the columns, by their first controls, from left to right. Words without a column are not shown.
    /// Precondition: the controls have the same parent as the head.
    void standOver(const std::vector<const Control*>& columns);

    /// Returns the words and their places within the head, in pixels.
    [[nodiscard]] std::vector<std::pair<QRectF, QString>> words() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    // Units from the left edge of the head.
    std::vector<double> middles_;
};

}  // namespace tavrune
