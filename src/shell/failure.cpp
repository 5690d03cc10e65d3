#include "shell/failure.h"

namespace tavrune {

const char* messageFor(ArithmeticFailure::Kind kind) {
    switch (kind) {
        case ArithmeticFailure::Kind::DivisionByZero:
            return "Der blev divideret med nul. Tavrune kan ikke fortsætte og lukker nu.";
        case ArithmeticFailure::Kind::Overflow:
            return "Et tal blev for stort til at regne med. Tavrune kan ikke fortsætte og lukker nu.";
        case ArithmeticFailure::Kind::TypeMismatch:
            return "Der blev regnet med et felt, som ikke er et tal. Tavrune kan ikke fortsætte og lukker "
                   "nu.";
    }
    return "En udregning gik galt. Tavrune kan ikke fortsætte og lukker nu.";
}

}  // namespace tavrune
