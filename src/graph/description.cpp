#include "graph/description.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <set>

#include "graph/clipping.h"
#include "numeric/text.h"

namespace tavrune {
namespace {

// Sizes as parts of the width or height of the scale.
constexpr double kMarkSize = 0.08;
constexpr double kTickOffAxis = 0.04;
constexpr double kHatchGap = 0.02;
constexpr double kThickness = 0.04;
constexpr double kDotGap = 0.015;

constexpr std::size_t kFewestDots = 8;
constexpr std::size_t kFewestInABlock = 3;
/// Thick lines are made of no more.
constexpr std::size_t kMostInAThickLine = 20;
/// Up to here a chain is told corner by corner.
constexpr std::size_t kMostCorners = 6;
constexpr std::size_t kMostTurns = 4;
constexpr std::size_t kMostRuns = 4;
constexpr std::size_t kMostSentences = 24;

struct NamedColour {
    QColor colour;
    const char* name;
};

const char* nameOf(const QColor& colour) {
    static const std::array kNames{
        NamedColour{kBlack, "sort"},
        NamedColour{kRed, "rød"},
        NamedColour{kGreen, "grøn"},
        NamedColour{rgb(0, 190, 0), "grøn"},
        NamedColour{kBlue, "blå"},
        NamedColour{rgb(255, 190, 0), "gul"},
        NamedColour{rgb(255, 90, 0), "orange"},
        NamedColour{rgb(200, 90, 0), "brun"},
        NamedColour{rgb(255, 0, 255), "lilla"},
        NamedColour{rgb(128, 128, 128), "grå"},
        NamedColour{kWhite, "hvid"},
    };
    const auto distance = [&colour](const NamedColour& named) {
        const int red = named.colour.red() - colour.red();
        const int green = named.colour.green() - colour.green();
        const int blue = named.colour.blue() - colour.blue();
        return red * red + green * green + blue * blue;
    };
    return std::min_element(
               kNames.begin(), kNames.end(),
               [&distance](const auto& one, const auto& other) { return distance(one) < distance(other); })
        ->name;
}

double tenths(double x) { return std::round(x * 10) / 10; }

std::string number(double x) { return NumberText(std::round(x * 100) / 100); }

std::string join(const std::vector<std::string>& texts, const std::string& last) {
    std::string joined;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (i > 0) {
            joined += i + 1 == texts.size() ? last : ", ";
        }
        joined += texts[i];
    }
    return joined;
}

/// One scale: what can be seen in it, and how large that is.
class View {
public:
    explicit View(const GraphScale& scale)
        : scale_(scale),
          bounds_(QRectF(QPointF(scale.x1, scale.y1), QPointF(scale.x2, scale.y2)).normalized()) {}

    [[nodiscard]] bool isEmpty() const { return bounds_.width() <= 0 || bounds_.height() <= 0; }
    [[nodiscard]] const QRectF& bounds() const { return bounds_; }

    /// The part of a stroke that is seen, in the coordinates of the mathematics.
    [[nodiscard]] std::optional<QLineF> seen(const Stroke& stroke) const {
        const auto part = clipped(QLineF(stroke.x1, stroke.y1, stroke.x2, stroke.y2), bounds_);
        if (isEmpty() || !part) {
            return std::nullopt;
        }
        return QLineF(upright(part->p1()), upright(part->p2()));
    }

    /// A stroke seen or not; nothing for one that is nowhere.
    [[nodiscard]] std::optional<QLineF> whole(const Stroke& stroke) const {
        const QLineF line(upright({stroke.x1, stroke.y1}), upright({stroke.x2, stroke.y2}));
        return std::isfinite(line.x1() + line.y1() + line.x2() + line.y2()) ? std::optional(line)
                                                                            : std::nullopt;
    }

    [[nodiscard]] double lowest() const { return runsDown() ? 0 : bounds_.top(); }
    [[nodiscard]] double highest() const { return lowest() + bounds_.height(); }

    [[nodiscard]] double partOfWidth(double x) const { return std::abs(x) / bounds_.width(); }
    [[nodiscard]] double partOfHeight(double y) const { return std::abs(y) / bounds_.height(); }

    [[nodiscard]] bool isSmall(const QRectF& box) const {
        return partOfWidth(box.width()) <= kMarkSize && partOfHeight(box.height()) <= kMarkSize;
    }

private:
    [[nodiscard]] bool runsDown() const { return scale_.y1 < scale_.y2; }
    [[nodiscard]] QPointF upright(QPointF p) const {
        return runsDown() ? QPointF(p.x(), scale_.y2 - p.y()) : p;
    }

