#include "app/application.h"
#include "app/program.h"
#include "numeric/draws.h"

int main(int argc, char** argv) {
    const tavrune::Application application(argc, argv);
    tavrune::ClockDraws draws;
    tavrune::Program program(draws);
    QObject::connect(&program, &tavrune::Program::closeChosen, &application,
                     [] { QCoreApplication::exit(0); });
    program.open(tavrune::PageName::Opstart);
    return QCoreApplication::exec();
}
