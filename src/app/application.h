#pragma once

#include <QApplication>
#include <QLocale>
#include <QMessageBox>
#include <QPointer>
#include <QTranslator>

#include "numeric/arithmetic.h"

namespace tavrune {

/// The application object: the looks that all pages stand on, the decimal mark of the user's locale, and the
/// one place where a failure of the arithmetic ends up.
class Application : public QApplication {
    Q_OBJECT

public:
    Application(int& argc, char** argv);

    /// Passes an event on. An ArithmeticFailure that comes back is told to the user; after the message the
    /// program ends with exit status 1.
    bool notify(QObject* receiver, QEvent* event) override;

    /// Numbers are shown with the mark of this locale from now on.
    static void useDecimalMarkOf(const QLocale& locale);

private:
    void endAfter(ArithmeticFailure::Kind kind);
    void speakDanish();

    QTranslator danish_;

    /// What tells of the failure, as long as it stands: a second failure adds nothing to it.
    QPointer<QMessageBox> message_;
};

}  // namespace tavrune
