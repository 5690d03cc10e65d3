#pragma once

#include <functional>
#include <string_view>

#include <QLabel>

#include "controls/control.h"

namespace tavrune {

/// A text on a page. It is plain text, begins at the top left, and is transparent until it has a back colour.
class Label : public QLabel, public Control {
    Q_OBJECT

public:
    explicit Label(QWidget* parent = nullptr);

    /// Sets the text, UTF-8. With auto size on, the label becomes as wide and high as its text.
    void setCaption(std::string_view caption);
    [[nodiscard]] std::string caption() const { return text().toStdString(); }

    /// As `setCaption`, for designer files.
    void setText(const QString& text);

    /// Turns auto size on or off. Turned off, the label keeps the size that it has.
    void setAutoSize(bool autoSize);
    [[nodiscard]] bool isAutoSize() const { return autoSize_; }

    /// Makes the label opaque. Without a text it is a cover for what lies behind it.
    void setBackColour(const QColor& colour);
    [[nodiscard]] QColor backColour() const { return palette().color(QPalette::Window); }
    void setTextColour(const QColor& colour);
    [[nodiscard]] QColor textColour() const { return palette().color(QPalette::WindowText); }

    /// Screen readers skip a decorative label: it is a part of a picture, or of a text that they read at
    /// another label.
    void setDecorative(bool decorative) { decorative_ = decorative; }
    [[nodiscard]] bool isDecorative() const { return decorative_; }

    /// Draws a white edge, a unit wide, round the letters, so that they can be read over lines of a graph.
    void setHaloed(bool haloed);

    /// Screen readers announce a verdict when it appears.
    void setVerdict(bool verdict) { verdict_ = verdict; }
    [[nodiscard]] bool isVerdict() const { return verdict_; }

    /// Returns the lines of the text: where the design has a line end, every zoom has.
    [[nodiscard]] QStringList designLines() const;

    /// Returns the width of the text in units.
    [[nodiscard]] double textWidth() const;

protected:
    void fontHasChanged() override { fit(); }
    /// Where a line of so many stands, in pixels from the top: at every zoom where it is in the design, so
    /// that texts beside each other, or over each other's gaps, stay on one line.
    [[nodiscard]] double baseline(int line, int lines) const;
    /// Every painter of a label begins with the font that is quickest to paint with.
    void initPainter(QPainter* painter) const override;
    void paintEvent(QPaintEvent* event) override;

private:
    void fit();
    void paintHalo(QPainter& painter, const std::function<void(const QPointF&)>& paintText) const;
    void paintZoomed();

    bool autoSize_ = false;
    bool decorative_ = false;
    bool haloed_ = false;
    bool verdict_ = false;
};

}  // namespace tavrune
