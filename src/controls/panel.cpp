#include "controls/panel.h"

#include <QMouseEvent>
#include <QPalette>

namespace tavrune {

Panel::Panel(QWidget* parent) : QWidget(parent), Control(this) {
    setAutoFillBackground(true);
    setPaletteColour(QPalette::WindowText, kBlack);
    setBackColour(kWhite);
}

void Panel::setFramed(bool framed) {
    framed_ = framed;
    update();
}

void Panel::setBackColour(const QColor& colour) { setPaletteColour(QPalette::Window, colour); }

void Panel::paintEvent(QPaintEvent* /*event*/) {
    if (framed_) {
        drawOutline(*this, zoom(), QColor(128, 128, 128));
    }
}

void Panel::mousePressEvent(QMouseEvent* event) { event->accept(); }

}  // namespace tavrune
