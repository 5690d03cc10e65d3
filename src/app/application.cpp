#include "app/application.h"

#include <QStyleFactory>

#include "numeric/text.h"

namespace tavrune {

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
    setApplicationName("Tavrune");
    // The one style that takes the colours of state from the palette on every desktop.
    setStyle(QStyleFactory::create("Fusion"));
    useDecimalMarkOf(QLocale());
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
    message_ = new QMessageBox(QMessageBox::Critical, "Tavrune", QString::fromUtf8(messageFor(kind)),
                               QMessageBox::Ok);
    message_->setAttribute(Qt::WA_DeleteOnClose);
    message_->setTextFormat(Qt::PlainText);
    message_->setWindowModality(Qt::ApplicationModal);
    connect(message_, &QMessageBox::finished, this, [] { exit(1); });
    message_->show();
}

}  // namespace tavrune
