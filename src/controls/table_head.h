#pragma once

#include <utility>
#include <vector>

#include "controls/label.h"

namespace tavrune {

/// The names of columns, one caption for all: each word stands over the middle of its column.
class TableHead : public Label {
    Q_OBJECT

public:
    explicit TableHead(QWidget* parent = nullptr) : Label(parent) {}

    /// The first control of each column, from left to right; they share the parent of the head. Words that
    /// have no column are not seen.
    void standOver(const std::vector<const Control*>& columns);

    /// The words with their places within the head, in pixels.
    [[nodiscard]] std::vector<std::pair<QRectF, QString>> words() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    // In units, from the left of the head.
    std::vector<double> middles_;
};

}  // namespace tavrune
