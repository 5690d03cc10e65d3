// What every control paints, in each of its states and at several zooms, is compared with what is written
// down in conformance/record/. Whoever changes it on purpose has it written anew by script/record, and reads
// the change.

#include <gtest/gtest.h>

#include "controls/answer_box.h"
#include "controls/button.h"
#include "controls/fraction.h"
#include "controls/frame.h"
#include "controls/label.h"
#include "controls/line_control.h"
#include "controls/option_button.h"
#include "controls/panel.h"
#include "controls/table_head.h"
#include "graph/graph_box.h"
#include "numeric/text.h"
#include "support/painting.h"
#include "support/student.h"
#include "support/written_down.h"

namespace tavrune {
namespace {

/// A page with controls to be painted.
class Gallery {
public:
    Gallery() {
        page_.resize(400, 300);
        page_.show();
        page_.activateWindow();
        test::settle();
    }

    /// Hangs up a control at a place that has no whole pixels, painted wherever it is zoomed to.
    template <class Kind>
    Kind& hang(const std::string& title, double width, double height) {
        auto* const control = new Kind(&page_);
        control->setPlace({10.4, 20.3, width, height});
        control->show();
        pieces_.push_back({title, control});
        return *control;
    }

    void paintAll(double zoom) {
        lines_.push_back("> zoom " + NumberText(zoom));
        for (const auto& [title, control] : pieces_) {
            control->setZoom(zoom);
            QWidget& widget = *control->widget();
            if (title.find("focus") != std::string::npos) {
                widget.setFocus();
            }
            lines_.push_back("  " + title);
            for (const std::string& line : test::painting(widget)) {
                lines_.push_back("    " + line);
            }
            widget.clearFocus();
        }
    }

    [[nodiscard]] const std::vector<std::string>& lines() const { return lines_; }

private:
    struct Piece {
        std::string title;
        Control* control;
    };

