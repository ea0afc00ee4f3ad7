#pragma once
// RLC network: ideal R, L and C in series or all three in parallel at one
// frequency: reactances, impedance magnitude, phase angle of the impedance
// (positive: inductive) and the resonant frequency.
#include <QString>

#include "shell/core/UnitPrefix.h"

namespace rlc {

// π and 2π as the program has always written them.
inline constexpr double kPi = 3.14159265358979;
inline constexpr double kTwoPi = 6.28318530717958;

// A value that is not finite comes from arithmetic that failed; its field
// keeps what it shows.
struct Result {
  double xl = 0;
  double xc = 0;
  double z = 0;
  bool zEmpty = false;  // lossless parallel circuit exactly at resonance: no finite impedance
  double phi = 0;      // degrees
  double f0 = 0;
};

// r not above 0 means no resistor. f, l and c must be above 0.
Result analyse(double f, double r, double l, double c, bool parallel);

// "induktiv", "kapazitiv" or "ohmsch (Resonanz)" for a phase angle.
QString behaviour(double phi);

// ComboXL, ComboXC, ComboZ: Ohm KOhm MOhm; exactly 1000 Ohm stays in Ohm.
units::Placement resistancePlacement();
// ComboF0: MHz KHz Hz; exactly 1 MHz is shown as 1000 KHz.
units::Placement frequencyPlacement();

}  // namespace rlc
