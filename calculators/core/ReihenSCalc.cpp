#include "calculators/core/ReihenSCalc.h"

#include "shell/core/Module1.h"

namespace reihen {

std::optional<Mode> modeFor(const QString& tag) {
  using units::Cmp;
  if (tag == "ParR") {
    // Exactly 1000 Ohm stays in Ohm.
    return Mode{tag,
                QStringLiteral("Parallelschaltung von Widerständen"),
                {"R&1:", "R&2:", "R &gesamt:"},
                "1/R = 1/R1 + 1/R2",
                &units::resistance(),
                1,
                units::resistanceRule(),
                "Parallelschaltung von R"};
  }
  if (tag == "ReiheC") {
    // Exactly 1 µF is shown as 1000 nF.
    return Mode{tag,
                "Reihenschaltung von Kondensatoren",
                {"C&1:", "C&2:", "C &gesamt:"},
                "1/C = 1/C1 + 1/C2",
                &units::capacitance(),
                1,
                {{{Cmp::Greater, Module1::TenPow(-6), 2}, {Cmp::Greater, Module1::TenPow(-9), 1}}, 0},
                "Reihenschaltung von C"};
  }
  if (tag == "ParL") {
    // Exactly 1 mH is shown as 1000 µH.
    return Mode{tag,
                "Parallelschaltung von Spulen",
                {"L&1:", "L&2:", "L &gesamt:"},
                "1/L = 1/L1 + 1/L2 (ohne Kopplung)",
                &units::inductance(),
                1,
                {{{Cmp::Greater, 1.0, 3}, {Cmp::Greater, Module1::TenPow(-3), 2}, {Cmp::Greater, Module1::TenPow(-6), 1}},
                 0},
                "Parallelschaltung von L"};
  }
  return std::nullopt;
}

}  // namespace reihen
