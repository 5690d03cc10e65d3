#pragma once

#include <vector>

#include <QRectF>

#include "controls/label.h"

namespace tavrune {

/// Where the text of a label of one line stands within the label's parent, in units.
struct TextExtent {
    /// From the first letter to the last, from the top of the capitals to the baseline.
    QRectF ink;
    /// With the blanks before and behind, as high as the font.
    QRectF line;
};

/// Of a label without line ends.
[[nodiscard]] TextExtent extentOf(const Label& label);

/// Where each letter of a label stands within the label's parent, in units.
class TextPlaces {
public:
    explicit TextPlaces(const Label& label);

    /// A place in the text: the run of blanks there, or the boundary between two letters.
    struct Gap {
        bool isBlank;
        qsizetype first;
        /// Of the blanks, none where there is a letter.
        qsizetype length;
        /// Nearest to the left end of what stands there.
        qsizetype boundary;
    };

    /// The place that is covered by `ink`, in the line that stands at its height.
    [[nodiscard]] Gap at(const QRectF& ink) const;

private:
    struct Line {
        double top;
        qsizetype start;
        /// The left edges of its letters, and the right edge of the last.
        std::vector<double> edges;
    };

    QString text_;
    double pitch_;
    std::vector<Line> lines_;
};

}  // namespace tavrune
