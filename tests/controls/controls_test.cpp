#include <array>
#include <set>

#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcutEvent>
#include <QSignalSpy>
#include <QStyleFactory>
#include <QTest>

#include <gtest/gtest.h>

#include "controls/access_key.h"
#include "controls/answer_box.h"
#include "controls/button.h"
#include "controls/design_style.h"
#include "controls/fraction.h"
#include "controls/frame.h"
#include "controls/label.h"
#include "controls/line_control.h"
#include "controls/option_button.h"
#include "controls/option_group.h"
#include "controls/panel.h"
#include "controls/row.h"
#include "controls/table_head.h"
#include "controls/voice.h"
#include "support/painting.h"
#include "support/student.h"

namespace tavrune {
namespace {

TEST(FromTwips, GivesFifteenToAUnit) {
    EXPECT_EQ(fromTwips(9660), 644);
    EXPECT_EQ(fromTwips(6690), 446);
    EXPECT_DOUBLE_EQ(fromTwips(280.5), 18.7);
}

TEST(Rgb, TakesAChannelOf256For255) {
    EXPECT_EQ(rgb(0, 256, 0), QColor(0, 255, 0));
    EXPECT_EQ(rgb(256, 1000, 256), QColor(255, 255, 255));
    EXPECT_EQ(rgb(12, 255, 0), QColor(12, 255, 0));
    EXPECT_EQ(rgb(-1, 0, 7), QColor(0, 0, 7));
}

TEST(SharedColours, AreWhatTheyAreCalled) {
    EXPECT_EQ(kWhite, QColor(255, 255, 255));
    EXPECT_EQ(kBlack, QColor(0, 0, 0));
    EXPECT_EQ(kRed, QColor(255, 0, 0));
    EXPECT_EQ(kGreen, QColor(0, 130, 0));
    EXPECT_EQ(kBlue, QColor(0, 0, 255));
}

TEST(Control, KeepsItsPlaceInUnitsAtEveryZoom) {
    QWidget page;
    Label label(&page);
    label.setPlace({10, 20, 100.5, 16});
    label.setZoom(2);
    EXPECT_EQ(label.geometry(), QRect(20, 40, 201, 32));
    EXPECT_EQ(label.place(), QRectF(10, 20, 100.5, 16));
    label.setLeft(30);
    EXPECT_EQ(label.geometry().left(), 60);
    EXPECT_EQ(label.font().pixelSize(), 22);
    label.setZoom(1);
    EXPECT_EQ(label.geometry().left(), 30);
    EXPECT_EQ(label.font().pixelSize(), 11);
}

TEST(Control, WithoutAPlaceByItsDesignIsZoomedFromWhereItStands) {
    QWidget page;
    Label label(&page);
    label.setGeometry(10, 20, 30, 40);
    label.setZoom(2);
    EXPECT_EQ(label.geometry(), QRect(20, 40, 60, 80));
    label.setZoom(1);
    EXPECT_EQ(label.geometry(), QRect(10, 20, 30, 40));
}

TEST(Control, HasATextOfOnePixelAtLeast) {
    Label label;
    label.setTextSize(0.2);
    EXPECT_EQ(label.font().pixelSize(), 1);
    label.setZoom(1.5);
    EXPECT_EQ(label.font().pixelSize(), 1);
    label.setZoom(0.5);
    EXPECT_EQ(label.font().pixelSize(), 1);
}

TEST(Control, IsPaintedAnewOnceItLooksDifferent) {
    QWidget page;
    Panel panel(&page);
    LineControl line(&page);
    line.setPlace({0, 40, 30, 30});
    TableHead head(&page);
    head.setPlace({40, 40, 30, 14});
    page.show();
    EXPECT_FALSE(test::isPaintedAfter(panel, [] {}));
    EXPECT_TRUE(test::isPaintedAfter(panel, [&] { panel.setFramed(true); }));
    EXPECT_TRUE(test::isPaintedAfter(line, [&] { line.setRising(true); }));
    EXPECT_TRUE(test::isPaintedAfter(line, [&] { line.setThickness(3); }));
    EXPECT_TRUE(test::isPaintedAfter(line, [&] { line.setEnds({0, 40, 30, 70}); }));
    EXPECT_TRUE(test::isPaintedAfter(head, [&] { head.standOver({&panel}); }));
}

TEST(Control, KeepsAFractionOfATextSizeThatTheScreenRounds) {
    Label label;
    label.setTextSize(14.25);
    EXPECT_EQ(label.textSize(), 14.25);
    EXPECT_EQ(label.font().pixelSize(), 14);
    label.setZoom(2);
    EXPECT_EQ(label.font().pixelSize(), 28);
}

TEST(Control, GivesATextTheSameRoomAtEveryZoom) {
    Label label;
    for (const double size : {8.0, 11.0, 13.0, 18.0}) {
        label.setTextSize(size);
        label.setZoom(1);
        const QString text = "P=    Q +     for Q  0, P  0; (-1,25·w² + 10)";
        const double width = QFontMetricsF(label.font()).horizontalAdvance(text);
        const double height = QFontMetricsF(label.font()).height();
        for (const double zoom : {1.25, 1.5, 1.75, 2.0, 2.5, 3.0}) {
            label.setZoom(zoom);
            EXPECT_NEAR(QFontMetricsF(label.font()).horizontalAdvance(text), width * zoom, 1) << zoom;
            EXPECT_LE(QFontMetricsF(label.font()).height(), height * zoom + 0.1) << zoom;
        }
    }
}

TEST(Label, HintsSmallLettersOnly) {
    Label label;
    for (const auto& [size, hinting] :
         {std::pair{16, QFont::PreferVerticalHinting}, std::pair{17, QFont::PreferNoHinting}}) {
        label.setTextSize(size);
        EXPECT_EQ(label.font().hintingPreference(), hinting) << size;
    }
}

TEST(OptionButton, HasAMarkThatGrowsWithIt) {
    OptionButton option;
    const int mark = option.style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, &option);
    option.setZoom(2.5);
    EXPECT_EQ(option.style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, &option),
              qRound(mark * 2.5));
}

