#include "controls/reading.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <optional>
#include <utility>

#include <QAbstractButton>
#include <QRegularExpression>

#include "controls/answer_box.h"
#include "controls/formula.h"
#include "controls/label.h"
#include "controls/line_control.h"
#include "controls/spoken.h"
#include "controls/table_head.h"

namespace tavrune {
namespace {

using Test = std::function<bool(const QWidget&)>;

/// White between letters of one row that is too wide for one passage, for letters 11 units high.
constexpr double kRowGap = 28;
/// White that parts columns, where it is a strip in the middle part of a region.
constexpr double kColumnGap = 8;
constexpr double kFirstColumnEnd = 0.3;
constexpr double kLastColumnStart = 0.75;

/// A part of what is written, or a box whose passages are made already.
struct Item {
    QRectF ink;
    Part part;
    std::vector<Passage> inside;

    [[nodiscard]] bool isBox() const { return part.pieces.empty(); }
};

using Items = std::vector<Item>;

QRectF areaOf(const QWidget& widget) {
    const auto* const control = dynamic_cast<const Control*>(&widget);
    return control == nullptr ? QRectF(widget.geometry()) : control->place();
}

/// In units. A page is no control, and may be larger than what stands on it.
double widthOf(const QWidget& region) {
    if (dynamic_cast<const Control*>(&region) != nullptr) {
        return areaOf(region).width();
    }
    double width{};
    for (const QObject* const child : region.children()) {
        if (const auto* const control = dynamic_cast<const Control*>(child)) {
            width = std::max(width, control->place().right());
        }
    }
    return width;
}

bool areSideBySide(const QRectF& one, const QRectF& other) {
    return one.top() < other.bottom() && other.top() < one.bottom();
}

bool isMarker(const QString& text) {
    static const QRegularExpression marker("^\\w{1,2}[.)]$");
    return marker.match(text).hasMatch();
}

/// The strip of white that parts columns, while bands are added from the top.
class Strip {
public:
    explicit Strip(double width) : isInked_(static_cast<std::size_t>(width) + 1, false) {}

    void add(const QRectF& ink) {
        const auto at = [this](double x) {
            return static_cast<std::ptrdiff_t>(std::clamp(x, 0.0, static_cast<double>(isInked_.size())));
        };
        std::fill(isInked_.begin() + at(std::floor(ink.left())),
                  isInked_.begin() + at(std::max(std::ceil(ink.right()), std::floor(ink.left()))), true);
    }

    /// The end of the widest that has ink on both sides.
    [[nodiscard]] std::optional<double> end() const {
        const auto width = static_cast<double>(isInked_.size());
        std::optional<double> found;
        double widest = kColumnGap;
        auto ink = std::find(isInked_.begin(), isInked_.end(), true);
        while (ink != isInked_.end()) {
            const auto white = std::find(ink, isInked_.end(), false);
            ink = std::find(white, isInked_.end(), true);
            const auto gap = static_cast<double>(std::distance(white, ink));
            const auto x = static_cast<double>(std::distance(isInked_.begin(), ink));
            if (gap >= widest && x > kFirstColumnEnd * width && x < kLastColumnStart * width) {
                widest = gap;
                found = x;
            }
        }
        return found;
    }

private:
    std::vector<bool> isInked_;
};

/// What stands in one box, read without what stands around it.
class Sheet {
public:
    Sheet(const QWidget& region, const Test& isSeen, const Test& isEntered)
        : isSeen_(isSeen), isEntered_(isEntered), width_(widthOf(region)) {
        std::vector<Part> parts;
        std::vector<PageLine> lines;
        for (const QObject* const child : region.children()) {
            const auto* const widget = qobject_cast<const QWidget*>(child);
            if (widget != nullptr && isSeen(*widget)) {
                collect(*widget, parts, lines);
            }
        }
        for (Part& part : combined(std::move(parts), std::move(lines))) {
            const QRectF ink = part.ink;
            items_.push_back({ink, std::move(part), {}});
        }
    }

