#pragma once
// RL network: the frequency at which the coil's reactance equals the
// resistance, f = R / (2π · L), or R or L for a wanted frequency.
#include "calculators/core/CheckedMath.h"
#include "shell/core/Module1.h"
#include "shell/core/UnitPrefix.h"

namespace rl {

// 2π as the program has always written it.
inline constexpr double kTwoPi = 6.28318530717958;

inline double frequency(double r, double l) { return r / calcmath::divisor(kTwoPi * l); }
inline double resistance(double f, double l) { return kTwoPi * f * l; }
inline double inductance(double f, double r) { return r / calcmath::divisor(kTwoPi * f); }

// This form lists its inductances from large to small.
inline const units::UnitList& inductanceUnits() {
  static const units::UnitList l{{"H", 0}, {"mH", -3}, {QStringLiteral("µH"), -6}, {"nH", -9}};
  return l;
}

// ComboF: MHz KHz Hz. Exactly 1 MHz is shown as 1000 KHz.
inline units::Placement frequencyPlacement() {
  return units::frequencyRule();
}
// ComboR: Ohm KOhm MOhm. Exactly 1000 Ohm stays in Ohm.
inline units::Placement resistancePlacement() {
  return units::resistanceRule();
}
// ComboL: H mH µH nH. Exactly 1 mH stays 1 mH, exactly 1 H stays 1 H.
inline units::Placement inductancePlacement() {
  using units::Cmp;
  return {{{Cmp::GreaterEq, 1.0, 0}, {Cmp::GreaterEq, Module1::TenPow(-3), 1}, {Cmp::GreaterEq, Module1::TenPow(-6), 2}},
          3};
}

}  // namespace rl