TEST(OptionButton, HasAnOutlineRoundItsMarkThatGrowsWithIt) {
    OptionButton option;
    option.setPlace({0, 0, 60, 20});
    option.setZoom(4);
    const QImage picture = option.grab().toImage();
    const int middle = picture.height() / 2;
    const QColor ground = picture.pixelColor(0, 0);
    int outline = 0;
    for (int x = 0; picture.pixelColor(x, middle) != kWhite; ++x) {
        outline += picture.pixelColor(x, middle) != ground ? 1 : 0;
    }
    EXPECT_NEAR(outline, 4 * picture.devicePixelRatio(), 1);
}

TEST(Button, HasAnOutlineInTheColourOfItsState) {
    QWidget page;
    Button button(&page);
    button.setPlace({0, 0, 80, 30});
    button.setZoom(2);
    page.show();
    page.activateWindow();
    test::settle();
    // Half a step of a channel may be lost on the way to the picture.
    const auto isOutlined = [&button](const QColor& colour) {
        const QImage picture = button.grab().toImage();
        const QColor seen = picture.pixelColor(0, picture.height() / 2);
        return std::abs(seen.red() - colour.red()) <= 1 && std::abs(seen.green() - colour.green()) <= 1 &&
               std::abs(seen.blue() - colour.blue()) <= 1;
    };
    const QPalette& palette = button.palette();
    const QColor plain = palette.color(QPalette::Window).darker(140);
    button.clearFocus();
    EXPECT_TRUE(isOutlined(plain));
    EXPECT_FALSE(isOutlined(plain.lighter(115)));
    button.setFocus();
    EXPECT_TRUE(isOutlined(palette.color(QPalette::Highlight).darker(125)));
    button.setEnabled(false);
    EXPECT_TRUE(isOutlined(plain.lighter(115)));
}

TEST(OptionButton, ShowsItsFocusRoundItsTextAtEveryZoom) {
    QWidget page;
    OptionButton option(&page);
    option.setText("Rod");
    option.setPlace({0, 0, 100, 20});
    page.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
    focusOn(&option);
    for (const double zoom : {1.0, 1.5, 2.0, 3.0, 4.0}) {
        option.setZoom(zoom);
        const QImage picture = option.grab().toImage();
        const double ratio = picture.devicePixelRatio();
        const double beside = test::paintedTexts(option).at(0).x - 2 * zoom;
        EXPECT_NE(picture.pixelColor(qFloor(beside * ratio), picture.height() / 2), picture.pixelColor(0, 0))
            << zoom;
    }
}

TEST(Button, HasAnOutlineThatGrowsWithIt) {
    Button button;
    button.setPlace({0, 0, 76, 25});
    for (const double zoom : {2.0, 3.0, 4.0}) {
        button.setZoom(zoom);
        const QImage picture = button.grab().toImage();
        const QColor outline = picture.pixelColor(0, picture.height() / 2);
        int width = 0;
        while (picture.pixelColor(width, picture.height() / 2) == outline) {
            ++width;
        }
        EXPECT_EQ(width, qFloor(zoom * picture.devicePixelRatio())) << zoom;
    }
}

TEST(DesignFont, IsOneOfTheDesignsOwn) {
    const QString family = QFontInfo(designFont()).family();
    EXPECT_TRUE(designFont().families().contains(family)) << family.toStdString();
}

TEST(PaintFont, IsTheFirstInstalledOneAlone) {
    const QFont& painted = paintFont(designFont());
    EXPECT_EQ(painted.families(), QStringList{QFontInfo(designFont()).family()});
    EXPECT_EQ(QFontInfo(painted).family(), QFontInfo(designFont()).family());
    EXPECT_EQ(painted.pixelSize(), designFont().pixelSize());
    EXPECT_EQ(&paintFont(designFont()), &painted);
}

TEST(PaintFont, IsTheSameWhereNoneIsInstalled) {
    QFont font;
    font.setFamilies({"No such family", "Nor such a one"});
    EXPECT_EQ(paintFont(font), font);
}

TEST(Label, LooksAsQtPaintsItsFont) {
    const QString text = "Rødder: √2 ⇒ ½";
    for (const bool serif : {false, true}) {
        for (const double size : {11.0, 15.0, 57.0}) {
            Label label;
            label.setBold(true);
            label.setSerif(serif);
            label.setTextSize(size);
            label.setText(text);
            label.resize(600, 80);
            QLabel qts(text);
            qts.setFont(label.font());
            qts.setAlignment(label.alignment());
            qts.setIndent(label.indent());
            qts.resize(label.size());
            EXPECT_GT(label.font().families().size(), 1);
            EXPECT_EQ(label.grab().toImage(), qts.grab().toImage()) << serif << " at " << size;
        }
    }
}

/// A label that shows what its painters begin with.
class OpenLabel : public Label {
public:
    using Label::initPainter;
};

TEST(Label, IsPaintedWithOneFamilyWhereTheFontIsNotThatOfTheDesign) {
    OpenLabel label;
    label.setTextColour(kRed);
    const auto families = [&label] {
        QImage image(10, 10, QImage::Format_RGB32);
        QPainter painter(&image);
        label.initPainter(&painter);
        EXPECT_EQ(painter.pen().color(), kRed);
        EXPECT_EQ(painter.font().pixelSize(), label.font().pixelSize());
        return painter.font().families();
    };
    EXPECT_EQ(families(), designFont().families());
    label.setTextSize(15);
    EXPECT_EQ(families(), paintFont(designFont()).families());
    label.setZoom(2);
    EXPECT_EQ(families(), designFont().families());
}

TEST(FocusOn, LeavesWhatABoxHoldsUnselected) {
    QWidget window;
    AnswerBox box(&window);
    box.setContent("123");
    window.show();
    focusOn(&box);
    EXPECT_FALSE(box.hasSelectedText());
}

