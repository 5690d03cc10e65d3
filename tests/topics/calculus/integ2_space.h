#pragma once

#include <cstdlib>
#include <ostream>

#include "topics/calculus/integ2_script.h"

/// Every set of numbers that one try at a function with a kink can draw, and what is to come of it.
namespace tavrune::test::integ2 {

/// What becomes of a try.
enum class Fate { Taken, Again, AgainAfterFive, LeftAfterFour };

/// A try by whole-number arithmetic: sizes in halves where the family halves them.
struct Point {
    Family family;
    Numbers n;

    /// Twice the slopes.
    [[nodiscard]] int slope1() const {
        return family == Family::FallThenRise ? -2 * n.a1 : (family == Family::RiseThenFall ? n.a1 : -n.a1);
    }
    [[nodiscard]] int slope2() const { return family == Family::FallThenRise ? 2 * n.a2 : -n.a2; }
    [[nodiscard]] int v() const { return n.k - n.back; }
    [[nodiscard]] int w() const { return n.k + n.forth; }

    [[nodiscard]] Fate fate() const {
        if (family == Family::FallThenRise && n.b1 <= n.b2) {
            return Fate::AgainAfterFive;
        }
        if (family == Family::RiseThenFall && n.b1 >= n.b2) {
            return Fate::LeftAfterFour;
        }
        const int drawnSlope2 = family == Family::RiseThenFall ? -slope2() : slope2();
        const bool isHigh = std::abs(drawnSlope2 * n.k + 2 * n.b2) > 30;
        const bool isOneLine = slope1() == slope2() && n.b1 == n.b2;
        return v() < 0 || w() > 9 || isHigh || isOneLine ? Fate::Again : Fate::Taken;
    }

    /// Four times an integral.
    [[nodiscard]] static int fourfold(int slope, int b, int from, int to) {
        return slope * (to * to - from * from) + 4 * b * (to - from);
    }
    [[nodiscard]] int first() const { return fourfold(slope1(), n.b1, v(), n.k); }
    [[nodiscard]] int second() const { return fourfold(slope2(), n.b2, n.k, w()); }

    /// As many draws as the try takes.
    [[nodiscard]] Script draws() const {
        switch (fate()) {
            case Fate::LeftAfterFour:
                return drawOf(family) + pieces(family, n);
            case Fate::AgainAfterFive:
                return drawOf(family) + piecesAndKink(family, n);
            case Fate::Taken:
            case Fate::Again:
                break;
        }
        return drawOf(family) + numbers(family, n);
    }
};

inline void PrintTo(const Point& p, std::ostream* out) {
    *out << "family " << static_cast<int>(p.family) << ": " << p.n.a1 << " " << p.n.b1 << " " << p.n.a2 << " "
         << p.n.b2 << " k " << p.n.k << " v " << p.v() << " w " << p.w();
}

/// Calls `visit` with every try of the family.
template <class Visit>
void forEachTry(Family family, Visit visit) {
    const Ranges of = rangesOf(family);
    for (int i = 0; i < of.a1 * of.b1 * of.a2 * of.b2 * 5 * 3 * 3; ++i) {
        int rest = i;
        const auto next = [&rest](int values) {
            const int value = rest % values;
            rest /= values;
            return value;
        };
        Numbers n;
        n.forth = 1 + next(3);
        n.back = 1 + next(3);
        n.k = 2 + next(5);
        n.b2 = 1 + next(of.b2);
        n.a2 = 1 + next(of.a2);
        n.b1 = 1 + next(of.b1);
        n.a1 = 1 + next(of.a1);
        visit(Point{family, n});
    }
}

}  // namespace tavrune::test::integ2
