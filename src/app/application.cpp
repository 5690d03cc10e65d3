#include "app/application.h"

#include <cstdio>

#include <QAccessible>
#include <QIcon>
#include <QLibraryInfo>
#include <QPalette>
#include <QPixmapCache>
#include <QTimer>

#include "controls/accessible_controls.h"
#include "controls/design_style.h"
#include "graph/accessible_graph.h"
#include "numeric/text.h"

namespace tavrune {
namespace {

/// In kilobytes. The style keeps the pictures of buttons under keys that die with their page: more room would
/// only fill up with what nobody asks for any more.
constexpr int kPictureCache = 1024;

/// The colours that the pages are drawn for, on a dark desktop too: graphs and help panels are white, and
/// what right and wrong look like is told.
QPalette lightPalette() {
    QPalette palette(QColor(239, 239, 239));
    palette.setColor(QPalette::Highlight, QColor(48, 140, 198));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

}  // namespace

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
    setApplicationName("Tavrune");
    setStyle(new DesignStyle);
    setPalette(lightPalette());
    QPixmapCache::setCacheLimit(kPictureCache);
    // While the desktop is busy placing the first window.
    QTimer::singleShot(0, this, &Application::showIcon);
    setDesktopFileName("org.tavrune.Tavrune");
    QAccessible::installFactory(accessibleControl);
    QAccessible::installFactory(accessibleGraph);
    speakDanish();
    useDecimalMarkOf(QLocale());
}

void Application::showIcon() {
    QIcon icon;
    for (const char* size : {"16", "32", "48", "64"}) {
        icon.addFile(QString(":/icons/%1.png").arg(size));
    }
    setWindowIcon(icon);
}

void Application::speakDanish() {
    // Qt's own words: the buttons of message boxes, the context menus of boxes.
    if (danish_.load("qtbase_da", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        installTranslator(&danish_);
    }
}

void Application::useDecimalMarkOf(const QLocale& locale) {
    setDecimalMark(locale.decimalPoint().toStdString());
}

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const ArithmeticFailure& failure) {
        endAfter(failure.kind());
        return true;
    }
}

void Application::endAfter(ArithmeticFailure::Kind kind) {
    if (!message_.isNull()) {
        return;
    }
    // The exit status says that something was wrong, and this what, where nobody sees the box.
    std::fprintf(stderr, "Tavrune: %s\n", messageFor(kind));
    message_ = new QMessageBox(QMessageBox::Critical, "Tavrune", QString::fromUtf8(messageFor(kind)),
                               QMessageBox::Ok);
    message_->setAttribute(Qt::WA_DeleteOnClose);
    message_->setTextFormat(Qt::PlainText);
    message_->setWindowModality(Qt::ApplicationModal);
    connect(message_, &QMessageBox::finished, this, [] { exit(1); });
    message_->show();
}

}  // namespace tavrune