TEST(Control, IsShownByItsOwnFlagWhateverStandsAround) {
    Panel panel;
    Label label(&panel);
    panel.hide();
    EXPECT_TRUE(label.isShown());
    label.hide();
    panel.show();
    EXPECT_FALSE(label.isShown());
}

TEST(FocusOn, PassesByWhatIsHiddenOrDisabled) {
    QWidget window;
    Button hidden(&window);
    Button disabled(&window);
    Button shown(&window);
    hidden.hide();
    disabled.setEnabled(false);
    window.show();
    focusOn(&shown);
    EXPECT_EQ(window.focusWidget(), &shown);
    focusOn(&hidden);
    focusOn(&disabled);
    EXPECT_EQ(window.focusWidget(), &shown);
}

TEST(Label, TakesNoMarkup) {
    Label label;
    label.setCaption("0<Q<5 <b>&amp;</b>");
    EXPECT_EQ(label.caption(), "0<Q<5 <b>&amp;</b>");
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
}

TEST(Label, WithAutoSizeIsAsWideAsItsText) {
    Label label;
    label.setAutoSize(true);
    label.setCaption("7");
    const double narrow = label.place().width();
    label.setCaption("-10");
    EXPECT_GT(label.place().width(), narrow);
    EXPECT_EQ(label.place().width(), label.textWidth());
}

TEST(Label, KeepsItsSizeOnceAutoSizeIsOff) {
    Label label;
    label.setAutoSize(true);
    label.setCaption("-10");
    const QRectF place = label.place();
    label.setAutoSize(false);
    label.setCaption("-1000");
    EXPECT_EQ(label.place(), place);
}

/// The first rows of a picture that have ink, one for each line of text.
std::vector<int> topsOfLines(const QImage& picture) {
    std::vector<int> tops;
    bool wasInked = false;
    for (int y = 0; y < picture.height(); ++y) {
        bool isInked = false;
        for (int x = 0; x < picture.width() && !isInked; ++x) {
            isInked = qGray(picture.pixel(x, y)) < 128;
        }
        if (isInked && !wasInked) {
            tops.push_back(y);
        }
        wasInked = isInked;
    }
    return tops;
}

TEST(Label, KeepsItsLinesWhereTheDesignHasThemAtEveryZoom) {
    Label label;
    label.setBackColour(kWhite);
    label.setWordWrap(true);
    label.setCaption("H H H H H");
    label.setPlace({0, 0, 14, 70});
    std::vector<int> design;
    for (const double zoom : {1.0, 1.25, 1.5, 1.75, 2.0, 2.5, 3.0}) {
        label.setZoom(zoom);
        const std::vector<int> tops = topsOfLines(label.grab().toImage());
        ASSERT_EQ(tops.size(), 5U) << zoom;
        if (zoom == 1) {
            design = tops;
        }
        for (std::size_t line = 1; line < tops.size(); ++line) {
            EXPECT_NEAR(tops[line] - tops[0], (design[line] - design[0]) * zoom, 1)
                << zoom << ", line " << line;
        }
    }
}

/// Whole ones, and what fits a window of any size.
constexpr std::array kZooms{1.0, 1.25, 1.37, 1.5, 1.73, 2.0, 2.2, 2.61, 3.0, 4.0};

/// Where the letters stand that a control paints at a time, within its parent.
int lineOf(QWidget& control, std::size_t time = 0) {
    return control.y() + test::paintedTexts(control).at(time).baseline;
}

TEST(Label, StandsOnOneLineWithWhatIsBesideItAtEveryZoom) {
    QWidget page;
    Label word(&page);
    Label exponent(&page);
    Label sign(&page);
    Label centred(&page);
    Label paragraph(&page);
    TableHead head(&page);
    AnswerBox second(&page);
    AnswerBox box(&page);
    const std::vector<std::pair<Label*, QRectF>> labels{
        {&word, {0, 40, 20, 14}},     {&exponent, {20, 43, 10, 12}},  {&sign, {30, 27, 20, 40}},
        {&centred, {50, 33, 20, 25}}, {&paragraph, {70, 14, 14, 70}}, {&head, {110, 40, 40, 14}}};
    exponent.setTextSize(8);
    sign.setTextSize(26);
    sign.setSerif(true);
    centred.setTextSize(13);
    centred.setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    paragraph.setWordWrap(true);
    for (const auto& [label, place] : labels) {
        label->setPlace(place);
        label->setCaption(label == &paragraph ? "α β H α" : "α");
    }
    head.standOver({&second});
    second.setPlace({110, 60, 40, 20});
    box.setPlace({160, 36, 40, 20});
    box.setContent("5");
    for (const double zoom : kZooms) {
        for (QWidget* widget : page.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            dynamic_cast<Control&>(*widget).setZoom(zoom);
        }
        for (const auto& [label, place] : labels) {
            const std::size_t last = label == &paragraph ? 2 : 0;
            EXPECT_EQ(lineOf(*label, last), qRound(50 * zoom)) << zoom << ", " << label->textSize();
        }
        EXPECT_EQ(lineOf(box), qRound(50 * zoom)) << zoom;
    }
}

TEST(Label, IsPaintedAtItsPlaceAndInItsHaloAtEveryZoom) {
    for (const bool isHaloed : {false, true}) {
        Label label;
        label.setPlace({0, 0, 40, 20});
        label.setAlignment(Qt::AlignRight | Qt::AlignTop);
        label.setHaloed(isHaloed);
        label.setCaption("H");
        for (const double zoom : kZooms) {
            label.setZoom(zoom);
            const std::vector<test::PaintedText> texts = test::paintedTexts(label);
            ASSERT_EQ(texts.size(), isHaloed ? 5U : 1U) << zoom;
            const double right = texts.back().x + QFontMetricsF(label.font()).horizontalAdvance("H");
            EXPECT_NEAR(right, 40 * zoom, 0.51) << zoom;
            EXPECT_EQ(texts.back().baseline, qRound(10 * zoom)) << zoom;
            if (isHaloed) {
                EXPECT_NEAR(texts.back().x - texts.front().x, zoom, 0.05);
                EXPECT_NEAR(texts.back().baseline - texts.front().baseline, zoom, 0.5);
            }
        }
    }
}

