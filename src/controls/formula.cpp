#include "controls/formula.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include <QRegularExpression>

#include "controls/line_control.h"

namespace tavrune {
namespace {

using Parts = std::vector<Part>;

// In units, for letters 11 units high; larger ones reach further.
/// From a fraction bar to the letters over and under it.
constexpr double kReach = 12;
/// Lines that meet may miss each other by this.
constexpr double kMeet = 3;
/// From an integral sign to its limits.
constexpr double kLimitReach = 6;
/// From a fraction without a bar to what stands beside it.
constexpr double kBeside = 42;

bool isLevel(const PageLine& line) { return line.ends.dy() == 0 && line.ends.dx() > kMeet; }

bool isFalling(const PageLine& line) { return line.ends.dy() >= 2 && line.ends.dx() >= 2; }

bool isRising(const PageLine& line) { return line.ends.dy() <= -2 && line.ends.dx() >= 2; }

/// Takes out those that `isWanted`.
template <class Wanted>
Parts takenFrom(Parts& parts, Wanted isWanted) {
    const auto taken =
        std::stable_partition(parts.begin(), parts.end(), [&](const Part& part) { return !isWanted(part); });
    Parts result(std::make_move_iterator(taken), std::make_move_iterator(parts.end()));
    parts.erase(taken, parts.end());
    return result;
}

// Names that say what stands around them.

/// What lies within a label that has a name is said by the name.
void silenceNamed(Parts& parts) {
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const Label* const named = parts[i].label;
        if (named->accessibleName().isEmpty()) {
            continue;
        }
        const QRectF place = named->place();
        const Parts silent = takenFrom(parts, [&](const Part& part) {
            return part.label != named && place.contains(part.ink.center());
        });
        i = static_cast<std::size_t>(
            std::find_if(parts.begin(), parts.end(), [&](const Part& part) { return part.label == named; }) -
            parts.begin());
        for (const Part& part : silent) {
            absorb(parts[i], part);
        }
    }
}

// Signs that reach over what they belong to.

void makeRoot(Parts& parts, const PageLine& bar, const std::vector<PageLine>& lines) {
    const auto rise = std::find_if(lines.begin(), lines.end(), [&](const PageLine& line) {
        return isRising(line) && QLineF(line.ends.p2(), bar.ends.p1()).length() < kMeet;
    });
    if (rise == lines.end()) {
        return;
    }
    const Parts under = takenFrom(parts, [&](const Part& part) {
        const QPointF middle = part.ink.center();
        return middle.x() > bar.ends.x1() - 1 && middle.x() < bar.ends.x2() + 1 &&
               middle.y() > bar.ends.y1() && middle.y() < rise->ends.y1() + kMeet;
    });
    if (under.empty()) {
        return;
    }
    Part root = inOneRow(under);
    static const QRegularExpression single("^[\\w,.]+$", QRegularExpression::UseUnicodePropertiesOption);
    root.text = single.match(root.text).hasMatch() ? "√" + root.text : "√(" + root.text + ")";
    root.label = nullptr;
    root.ink.setLeft(rise->ends.x1());
    for (const PageLine& line : lines) {
        if (line.widget == bar.widget || line.widget == rise->widget ||
            (isFalling(line) && QLineF(line.ends.p2(), rise->ends.p1()).length() < kMeet)) {
            root.pieces.push_back(line.widget);
        }
    }
    parts.push_back(std::move(root));
}

void addLimits(Parts& parts, const Label& sign) {
    const auto at =
        std::find_if(parts.begin(), parts.end(), [&](const Part& part) { return part.label == &sign; });
    const QRectF room = at->room;
    const auto limits = [&](double from, double to) {
        return takenFrom(parts, [&](const Part& part) {
            const double height = (part.ink.center().y() - room.center().y()) / room.height();
            return part.ink.left() > room.left() && part.ink.left() < room.right() + kLimitReach &&
                   height > from && height < to;
        });
    };
    const Parts upper = limits(-0.7, -0.2);
    const Parts lower = limits(0.2, 0.7);
    Part& integral =
        *std::find_if(parts.begin(), parts.end(), [&](const Part& part) { return part.label == &sign; });
    integral.ink = QRectF(room.left(), room.center().y() - 4, room.width(), 8);
    if (upper.empty() || lower.empty()) {
        parts.insert(parts.end(), upper.begin(), upper.end());
        parts.insert(parts.end(), lower.begin(), lower.end());
        return;
    }
    const Part from = inOneRow(lower);
    const Part to = inOneRow(upper);
    integral.text = "integralet fra " + from.text + " til " + to.text + " af";
    integral.label = nullptr;
    for (const Part* limit : {&from, &to}) {
        absorb(integral, *limit);
        integral.ink.setRight(std::max(integral.ink.right(), limit->ink.right()));
    }
}

void addLimits(Parts& parts) {
    std::vector<const Label*> signs;
    for (const Part& part : parts) {
        if (part.text == "∫" && part.label->accessibleName().isEmpty()) {
            signs.push_back(part.label);
        }
    }
    for (const Label* const sign : signs) {
        addLimits(parts, *sign);
    }
}

// Fractions.

/// A division over or under a bar is in brackets, or nobody hears where the bar is.
QString besideBar(const QString& text) {
    return text.contains('/') && !text.startsWith('(') && !text.contains("brøk") ? "(" + text + ")" : text;
}

void addFraction(Parts& parts, Parts above, Parts below, const QLineF& bar, const QWidget* line) {
    Part fraction = inOneRow(std::move(above));
    const Part denominator = inOneRow(std::move(below));
    fraction.text =
        "brøk: " + besideBar(fraction.text) + " over " + besideBar(denominator.text) + ", brøk slut,";
    fraction.label = nullptr;
    if (line != nullptr) {
        fraction.pieces.push_back(line);
    }
    absorb(fraction, denominator);
    const double half = 4 * scaleOf(fraction);
    fraction.ink = QRectF(bar.x1(), bar.center().y() - half, bar.dx(), 2 * half);
    parts.push_back(std::move(fraction));
}

void makeFraction(Parts& parts, const PageLine& bar) {
    const double y = bar.ends.y1();
    const auto stands = [&](const Part& part, double distance) {
        return part.ink.center().x() > bar.ends.x1() - 2 && part.ink.center().x() < bar.ends.x2() + 2 &&
               part.ink.width() < bar.ends.dx() + 16 && distance > -2 && distance < kReach * scaleOf(part);
    };
    const auto extent = [](const Part& part) { return part.label == nullptr ? part.room : part.ink; };
    const auto isAbove = [&](const Part& part) { return stands(part, y - extent(part).bottom()); };
    const auto isBelow = [&](const Part& part) { return stands(part, extent(part).top() - y); };
    if (std::any_of(parts.begin(), parts.end(), isAbove) &&
        std::any_of(parts.begin(), parts.end(), isBelow)) {
        Parts above = takenFrom(parts, isAbove);
        Parts below = takenFrom(parts, isBelow);
        addFraction(parts, std::move(above), std::move(below), bar.ends, bar.widget);
    }
}

/// Two centred labels of one width, one close over the other, with something beside the middle: a fraction
/// whose bar is drawn on the surface behind it.
bool isOver(const Part& upper, const Part& lower) {
    if (upper.label == nullptr || lower.label == nullptr ||
        !upper.label->alignment().testFlag(Qt::AlignHCenter) ||
        !lower.label->alignment().testFlag(Qt::AlignHCenter)) {
        return false;
    }
    const QRectF top = upper.label->place();
    const QRectF bottom = lower.label->place();
    const double distance = lower.ink.top() - upper.ink.bottom();
    return std::abs(top.left() - bottom.left()) < 2 && std::abs(top.width() - bottom.width()) < 2 &&
           distance > kMeet && distance < 2 * kReach * scaleOf(upper);
}

/// Makes the first that there is. False if there is none.
bool makeFractionWithoutBar(Parts& parts) {
    for (const Part& upper : parts) {
        const auto lower =
            std::find_if(parts.begin(), parts.end(), [&](const Part& other) { return isOver(upper, other); });
        if (lower == parts.end()) {
            continue;
        }
        const double middle = (upper.ink.bottom() + lower->ink.top()) / 2;
        const bool isBesideSomething = std::any_of(parts.begin(), parts.end(), [&](const Part& other) {
            return other.label != nullptr && std::abs(other.ink.center().y() - middle) < kMeet &&
                   std::abs(other.ink.right() - upper.room.left()) < kBeside;
        });
        if (!isBesideSomething) {
            continue;
        }
        const QRectF place = upper.label->place();
        const Label* const upperLabel = upper.label;
        const Label* const lowerLabel = lower->label;
        Parts above = takenFrom(parts, [&](const Part& part) { return part.label == upperLabel; });
        Parts below = takenFrom(parts, [&](const Part& part) { return part.label == lowerLabel; });
        addFraction(parts, std::move(above), std::move(below), {place.left(), middle, place.right(), middle},
                    nullptr);
        return true;
    }
    return false;
}

}  // namespace

std::vector<Part> combined(std::vector<Part> parts, std::vector<PageLine> lines) {
    silenceNamed(parts);
    fillGaps(parts);
    addLimits(parts);
    std::ranges::sort(lines, {}, [](const PageLine& line) { return line.ends.dx(); });
    std::vector<PageLine> bars;
    std::copy_if(lines.begin(), lines.end(), std::back_inserter(bars), isLevel);
    for (const PageLine& bar : bars) {
        makeRoot(parts, bar, lines);
    }
    for (const PageLine& bar : bars) {
        makeFraction(parts, bar);
    }
    while (makeFractionWithoutBar(parts)) {
    }
    std::erase_if(parts,
                  [](const Part& part) { return part.label != nullptr && part.label->isDecorative(); });
    for (Part& part : parts) {
        if (part.label != nullptr && !part.label->accessibleName().isEmpty()) {
            part.text = part.label->accessibleName();
        }
    }
    return parts;
}

}  // namespace tavrune
