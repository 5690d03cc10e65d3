#pragma once

#include "numeric/arithmetic.h"

namespace tavrune {

/// Returns the Danish sentence, in UTF-8, that tells the user what happened.
[[nodiscard]] const char* messageFor(ArithmeticFailure::Kind kind);

/// Tells the user of a failure of the arithmetic and ends the program. It is called instead of letting an
/// exception through: that would pass through Qt's widgets, which do not clean up behind it.
class FailureHandler {
public:
    FailureHandler() = default;
    FailureHandler(const FailureHandler&) = delete;
    FailureHandler& operator=(const FailureHandler&) = delete;
    virtual ~FailureHandler() = default;

    virtual void endAfter(ArithmeticFailure::Kind kind) = 0;
};

}  // namespace tavrune