    GraphScale scale_;
    QRectF bounds_;
};

std::string pointText(QPointF p) {
    // Begun as a text of its own: GCC 12 takes an insertion before the first number for an overflow at -O3.
    std::string text = "(";
    text += number(p.x()) + "; " + number(p.y()) + ")";
    return text;
}

QRectF boxOf(const QLineF& line) { return QRectF(line.p1(), line.p2()).normalized(); }

/// As `united`, which takes boxes without width or height for nothing.
QRectF joined(const QRectF& one, const QRectF& other) {
    return {QPointF(std::min(one.left(), other.left()), std::min(one.top(), other.top())),
            QPointF(std::max(one.right(), other.right()), std::max(one.bottom(), other.bottom()))};
}

bool haveOnePen(const Stroke& one, const Stroke& other) {
    return one.kind == other.kind && one.colour == other.colour && one.style == other.style &&
           one.width == other.width && one.scale == other.scale;
}

bool areJoined(const Stroke& one, const Stroke& next) {
    return haveOnePen(one, next) && one.x2 == next.x1 && one.y2 == next.y1;
}

/// Points that follow one another along a curve, each just right of the last.
bool areDotted(const Stroke& one, const Stroke& next) {
    const View view(one.scale);
    return haveOnePen(one, next) && next.x1 > one.x1 && view.partOfWidth(next.x1 - one.x1) <= kDotGap &&
           view.partOfHeight(next.y1 - one.y1) <= kDotGap;
}

/// Lines side by side, so close that they make an area or a thick line.
bool areAbreast(const Stroke& one, const Stroke& next) {
    if (!haveOnePen(one, next)) {
        return false;
    }
    const View view(one.scale);
    const bool areUpright = one.x1 == one.x2 && next.x1 == next.x2;
    const bool areLevel = one.y1 == one.y2 && next.y1 == next.y2;
    return (areUpright && one.x1 != next.x1 && view.partOfWidth(next.x1 - one.x1) <= kHatchGap) ||
           (areLevel && one.y1 != next.y1 && view.partOfHeight(next.y1 - one.y1) <= kHatchGap);
}

/// One past the last stroke of the run that starts at `first`.
template <class Follows>
std::size_t endOfRun(const std::vector<Stroke>& strokes, std::size_t first, Stroke::Kind kind,
                     Follows follows) {
    std::size_t end = first + 1;
    while (end < strokes.size() && strokes[end].kind == kind && follows(strokes[end - 1], strokes[end])) {
        ++end;
    }
    return end;
}

using Points = std::vector<QPointF>;

/// A chain as far as it is seen, in as many runs as it comes into sight.
std::vector<Points> seenRuns(const View& view, const std::vector<Stroke>& strokes, std::size_t first,
                             std::size_t end) {
    std::vector<Points> runs;
    std::optional<std::size_t> last;
    for (std::size_t i = first; i < end; ++i) {
        const auto part = view.seen(strokes[i]);
        if (!part) {
            continue;
        }
        const bool goesOn =
            last == i - 1 && !runs.empty() && view.isSmall(boxOf(QLineF(runs.back().back(), part->p1())));
        if (!goesOn) {
            runs.push_back({part->p1()});
        }
        runs.back().push_back(part->p2());
        last = i;
    }
    return runs;
}

/// Where a run is higher, or lower, than on both sides.
std::vector<std::string> turnsOf(const Points& run) {
    std::vector<std::string> turns;
    double direction = 0;
    for (std::size_t i = 1; i < run.size() && turns.size() < kMostTurns; ++i) {
        const double rise = run[i].y() - run[i - 1].y();
        if (rise == 0) {
            continue;
        }
        if (direction * rise < 0) {
            turns.push_back((direction > 0 ? "højest ved " : "lavest ved ") + pointText(run[i - 1]));
        }
        direction = rise;
    }
    return turns;
}

/// Walks through strokes and says a sentence of each thing that they make up.
class Narrator {
public:
    explicit Narrator(const std::vector<Stroke>& strokes) : strokes_(strokes) {
        for (std::size_t i = 0; i < strokes_.size();) {
            i = strokes_[i].kind == Stroke::Kind::Point ? tellPoints(i) : tellLines(i);
        }
    }

    [[nodiscard]] std::string text() const {
        if (sentences_.empty()) {
            return ticks() + " Ellers tom.";
        }
        std::string text = ticks();
        for (std::size_t i = 0; i < sentences_.size(); ++i) {
            // Of very many the first and the last are told.
            if (sentences_.size() > kMostSentences && i == kMostSentences / 2) {
                const std::size_t left = sentences_.size() - kMostSentences;
                text += " Derefter " + NumberText(static_cast<int>(left)) + " andre.";
                i += left;
            }
            text += " " + sentences_[i];
        }
        return text;
    }

private:
    void say(const std::string& what, const Stroke& pen) {
        const std::string sentence = what + ", " + nameOf(pen.colour) + ".";
        // What is drawn over itself is told of once.
        if (said_.insert(sentence).second) {
            sentences_.push_back(sentence);
        }
    }

