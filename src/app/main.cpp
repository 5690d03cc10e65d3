#include <algorithm>

#include "app/application.h"
#include "app/program.h"
#include "numeric/draws.h"

int main(int argc, char** argv) {
    // Without arguments: Qt has some of its own, and would read files that they name.
    int named = std::min(argc, 1);
    const tavrune::Application application(named, argv);
    tavrune::ClockDraws draws;
    return tavrune::Program(draws).run();
}
