#pragma once
// Inductive divider used as an impedance-matching tap: L1 (from the tap to
// ground) and L2 (above it) transform the low impedance R1 at the tap up to
// R2 across both coils. Either two separate coils or one coil with a tap;
// the fields, the reading and the result rules are those of the capacitive
// divider (CTeilerCalc.h), with inductances in the Part1/Part2 slots.
#include "calculators/core/CTeilerCalc.h"

namespace l2teiler {

// Inductance per turn squared of the tapped coil, in henry.
double turnsConstant();
// 2π as the design relations use it.
inline constexpr double kTwoPi = 6.28318530717958;
// The reactance of L1 at the frequency is one seventeenth of R1.
inline constexpr double kDesign = 17;

// One press of "&Berechnung" after the check has passed. `tapped`: one coil
// with a tap instead of two separate coils.
divider::Run compute(divider::Values v, divider::Empty empty, bool tapped);

// Unit of a shown inductance in the two-entry combo ("µH", "mH"); above 1 H
// the value stays unscaled and asks for a position the list does not have.
units::Placement inductancePlacement();

// Total inductance handed to the resonant circuit: the two coils in series,
// or one tapped coil with N1 + N2 turns. A failing statement leaves its
// intermediate value 0.
double totalInductance(double l1, double l2, bool tapped);
// Its unit in the resonant circuit's inductance combo (nH, µH, mH, H).
units::Placement handOverPlacement();
inline const char* const kHandOverPattern = "####0.0####";

}  // namespace l2teiler
