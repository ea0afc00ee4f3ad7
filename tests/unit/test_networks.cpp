// RC and RLC networks and the series/parallel combinations: what the worked
// examples in the scripts do not reach, the boundary sides of every rule.
#include <gtest/gtest.h>

#include <cmath>

#include "Shown.h"
#include "calculators/core/RCCalc.h"
#include "calculators/core/RLCCalc.h"
#include "calculators/core/ReihenSCalc.h"
#include "shell/core/Module1.h"

TEST(RC, BoundarySides) {
  using namespace rc;
  // 1 KOhm and 1 µF as the fields read them give exactly 1 ms, shown in ms.
  EXPECT_EQ(timeConstant(1 * 1000.0, 1 * Module1::TenPow(-6)), Module1::TenPow(-3));
  expectSides(timeUnits(), timePlacement(),
              {{1, "1.0 s"}, {0.999, "999.0 ms"}, {1e-3, "1.0 ms"}, {0.99e-3, "990.0 µs"}});
  expectSides(units::frequency(), frequencyPlacement(), {{1e6, "1000.0 KHz"}, {1000, "1000.0 Hz"}, {1001, "1.001 KHz"}});
  expectSides(units::capacitance(), capacitancePlacement(),
              {{1.5e-6, "1.5 µF"}, {1e-6, "1000.0 nF"}, {1e-9, "1000.0 pF"}, {1.5e-9, "1.5 nF"}});
  expectSides(units::resistance(), resistancePlacement(), {{1000, "1000.0 Ohm"}, {1e6, "1000.0 KOhm"}});
  // An overflowing product is a failed statement, not a frequency of 0.
  EXPECT_FALSE(std::isfinite(frequency(1e200, 1e200)));
}

TEST(RLC, AngleNearResonanceAndFailedArithmetic) {
  // A tiny angle counts as 0 and never shows as -0; a little off resonance it does not.
  const double phi = rlc::analyse(1591.549, 100, 10e-3, 1e-6, false).phi;
  EXPECT_EQ(phi, 0.0);
  EXPECT_FALSE(std::signbit(phi));
  EXPECT_GT(rlc::analyse(1591.549 * 0.999, 100, 10e-3, 1e-6, true).phi, 0.0);
  // Overflowing reactances leave their results unwritten instead of showing inf.
  const rlc::Result r = rlc::analyse(1e300, 1, 1e300, 1e-300, false);
  EXPECT_FALSE(std::isfinite(r.xl));
  EXPECT_FALSE(std::isfinite(r.z));
  EXPECT_TRUE(std::isfinite(r.f0));
}

TEST(ReihenS, ModesPlaceWithTheirOwnRules) {
  using namespace reihen;
  EXPECT_TRUE(totalTooLarge(2000, 2000));
  EXPECT_FALSE(totalTooLarge(1999.999, 2000));
  const auto r = modeFor("ParR"), c = modeFor("ReiheC"), l = modeFor("ParL");
  ASSERT_TRUE(r && c && l);
  EXPECT_FALSE(modeFor("parr") || modeFor(""));
  expectSides(*r->units, r->placement, {{1000, "1000.0 Ohm"}, {1000.5, "1.0005 KOhm"}, {1e6, "1000.0 KOhm"}});
  expectSides(*c->units, c->placement, {{1e-6, "1000.0 nF"}, {1.01e-6, "1.01 µF"}, {1e-9, "1000.0 pF"}});
  expectSides(*l->units, l->placement, {{1, "1000.0 mH"}, {1e-3, "1000.0 µH"}, {total(2e-6, 2e-6), "1000.0 nH"}});
}
