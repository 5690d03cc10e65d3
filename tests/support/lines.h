#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include <QTextLayout>

#include "controls/label.h"

namespace tavrune::test {

/// The lines that a wrapped label breaks its text into, without the blanks at their ends.
inline std::vector<std::string> linesOf(const Label& label) {
    QTextLayout layout(label.text(), label.font());
    std::vector<std::string> lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(label.width());
        lines.push_back(label.text().mid(line.textStart(), line.textLength()).trimmed().toStdString());
    }
    layout.endLayout();
    return lines;
}

/// True if one of the lines of a label begins so.
inline bool hasALineThatBegins(const Label& label, const std::string& beginning) {
    const std::vector<std::string> lines = linesOf(label);
    return std::any_of(lines.begin(), lines.end(),
                       [&beginning](const std::string& line) { return line.starts_with(beginning); });
}

}  // namespace tavrune::test
