#pragma once

#include "numeric/arithmetic.h"

namespace tavrune {

/// The Danish sentence that tells the user what happened, in UTF-8.
[[nodiscard]] const char* messageFor(ArithmeticFailure::Kind kind);

/// Who tells the user of a failure of the arithmetic and ends the program. A failure does not travel there as
/// an exception, since Qt's widgets, through which that would pass, leave half-done work behind then.
class FailureHandler {
public:
    FailureHandler() = default;
    FailureHandler(const FailureHandler&) = delete;
    FailureHandler& operator=(const FailureHandler&) = delete;
    virtual ~FailureHandler() = default;

    virtual void endAfter(ArithmeticFailure::Kind kind) = 0;
};

}  // namespace tavrune
