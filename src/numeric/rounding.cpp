#include "numeric/rounding.h"

#include <cmath>

#include "numeric/arithmetic.h"

namespace tavrune {
namespace {

double roundSigned(double x, double factor, double addendBelowZero) {
    const double addend = std::signbit(x) ? addendBelowZero : 0.5;
    return Int(x * factor + addend) / factor;
}

double roundUp(double x, double half, double factor) { return Int((x + half) * factor) / factor; }

}  // namespace

double RoundSigned2(double x) { return roundSigned(x, 100, 0.49999); }
double RoundSigned2Fine(double x) { return roundSigned(x, 100, 0.499999); }
double RoundSigned3(double x) { return roundSigned(x, 1000, 0.49999999); }
double RoundUp1(double x) { return roundUp(x, 0.05, 10); }
double RoundUp2(double x) { return roundUp(x, 0.005, 100); }
double RoundUp3(double x) { return roundUp(x, 0.0005, 1000); }

}  // namespace tavrune
