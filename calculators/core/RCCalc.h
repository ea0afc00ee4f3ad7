#pragma once
// RC network: the frequency at which the capacitor's reactance equals the
// resistance, f = 1 / (2π · R · C), or R or C for a wanted frequency, and
// the time constant τ = R · C.
#include "calculators/core/CheckedMath.h"
#include "shell/core/Module1.h"
#include "shell/core/UnitPrefix.h"

namespace rc {

// 2π as the program has always written it.
inline constexpr double kTwoPi = 6.28318530717958;

// The product is formed left to right, then its reciprocal.
inline double frequency(double r, double c) { return 1.0 / calcmath::divisor(kTwoPi * r * c); }
inline double resistance(double f, double c) { return 1.0 / calcmath::divisor(kTwoPi * f * c); }
inline double capacitance(double f, double r) { return 1.0 / calcmath::divisor(kTwoPi * f * r); }
inline double timeConstant(double r, double c) { return r * c; }

// ComboT: µs ms s.
inline const units::UnitList& timeUnits() {
  static const units::UnitList l{{QStringLiteral("µs"), -6}, {"ms", -3}, {"s", 0}};
  return l;
}

// ComboF: MHz KHz Hz. Exactly 1 MHz is shown as 1000 KHz, 1 kHz as 1000 Hz.
inline units::Placement frequencyPlacement() {
  return units::frequencyRule();
}
// ComboR: Ohm KOhm MOhm. Exactly 1000 Ohm stays in Ohm.
inline units::Placement resistancePlacement() {
  return units::resistanceRule();
}
// ComboC: pF nF µF. Exactly 1 µF is shown as 1000 nF.
inline units::Placement capacitancePlacement() {
  using units::Cmp;
  return {{{Cmp::Greater, Module1::TenPow(-6), 2}, {Cmp::Greater, Module1::TenPow(-9), 1}}, 0};
}
// ComboT: a time constant of exactly 1 ms is shown as 1 ms, exactly 1 s as 1 s.
inline units::Placement timePlacement() {
  using units::Cmp;
  return {{{Cmp::GreaterEq, 1.0, 2}, {Cmp::GreaterEq, Module1::TenPow(-3), 1}}, 0};
}

}  // namespace rc
