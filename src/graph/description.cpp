#include "graph/description.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <set>

#include "graph/colour_name.h"
#include "graph/view.h"
#include "numeric/text.h"

namespace tavrune {
namespace {

/// A figure of fewer strokes is told corner by corner.
constexpr std::size_t kFewestInACurve = 6;
constexpr std::size_t kMostTurns = 4;
constexpr std::size_t kMostRuns = 4;
constexpr std::size_t kMostSentences = 24;

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

std::string pointText(QPointF p) {
    // Begun as a text of its own: GCC 12 takes an insertion before the first number for an overflow at -O3.
    std::string text = "(";
    text += number(p.x()) + "; " + number(p.y()) + ")";
    return text;
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
            turns.push_back((std::signbit(rise) ? "højest ved " : "lavest ved ") + pointText(run[i - 1]));
        }
        direction = rise;
    }
    return turns;
}

std::string course(const Points& run) {
    std::string text = "fra " + pointText(run.front()) + " til " + pointText(run.back());
    for (const std::string& turn : turnsOf(run)) {
        text += ", " + turn;
    }
    return text;
}

/// Says a sentence of each figure.
class Narrator {
public:
    explicit Narrator(const std::vector<Stroke>& strokes) {
        for (auto first = strokes.begin(); first != strokes.end();) {
            const auto end = std::find_if(first + 1, strokes.end(), [first](const Stroke& stroke) {
                return stroke.figure == 0 || stroke.figure != first->figure;
            });
            tell({first, end});
            first = end;
        }
    }

    [[nodiscard]] std::string text() const {
        return ticks() + (sentences_.empty() ? " Ellers tom." : " " + figures());
    }

    [[nodiscard]] std::string figures() const {
        std::string text;
        for (std::size_t i = 0; i < sentences_.size(); ++i) {
            // Of very many the first and the last are told.
            if (sentences_.size() > kMostSentences && i == kMostSentences / 2) {
                const std::size_t left = sentences_.size() - kMostSentences;
                text += "Derefter " + NumberText(static_cast<int>(left)) + " andre. ";
                i += left;
            }
            text += sentences_[i] + " ";
        }
        return text.substr(0, text.find_last_not_of(' ') + 1);
    }

private:
    void say(const std::string& what, const Stroke& pen) {
        const std::string sentence = what + ", " + nameOf(pen.colour) + ".";
        // What is drawn over itself is told of once.
        if (said_.insert(sentence).second) {
            sentences_.push_back(sentence);
        }
    }

    void tell(Strokes figure) {
        const Stroke& pen = figure.front();
        const View view(pen.scale);
        const std::vector<QLineF> seen = view.seen(figure);
        if (seen.empty()) {
            return;
        }
        switch (pen.meaning) {
            case Meaning::Axis:
                break;
            case Meaning::TickOfX:
                for (const QLineF& tick : seen) {
                    ticksOfX_.insert(tick.x1());
                }
                break;
            case Meaning::TickOfY:
                for (const QLineF& tick : seen) {
                    ticksOfY_.insert(tick.y1());
                }
                break;
            case Meaning::Line:
                tellLine(view, figure);
                break;
            case Meaning::ThickLine:
                tellThickLine(view, figure, boundsOf(seen));
                break;
            case Meaning::DottedCurve:
                tellDottedCurve(seen, pen);
                break;
            case Meaning::Hatching:
                tellHatching(figure, boundsOf(seen));
                break;
            case Meaning::Point:
                say("Punkt i " + pointText(seen.front().p1()), pen);
                break;
            case Meaning::Dash:
                say("Mærke i " + pointText(seen.front().center()), pen);
                break;
            case Meaning::Square:
                say("Mærke ved " + pointText(middleOf(view, figure)), pen);
                break;
            case Meaning::Cross:
                say("Kryds i " + pointText(view.whole(pen).center()), pen);
                break;
            case Meaning::Arrowhead:
                say("Pilespids ved " + pointText(view.whole(pen).p1()), pen);
                break;
        }
    }