    [[nodiscard]] std::vector<Passage> read() {
        // A box that lies over others is read after them.
        const auto over = std::stable_partition(items_.begin(), items_.end(), [this](const Item& item) {
            return !item.isBox() || std::none_of(items_.begin(), items_.end(), [&item](const Item& other) {
                return !other.isBox() && other.ink.intersects(item.ink);
            });
        });
        Items last(std::make_move_iterator(over), std::make_move_iterator(items_.end()));
        items_.erase(over, items_.end());
        readColumns(bandsOf(std::move(items_)));
        for (Item& box : last) {
            add(std::move(box.inside));
        }
        return std::move(read_);
    }

private:
    const Test& isSeen_;
    const Test& isEntered_;
    double width_;
    Items items_;
    /// What the rows of an answer or a table stand beside: they are read across.
    std::vector<QRectF> fields_;
    std::vector<QRectF> stops_;
    std::vector<Passage> read_;

    void collect(const QWidget& widget, std::vector<Part>& parts, std::vector<PageLine>& lines) {
        if (const auto* const label = qobject_cast<const Label*>(&widget)) {
            if (!label->text().trimmed().isEmpty()) {
                parts.push_back(partOf(*label));
            }
            if (qobject_cast<const TableHead*>(label) != nullptr) {
                fields_.push_back(areaOf(widget));
            }
        } else if (const auto* const line = qobject_cast<const LineControl*>(&widget)) {
            lines.push_back({line->ends(), line});
        } else if (qobject_cast<const AnswerBox*>(&widget) != nullptr) {
            fields_.push_back(areaOf(widget));
            stops_.push_back(areaOf(widget));
        } else if (qobject_cast<const QAbstractButton*>(&widget) != nullptr) {
            stops_.push_back(areaOf(widget));
        } else if (isEntered_(widget)) {
            items_.push_back({areaOf(widget), {}, passages(widget, isSeen_, isEntered_)});
        }
    }

    void add(std::vector<Passage> passages) {
        read_.insert(read_.end(), std::make_move_iterator(passages.begin()),
                     std::make_move_iterator(passages.end()));
    }

    /// From the top, with white between them.
    [[nodiscard]] static std::vector<Items> bandsOf(Items items) {
        std::ranges::stable_sort(items, {}, [](const Item& item) { return item.ink.top(); });
        std::vector<Items> bands;
        double bottom = -std::numeric_limits<double>::infinity();
        for (Item& item : items) {
            if (item.ink.top() >= bottom) {
                bands.emplace_back();
            }
            bottom = std::max(bottom, item.ink.bottom());
            bands.back().push_back(std::move(item));
        }
        return bands;
    }

    void readColumns(std::vector<Items> bands) {
        for (std::size_t first = 0; first != bands.size();) {
            const auto [end, rightColumn] = columnsFrom(bands, first);
            Items left;
            Items right;
            for (std::size_t i = first; i != end; ++i) {
                for (Item& item : bands[i]) {
                    (item.ink.left() < rightColumn ? left : right).push_back(std::move(item));
                }
            }
            readRows(std::move(left));
            readRows(std::move(right));
            first = end;
        }
    }

    struct Columns {
        std::size_t end;
        double rightColumn;
    };

    /// As many bands from `first` as can be read in columns; one alone, all of it left, if none can.
    [[nodiscard]] Columns columnsFrom(const std::vector<Items>& bands, std::size_t first) const {
        Columns columns{first + 1, std::numeric_limits<double>::infinity()};
        Strip strip(width_);
        Items items;
        for (std::size_t i = first; i != bands.size() && !hasField(bands[i]); ++i) {
            for (const Item& item : bands[i]) {
                strip.add(item.ink);
            }
            items.insert(items.end(), bands[i].begin(), bands[i].end());
            const std::optional<double> end = strip.end();
            if (end.has_value() && isMoreThanARow(items, *end)) {
                columns = {i + 1, *end};
            }
        }
        return columns;
    }

    [[nodiscard]] bool hasField(const Items& band) const {
        return std::any_of(band.begin(), band.end(), [this](const Item& item) {
            return std::any_of(fields_.begin(), fields_.end(),
                               [&item](const QRectF& field) { return areSideBySide(field, item.ink); });
        });
    }

