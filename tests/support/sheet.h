#pragma once

#include <string>
#include <vector>

#include <QLineF>
#include <QPointF>
#include <QRectF>

#include "controls/accessible_controls.h"
#include "controls/label.h"
#include "controls/line_control.h"
#include "controls/panel.h"
#include "controls/reading.h"
#include "controls/text_places.h"

namespace tavrune::test {

using Words = std::vector<std::string>;

inline bool isInSight(const QWidget& widget) { return !widget.isHidden() && !isCovered(widget); }

inline bool isPanel(const QWidget& widget) { return qobject_cast<const Panel*>(&widget) != nullptr; }

inline Words wordsOf(const std::vector<Passage>& passages) {
    Words words;
    for (const Passage& passage : passages) {
        words.push_back(passage.words.toStdString());
    }
    return words;
}

/// The least that a threshold is passed by. A power of two, so that places are exact.
inline constexpr double kBit = 0.125;

inline QRectF inkOf(const Label& label) { return extentOf(label).ink; }

/// Moves the letters of a label to where they stand round a point.
inline void centre(Label& label, const QPointF& middle) {
    const QPointF way = middle - inkOf(label).center();
    label.setPlace(label.place().translated(way));
}

/// Moves the letters of a label to where they begin, and stand round a height.
inline void begin(Label& label, double left, double middle) {
    centre(label, {inkOf(label).center().x(), middle});
    label.setLeft(label.place().left() + left - inkOf(label).left());
}

/// A panel to which labels and lines are added by their places.
class Sheet {
public:
    explicit Sheet(double width = 600) { panel_.setPlace({0, 0, width, 400}); }

    Label& add(const std::string& text, double left = 0, double top = 0, double size = 11) {
        auto* const label = new Label(&panel_);
        label->setPlace({left, top, 0, 0});
        label->setTextSize(size);
        label->setCaption(text);
        label->setAutoSize(true);
        return *label;
    }

    /// By where its letters begin, and the height that they stand round.
    Label& addAlong(const std::string& text, double left, double middle, double size = 11) {
        Label& label = add(text, 0, 0, size);
        begin(label, left, middle);
        return label;
    }

    Label& addWrapped(const std::string& text, const QRectF& place) {
        Label& label = add("", 0, 0);
        label.setAutoSize(false);
        label.setWordWrap(true);
        label.setPlace(place);
        label.setCaption(text);
        return label;
    }

    Label& addCentred(const std::string& text, const QRectF& place) {
        Label& label = add(text, 0, 0);
        label.setAutoSize(false);
        label.setPlace(place);
        label.setAlignment(Qt::AlignHCenter | Qt::AlignTop);
        return label;
    }

    LineControl& addLine(const QLineF& ends) {
        auto* const line = new LineControl(&panel_);
        line->setEnds(ends);
        return *line;
    }

    template <class Widget>
    Widget& addAt(const QRectF& place) {
        auto* const widget = new Widget(&panel_);
        widget->setPlace(place);
        return *widget;
    }

    [[nodiscard]] std::vector<Passage> read() const { return passages(panel_, isInSight); }
    [[nodiscard]] Words words() const { return wordsOf(read()); }
    [[nodiscard]] Panel& panel() { return panel_; }

private:
    Panel panel_;
};

}  // namespace tavrune::test
