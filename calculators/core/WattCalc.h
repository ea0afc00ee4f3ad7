#pragma once
// Power: voltage, resistance, current and power, any missing one from two
// others. Each routine tries its alternatives in a fixed order; a value
// counts as given when it is above 0. With no alternative given the result
// is 0. A failed operation (division by zero) gives a value that is not
// finite, which the form does not write.
#include <cmath>

#include "calculators/core/CheckedMath.h"
#include "shell/core/Module1.h"
#include "shell/core/UnitPrefix.h"

namespace watt {

// U from R and I, else from R and P, else from I and P.
inline double voltage(double r, double i, double p) {
  if (r > 0 && i > 0) return r * i;
  if (r > 0 && p > 0) return std::sqrt(r * p);
  if (i > 0 && p > 0) return p / calcmath::divisor(i);
  return 0.0;
}
// I from P (over U), else from R. U is there: it is looked for first.
inline double current(double u, double r, double p) {
  if (p > 0) return p / calcmath::divisor(u);
  if (r > 0) return u / calcmath::divisor(r);
  return 0.0;
}
// P from I, else from R. Never from I and R alone: then U is the unknown.
inline double power(double u, double r, double i) {
  if (i > 0) return u * i;
  if (r > 0) return u * u / calcmath::divisor(r);
  return 0.0;
}
// R from I, else from P.
inline double resistance(double u, double i, double p) {
  if (i > 0) return u / calcmath::divisor(i);
  if (p > 0) return u * u / calcmath::divisor(p);
  return 0.0;
}

// Field order Text1..Text4 is U, R, I, P; the unknown is looked for in the
// order U, I, P, R.
inline constexpr int kSearchOrder[4] = {0, 2, 3, 1};

inline const units::UnitList& powerUnits() {
  static const units::UnitList l{{QStringLiteral("µW"), -6}, {"mW", -3}, {"W", 0}, {"KW", 3}};
  return l;
}

// Exactly 1 V stays V, exactly 1000 V becomes KV; below 1 mV no unit fits.
inline units::Placement voltagePlacement() {
  using units::Cmp;
  return {{{Cmp::GreaterEq, 1000.0, 2}, {Cmp::GreaterEq, 1.0, 1}, {Cmp::GreaterEq, Module1::TenPow(-3), 0}}, -1};
}
inline units::Placement resistancePlacement() {
  return units::resistanceRule();
}
// Below 1 µA no unit fits.
inline units::Placement currentPlacement() {
  using units::Cmp;
  return {{{Cmp::GreaterEq, 1.0, 2}, {Cmp::GreaterEq, Module1::TenPow(-3), 1}, {Cmp::GreaterEq, Module1::TenPow(-6), 0}},
          -1};
}
// Below 1 µW no unit fits.
inline units::Placement powerPlacement() {
  using units::Cmp;
  return {{{Cmp::GreaterEq, 1000.0, 3},
           {Cmp::GreaterEq, 1.0, 2},
           {Cmp::GreaterEq, Module1::TenPow(-3), 1},
           {Cmp::GreaterEq, Module1::TenPow(-6), 0}},
          -1};
}

}  // namespace watt
