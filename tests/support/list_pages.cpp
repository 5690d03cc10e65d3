// Prints the name of every page, a line each, for scripts: those with no exercise first, then, behind "form
// ", the forms in the order of the topic menu.

#include <cstdio>

#include "shell/page_table.h"

int main() {
    std::puts("page Opstart\npage Form1\npage Form2");
#define TAVRUNE_PRINT(form, text, ...) std::puts("form " text);
    TAVRUNE_EXERCISES(TAVRUNE_PRINT)
#undef TAVRUNE_PRINT
}
