#pragma once

#include <QAccessibleInterface>

#include "controls/answer_box.h"

namespace tavrune {

/// What screen readers are told of a field: its text, and that it is out of sight while something lies in
/// front.
[[nodiscard]] QAccessibleInterface* accessibleField(AnswerBox* box);

}  // namespace tavrune