    QWidget page_;
    std::vector<Piece> pieces_;
    std::vector<std::string> lines_;
};

void hangLabels(Gallery& gallery) {
    gallery.hang<Label>("label", 60.2, 16.5).setCaption("Q = 12");
    Label& loud = gallery.hang<Label>("large, bold and underlined label in red", 90, 30);
    loud.setCaption("FORKERT");
    loud.setTextSize(18);
    loud.setBold(true);
    loud.setUnderlined(true);
    loud.setTextColour(kRed);
    Label& serif = gallery.hang<Label>("label with serifs, small", 60, 16);
    serif.setCaption("f(x)");
    serif.setSerif(true);
    serif.setTextSize(9);
    Label& centred = gallery.hang<Label>("label in the middle of its place", 80.6, 40.2);
    centred.setCaption("P\nQ");
    centred.setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    Label& right = gallery.hang<Label>("label at the right", 80, 16);
    right.setCaption("25");
    right.setAlignment(Qt::AlignRight | Qt::AlignTop);
    Label& running = gallery.hang<Label>("running text", 70, 60);
    running.setWordWrap(true);
    running.setCaption("Find den mængde,\nhvor de to priser er lige store.");
    Label& haloed = gallery.hang<Label>("label with a halo", 40, 16);
    haloed.setCaption("10");
    haloed.setHaloed(true);
    TableHead& head = gallery.hang<TableHead>("head of a table", 120, 16);
    head.setCaption("Q P MR");
    head.setTextColour(kBlue);
    head.standOver({&haloed, &serif, &right});
}

LineControl& hangLine(Gallery& gallery, const std::string& title, const QLineF& ends, double thickness) {
    auto& line = gallery.hang<LineControl>(title, 10, 10);
    line.setThickness(thickness);
    line.setEnds(ends);
    return line;
}

void hangLines(Gallery& gallery) {
    hangLine(gallery, "level line", {10.4, 20.3, 50.4, 20.3}, 1).setColour(kBlue);
    hangLine(gallery, "upright line", {10.4, 20.3, 10.4, 50.7}, 1).setColour(kBlue);
    hangLine(gallery, "thick level line", {10.4, 20.3, 50.4, 20.3}, 3).setColour(kBlue);
    hangLine(gallery, "thick upright line", {10.4, 20.3, 10.4, 50.7}, 2).setColour(kBlue);
    hangLine(gallery, "falling line", {10.4, 20.3, 50.4, 60.7}, 1).setColour(kBlue);
    hangLine(gallery, "rising line", {10.4, 60.7, 50.4, 20.3}, 1).setColour(kBlue);
    hangLine(gallery, "thick rising line", {50.4, 20.3, 10.4, 60.7}, 2).setColour(kBlue);
    hangLine(gallery, "hardly falling line", {10.4, 20.3, 50.4, 22.1}, 1).setColour(kBlue);
}

void hangFields(Gallery& gallery) {
    for (const std::string state : {"", " with the focus", ", disabled", " with the focus, disabled"}) {
        const bool isEnabled = state.find("disabled") == std::string::npos;
        Button& button = gallery.hang<Button>("button" + state, 76.3, 25.2);
        button.setText("&Nyt spørgsmål");
        button.setEnabled(isEnabled);
        AnswerBox& box = gallery.hang<AnswerBox>("box" + state, 56.3, 20.4);
        box.setContent("-3.5");
        box.setEnabled(isEnabled);
        OptionButton& option = gallery.hang<OptionButton>("option" + state, 80.3, 18.2);
        option.setText("Rød");
        option.setEnabled(isEnabled);
        OptionButton& chosen = gallery.hang<OptionButton>("chosen option" + state, 80.3, 18.2);
        chosen.setText("Grøn");
        chosen.setAutoExclusive(false);
        chosen.setChecked(true);
        chosen.setBackColour(kGreen);
        chosen.setEnabled(isEnabled);
    }
    AnswerBox& wrong = gallery.hang<AnswerBox>("red box", 56, 20);
    wrong.setContent("7");
    wrong.mark(true);
    gallery.hang<AnswerBox>("box with much too long a text", 30, 20).setContent("123456789.123456789");
    gallery.hang<Panel>("panel", 100.4, 60.3).setFramed(true);
    gallery.hang<Panel>("panel without a frame", 100, 60).setBackColour(kRed);
    gallery.hang<Frame>("frame", 100, 60).setTitle("Udtryk");
}

/// A graph of its own kind of strokes, with everything that it is painted with.
GraphBox& hangGraph(Gallery& gallery, const std::string& title) {
    auto& graph = gallery.hang<GraphBox>(title, 80.6, 60.2);
    graph.Scale(-2, 10, 8, -2);
    graph.setFramed(true);
    return graph;
}

void hangGraphs(Gallery& gallery) {
    hangGraph(gallery, "graph with the focus").setFocusPolicy(Qt::StrongFocus);
    GraphBox& points = hangGraph(gallery, "graph with points");
    for (const int width : {1, 2, 3, 5}) {
        points.DrawWidth(width);
        points.PSet(width, 3, kRed);
        // On the borders and beyond them.
        points.PSet(8, width);
        points.PSet(width, -2);
        points.PSet(-2.1, 10.05);
    }
    GraphBox& lines = hangGraph(gallery, "graph with lines");
    for (const int width : {1, 2, 3}) {
        lines.DrawWidth(width);
        lines.Line(-5, width, 20, width, kBlue);
        lines.Line(width, 2, width, -5, kGreen);
        lines.Line(-2, 10, 8, 10);
        lines.Line(8, 10, 8, -2);
        lines.Line(-20, -20, 20, 20 + width, kRed);
    }
    GraphBox& dotted = hangGraph(gallery, "graph with dotted lines");
    dotted.DrawStyle(LineStyle::Dotted);
    dotted.Line(-2, 4, 8, 4, kBlue);
    dotted.Line(3, 10, 3, -2);
    dotted.Line(0, 0, 5, 7, kRed);
    GraphBox& curve = hangGraph(gallery, "graph with curves");
    for (const QColor& colour : {kRed, kBlue}) {
        for (int i = 0; i < 4; ++i) {
            curve.Line(i, i * i, i + 1, (i + 1) * (i + 1), colour);
        }
    }
    curve.Line(1, 1, 2, 3, kBlue);
    GraphBox& ticks = hangGraph(gallery, "graph with ticks");
    ticks.Line(0, 10, 0, -2);
    ticks.Line(-2, 0, 8, 0);
    for (const double off : {-0.4, -0.2, 0.2, 0.4}) {
        {
            const Figure tick(ticks, Meaning::TickOfX);
            ticks.PSet(4, off);
        }
        const Figure tick(ticks, Meaning::TickOfY);
        ticks.PSet(off, 4);
    }
    GraphBox& frame = hangGraph(gallery, "bare frame");
    frame.setBare(true);
    frame.setFramed(false);
    frame.Line(0, 0, 1, 0);
    GraphBox& many = hangGraph(gallery, "graph with many strokes");
    for (std::size_t i = 0; i <= kFewStrokes; ++i) {
        many.PSet(1, 1);
    }
}

/// A graph without a frame, of as many units as its scale has.
GraphBox& hangSheet(Gallery& gallery, const std::string& title) {
    auto& graph = gallery.hang<GraphBox>(title, 80, 60);
    graph.Scale(0, 0, 80, 60);
    return graph;
}

/// What stands just inside and just outside of where it is painted in another way.
void hangBorderCases(Gallery& gallery) {
    GraphBox& points = hangSheet(gallery, "graph with points by its borders");
    for (const int width : {1, 2}) {
        points.DrawWidth(width);
        for (const double beyond : {-1.0, -0.5, 0.0, 0.25, 0.5, 0.75, 1.0, 2.0, 2.5}) {
            points.PSet(80 + beyond, 30);
            points.PSet(40, 60 + beyond, kRed);
            points.PSet(-beyond, 20);
            points.PSet(30, -beyond, kRed);
        }
    }
    GraphBox& ticks = gallery.hang<GraphBox>("graph with ticks on its axes and by them", 80, 60);
    ticks.Scale(-40, 30, 40, -30);
    for (int quarters = -8; quarters <= 8; ++quarters) {
        {
            const Figure tick(ticks, Meaning::TickOfX);
            ticks.PSet(10, quarters / 4.0);
        }
        const Figure tick(ticks, Meaning::TickOfY);
        ticks.PSet(quarters / 4.0, 10);
    }
    GraphBox& behind = hangSheet(gallery, "graph with points and lines over curves");
    behind.Line(0, 0, 40, 30, kRed);
    behind.PSet(20, 15);
    behind.Line(0, 30, 40, 0, kRed);
    behind.Line(0, 15, 40, 15, kBlue);
    behind.Line(40, 15, 60, 45, kRed);
    behind.DrawWidth(2);
    behind.Line(60, 45, 70, 50, kRed);
    behind.DrawStyle(LineStyle::Dotted);
    behind.Line(70, 50, 75, 10, kRed);
    hangLine(gallery, "line that falls by less than a pixel", {10, 20, 50, 21.2}, 1);
    hangLine(gallery, "line that is upright but for less than a pixel", {10, 20, 11.2, 60}, 1);
    hangLine(gallery, "line that falls by half its thickness", {10, 20, 50, 22}, 1.5);
    hangLine(gallery, "line that is upright but for half its thickness", {10, 20, 12, 60}, 1.5);
    hangLine(gallery, "line that falls by two pixels", {10, 20, 50, 22}, 1);
    hangLine(gallery, "line that is upright but for two pixels", {10, 20, 12, 60}, 1);
    gallery.hang<Label>("label with a text too long for it", 30, 30).setCaption("123 456 789 = P");
    Label& spaced = gallery.hang<Label>("running text with blanks, in the middle", 70, 60);
    spaced.setWordWrap(true);
    spaced.setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    spaced.setCaption("Find  den   mængde,  \n\nhvor de to   priser er ens.");
}

TEST(RecordedControls, ArePaintedAsIsWrittenDownAtEveryRatio) {
    Gallery gallery;
    hangLabels(gallery);
    hangLines(gallery);
    hangFields(gallery);
    hangGraphs(gallery);
    hangBorderCases(gallery);
    for (const double zoom : {1.0, 1.25, 2.0}) {
        gallery.paintAll(zoom);
    }
    test::expectAsWrittenDown(gallery.lines(), "controls_at_" + NumberText(QWidget().devicePixelRatioF()));
}

}  // namespace
}  // namespace tavrune