TEST(Label, BreaksItsLinesWhereTheDesignDoesAtEveryZoom) {
    Label label;
    label.setWordWrap(true);
    label.setCaption("Beregn den resulterende\nfunktion for hver størrelse");
    // The last word but one just fits, and just does not.
    const double room = std::ceil(QFontMetricsF(label.font()).horizontalAdvance("funktion for hver"));
    for (const double width : {room, room - 1}) {
        label.setZoom(1);
        label.setPlace({0, 0, width, 60});
        std::vector<QString> design;
        for (const double zoom : kZooms) {
            label.setZoom(zoom);
            std::vector<QString> lines;
            for (const test::PaintedText& line : test::paintedTexts(label)) {
                lines.push_back(line.text.trimmed());
            }
            if (zoom == 1) {
                design = lines;
                EXPECT_EQ(lines.at(2), width == room ? "funktion for hver" : "funktion for");
            }
            EXPECT_EQ(lines, design) << zoom;
        }
    }
}

TEST(Label, StandsAtItsPlaceNotAtItsRoundedEdge) {
    QWidget page;
    Label label(&page);
    label.setCaption("<");
    for (const double left : {10.0, 10.3, 11.5}) {
        label.setPlace({left, 0, 20, 14});
        for (const double zoom : kZooms) {
            label.setZoom(zoom);
            if (zoom != 1) {
                EXPECT_NEAR(label.x() + test::paintedTexts(label).front().x, left * zoom, 0.02) << zoom;
            }
        }
    }
}

TEST(Label, IsTransparentUntilItHasABackColour) {
    Label label;
    EXPECT_FALSE(label.autoFillBackground());
    label.setBackColour(QColor(0, 130, 0));
    EXPECT_TRUE(label.autoFillBackground());
    EXPECT_EQ(label.backColour(), QColor(0, 130, 0));
}

TEST(Button, IsPressedByEnterAndBySpace) {
    Button button;
    button.show();
    int pressed = 0;
    QObject::connect(&button, &Button::clicked, &button, [&pressed] { ++pressed; });
    QTest::keyClick(&button, Qt::Key_Return);
    QTest::keyClick(&button, Qt::Key_Enter);
    QTest::keyClick(&button, Qt::Key_Space);
    EXPECT_EQ(pressed, 3);
}

TEST(Button, IsPressedOnceByAHeldEnter) {
    Button button;
    button.show();
    int pressed = 0;
    QObject::connect(&button, &Button::clicked, &button, [&pressed] { ++pressed; });
    QTest::keyPress(&button, Qt::Key_Return);
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QCoreApplication::sendEvent(&button, &repeat);
    EXPECT_EQ(pressed, 1);
}

TEST(Button, IsPressedAtOnceByItsAccessKey) {
    QWidget window;
    Button button(&window);
    button.setText("&Ny opgave");
    AnswerBox box(&window);
    window.show();
    window.activateWindow();
    QCoreApplication::processEvents();
    box.setFocus();
    int pressed = 0;
    QObject::connect(&button, &Button::clicked, &button, [&pressed] { ++pressed; });
    QTest::keyClick(&box, Qt::Key_N, Qt::AltModifier);
    EXPECT_EQ(pressed, 1);
    EXPECT_EQ(window.focusWidget(), &button);
    button.hide();
    QTest::keyClick(&box, Qt::Key_N, Qt::AltModifier);
    EXPECT_EQ(pressed, 1);
}

TEST(Button, IsClickedByAnAccessKeyThatAMenuHasToo) {
    QWidget window;
    Button button(&window);
    button.setText("&Ny opgave");
    window.show();
    int pressed = 0;
    QObject::connect(&button, &Button::clicked, &button, [&pressed] { ++pressed; });
    QShortcutEvent both(button.shortcut(), 1, true);
    EXPECT_TRUE(clickedInsteadOfMenu(window, &both));
    EXPECT_EQ(pressed, 1);
    QShortcutEvent alone(button.shortcut(), 1, false);
    EXPECT_FALSE(clickedInsteadOfMenu(window, &alone));
    QShortcutEvent other(QKeySequence("Alt+X"), 1, true);
    EXPECT_FALSE(clickedInsteadOfMenu(window, &other));
    button.setEnabled(false);
    EXPECT_FALSE(clickedInsteadOfMenu(window, &both));
    button.setEnabled(true);
    button.hide();
    EXPECT_FALSE(clickedInsteadOfMenu(window, &both));
    EXPECT_EQ(pressed, 1);
}

TEST(Button, TakesTheFocusByTabAndByAClick) { EXPECT_EQ(Button().focusPolicy(), Qt::StrongFocus); }

TEST(OptionButton, ShowsWhatItStandsOnAgainOnceItsColourIsReset) {
    OptionButton option;
    option.setBackColour(kGreen);
    EXPECT_TRUE(option.autoFillBackground());
    EXPECT_EQ(option.accessibleDescription(), "rigtigt svar");
    option.resetBackColour();
    EXPECT_FALSE(option.autoFillBackground());
    EXPECT_EQ(option.accessibleDescription(), "");
}

TEST(OptionButton, CanBeUncheckedWithTheWholeGroup) {
    QWidget group;
    OptionButton one(&group);
    OptionButton other(&group);
    one.setChosen(true);
    other.setChosen(true);
    EXPECT_FALSE(one.isChosen());
    other.setChosen(false);
    EXPECT_FALSE(one.isChosen());
    EXPECT_FALSE(other.isChosen());
    other.click();
    one.click();
    EXPECT_TRUE(one.isChosen());
    EXPECT_FALSE(other.isChosen());
}