    std::size_t tellPoints(std::size_t first) {
        const Stroke& pen = strokes_[first];
        const View view(pen.scale);
        const std::size_t end = endOfRun(strokes_, first, Stroke::Kind::Point, areDotted);
        if (end - first >= kFewestDots) {
            tellDots(view, first, end);
            return end;
        }
        if (const auto seen = view.seen(pen); seen && !isTick(view, seen->p1(), pen)) {
            say("Punkt i " + pointText(seen->p1()), pen);
        }
        return first + 1;
    }

    void tellDots(const View& view, std::size_t first, std::size_t end) {
        Points run;
        for (std::size_t i = first; i < end; ++i) {
            if (const auto seen = view.seen(strokes_[i])) {
                run.push_back(seen->p1());
            }
        }
        if (!run.empty()) {
            say("Prikket kurve " + course(run), strokes_[first]);
        }
    }

    /// Remembers a point beside an axis.
    bool isTick(const View& view, QPointF at, const Stroke& pen) {
        // Ticks stand at whole numbers.
        const auto isWhole = [](double x) { return x == std::round(x); };
        if (pen.colour != kBlack) {
            return false;
        }
        if (isWhole(at.x()) && view.partOfHeight(at.y()) <= kTickOffAxis) {
            ticksAlongX_.insert(at.x());
            return true;
        }
        if (isWhole(at.y()) && view.partOfWidth(at.x()) <= kTickOffAxis) {
            ticksAlongY_.insert(at.y());
            return true;
        }
        return false;
    }

    std::size_t tellLines(std::size_t first) {
        const Stroke& pen = strokes_[first];
        const View view(pen.scale);
        if (view.isEmpty() || isAxis(view, pen)) {
            return first + 1;
        }
        if (const std::size_t end = endOfRun(strokes_, first, Stroke::Kind::Line, areAbreast);
            end - first >= kFewestInABlock) {
            tellBlock(view, first, end);
            return end;
        }
        if (const std::size_t end = endOfRun(strokes_, first, Stroke::Kind::Line, areJoined);
            end - first > 1) {
            tellChain(view, first, end);
            return end;
        }
        if (tellPair(view, first)) {
            return first + 2;
        }
        if (const auto seen = view.seen(pen)) {
            tellLine(view, *seen, pen);
        }
        return first + 1;
    }

    [[nodiscard]] static bool isAxis(const View& view, const Stroke& stroke) {
        const auto seen = view.seen(stroke);
        if (!seen || stroke.colour != kBlack || stroke.style != LineStyle::Solid) {
            return false;
        }
        const bool isUpright = seen->x1() == 0 && seen->x2() == 0;
        const bool isLevel = seen->y1() == 0 && seen->y2() == 0;
        return (isUpright && std::abs(seen->dy()) == view.bounds().height()) ||
               (isLevel && std::abs(seen->dx()) == view.bounds().width());
    }

    /// Of itself: what is seen of a long line may be short.
    [[nodiscard]] static bool isShort(const View& view, const Stroke& stroke) {
        return view.isSmall(boxOf(QLineF(stroke.x1, stroke.y1, stroke.x2, stroke.y2)));
    }

    void tellLine(const View& view, const QLineF& seen, const Stroke& pen) {
        if (isShort(view, pen)) {
            say("Mærke i " + pointText(seen.center()), pen);
            return;
        }
        say((pen.style == LineStyle::Dotted ? "Stiplet linie fra " : "Linie fra ") + pointText(seen.p1()) +
                " til " + pointText(seen.p2()),
            pen);
    }

    /// Two short lines: a cross through one point, or the head of an arrow.
    bool tellPair(const View& view, std::size_t first) {
        if (first + 1 >= strokes_.size() || !haveOnePen(strokes_[first], strokes_[first + 1])) {
            return false;
        }
        const auto one = view.seen(strokes_[first]);
        const auto other = view.seen(strokes_[first + 1]);
        if (!one || !other || !isShort(view, strokes_[first]) || !isShort(view, strokes_[first + 1]) ||
            strokes_[first] == strokes_[first + 1]) {
            return false;
        }
        // Coordinates are singles: what is meant for one place may be off by their last digits.
        const auto areSame = [](QPointF p, QPointF q) { return (p - q).manhattanLength() < 1e-4; };
        if (areSame(one->p1(), other->p1())) {
            say("Pilespids ved " + pointText(one->p1()), strokes_[first]);
            return true;
        }
        if (areSame(one->center(), other->center())) {
            say("Kryds i " + pointText(one->center()), strokes_[first]);
            return true;
        }
        return false;
    }

