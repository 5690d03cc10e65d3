#include "support/looks.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <type_traits>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QStyleOptionFrame>
#include <QTextLayout>

#include "controls/table_head.h"
#include "shell/exercise_form.h"
#include "support/painting.h"
#include "support/student.h"

namespace tavrune::test {
namespace {

// Glyphs may reach this many units over their advance without being seen as cut off or overlapping.
constexpr double kSlack = 1.5;
/// Where a whole pixel is nearest to a place that may lie just between two.
constexpr double kHalfAPixel = 0.51;

double slackOf(const QWidget& widget) {
    const auto* const control = dynamic_cast<const Control*>(&widget);
    return control == nullptr ? kSlack : kSlack * control->zoom();
}

struct Word {
    QRectF place;
    const QWidget* owner;
    QString text;
};

QRectF onPage(const QWidget& widget, const QRectF& place, const QWidget& page) {
    return place.translated(widget.mapTo(&page, QPoint(0, 0)));
}

/// From one line of a label's text to the next.
double pitchOf(const Label& label) {
    return label.zoom() != 1
               ? QFontMetrics(designFont()).lineSpacing() * label.zoom() * label.textSize() / kDesignTextSize
               : QFontMetrics(label.font()).lineSpacing();
}

/// What the spacing of a zoomed font leaves free behind a letter.
double airBehind(QChar letter, const QFont& font) {
    const double percent = font.letterSpacing();
    return percent > 0 ? QFontMetricsF(font).horizontalAdvance(letter) * (1 - 100 / percent) : 0;
}

/// Height and lines of a label's text as it is laid out in the label's width.
struct Layout {
    explicit Layout(const Label& label) : font_(label.font()) {
        const QFontMetrics metrics(label.font());
        const double width = label.width();
        const double pitch = pitchOf(label);
        double y = 0;
        const bool isWrapped = label.wordWrap() && label.zoom() == 1;
        for (const QString& paragraph : isWrapped ? label.text().split('\n') : label.designLines()) {
            QTextLayout text(paragraph, label.font());
            QTextOption option;
            option.setWrapMode(isWrapped ? QTextOption::WordWrap : QTextOption::NoWrap);
            text.setTextOption(option);
            text.beginLayout();
            while (true) {
                QTextLine line = text.createLine();
                if (!line.isValid()) {
                    break;
                }
                line.setLineWidth(isWrapped ? width : 1e6);
                addLine(paragraph, line, y, metrics);
                y += pitch;
            }
            text.endLayout();
            if (paragraph.isEmpty()) {
                y += pitch;
            }
        }
        // What stands between two lines is no part of the last one.
        const QFontMetricsF exact(label.font());
        height = y - std::max(0.0, pitch - exact.ascent() - exact.descent());
        place(label);
        if (const auto* const head = qobject_cast<const TableHead*>(&label)) {
            place(*head);
        }
    }

    std::vector<std::pair<QRectF, QString>> words;
    double height = 0;
    double widest = 0;

private:
    struct LineOf {
        std::size_t first;
        double width;
    };
    QFont font_;
    std::vector<LineOf> lines_;

    void addLine(const QString& paragraph, const QTextLine& line, double y, const QFontMetrics& metrics) {
        lines_.push_back({words.size(), line.naturalTextWidth()});
        widest = std::max(widest, line.naturalTextWidth());
        const auto end = line.textStart() + line.textLength();
        int at = line.textStart();
        while (at < end) {
            while (at < end && paragraph[at].isSpace()) {
                ++at;
            }
            int stop = at;
            while (stop < end && !paragraph[stop].isSpace()) {
                ++stop;
            }
            if (stop == at) {
                break;
            }
            const double left = line.cursorToX(at);
            const double right = line.cursorToX(stop) - airBehind(paragraph[stop - 1], font_);
            // The ink of a line: from the top of its capitals to its baseline.
            const double top = y + metrics.ascent() - metrics.capHeight();
            words.push_back({{left, top, right - left, static_cast<double>(metrics.capHeight())},
                             paragraph.mid(at, stop - at)});
            at = stop;
        }
    }

