#pragma once
// Resonant LC circuit: f = 1 / (2π · √(L · C)), and L or C for a wanted
// frequency, with the unit rules of the three result fields.
#include <cmath>

#include "calculators/core/CheckedMath.h"
#include "shell/core/Module1.h"
#include "shell/core/UnitPrefix.h"

namespace schwingk {

// 2π as the program has always written it.
inline constexpr double kTwoPi = 6.28318530717958;

// The product L · C first, then its root, then 2π, then the reciprocal.
inline double frequency(double l, double c) {
  const double root = std::sqrt(l * c);
  return 1.0 / calcmath::divisor(kTwoPi * root);
}
// 2π · f first, squared, times the other component, reciprocal.
inline double inductance(double f, double c) {
  const double w = kTwoPi * f;
  return 1.0 / calcmath::divisor(w * w * c);
}
inline double capacitance(double f, double l) {
  const double w = kTwoPi * f;
  return 1.0 / calcmath::divisor(w * w * l);
}

// ComboF: MHz KHz Hz. Exactly 1 MHz is shown as 1000 KHz, exactly 1 kHz as
// 1000 Hz.
inline units::Placement frequencyPlacement() {
  using units::Cmp;
  return {{{Cmp::Greater, Module1::TenPow(6), 0}, {Cmp::LessEq, 1000.0, 2}}, 1};
}
// ComboL: nH µH mH H. Exactly 1 H is shown as 1000 mH.
inline units::Placement inductancePlacement() {
  using units::Cmp;
  return {{{Cmp::Greater, 1.0, 3}, {Cmp::Greater, Module1::TenPow(-3), 2}, {Cmp::Greater, Module1::TenPow(-6), 1}},
          0};
}
// ComboC: pF nF µF. Exactly 1 µF is shown as 1000 nF.
inline units::Placement capacitancePlacement() {
  using units::Cmp;
  return {{{Cmp::Greater, Module1::TenPow(-6), 2}, {Cmp::Greater, Module1::TenPow(-9), 1}}, 0};
}

}  // namespace schwingk