    /// Two things stand over each other on one side of the white.
    [[nodiscard]] static bool isMoreThanARow(const Items& items, double rightColumn) {
        return std::any_of(items.begin(), items.end(), [&](const Item& one) {
            return std::any_of(items.begin(), items.end(), [&](const Item& other) {
                return (one.ink.left() < rightColumn) == (other.ink.left() < rightColumn) &&
                       !areSideBySide(one.ink, other.ink);
            });
        });
    }

    void readRows(Items items) {
        for (Items& band : bandsOf(std::move(items))) {
            while (!band.empty()) {
                readRow(rowTakenFrom(band));
            }
        }
    }

    /// What stands highest, with all that stands beside it or beside something in the same row.
    [[nodiscard]] static Items rowTakenFrom(Items& band) {
        std::ranges::stable_sort(band, {}, [](const Item& item) { return item.ink.center().y(); });
        Items row;
        row.push_back(std::move(band.front()));
        band.erase(band.begin());
        for (std::size_t i = 0; i < row.size(); ++i) {
            const QRectF ink = row[i].ink;
            if (i > 0 && ink.height() > 2 * kDesignTextSize) {
                // Many rows stand beside a paragraph.
                continue;
            }
            const auto beside = std::stable_partition(band.begin(), band.end(), [&ink](const Item& item) {
                const double shared =
                    std::min(ink.bottom(), item.ink.bottom()) - std::max(ink.top(), item.ink.top());
                return shared < 0.4 * std::min(ink.height(), item.ink.height());
            });
            row.insert(row.end(), std::make_move_iterator(beside), std::make_move_iterator(band.end()));
            band.erase(beside, band.end());
        }
        return row;
    }

    void readRow(Items row) {
        std::ranges::stable_sort(row, {}, [](const Item& item) { return item.ink.left(); });
        std::vector<Part> parts;
        for (Item& item : row) {
            if (!parts.empty() && (item.isBox() || isParted(parts.back(), item.part))) {
                say(std::exchange(parts, {}));
            }
            if (item.isBox()) {
                add(std::move(item.inside));
            } else {
                parts.push_back(std::move(item.part));
            }
        }
        if (!parts.empty()) {
            say(std::move(parts));
        }
    }

    [[nodiscard]] bool isParted(const Part& left, const Part& right) const {
        const auto standsAlone = [](const Part& part) {
            return part.label != nullptr && (part.label->isVerdict() || part.label->wordWrap());
        };
        if (standsAlone(left) || (standsAlone(right) && !isMarker(left.text))) {
            return true;
        }
        const QString signs = "+-*/·=<>≤≥≠(";
        const bool goesOn = signs.contains(left.text.back()) || signs.contains(right.text.front());
        const double gap = right.ink.left() - left.ink.right();
        if (gap > (goesOn ? 3 : 1) * kRowGap * left.size / kDesignTextSize) {
            return true;
        }
        return std::any_of(stops_.begin(), stops_.end(), [&](const QRectF& stop) {
            return areSideBySide(stop, left.ink) && stop.center().x() > left.ink.center().x() &&
                   stop.center().x() < right.ink.center().x();
        });
    }

    void say(std::vector<Part> parts) {
        Part whole = inOneRow(std::move(parts));
        static const QRegularExpression lastEnd("(,? brøk slut,?)+$");
        QString words = spoken(whole.text).remove(lastEnd);
        read_.push_back({std::move(words), whole.pieces.front(), std::move(whole.pieces)});
    }
};

}  // namespace

std::vector<Passage> passages(const QWidget& region, const std::function<bool(const QWidget&)>& isSeen,
                              const std::function<bool(const QWidget&)>& isEntered) {
    return Sheet(region, isSeen, isEntered).read();
}

std::vector<Passage> passages(const QWidget& region, const std::function<bool(const QWidget&)>& isSeen) {
    return passages(region, isSeen, [](const QWidget&) { return false; });
}

}  // namespace tavrune
