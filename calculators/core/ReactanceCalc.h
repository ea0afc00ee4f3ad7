#pragma once
// Reactance of a capacitor (XC = 1 / (2π · f · C)) and of a coil
// (XL = 2π · f · L), each solvable for any one of its three quantities, with
// the unit rules of the result fields.
#include "calculators/core/CheckedMath.h"
#include "shell/core/Module1.h"
#include "shell/core/UnitPrefix.h"

namespace reactance {

// 2π as the program has always written it.
inline constexpr double kTwoPi = 6.28318530717958;

// ComboF of both forms: MHz KHz Hz. Exactly 1 MHz is shown as 1000 KHz,
// exactly 1 kHz as 1000 Hz.
inline units::Placement frequencyPlacement() {
  using units::Cmp;
  return {{{Cmp::Greater, Module1::TenPow(6), 0}, {Cmp::LessEq, 1000.0, 2}}, 1};
}
// ComboXC "Ohm" "kOhm" and ComboXL "Ohm" "KOhm": 1000 Ohm stays in Ohm.
inline units::Placement reactancePlacement() {
  using units::Cmp;
  return {{{Cmp::LessEq, 1000.0, 0}}, 1};
}

}  // namespace reactance

namespace xc {

inline double frequency(double xc, double c) { return 1.0 / calcmath::divisor(reactance::kTwoPi * xc * c); }
inline double reactance(double f, double c) { return 1.0 / calcmath::divisor(reactance::kTwoPi * f * c); }
inline double capacitance(double f, double xc) { return 1.0 / calcmath::divisor(reactance::kTwoPi * f * xc); }

// "Ohm" then "kOhm", as this form spells it.
inline const units::UnitList& reactanceUnits() {
  static const units::UnitList l{{"Ohm", 0}, {"kOhm", 3}};
  return l;
}
// ComboC: pF nF µF. Exactly 1 µF is shown as 1000 nF.
inline units::Placement capacitancePlacement() {
  using units::Cmp;
  return {{{Cmp::Greater, Module1::TenPow(-6), 2}, {Cmp::Greater, Module1::TenPow(-9), 1}}, 0};
}

}  // namespace xc

namespace xl {

inline double frequency(double xl, double l) { return xl / calcmath::divisor(reactance::kTwoPi * l); }
inline double inductance(double f, double xl) { return xl / calcmath::divisor(reactance::kTwoPi * f); }
inline double reactance(double f, double l) { return reactance::kTwoPi * f * l; }

// "Ohm" then "KOhm", as this form spells it.
inline const units::UnitList& reactanceUnits() {
  static const units::UnitList l{{"Ohm", 0}, {"KOhm", 3}};
  return l;
}
// ComboL: nH µH mH H. Exactly 1 H is shown as 1000 mH.
inline units::Placement inductancePlacement() {
  using units::Cmp;
  return {{{Cmp::Greater, 1.0, 3}, {Cmp::Greater, Module1::TenPow(-3), 2}, {Cmp::Greater, Module1::TenPow(-6), 1}},
          0};
}

}  // namespace xl
