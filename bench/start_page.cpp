// Tavrune as it starts, up to its first painted page.

#include "app/application.h"
#include "app/program.h"
#include "first_paint.h"
#include "numeric/draws.h"

int main(int argc, char** argv) {
    const tavrune::Application application(argc, argv);
    const tavrune::bench::FirstPaint firstPaint;
    tavrune::ClockDraws draws;
    return tavrune::Program(draws).run();
}
