#include "controls/part.h"

#include <algorithm>
#include <functional>
#include <utility>

#include <QRegularExpression>

#include "controls/text_places.h"

namespace tavrune {
namespace {

using Parts = std::vector<Part>;

/// An exponent touches what it belongs to, in units.
constexpr double kTouch = 3;
/// Letters of one row with more white between them are two things, if they are 11 units high.
constexpr double kPause = 14;

bool isOperator(QChar sign) { return QString("+-*/·=<>≤≥≠(;").contains(sign); }

/// Stands higher than what it follows, or is a good deal smaller and not lower.
bool isRaisedOver(const Part& exponent, const Part& base) {
    const double rise = base.ink.center().y() - exponent.ink.center().y();
    return rise > 0.2 * base.size && rise < base.size && exponent.text.size() <= 2;
}

QString exponentText(const QString& text) {
    if (text == "2" || text == "²") {
        return "²";
    }
    return text == "3" || text == "³" ? "³" : text == "n" ? "ⁿ" : " i " + text + "'te";
}

// Numbers in gaps, and exponents over them.

/// True if `inner` is written into the text of `host`, which begins further left.
bool liesIn(const Part& inner, const Part& host) {
    if (host.text == "∫" || inner.label->wordWrap()) {
        return false;
    }
    const double x = inner.ink.left();
    const bool beginsBefore =
        host.ink.left() < x - 1 || (host.ink.left() < x + 1 && host.ink.width() > inner.ink.width() + 1);
    // A numerator is as large as what stands before it.
    const double touch = inner.size < 0.9 * host.size ? kTouch : 0;
    const double end = isRaisedOver(inner, host) ? host.room.right() + touch : host.ink.right() - 1;
    const double shared =
        std::min(host.room.bottom(), inner.room.bottom()) - std::max(host.room.top(), inner.room.top());
    return beginsBefore && x < end && shared > 0.3 * inner.room.height();
}

/// Writes `inner` into the text of `host`, at its place.
void writeInto(Part& host, const TextPlaces& places, const Part& inner, QString& text) {
    const TextPlaces::Gap gap = places.at(inner.ink);
    if (isRaisedOver(inner, host) && !host.label->wordWrap()) {
        text.insert(gap.boundary, exponentText(inner.text));
    } else if ((inner.text == "≤" && text.mid(gap.first, 1) == "<") ||
               (inner.text == "≥" && text.mid(gap.first, 1) == ">")) {
        text.replace(gap.first, 1, inner.text);
    } else if (gap.isBlank) {
        text.replace(gap.first, gap.length, " " + inner.text + " ");
    } else {
        text.insert(gap.boundary, " " + inner.text + " ");
    }
    absorb(host, inner);
}

/// Tells the parts that are written into others, and writes them there.
class GapFiller {
public:
    explicit GapFiller(Parts& parts) : parts_(parts), inner_(parts.size()), isInner_(parts.size(), false) {}

    void fill() {
        for (std::size_t i = 0; i < parts_.size(); ++i) {
            // The nearest: an exponent touches what stands before and behind its own base.
            std::size_t host = parts_.size();
            for (std::size_t other = 0; other < parts_.size(); ++other) {
                if (liesIn(parts_[i], parts_[other]) &&
                    (host == parts_.size() || parts_[other].ink.left() > parts_[host].ink.left())) {
                    host = other;
                }
            }
            if (host < parts_.size()) {
                inner_[host].push_back(i);
                isInner_[i] = true;
            }
        }
        for (std::size_t i = 0; i < parts_.size(); ++i) {
            if (!isInner_[i]) {
                write(i);
            }
        }
        std::size_t i = 0;
        std::erase_if(parts_, [&](const Part&) { return isInner_[i++]; });
    }

private:
    Parts& parts_;
    std::vector<std::vector<std::size_t>> inner_;
    std::vector<bool> isInner_;

    void write(std::size_t host) {
        std::vector<std::size_t>& inner = inner_[host];
        if (inner.empty()) {
            return;
        }
        const TextPlaces places(*parts_[host].label);
        // From the end, so that places before it stay.
        std::ranges::stable_sort(inner, std::greater{},
                                 [&](std::size_t i) { return places.at(parts_[i].ink).boundary; });
        QString text = parts_[host].label->text();
        for (const std::size_t i : inner) {
            write(i);
            writeInto(parts_[host], places, parts_[i], text);
        }
        parts_[host].text = text;
    }
};

/// Runs of blanks part what stands between them, but not a sign from what it belongs to.
QString withPauses(const QString& text) {
    static const QRegularExpression pause("(?<=[\\w²³)])(?<!\\bfor)\\s{3,}(?=-?[\\w(])",
                                          QRegularExpression::UseUnicodePropertiesOption);
    return QString(text).replace(pause, ", ");
}

QString withoutLineEnds(const QString& text) {
    static const QRegularExpression sentence("(?<=[\\w)\"])\\s*\\n\\s*(?=[A-ZÆØÅ0-9])",
                                             QRegularExpression::UseUnicodePropertiesOption);
    return QString(text).replace(sentence, ". ").simplified();
}

}  // namespace

double scaleOf(const Part& part) { return part.size / kDesignTextSize; }

void absorb(Part& whole, const Part& piece) {
    whole.pieces.insert(whole.pieces.end(), piece.pieces.begin(), piece.pieces.end());
    whole.room |= piece.room;
}

Part partOf(const Label& label) {
    Part part;
    part.label = &label;
    part.size = label.textSize();
    part.pieces = {&label};
    part.text = label.text();
    const QString trimmed = part.text.trimmed();
    if (label.font().underline() && (trimmed == "<" || trimmed == ">")) {
        part.text = trimmed == "<" ? "≤" : "≥";
    }
    const QRectF place = label.place();
    if (label.wordWrap() || part.text.contains('\n')) {
        part.ink = part.room = place;
        return part;
    }
    const TextExtent extent = extentOf(label);
    part.ink = extent.ink;
    part.room = extent.line;
    return part;
}

Part inOneRow(std::vector<Part> parts) {
    std::ranges::stable_sort(parts, {}, [](const Part& part) { return part.ink.left(); });
    Part row = std::move(parts.front());
    Part last = row;
    for (std::size_t i = 1; i < parts.size(); ++i) {
        const Part& next = parts[i];
        const double gap = next.ink.left() - last.ink.right();
        if (gap < kTouch && isRaisedOver(next, last)) {
            row.text = row.text.trimmed() + exponentText(next.text);
        } else {
            const QChar end = last.text.trimmed().back();
            const bool isPause = gap > kPause * scaleOf(last) && !isOperator(end) && end != ',' &&
                                 end != ':' && !isOperator(next.text.trimmed().front());
            row.text += (isPause ? ", " : " ") + next.text;
        }
        absorb(row, next);
        row.ink |= next.ink;
        last = next;
    }
    return row;
}

void fillGaps(std::vector<Part>& parts) {
    GapFiller(parts).fill();
    for (Part& part : parts) {
        part.text = withoutLineEnds(part.label->wordWrap() ? part.text : withPauses(part.text));
    }
}

}  // namespace tavrune
