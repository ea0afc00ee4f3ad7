#pragma once
// Decibels: the ratio of two voltages (or currents) in dB is 20 · log10, of
// two powers 10 · log10. The dB field holds the magnitude; the direction
// (gain or attenuation) gives the sign. A fixed input value turns the form
// into a level calculator (dBm, dBµV, dBV, dBu).
#include <QLocale>
#include <QString>
#include <array>

#include "calculators/core/CheckedMath.h"
#include "shell/core/Module1.h"
#include "shell/core/UnitPrefix.h"

namespace db {

// n of the formulas: voltages and currents, powers.
inline constexpr double kVoltageFactor = 20;
inline constexpr double kPowerFactor = 10;

// Input x1 for output x2 and the dB magnitude g with sign s (+1 gain, -1
// attenuation); a power of ten that overflows or vanishes fails.
inline double input(double x2, double g, double n, double s) {
  return x2 / calcmath::divisor(Module1::TenPow(s * g / n));
}
inline double output(double x1, double g, double n, double s) { return x1 * Module1::TenPow(s * g / n); }
// Signed dB value of output over input.
inline double level(double x1, double x2, double n) { return n * Module1::Log10(x2 / x1); }

// ComboE and ComboA: the same factors for voltages and powers; both start at
// the base unit.
inline const units::UnitList& voltageUnits() {
  static const units::UnitList l{{QStringLiteral("µV"), -6}, {"mV", -3}, {"V", 0}};
  return l;
}
inline const units::UnitList& powerUnits() {
  static const units::UnitList l{{QStringLiteral("µW"), -6}, {"mW", -3}, {"W", 0}};
  return l;
}
inline constexpr int kUnitStart = 2;

// From 1 upwards in the base unit, from 10^-3 in milli, below in micro; each
// boundary value takes the larger unit.
inline units::Placement placement() {
  using units::Cmp;
  return {{{Cmp::GreaterEq, 1.0, 2}, {Cmp::GreaterEq, Module1::TenPow(-3), 1}}, 0};
}

// The items of ComboBezug. Item 0 leaves the input to the user.
struct Reference {
  QString item;
  bool power;    // a power reference; otherwise a voltage
  double value;  // written into the input field
  int unit;      // ComboE position
};
const std::array<Reference, 5>& references();

// The ratio line under the fields: "Verhältnis Ausgang / Eingang: " and the
// ratio, down to 0.001 as a decimal number, below in exponent notation. A
// ratio that is not finite or would need a three-digit exponent gives "".
QString ratioLine(double ratio, const QLocale& locale = QLocale());

}  // namespace db
