#pragma once

#include <QApplication>
#include <QLocale>
#include <QMessageBox>
#include <QPointer>
#include <QTranslator>

#include "shell/failure.h"

namespace tavrune {

/// The application object: the looks that all pages stand on, the decimal mark of the user's locale, and the
/// one place where a failure of the arithmetic ends up.
class Application : public QApplication, public FailureHandler {
    Q_OBJECT

public:
    Application(int& argc, char** argv);

    /// Tells the user of the failure; after the message the program ends with exit status 1. A failure beside
    /// a message that still stands adds nothing to it.
    void endAfter(ArithmeticFailure::Kind kind) override;

    /// Passes an event on. An ArithmeticFailure that comes back ends the program too.
    bool notify(QObject* receiver, QEvent* event) override;

    /// Numbers are shown with the mark of this locale from now on.
    static void useDecimalMarkOf(const QLocale& locale);

private:
    static void showIcon();
    void speakDanish();

    QTranslator danish_;

    /// What tells of a failure, as long as it stands.
    QPointer<QMessageBox> message_;
};

}  // namespace tavrune
