#pragma once

#include "shell/page.h"

namespace tavrune {

/// The second how-to-use page: the twelve topics.
class Form2 : public Page {
    Q_OBJECT

public:
    Form2();
};

}  // namespace tavrune
