#include "shell/page.h"

#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>

#include "controls/text.h"

namespace tavrune {

Page::Page(PageName name)
    : name_(name),
      design_(new QWidget(this)),
      topicMenu_(*menuBar(), name,
                 {.open = [this](PageName target) { emit chosen(target); },
                  .close = [this] { emit closeChosen(); }}) {
    setObjectName(fromUtf8(textOf(name)));
    setContextMenuPolicy(Qt::NoContextMenu);
    design_->setFont(designFont());
    setCentralWidget(design_);
    setMinimumSize(qRound(kDesignWidth), qRound(kDesignHeight) + menuBar()->sizeHint().height());
}

void Page::designIsReady() { setWindowTitle(design_->windowTitle()); }

void Page::tell(const QString& message) {
    auto* const box = new QMessageBox(QMessageBox::NoIcon, "Tavrune", message, QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->button(QMessageBox::Ok)->setText("OK");
    box->open();
}

}  // namespace tavrune
