// Capacitive and inductive matching dividers: the edges of the reading check,
// the result units, R1 through the coils, and the values handed to the
// resonant circuit. The worked examples, the order of the steps with their
// messages and the early end run through the forms in the script tests.
#include <gtest/gtest.h>

#include <cmath>

#include "Shown.h"
#include "calculators/core/CTeilerCalc.h"
#include "calculators/core/L2TeilerCalc.h"

using namespace divider;

TEST(DividerCheck, ZeroIsUnknownAndEqualResistancesPass) {
  // R1 may equal R2; the ratios left at 0 are merely unknown.
  EXPECT_FALSE(check({.f = 1e6, .r1 = 50, .r2 = 50}));

  Values two{.u = 2, .f = 1e6};
  ASSERT_TRUE(check(two));
  EXPECT_EQ(check(two)->text, "Bitte min. drei Werte eingeben!");
  EXPECT_FALSE(check(two)->warning);
  two.r2 = 100;  // R2 without R1 counts
  EXPECT_FALSE(check(two));
}

TEST(DividerUnits, BoundariesFallOnTheirOwnSides) {
  expectSides(units::resistance(), resistancePlacement(),
              {{1e6, "1.0 MOhm"}, {999999, "999.999 KOhm"}, {1000, "1.0 KOhm"}, {999.9, "999.9 Ohm"}});
  expectSides(units::capacitance(), capacitancePlacement(),
              {{2e-6, "2.0 µF"}, {1e-6, "1000.0 nF"}, {1e-9, "1000.0 pF"}});
  expectSides(units::frequency(), frequencyPlacement(),
              {{1e6, "1000.0 KHz"}, {1000.5, "1.0005 KHz"}, {1000, "1000.0 Hz"}});
}

TEST(CTeiler, HandOverCapacitance) {
  EXPECT_NEAR(cteiler::seriesCapacitance(300e-12, 100e-12), 75e-12, 1e-24);  // C1 · C2 / (C1 + C2)
  EXPECT_EQ(cteiler::seriesCapacitance(1e-9, -1e-9), 0);  // division by zero skipped
  // Unlike the divider's own fields, 1 µF stays µF here.
  expectSides(units::capacitance(), cteiler::handOverPlacement(),
              {{1e-6, "1.0 µF"}, {1e-9, "1.0 nF"}, {0.99e-9, "990.0 pF"}});
}

TEST(L2Teiler, ResistanceFromTheCoilsWinsOverTheRatio) {
  // L1 = 1 µH, L2 = 3 µH: ü = 4, R1 = R2 / 16 although the typed ratio is 2.
  const Values v{.u = 2, .r2 = 1600, .x1 = 1e-6, .x2 = 3e-6};
  Empty empty{};
  empty[Res1] = empty[Freq] = true;
  double r1 = NAN, f = NAN;
  for (const Step& s : l2teiler::compute(v, empty, false).steps) {
    if (s.kind == Step::Show && s.field == Res1) r1 = s.value;
    if (s.kind == Step::Show && s.field == Freq) f = s.value;
  }
  EXPECT_NEAR(r1, 100, 1e-9);
  EXPECT_NEAR(f, 100 / (17 * l2teiler::kTwoPi * 1e-6), 1e-3);  // R1 / (17 · 2π · L1)
}

TEST(L2Teiler, HandOverInductance) {
  EXPECT_NEAR(l2teiler::totalInductance(1e-6, 3e-6, false), 4e-6, 1e-18);
  // One tapped coil: the turns add, so the inductance grows with their square.
  const double k = l2teiler::turnsConstant();
  EXPECT_NEAR(l2teiler::totalInductance(k * 25, k * 100, true), k * 225, 1e-18);
  // The root of a negative L1 is skipped: its turns stay 0.
  EXPECT_EQ(l2teiler::totalInductance(-1e-6, 1e-6, true), k * (std::sqrt(1e-6 / k) * std::sqrt(1e-6 / k)));
  expectSides(units::inductance(), l2teiler::handOverPlacement(),
              {{1, "1.0 H"}, {1e-3, "1.0 mH"}, {0.99e-3, "990.0 µH"}});
}