    void place(const TableHead& head) {
        const auto standing = head.words();
        for (std::size_t w = 0; w < words.size() && w < standing.size(); ++w) {
            QRectF& ink = words[w].first;
            const QRectF& name = standing[w].first;
            ink = QRectF(name.left(), ink.top(), name.width(), ink.height());
        }
        widest = words.back().first.right();
    }

    void place(const Label& label) {
        const double down = label.alignment() & Qt::AlignVCenter  ? (label.height() - height) / 2
                            : label.alignment() & Qt::AlignBottom ? label.height() - height
                                                                  : 0;
        for (std::size_t i = 0; i < lines_.size(); ++i) {
            const double rest = label.width() - lines_[i].width;
            const double right = label.alignment() & Qt::AlignHCenter ? rest / 2
                                 : label.alignment() & Qt::AlignRight ? rest
                                                                      : 0;
            const std::size_t end = i + 1 < lines_.size() ? lines_[i + 1].first : words.size();
            for (std::size_t w = lines_[i].first; w < end; ++w) {
                words[w].first.translate(right, down);
            }
        }
    }
};

std::string named(const QWidget& widget, const QString& text) {
    return (widget.objectName() + " \"" + text + "\"").toStdString();
}

bool isOpaqueOver(const QWidget& front, const QPoint& pointOnPage, const QWidget& page) {
    return front.isVisible() && front.autoFillBackground() &&
           front.rect().contains(front.mapFrom(&page, pointOnPage));
}

/// True if something opaque that is no ancestor of `widget` lies in front of this point.
bool isCovered(const QWidget& widget, const QPoint& pointOnPage, const QWidget& page) {
    const QWidget* child = &widget;
    for (const QWidget* parent = widget.parentWidget(); parent != nullptr && child != &page;
         child = parent, parent = parent->parentWidget()) {
        const QObjectList& siblings = parent->children();
        for (qsizetype i = siblings.indexOf(child) + 1; i < siblings.size(); ++i) {
            const auto* const front = qobject_cast<QWidget*>(siblings[i]);
            if (front != nullptr && !front->isWindow() && isOpaqueOver(*front, pointOnPage, page)) {
                return true;
            }
        }
    }
    return false;
}

/// Where the first baseline of a text stands in the design, in units from the top of the control: as Qt
/// paints a plain widget of its size.
template <class Plain>
int designBaseline(const Control& control, Qt::Alignment alignment, int lines) {
    Plain plain;
    plain.setFont(control.unzoomedFont());
    plain.setAlignment(alignment);
    plain.setText("H" + QString("\nH").repeated(lines - 1));
    plain.resize(100, control.designSize().height());
    return paintedTexts(plain).front().baseline;
}

/// How many pixels a control's text stands off where its design has it. A text that is not painted does not.
template <class Plain, class Asked>
double sunkBy(Asked& control) {
    std::set<int> lines;
    for (const PaintedText& text : paintedTexts(control)) {
        // Not those of a halo.
        if (text.colour == control.palette().color(control.foregroundRole())) {
            lines.insert(text.baseline);
        }
    }
    if (lines.empty()) {
        return 0;
    }
    const bool isSingle = std::is_same_v<Plain, QLineEdit>;
    const int design =
        designBaseline<Plain>(control, control.alignment(), isSingle ? 1 : static_cast<int>(lines.size()));
    const double wanted = (control.place().top() + design) * control.zoom();
    return control.y() + *lines.begin() - wanted;
}

/// An underlined sign that stands just on the plain one of a caption.
bool isSignOver(const Word& sign, const Word& word) {
    return sign.owner->font().underline() && sign.text.size() == 1 && word.text.contains(sign.text);
}

class Inspection {
public:
    explicit Inspection(const QWidget& page) : page_(page) {
        for (Label* label : inSight<Label>(page)) {
            if (!label->text().trimmed().isEmpty()) {
                look(*label);
            }
        }
        for (const QAbstractButton* button : inSight<QAbstractButton>(page)) {
            look(*button);
        }
        for (AnswerBox* box : inSight<AnswerBox>(page)) {
            look(*box);
        }
        compareWords();
    }

    std::vector<std::string> flaws;

private:
    const QWidget& page_;
    std::vector<Word> words_;