TEST(OptionButton, IsBrowsedByTheArrowKeysAndChosenByEnterOrSpace) {
    QWidget group;
    std::array<OptionButton, 3> options;
    AnswerBox box(&group);
    for (OptionButton& option : options) {
        option.setParent(&group);
    }
    // What a click runs may move the focus on.
    QObject::connect(&options[1], &OptionButton::clicked, &box, [&box] { focusOn(&box); });
    group.show();
    options[0].setFocus();
    const auto goes = [&group](OptionButton& from, Qt::Key key, const OptionButton& to) {
        QTest::keyClick(&from, key);
        return group.focusWidget() == &to;
    };
    EXPECT_TRUE(goes(options[0], Qt::Key_Down, options[1]));
    EXPECT_TRUE(goes(options[1], Qt::Key_Right, options[2]));
    EXPECT_TRUE(goes(options[2], Qt::Key_Down, options[0]));
    EXPECT_TRUE(goes(options[0], Qt::Key_Left, options[2]));
    options[1].setEnabled(false);
    EXPECT_TRUE(goes(options[2], Qt::Key_Up, options[0]));
    options[2].hide();
    EXPECT_TRUE(goes(options[0], Qt::Key_Down, options[0])) << "there is no other";
    options[2].show();
    EXPECT_TRUE(goes(options[0], Qt::Key_Down, options[2]));
    EXPECT_TRUE(goes(options[2], Qt::Key_Right, options[0]));
    for (const OptionButton& option : options) {
        EXPECT_FALSE(option.isChosen());
    }
    options[1].setEnabled(true);
    EXPECT_TRUE(goes(options[0], Qt::Key_Down, options[1]));
    QTest::keyClick(&options[1], Qt::Key_Space);
    EXPECT_TRUE(options[1].isChosen());
    EXPECT_EQ(group.focusWidget(), &box);
    QTest::keyClick(&options[2], Qt::Key_Return);
    EXPECT_TRUE(options[2].isChosen());
}

TEST(OptionGroup, KnowsWhatTheChosenOptionStandsFor) {
    QWidget frame;
    OptionButton one(&frame);
    OptionButton other(&frame);
    const OptionGroup<int> group{{&one, 1}, {&other, 2}};
    EXPECT_EQ(group.chosen(), std::nullopt);
    other.click();
    EXPECT_EQ(group.chosen(), 2);
    group.choose(1);
    EXPECT_EQ(group.chosen(), 1);
    group.chooseNone();
    EXPECT_EQ(group.chosen(), std::nullopt);
    group.colour(2, kGreen);
    EXPECT_EQ(other.backColour(), kGreen);
    EXPECT_NE(one.backColour(), kGreen);
    group.resetColours();
    EXPECT_NE(other.backColour(), kGreen);
}

TEST(OptionButton, RunsItsClickOnlyWhenClicked) {
    OptionButton option;
    int clicked = 0;
    QObject::connect(&option, &OptionButton::clicked, &option, [&clicked] { ++clicked; });
    option.setChosen(true);
    EXPECT_EQ(clicked, 0);
    option.setChosen(false);
    option.click();
    EXPECT_EQ(clicked, 1);
}

TEST(OptionButton, GoesBackToTheSystemsButtonFace) {
    OptionButton option;
    const QColor face = option.backColour();
    const QColor letters = option.palette().color(QPalette::WindowText);
    EXPECT_NE(letters, kWhite);
    EXPECT_EQ(face, option.palette().color(QPalette::Button));
    option.setBackColour(QColor(0, 130, 0));
    EXPECT_EQ(option.backColour(), QColor(0, 130, 0));
    option.resetBackColour();
    EXPECT_EQ(option.backColour(), face);
    EXPECT_EQ(option.palette().color(QPalette::WindowText), letters);
}

TEST(OptionButton, IsFilledWithItsBackColour) {
    OptionButton option;
    option.resize(60, 20);
    option.setBackColour(QColor(0, 130, 0));
    EXPECT_EQ(option.grab().toImage().pixelColor(58, 2), QColor(0, 130, 0));
}

TEST(LineControl, HasItsEndsAtTheCornersOfItsPlace) {
    LineControl line;
    line.setPlace({10, 5, 30, 25});
    EXPECT_EQ(line.ends(), QLineF(10, 5, 40, 30));
    line.setEnds({10, 30, 40, 5});
    EXPECT_EQ(line.place(), QRectF(10, 5, 30, 25));
    EXPECT_EQ(line.ends(), QLineF(10, 30, 40, 5));
    line.setEnds({10, 5, 40, 30});
    EXPECT_EQ(line.ends(), QLineF(10, 5, 40, 30));
    line.setEnds({40, 5, 10, 30});
    EXPECT_EQ(line.ends(), QLineF(10, 30, 40, 5));
    line.setEnds({10, 30, 10, 5});
    EXPECT_EQ(line.ends(), QLineF(10, 5, 10, 30));
    line.setEnds({40, 5, 10, 5});
    EXPECT_EQ(line.ends(), QLineF(10, 5, 40, 5));
}

TEST(LineControl, LeavesClicksToWhatItIsDrawnOver) {
    QWidget page;
    Button button(&page);
    button.setPlace({0, 0, 50, 30});
    LineControl line(&page);
    line.setPlace({0, 0, 50, 30});
    page.show();
    EXPECT_EQ(page.childAt(20, 10), &button);
}

