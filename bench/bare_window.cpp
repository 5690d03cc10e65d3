// What Tavrune's start is measured against: a window with a menu bar and one label, and nothing of Tavrune.

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>

#include "first_paint.h"

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const tavrune::bench::FirstPaint firstPaint;
    QMainWindow window;
    window.menuBar()->addMenu("&Menu")->addAction("Close", &window, &QWidget::close);
    window.setCentralWidget(new QLabel("Label"));
    window.showMaximized();
    return QApplication::exec();
}
