#pragma once

#include <string_view>

#include <QLabel>

#include "controls/control.h"

namespace tavrune {

/// A caption. Plain text always, from the top left, transparent until it is given a back colour.
class Label : public QLabel, public Control {
    Q_OBJECT

public:
    explicit Label(QWidget* parent = nullptr);

    /// UTF-8. With auto size on, the label becomes as wide and high as its text.
    void setCaption(std::string_view caption);
    [[nodiscard]] std::string caption() const { return text().toStdString(); }

    /// As `setCaption`; this is the one that designer files call.
    void setText(const QString& text);

    /// Turning it off keeps the size that the label has.
    void setAutoSize(bool autoSize);
    [[nodiscard]] bool isAutoSize() const { return autoSize_; }

    /// Makes the label opaque: a cover, if it has no text.
    void setBackColour(const QColor& colour);
    [[nodiscard]] QColor backColour() const { return palette().color(QPalette::Window); }
    void setTextColour(const QColor& colour);
    [[nodiscard]] QColor textColour() const { return palette().color(QPalette::WindowText); }

    /// For the eye alone: a piece of a picture, or of a text that another label says as a whole. Screen
    /// readers pass it by.
    void setDecorative(bool decorative) { decorative_ = decorative; }
    [[nodiscard]] bool isDecorative() const { return decorative_; }

    /// White round the text, a unit wide: on a graph it stays readable over lines and areas.
    void setHaloed(bool haloed);

    /// A verdict is announced when it appears.
    void setVerdict(bool verdict) { verdict_ = verdict; }
    [[nodiscard]] bool isVerdict() const { return verdict_; }

    /// Width of the caption in units, in the label's own font.
    [[nodiscard]] double textWidth() const;

protected:
    void fontHasChanged() override { fit(); }
    /// The lines of a text stand where the design has them at every zoom: what lies over a gap in it stays
    /// there.
    void paintEvent(QPaintEvent* event) override;

private:
    void fit();
    void paintHalo();
    void paintLines();

    bool autoSize_ = false;
    bool decorative_ = false;
    bool haloed_ = false;
    bool verdict_ = false;
};

}  // namespace tavrune
