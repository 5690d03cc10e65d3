#pragma once

#include "shell/page.h"

namespace tavrune {

/// The first how-to-use page: what the program is and what its buttons do.
class Form1 : public Page {
    Q_OBJECT

public:
    Form1();
};

}  // namespace tavrune
