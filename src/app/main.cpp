#include "app/application.h"
#include "app/program.h"
#include "numeric/draws.h"

int main(int argc, char** argv) {
    const tavrune::Application application(argc, argv);
    tavrune::ClockDraws draws;
    return tavrune::Program(draws).run();
}