TEST(LineControl, RunsFromCornerToCorner) {
    LineControl line;
    line.setColour(kGreen);
    for (const bool rises : {true, false}) {
        line.setEnds(rises ? QLineF(0, 40, 40, 0) : QLineF(0, 0, 40, 40));
        const QImage picture = line.grab().toImage();
        const auto isGreen = [&picture](int x, int y) {
            const QColor seen = picture.pixelColor(x, y);
            return seen.green() > seen.red() + 40;
        };
        const int far = picture.width() - 2;
        EXPECT_EQ(isGreen(1, far), rises);
        EXPECT_EQ(isGreen(far, 1), rises);
        EXPECT_EQ(isGreen(1, 1), !rises);
        EXPECT_EQ(isGreen(far, far), !rises);
        EXPECT_TRUE(isGreen(far / 2, far / 2) || isGreen(far / 2, far / 2 + 1));
    }
}

TEST(LineControl, MovesTheEndOfAFractionBar) {
    LineControl line;
    line.setEnds({40, 70, 80, 70});
    line.setRightEnd(95);
    EXPECT_EQ(line.ends(), QLineF(40, 70, 95, 70));
}

/// How many rows, and how many columns, have a pixel of a line, if all these are just in its colour; -1 if
/// one is not.
std::pair<int, int> extentOfLine(QWidget& line) {
    const QImage picture = line.grab().toImage();
    std::set<int> rows;
    std::set<int> columns;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) == kGreen) {
                rows.insert(y);
                columns.insert(x);
            } else if (picture.pixelColor(x, y) !=
                       picture.pixelColor(picture.width() - 1, picture.height() - 1)) {
                return {-1, -1};
            }
        }
    }
    return {static_cast<int>(rows.size()), static_cast<int>(columns.size())};
}

TEST(LineControl, IsAsThickAsEveryOtherWhereverItStandsAtEveryZoom) {
    QWidget page;
    for (const double thickness : {1.0, 2.0}) {
        LineControl level(&page);
        LineControl upright(&page);
        for (LineControl* line : {&level, &upright}) {
            line->setThickness(thickness);
            line->setColour(kGreen);
        }
        for (const double zoom : kZooms) {
            level.setZoom(zoom);
            upright.setZoom(zoom);
            for (int at = 0; at < 10; ++at) {
                level.setEnds(QLineF(0, at, 40, at));
                upright.setEnds(QLineF(at, 0, at, 40));
                const double ratio = page.devicePixelRatioF();
                const int pixels = qFloor(qFloor(thickness * zoom) * ratio);
                EXPECT_EQ(extentOfLine(level), std::pair(pixels, qRound(level.width() * ratio))) << zoom;
                EXPECT_EQ(extentOfLine(upright), std::pair(qRound(upright.height() * ratio), pixels)) << zoom;
            }
        }
    }
}

class FractionOfThree : public testing::Test {
protected:
    QWidget page;
    Label top{&page};
    LineControl bar{&page};
    Label bottom{&page};
    Fraction fraction{&top, &bar, &bottom};
};

TEST_F(FractionOfThree, IsAsWideAsItsWiderText) {
    fraction.setTexts("3", "4 - (-10)");
    EXPECT_EQ(top.place().width(), bottom.textWidth());
    EXPECT_FALSE(top.isAutoSize());
    EXPECT_TRUE(bottom.isAutoSize());
    EXPECT_TRUE(top.alignment().testFlag(Qt::AlignHCenter));
    EXPECT_TRUE(bottom.alignment().testFlag(Qt::AlignHCenter));
    EXPECT_EQ(bar.ends().x2(), top.place().right());
    fraction.setTexts("4 - (-10)", "3");
    EXPECT_EQ(bottom.place().width(), top.textWidth());
    EXPECT_EQ(fraction.right(), top.place().right());
}

TEST_F(FractionOfThree, IsReadAtItsNumerator) {
    EXPECT_FALSE(top.isDecorative());
    EXPECT_TRUE(bottom.isDecorative());
}

TEST_F(FractionOfThree, MovesWithItsBar) {
    fraction.setTexts("-7", "12");
    fraction.setLeft(32);
    EXPECT_EQ(top.place().left(), 32);
    EXPECT_EQ(bottom.place().left(), 32);
    EXPECT_EQ(bar.ends().x1(), 32);
    EXPECT_EQ(bar.ends().x2(), top.place().right());
}

TEST_F(FractionOfThree, ShowsAndHidesAsOne) {
    fraction.setShown(false);
    EXPECT_FALSE(top.isShown() || bar.isShown() || bottom.isShown());
    fraction.setShown(true);
    EXPECT_TRUE(top.isShown() && bar.isShown() && bottom.isShown());
}

class HeadOfTwoColumns : public testing::Test {
protected:
    void SetUp() override {
        first.setPlace({40, 20, 30, 20});
        second.setPlace({100, 20, 60, 20});
        head.setPlace({30, 0, 150, 14});
        head.setCaption("  P     Qtotal");
        head.standOver({&first, &second});
    }

    QWidget page;
    AnswerBox first{&page};
    AnswerBox second{&page};
    TableHead head{&page};
};

TEST_F(HeadOfTwoColumns, StandsOverTheMiddleOfEachAtEveryZoom) {
    for (const double zoom : {1.0, 1.5, 3.0}) {
        head.setZoom(zoom);
        const auto words = head.words();
        ASSERT_EQ(words.size(), 2U);
        EXPECT_EQ(words[0].second, "P");
        EXPECT_EQ(words[0].first.top(), 0);
        EXPECT_NEAR(words[0].first.center().x(), 25 * zoom, 1e-9);
        EXPECT_EQ(words[1].second, "Qtotal");
        EXPECT_NEAR(words[1].first.center().x(), 100 * zoom, 1e-9);
    }
}

TEST_F(HeadOfTwoColumns, PaintsItsWordsWhereTheyStand) {
    const QImage picture = head.grab().toImage();
    std::set<int> inked;
    for (int x = 0; x < picture.width(); ++x) {
        for (int y = 0; y < picture.height(); ++y) {
            if (picture.pixelColor(x, y) != picture.pixelColor(0, 0)) {
                inked.insert(x);
            }
        }
    }
    const auto [p, total] = std::pair{head.words()[0].first, head.words()[1].first};
    ASSERT_FALSE(inked.empty());
    EXPECT_NEAR(*inked.begin(), p.left(), 2);
    EXPECT_NEAR(*inked.rbegin(), total.right(), 2);
    for (const int x : inked) {
        EXPECT_TRUE((x > p.left() - 2 && x < p.right() + 2) || x > total.left() - 2) << x;
    }
}

