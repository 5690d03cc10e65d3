#pragma once

#include <vector>

#include <QRectF>
#include <QString>
#include <QWidget>

#include "controls/label.h"

namespace tavrune {

/// What is read as one: a label, or several and lines that make a fraction, a root or an integral sign with
/// its limits. All lengths are in units, within the box that holds it, so that it reads alike at every zoom.
struct Part {
    /// Where its letters stand: from the top of the capitals to the baseline. Of a fraction, where those of
    /// a line beside it would.
    QRectF ink;
    /// All the room that its labels take.
    QRectF room;
    /// In signs, to be put into words by `spoken`. Never empty.
    QString text;
    /// The labels and lines that it is made of, a label first.
    std::vector<const QWidget*> pieces;
    double size = kDesignTextSize;
    /// Null where it is made of several, but for exponents and what lies in gaps.
    const Label* label = nullptr;
};

/// A label that stands by itself. Its text must not be empty.
[[nodiscard]] Part partOf(const Label& label);

/// Of a part, how much larger its letters are than most.
[[nodiscard]] double scaleOf(const Part& part);

/// Makes the pieces of `piece` pieces of `whole`, in the room of which it then stands.
void absorb(Part& whole, const Part& piece);

/// Writes labels into the gaps of the texts that they lie in, and exponents over them, then tidies all texts:
/// line ends between sentences are stops, wide gaps that are left are pauses. Precondition: each is a label
/// that stands by itself.
void fillGaps(std::vector<Part>& parts);

/// The text of parts that stand beside each other, from the left. Precondition: there is one.
[[nodiscard]] Part inOneRow(std::vector<Part> parts);

}  // namespace tavrune