    void tellLine(const View& view, Strokes figure) {
        const std::vector<Points> runs = view.seenRuns(figure);
        const Stroke& pen = figure.front();
        if (figure.size() < kFewestInACurve) {
            for (const Points& run : runs) {
                tellCorners(run, view.whole(pen), pen);
            }
            return;
        }
        std::vector<std::string> courses;
        for (std::size_t i = 0; i < runs.size() && i < kMostRuns; ++i) {
            courses.push_back(course(runs[i]));
        }
        say("Kurve af " + NumberText(static_cast<int>(figure.size())) + " streger " + join(courses, " og "),
            pen);
    }

    /// A line without length is told as a point, "Mærke"; what is seen of a line may have no length.
    void tellCorners(const Points& run, const QLineF& whole, const Stroke& pen) {
        std::vector<std::string> corners;
        for (const QPointF& corner : run) {
            if (const std::string text = pointText(corner); corners.empty() || corners.back() != text) {
                corners.push_back(text);
            }
        }
        if (corners.size() == 1 && pointText(whole.p1()) == pointText(whole.p2())) {
            say("Mærke i " + corners.front(), pen);
        } else if (corners.size() > 2) {
            say("Knækket linie gennem " + join(corners, " og "), pen);
        } else {
            const std::string line = pen.style == LineStyle::Dotted ? "Stiplet linie" : "Linie";
            say(line + " fra " + corners.front() + " til " + corners.back(), pen);
        }
    }

    /// The middle of what is thick, whose last digits are not to be seen.
    [[nodiscard]] static QPointF middleOf(const View& view, Strokes figure) {
        const QPointF middle = view.middleOf(figure);
        return {tenths(middle.x()), tenths(middle.y())};
    }

    void tellThickLine(const View& view, Strokes figure, const QRectF& seen) {
        const Stroke& pen = figure.front();
        const QPointF middle = middleOf(view, figure);
        QPointF from = middle;
        QPointF to = middle;
        if (pen.y1 == pen.y2) {
            from.setX(seen.left());
            to.setX(seen.right());
        } else {
            from.setY(seen.top());
            to.setY(seen.bottom());
        }
        say(from == to ? "Mærke ved " + pointText(middle)
                       : "Tyk linie fra " + pointText(from) + " til " + pointText(to),
            pen);
    }

    void tellDottedCurve(const std::vector<QLineF>& seen, const Stroke& pen) {
        Points run;
        std::transform(seen.begin(), seen.end(), std::back_inserter(run),
                       [](const QLineF& dot) { return dot.p1(); });
        say("Prikket kurve " + course(run), pen);
    }

    void tellHatching(Strokes figure, const QRectF& seen) {
        const double strip = figure.size() < 2 ? 0 : figure[1].x1 - figure[0].x1;
        say("Skraveret område fra x = " + number(seen.left()) + " til x = " + number(seen.right() + strip) +
                ", mellem y = " + number(seen.top()) + " og y = " + number(seen.bottom()),
            figure.front());
    }

    [[nodiscard]] std::string ticks() const {
        std::vector<std::string> told;
        for (const auto& [places, axis] :
             {std::pair{&ticksOfX_, "vandrette akse"}, {&ticksOfY_, "lodrette akse"}}) {
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

    std::vector<std::string> sentences_;
    std::set<std::string> said_;
    std::set<double> ticksOfX_;
    std::set<double> ticksOfY_;
};

}  // namespace

std::string describe(const std::vector<Stroke>& strokes, const GraphScale& scale) {
    const View view(scale);
    return "Vandret akse fra " + number(view.leftmost()) + " til " + number(view.rightmost()) +
           ", lodret akse fra " + number(view.lowest()) + " til " + number(view.highest()) + "." +
           Narrator(strokes).text();
}

std::string describeFigures(const std::vector<Stroke>& strokes) { return Narrator(strokes).figures(); }

}  // namespace tavrune
