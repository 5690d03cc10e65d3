// Draws a contact sheet of every page, fitted to windows as large as common screens: the page as it opens on
// the left, on the right as it stands with its help open and every step shown. For people to look at.
//
//     tavrune_contact_sheets FOLDER
//
// Pictures of windows stand above each other, each as wide as the sheet has room for. QT_SCALE_FACTOR is the
// pixel ratio of the screens.

#include <algorithm>
#include <cstdio>

#include <QPainter>

#include "app/application.h"
#include "conformance/facts.h"
#include "shell/frm_about.h"
#include "shell/opstart.h"
#include "support/form_driver.h"
#include "support/looks.h"

namespace tavrune::test {
namespace {

constexpr int kWidest = 1400;
constexpr int kGap = 8;

/// What a window shows, at most so wide that two fit a sheet.
QPixmap pictureOf(QWidget& window) {
    QPixmap seen = window.grab();
    seen.setDevicePixelRatio(1);
    return seen.width() <= kWidest ? seen : seen.scaledToWidth(kWidest, Qt::SmoothTransformation);
}

void openHelp(const FormDriver& form, const FormFacts& facts) {
    form.click("help");
    static_cast<void>(form.answerMessage());
    form.showAllSteps(facts.except.failingStep);
    static_cast<void>(readFailure());
}

/// The start page is made for its screen.
QPixmap pictureOfStart(QSize window) {
    Opstart page(window);
    page.resize(window);
    page.setZoom(Zoom::fitted());
    page.show();
    settle();
    return pictureOf(page);
}

QList<QPixmap> picturesOf(PageName name, QSize window) {
    if (name == PageName::Opstart) {
        return {pictureOfStart(window)};
    }
    SeededDraws draws(20);
    FormDriver form = FormDriver::unshown(name, draws);
    form.page().resize(window);
    form.page().setZoom(Zoom::fitted());
    form.show();
    QList<QPixmap> pictures{pictureOf(form.page())};
    if (const FormFacts* const facts = factsOf(name)) {
        openHelp(form, *facts);
        settle();
        pictures << pictureOf(form.page());
    }
    return pictures;
}

QPixmap sheetOf(const QList<QList<QPixmap>>& rows) {
    int height = kGap;
    for (const QList<QPixmap>& row : rows) {
        height += row.front().height() + kGap;
    }
    QPixmap sheet(2 * kWidest + 3 * kGap, height);
    sheet.fill(Qt::darkGray);
    QPainter painter(&sheet);
    int top = kGap;
    for (const QList<QPixmap>& row : rows) {
        int left = kGap;
        for (const QPixmap& picture : row) {
            painter.drawPixmap(left, top, picture);
            left += kWidest + kGap;
        }
        top += row.front().height() + kGap;
    }
    return sheet;
}

bool save(const QPixmap& sheet, const QString& folder, const QString& name) {
    const QString path = QString("%1/%2-%3.png").arg(folder, name).arg(qApp->devicePixelRatio());
    std::printf("%s\n", qUtf8Printable(path));
    return sheet.save(path);
}

bool drawAll(const QString& folder) {
    bool isSaved = true;
    for (const PageName name : allPages()) {
        QList<QList<QPixmap>> rows;
        for (const QSize screen : commonScreens()) {
            rows << picturesOf(name, screen);
        }
        isSaved = save(sheetOf(rows), folder, QString::fromStdString(asciiNameOf(name))) && isSaved;
    }
    QList<QList<QPixmap>> rows;
    for (const double factor : {1.0, 1.29, 1.72, 2.4, 3.1, 4.0}) {
        FrmAbout about;
        about.setFactor(factor);
        about.show();
        rows << QList{pictureOf(about)};
    }
    return save(sheetOf(rows), folder, "about") && isSaved;
}

}  // namespace
}  // namespace tavrune::test

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const tavrune::Application application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "%s FOLDER\n", argv[0]);
        return EXIT_FAILURE;
    }
    return tavrune::test::drawAll(argv[1]) ? EXIT_SUCCESS : EXIT_FAILURE;
}