TEST_F(HeadOfTwoColumns, LeavesOutWordsWithoutAColumn) {
    head.setCaption("P Q1 Q2");
    EXPECT_EQ(head.words().size(), 2U);
    head.setCaption("P");
    EXPECT_EQ(head.words().size(), 1U);
    head.standOver({});
    EXPECT_TRUE(head.words().empty());
}

TEST(Row, SetsLabelsSideBySideByTheirWidths) {
    QWidget page;
    Label first(&page);
    Label empty(&page);
    Label last(&page);
    first.setCaption("((3/3)·w");
    last.setCaption("³");
    const double right = layOutRow({&first, &empty, &last}, 20, 3);
    EXPECT_EQ(first.place().left(), 20);
    EXPECT_EQ(first.place().width(), first.textWidth());
    EXPECT_EQ(empty.place().left(), first.place().right() + 3);
    EXPECT_EQ(last.place().left(), first.place().right() + 3);
    EXPECT_EQ(right, last.place().right());
}

/// How many of the pixels of a line are none of the ground, from its start and from its end.
std::pair<int, int> edgesOf(const QImage& picture, bool isRow) {
    const int length = isRow ? picture.width() : picture.height();
    const int middle = (isRow ? picture.height() : picture.width()) / 2;
    const auto isDrawn = [&](int i) {
        return picture.pixelColor(isRow ? QPoint(i, middle) : QPoint(middle, i)) != kWhite;
    };
    std::pair<int, int> edges{0, 0};
    while (edges.first < length && isDrawn(edges.first)) {
        ++edges.first;
    }
    while (edges.second < length && isDrawn(length - 1 - edges.second)) {
        ++edges.second;
    }
    return edges;
}

TEST(Panel, HasAnOutlineAsWideOnEverySideAtEveryZoom) {
    Panel panel;
    panel.setFramed(true);
    panel.setPlace({0, 0, 40, 30});
    for (const auto& [zoom, pixels] : {std::pair{1.0, 1}, {1.5, 1}, {2.0, 2}, {3.0, 3}}) {
        panel.setZoom(zoom);
        const QImage picture = panel.grab().toImage();
        const int drawn = qFloor(pixels * picture.devicePixelRatio());
        EXPECT_EQ(edgesOf(picture, true), std::pair(drawn, drawn)) << zoom;
        EXPECT_EQ(edgesOf(picture, false), std::pair(drawn, drawn)) << zoom;
    }
}

/// A desktop whose message boxes have icons on their buttons and texts with links.
class RichStyle : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        switch (hint) {
            case SH_DialogButtonBox_ButtonsHaveIcons:
                return 1;
            case SH_MessageBox_TextInteractionFlags:
                return Qt::TextBrowserInteraction;
            default:
                return QProxyStyle::styleHint(hint, option, widget, data);
        }
    }
};

/// Counts the icons that it is asked for.
class CountingStyle : public QProxyStyle {
public:
    QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                       const QWidget* widget) const override {
        ++asked;
        return QProxyStyle::standardIcon(which, option, widget);
    }

    mutable int asked = 0;
};

QImage painted(const QIcon& icon, QIcon::Mode mode) {
    QImage image(40, 24, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    icon.paint(&painter, image.rect(), Qt::AlignCenter, mode);
    return image;
}

TEST(DesignStyle, LoadsTheIconOfWhatAMenuBarHasNoRoomForOnceItIsSeen) {
    constexpr auto kMore = QStyle::SP_ToolBarHorizontalExtensionButton;
    DesignStyle style;
    auto* const base = new CountingStyle;
    style.setBaseStyle(base);
    const QIcon icon = static_cast<const QStyle&>(style).standardIcon(kMore);
    EXPECT_FALSE(icon.isNull());
    EXPECT_EQ(base->asked, 0);
    const QIcon whole = base->baseStyle()->standardIcon(kMore);
    EXPECT_EQ(icon.availableSizes(), whole.availableSizes());
    EXPECT_EQ(icon.actualSize({100, 100}), whole.actualSize({100, 100}));
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled}) {
        EXPECT_EQ(icon.pixmap(16, mode).toImage(), whole.pixmap(16, mode).toImage());
        EXPECT_EQ(icon.pixmap(4, mode).toImage(), whole.pixmap(4, mode).toImage());
        EXPECT_EQ(painted(icon, mode), painted(whole, mode));
    }
    EXPECT_NE(painted(icon, QIcon::Normal), painted(QIcon(), QIcon::Normal));
    EXPECT_EQ(base->asked, 1);
}

TEST(DesignStyle, LoadsEveryOtherIconAtOnce) {
    DesignStyle style;
    auto* const base = new CountingStyle;
    style.setBaseStyle(base);
    EXPECT_FALSE(static_cast<const QStyle&>(style).standardIcon(QStyle::SP_MessageBoxWarning).isNull());
    EXPECT_EQ(base->asked, 1);
}

TEST(DesignStyle, LeavesAnIconThatOutlivesItEmpty) {
    auto style = std::make_unique<DesignStyle>();
    const QIcon icon = style->standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton, nullptr, nullptr);
    style.reset();
    EXPECT_TRUE(icon.pixmap(16).isNull());
}

TEST(Button, ShowsItsFocusAlsoIfThatWasNotMovedByAKey) {
    class Shown : public Button {
    public:
        using Button::initStyleOption;
    } button;
    QStyleOptionButton option;
    button.initStyleOption(&option);
    EXPECT_TRUE(option.state.testFlag(QStyle::State_KeyboardFocusChange));
}