    void look(Label& label) {
        const Layout layout(label);
        if (layout.widest > label.width() + slackOf(label)) {
            flaws.push_back(named(label, label.text()) + " is cut off at its right");
        }
        if (layout.height > label.height() + slackOf(label)) {
            flaws.push_back(named(label, label.text()) + " is cut off below");
        }
        checkInside(label, label.text());
        checkLine<QLabel>(label, label.text());
        for (const auto& [place, text] : layout.words) {
            addWord(label, place, text);
        }
    }

    void look(const QAbstractButton& button) {
        if (button.sizeHint().width() > button.width() + slackOf(button) &&
            button.fontMetrics().horizontalAdvance(button.text()) + 6 > button.width()) {
            flaws.push_back(named(button, button.text()) + " does not fit its button");
        }
        checkInside(button, button.text());
        addWord(button, QRectF(button.rect()).adjusted(2, 4, -2, -4), button.text());
    }

    void look(AnswerBox& box) {
        checkInside(box, box.text());
        checkLine<QLineEdit>(box, box.text());
        addWord(box, QRectF(box.rect()).adjusted(2, 3, -2, -3), "[" + box.text() + "]");
    }

    void checkInside(const QWidget& widget, const QString& text) {
        const QRectF parent =
            QRectF(widget.parentWidget()->rect()).adjusted(-kSlack, -kSlack, kSlack, kSlack);
        if (!parent.contains(QRectF(widget.geometry()))) {
            flaws.push_back(named(widget, text) + " leaves its parent");
        }
    }

    /// At the size of the design everything stands there, by definition.
    template <class Plain, class Asked>
    void checkLine(Asked& control, const QString& text) {
        if (control.zoom() == 1 || text.trimmed().isEmpty()) {
            return;
        }
        const double pixels = sunkBy<Plain>(control);
        if (std::abs(pixels) > kHalfAPixel) {
            flaws.push_back(named(control, text) + " stands " + std::to_string(pixels) +
                            " pixels below its line");
        }
    }

    void addWord(const QWidget& owner, const QRectF& place, const QString& text) {
        const QRectF onThePage = onPage(owner, place, page_);
        if (!isCovered(owner, onThePage.center().toPoint(), page_)) {
            words_.push_back({onThePage, &owner, text});
        }
    }

    void compareWords() {
        for (std::size_t i = 0; i < words_.size(); ++i) {
            for (std::size_t j = i + 1; j < words_.size(); ++j) {
                const Word& a = words_[i];
                const Word& b = words_[j];
                if (a.owner == b.owner || isSignOver(a, b) || isSignOver(b, a)) {
                    continue;
                }
                const QRectF both = a.place.intersected(b.place);
                const double slack = slackOf(*a.owner);
                if (both.width() > slack && both.height() > slack) {
                    flaws.push_back(named(*a.owner, a.text) + " lies over " + named(*b.owner, b.text));
                }
            }
        }
    }
};

}  // namespace

std::vector<std::string> flawsOf(const QWidget& window) { return Inspection(window).flaws; }

std::vector<std::string> overfullBoxesOf(const QWidget& window) {
    std::vector<std::string> overfull;
    for (const AnswerBox* box : inSight<AnswerBox>(window)) {
        QStyleOptionFrame frame;
        frame.initFrom(box);
        frame.lineWidth = box->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &frame, box);
        // The box leaves itself two pixels at either side of its text.
        const int room = box->style()->subElementRect(QStyle::SE_LineEditContents, &frame, box).width() - 4;
        if (box->fontMetrics().horizontalAdvance(box->text()) > room) {
            overfull.push_back(named(*box, box->text()));
        }
    }
    return overfull;
}

std::vector<QSize> commonScreens() {
    std::vector<QSize> screens{{800, 600},   {1024, 768},  {1366, 768},
                               {1920, 1080}, {2560, 1440}, {3840, 2160}};
    for (QSize& screen : screens) {
        screen /= qApp->devicePixelRatio();
    }
    return screens;
}

int looks(int full) {
    bool isAsked = false;
    const int percent = qEnvironmentVariableIntValue("TAVRUNE_LOOKS", &isAsked);
    return isAsked ? std::max(1, full * percent / 100) : full;
}

}  // namespace tavrune::test