    void tellBlock(const View& view, std::size_t first, std::size_t end) {
        const Stroke& pen = strokes_[first];
        const QRectF whole = boxAround(first, end, [&view](const Stroke& s) { return view.whole(s); });
        const QRectF box = boxAround(first, end, [&view](const Stroke& s) { return view.seen(s); });
        if (box.isNull()) {
            return;
        }
        // Where the middle of what is thick lies is not to be seen to the last digit.
        const QPointF middle = QPointF(tenths(whole.center().x()), tenths(whole.center().y()));
        const bool isThick = end - first <= kMostInAThickLine;
        if (isThick && view.isSmall(whole)) {
            say("Mærke ved " + pointText(middle), pen);
        } else if (isThick && view.partOfHeight(whole.height()) <= kThickness) {
            say("Tyk linie fra " + pointText({box.left(), middle.y()}) + " til " +
                    pointText({box.right(), middle.y()}),
                pen);
        } else if (isThick && view.partOfWidth(whole.width()) <= kThickness) {
            say("Tyk linie fra " + pointText({middle.x(), box.top()}) + " til " +
                    pointText({middle.x(), box.bottom()}),
                pen);
        } else {
            // Each line of a hatching stands for the strip on its right.
            const double strip = std::max(0.0F, strokes_[first + 1].x1 - pen.x1);
            say("Skraveret område fra x = " + number(box.left()) + " til x = " + number(box.right() + strip) +
                    ", mellem y = " + number(box.top()) + " og y = " + number(box.bottom()),
                pen);
        }
    }

    /// Null if no stroke has a part in it.
    template <class Part>
    [[nodiscard]] QRectF boxAround(std::size_t first, std::size_t end, Part partOf) const {
        std::optional<QRectF> box;
        for (std::size_t i = first; i < end; ++i) {
            if (const std::optional<QLineF> part = partOf(strokes_[i])) {
                box = box ? joined(*box, boxOf(*part)) : boxOf(*part);
            }
        }
        return box.value_or(QRectF());
    }

    void tellChain(const View& view, std::size_t first, std::size_t end) {
        const std::vector<Points> runs = seenRuns(view, strokes_, first, end);
        if (runs.empty()) {
            return;
        }
        const Stroke& pen = strokes_[first];
        if (end - first < kMostCorners) {
            for (const Points& run : runs) {
                tellCorners(run, pen);
            }
            return;
        }
        std::vector<std::string> courses;
        for (std::size_t i = 0; i < runs.size() && i < kMostRuns; ++i) {
            courses.push_back(course(runs[i]));
        }
        say("Kurve af " + NumberText(static_cast<int>(end - first)) + " streger " + join(courses, " og "),
            pen);
    }

    void tellCorners(const Points& run, const Stroke& pen) {
        std::vector<std::string> corners;
        for (const QPointF& corner : run) {
            if (const std::string text = pointText(corner); corners.empty() || corners.back() != text) {
                corners.push_back(text);
            }
        }
        if (corners.size() > 2) {
            say("Knækket linie gennem " + join(corners, " og "), pen);
        } else {
            say("Linie fra " + corners.front() + " til " + corners.back(), pen);
        }
    }

    [[nodiscard]] static std::string course(const Points& run) {
        std::string text = "fra " + pointText(run.front()) + " til " + pointText(run.back());
        for (const std::string& turn : turnsOf(run)) {
            text += ", " + turn;
        }
        return text;
    }

    [[nodiscard]] std::string ticks() const {
        std::vector<std::string> told;
        for (const auto& [places, axis] :
             {std::pair{&ticksAlongX_, "vandrette akse"}, {&ticksAlongY_, "lodrette akse"}}) {
            if (places->size() < 2) {
                continue;
            }
            double step = *places->rbegin() - *places->begin();
            for (auto at = std::next(places->begin()); at != places->end(); ++at) {
                step = std::min(step, *at - *std::prev(at));
            }
            told.push_back("for hver " + number(step) + " på den " + axis);
        }
        return told.empty() ? "" : " Mærker " + join(told, " og ") + ".";
    }

    const std::vector<Stroke>& strokes_;
    std::vector<std::string> sentences_;
    std::set<std::string> said_;
    std::set<double> ticksAlongX_;
    std::set<double> ticksAlongY_;
};

}  // namespace

std::string describe(const std::vector<Stroke>& strokes, const GraphScale& scale) {
    const View view(scale);
    return "Vandret akse fra " + number(view.bounds().left()) + " til " + number(view.bounds().right()) +
           ", lodret akse fra " + number(view.lowest()) + " til " + number(view.highest()) + "." +
           Narrator(strokes).text();
}

}  // namespace tavrune