template <class Kind>
bool hasDesignFontOnAnyPage() {
    QWidget page;
    QFont large = page.font();
    large.setPixelSize(30);
    page.setFont(large);
    return Kind(&page).font() == designFont();
}

TEST(Control, HasTheDesignFontOnAnyPage) {
    EXPECT_TRUE(hasDesignFontOnAnyPage<Label>());
    EXPECT_TRUE(hasDesignFontOnAnyPage<Button>());
    EXPECT_TRUE(hasDesignFontOnAnyPage<OptionButton>());
    EXPECT_TRUE(hasDesignFontOnAnyPage<AnswerBox>());
    EXPECT_TRUE(hasDesignFontOnAnyPage<Frame>());
}

TEST(DesignStyle, OpensTheMenuByAltAloneUnlessSomebodyListens) {
    const DesignStyle style;
    EXPECT_NE(style.styleHint(QStyle::SH_MenuBar_AltKeyNavigation, nullptr, nullptr, nullptr), 0);
    const QSignalSpy listener(&Voice::instance(), &Voice::said);
    EXPECT_EQ(style.styleHint(QStyle::SH_MenuBar_AltKeyNavigation, nullptr, nullptr, nullptr), 0);
}

TEST(DesignStyle, LeavesMessagesWithPlainWords) {
    DesignStyle style;
    style.setBaseStyle(new RichStyle);
    const auto hint = [&style](QStyle::StyleHint asked) {
        return style.styleHint(asked, nullptr, nullptr, nullptr);
    };
    EXPECT_EQ(hint(QStyle::SH_DialogButtonBox_ButtonsHaveIcons), 0);
    EXPECT_EQ(hint(QStyle::SH_MessageBox_TextInteractionFlags), Qt::NoTextInteraction);
}

TEST(DesignStyle, PaintsWhatIsNoControlAsItsBaseDoes) {
    DesignStyle style;
    const std::unique_ptr<QStyle> base(QStyleFactory::create("Fusion"));
    QPushButton button("OK");
    QRadioButton option("Rød");
    QLineEdit field("12");
    for (QWidget* widget :
         {static_cast<QWidget*>(&button), static_cast<QWidget*>(&option), static_cast<QWidget*>(&field)}) {
        widget->resize(80, 30);
        widget->setStyle(base.get());
        const QImage plain = widget->grab().toImage();
        widget->setStyle(&style);
        EXPECT_EQ(widget->grab().toImage(), plain) << widget->metaObject()->className();
        widget->setStyle(nullptr);
    }
}

TEST(AnswerBox, HasAnOutlineTwiceAsWideWhereTheFocusStands) {
    QWidget page;
    AnswerBox box(&page);
    box.setPlace({0, 0, 40, 20});
    // Without a caret.
    box.setReadOnly(true);
    page.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
    for (const double zoom : {1.0, 1.5, 2.0, 3.0}) {
        box.setZoom(zoom);
        box.clearFocus();
        const int unit = qFloor(zoom);
        EXPECT_EQ(edgesOf(box.grab().toImage(), true), std::pair(unit, unit)) << zoom;
        EXPECT_EQ(edgesOf(box.grab().toImage(), false), std::pair(unit, unit)) << zoom;
        focusOn(&box);
        const int two = qFloor(2 * zoom);
        EXPECT_EQ(edgesOf(box.grab().toImage(), true), std::pair(two, two)) << zoom;
        EXPECT_EQ(edgesOf(box.grab().toImage(), false), std::pair(two, two)) << zoom;
    }
}

TEST(AnswerBox, KeepsItsTextOffItsOutlineAtEveryZoom) {
    QWidget page;
    AnswerBox box(&page);
    box.setPlace({0, 0, 40, 20});
    box.setContent("1");
    page.show();
    for (const double zoom : {1.0, 1.5, 2.0, 3.0}) {
        box.setZoom(zoom);
        const QImage picture = box.grab().toImage();
        const int outline = qFloor(2 * zoom);
        for (int y = outline; y < picture.height() - outline; ++y) {
            EXPECT_EQ(picture.pixelColor(outline, y), kWhite) << zoom << " row " << y;
        }
    }
}

TEST(AnswerBox, HasTheFontAndTheColoursOfItsPage) {
    QWidget page;
    page.setFont(designFont());
    QPalette blackOnWhite;
    blackOnWhite.setColor(QPalette::Text, kBlack);
    blackOnWhite.setColor(QPalette::Base, kWhite);
    page.setPalette(blackOnWhite);
    const AnswerBox box(&page);
    EXPECT_EQ(box.font(), designFont());
    EXPECT_FALSE(box.testAttribute(Qt::WA_SetFont));
    EXPECT_FALSE(box.testAttribute(Qt::WA_SetPalette));
}

TEST(AnswerBox, IsBlackOnWhiteInTheDesignFontOnAnyPage) {
    QWidget page;
    QFont large;
    large.setPixelSize(30);
    page.setFont(large);
    page.setPalette(QPalette(QColor(20, 20, 20)));
    const AnswerBox box(&page);
    EXPECT_EQ(box.font().pixelSize(), 11);
    for (const auto& [text, base] : {std::pair{kWhite, kBlack}, {kBlack, kRed}, {kRed, kWhite}}) {
        QPalette palette;
        palette.setColor(QPalette::Text, text);
        palette.setColor(QPalette::Base, base);
        page.setPalette(palette);
        const AnswerBox other(&page);
        for (const auto state : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            for (const AnswerBox* each : {&box, &other}) {
                EXPECT_EQ(each->palette().color(state, QPalette::Base), kWhite);
                EXPECT_EQ(each->palette().color(state, QPalette::Text), kBlack);
            }
        }
    }
}

TEST(Panel, IsWhiteWithBlackText) {
    Panel panel;
    Label label(&panel);
    EXPECT_EQ(panel.backColour(), kWhite);
    EXPECT_EQ(label.textColour(), kBlack);
}

}  // namespace
}  // namespace tavrune
