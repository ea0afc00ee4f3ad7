#pragma once
// Ohm's law R = U / I, with the unit rules of its result fields.
#include "shell/core/Module1.h"
#include "shell/core/UnitPrefix.h"

namespace ohm {

inline double voltage(double r, double i) { return r * i; }
inline double resistance(double u, double i) { return u / i; }
inline double current(double u, double r) { return u / r; }

// Boundary sides as the form has always shown them: 1 V comes out as
// 1000 mV, 1000 V stays in V; 1000 Ohm stays in Ohm; 1 mA stays mA.
inline units::Placement voltagePlacement() {
  using units::Cmp;
  return {{{Cmp::Greater, 1000.0, 2}, {Cmp::LessEq, 1.0, 0}}, 1};
}
inline units::Placement resistancePlacement() {
  return units::resistanceRule();
}
inline units::Placement currentPlacement() {
  using units::Cmp;
  return {{{Cmp::GreaterEq, 1.0, 2}, {Cmp::GreaterEq, Module1::TenPow(-3), 1}}, 0};
}

}  // namespace ohm
