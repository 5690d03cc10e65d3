#include <algorithm>

#include "app/application.h"
#include "app/program.h"
#include "numeric/draws.h"

int main(int argc, char** argv) {
    // No arguments: the toolkit would take its own, names of files to read among them.
    int named = std::min(argc, 1);
    const tavrune::Application application(named, argv);
    tavrune::ClockDraws draws;
    return tavrune::Program(draws).run();
}
