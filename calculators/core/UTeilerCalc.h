#pragma once
// Unloaded resistive voltage divider: R1 on top, R2 across the output, so the
// ratio of input to output voltage is (R1 + R2) / R2.
#include "shell/core/Module1.h"
#include "shell/core/UnitPrefix.h"

namespace uteiler {

inline double ratio(double r1, double r2) { return r1 / r2 + 1; }
inline double upper(double ratio, double r2) { return (ratio - 1) * r2; }
inline double lower(double ratio, double r1) { return r1 / (ratio - 1); }

// A ratio that was typed (above 0) must exceed 1; 1 itself is refused.
inline bool ratioRefused(double ratio) { return ratio > 0 && ratio <= 1; }

inline const char* const kRatioTitle = "Spannungsteiler";
inline const char* const kRatioMessage = "Das Spannungsverhältnis muß >1,0 sein!";

// Both resistor combos: "Ohm", "KOhm", "MOhm"; they start at "KOhm".
inline constexpr int kResistanceStart = 1;

// Above 1 MOhm in MOhm, above 1 KOhm in KOhm: exactly 1000 Ohm stays in Ohm,
// exactly 1 MOhm shows as 1000 KOhm.
inline units::Placement resistancePlacement() {
  return units::resistanceRule();
}

}  // namespace uteiler
