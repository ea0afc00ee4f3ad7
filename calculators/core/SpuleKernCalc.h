#pragma once
// Coil on a core: inductance L = N² · AL, from the core's AL value (inductance
// per turn squared) and the number of turns N, with the unit rules of the
// form's two combos. ComboAl runs from large to small, ComboL from small to
// large.
#include <cmath>

#include "shell/core/Module1.h"
#include "shell/core/UnitPrefix.h"

namespace spulekern {

inline double alValue(double l, double n) { return l / (n * n); }
inline double inductance(double al, double n) { return n * n * al; }
inline double turns(double l, double al) { return std::sqrt(l / al); }

// ComboAl: "mH", "µH", "nH"; starts at "nH".
inline const units::UnitList& alUnits() {
  static const units::UnitList l{{"mH", -3}, {QStringLiteral("µH"), -6}, {"nH", -9}};
  return l;
}
inline constexpr int kAlStart = 2;

// ComboL: "nH", "µH", "mH", "H"; starts at "µH".
inline const units::UnitList& inductanceUnits() { return units::inductance(); }
inline constexpr int kInductanceStart = 1;

// AL above 1 mH in mH, above 1 µH in µH (1 mH itself shows as 1000 µH),
// everything else in nH.
inline units::Placement alPlacement() {
  using units::Cmp;
  return {{{Cmp::Greater, Module1::TenPow(-3), 0}, {Cmp::Greater, Module1::TenPow(-6), 1}}, 2};
}

// L above 1 H in H, above 1 mH in mH, above 1 µH in µH, otherwise nH; each
// boundary value falls into the smaller unit.
inline units::Placement inductancePlacement() {
  using units::Cmp;
  return {{{Cmp::Greater, 1.0, 3}, {Cmp::Greater, Module1::TenPow(-3), 2}, {Cmp::Greater, Module1::TenPow(-6), 1}},
          0};
}

}  // namespace spulekern
