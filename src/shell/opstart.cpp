#include "shell/opstart.h"

#include <algorithm>

#include <QMenuBar>

#include "controls/label.h"
#include "shell/ui_opstart.h"

namespace tavrune {
namespace {

const QSize kDesignScreen(640, 480);
/// Of the page that stands on it, below its menu.
const QSizeF kDesignPage(640, 440);
const QColor kBackColour(64, 64, 64);

}  // namespace

ScreenStretch stretchFor(QSize screen) {
    const double x = static_cast<double>(screen.width()) / kDesignScreen.width();
    const double y = static_cast<double>(screen.height()) / kDesignScreen.height();
    const double text = x * (1.2 - 0.2 * x);
    return {x, y, text > 0 ? text : 1};
}

Opstart::Opstart(QSize screen) : Page(PageName::Opstart) {
    Ui::Opstart ui;
    setUp(ui);

    QMenu* const about = menuBar()->addMenu("&Om Tavrune");
    about->setObjectName("Om");
    connect(about->addAction("Om Tavrune"), &QAction::triggered, this, &Page::aboutChosen);

    QPalette dark = design()->palette();
    dark.setColor(QPalette::Window, kBackColour);
    design()->setPalette(dark);

    const ScreenStretch stretch = stretchFor(screen);
    QRectF labels;
    for (Label* label : design()->findChildren<Label*>(Qt::FindDirectChildrenOnly)) {
        // Dark text cannot be read on the dark page.
        label->setBackColour(palette().color(QPalette::Button));
        const QRectF place = label->place();
        label->setPlace({place.x() * stretch.x, place.y() * stretch.y, place.width() * stretch.x,
                         place.height() * stretch.y});
        label->setTextSize(label->textSize() * stretch.text);
        labels |= label->place();
    }
    // Smaller than its design it could not be read.
    const double least = 1 / std::max(1.0, std::min({stretch.x, stretch.y, stretch.text}));
    setExtent({.whole = {kDesignPage.width() * stretch.x, kDesignPage.height() * stretch.y},
               .needed = {labels.right(), labels.bottom()},
               .leastFit = least});
}

}  // namespace tavrune
