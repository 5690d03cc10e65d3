#pragma once

#include <QApplication>
#include <QLocale>
#include <QMessageBox>
#include <QPointer>

#include "app/qt_danish.h"
#include "shell/failure.h"

namespace tavrune {

/// The application object. It sets the style and colours of all pages and the decimal mark of the user's
/// locale, and ends the program after a failure of the arithmetic.
class Application : public QApplication, public FailureHandler {
    Q_OBJECT

public:
    Application(int& argc, char** argv);

    /// Shows a message about the failure; when the user closes it, the program exits with status 1. Does
    /// nothing while such a message is shown.
    void endAfter(ArithmeticFailure::Kind kind) override;

    /// Passes an event on. An ArithmeticFailure that is thrown meanwhile ends the program, too.
    bool notify(QObject* receiver, QEvent* event) override;

    /// Sets the decimal mark of all numbers that are shown from now on.
    static void useDecimalMarkOf(const QLocale& locale);

private:
    static void showIcon();

    QtDanish danish_;

    /// The message about a failure; null if none is shown.
    QPointer<QMessageBox> message_;
};

}  // namespace tavrune
