#include "app/application.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

#include <QAccessible>
#include <QIcon>
#include <QLibraryInfo>
#include <QPalette>
#include <QPixmapCache>
#include <QTimer>
#include <QWindow>

#include "controls/accessible_controls.h"
#include "controls/design_style.h"
#include "controls/voice.h"
#include "graph/accessible_graph.h"
#include "numeric/text.h"

namespace tavrune {
namespace {

/// In kilobytes. The style caches pictures of buttons under keys that are never used again once their page is
/// gone: a larger cache would only fill up with these.
constexpr int kPictureCache = 1024;

/// Longer than the desktop takes to place a window.
constexpr std::chrono::milliseconds kIconDelay(100);

/// Returns whether a window is shown that nobody can see yet.
bool isWindowAwaited() {
    const QWindowList windows = QGuiApplication::topLevelWindows();
    return std::any_of(windows.begin(), windows.end(),
                       [](const QWindow* window) { return window->isVisible() && !window->isExposed(); });
}

/// Light colours, on a dark desktop too, since graphs and help panels are white, and right and wrong have
/// given colours.
QPalette lightPalette() {
    QPalette palette(QColor(239, 239, 239));
    palette.setColor(QPalette::Highlight, QColor(48, 140, 198));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

}  // namespace

Application::Application(int& argc, char** argv)
    : QApplication(argc, argv), danish_(QLibraryInfo::path(QLibraryInfo::TranslationsPath)) {
    setApplicationName("Tavrune");
    setStyle(new DesignStyle);
    setPalette(lightPalette());
    QPixmapCache::setCacheLimit(kPictureCache);
    QTimer::singleShot(0, this, [this] {
        // Loading the icon, and the desktop's drawing of it, would delay the first picture of the window.
        if (isWindowAwaited()) {
            QTimer::singleShot(kIconDelay, this, &Application::showIcon);
        } else {
            showIcon();
        }
    });
    setDesktopFileName("org.tavrune.Tavrune");
    QAccessible::installFactory(accessibleControl);
    QAccessible::installFactory(accessibleGraph);
    Voice::instance().takeOver();
    installTranslator(&danish_);
    useDecimalMarkOf(QLocale());
}

void Application::showIcon() {
    QIcon icon;
    for (const char* size : {"16", "32", "48", "64"}) {
        icon.addFile(QString(":/icons/%1.png").arg(size));
    }
    setWindowIcon(icon);
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
    // For whoever runs the program where nobody sees the message box.
    std::fprintf(stderr, "Tavrune: %s\n", messageFor(kind));
    message_ = new QMessageBox(QMessageBox::Critical, "Tavrune", QString::fromUtf8(messageFor(kind)),
                               QMessageBox::Ok);
    message_->setAttribute(Qt::WA_DeleteOnClose);
    message_->setWindowModality(Qt::ApplicationModal);
    connect(message_, &QMessageBox::finished, this, [] { exit(1); });
    message_->show();
}

}  // namespace tavrune
