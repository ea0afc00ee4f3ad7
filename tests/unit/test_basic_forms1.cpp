// Resonant circuit, reactances, RL network and power: the worked examples
// with their formulas, the sides of every unit boundary, and arithmetic that
// fails instead of passing as a result.
#include <gtest/gtest.h>

#include <cmath>

#include "Shown.h"
#include "calculators/core/RLCalc.h"
#include "calculators/core/ReactanceCalc.h"
#include "calculators/core/SchwingkCalc.h"
#include "calculators/core/WattCalc.h"

TEST(Schwingk, WorkedExamplesAndUnitBoundaries) {
  using namespace schwingk;
  // f = 1 / (2π √(L C)), L = 1 / ((2π f)² C), C = 1 / ((2π f)² L)
  EXPECT_EQ(shown(units::frequency(), frequencyPlacement(), frequency(10e-6, 100e-12), "####0.0########"),
            "5.03292121 MHz");
  EXPECT_EQ(shown(units::inductance(), inductancePlacement(), inductance(1e6, 100e-12), "####0.0###"), "253.303 µH");
  EXPECT_EQ(shown(units::capacitance(), capacitancePlacement(), capacitance(455e3, 1e-3), "###0.0###"), "122.3538 pF");

  expectSides(units::frequency(), frequencyPlacement(),
              {{1.5e6, "1.5 MHz"}, {1e6, "1000.0 KHz"}, {1000.5, "1.0005 KHz"}, {1000, "1000.0 Hz"}});
  expectSides(units::inductance(), inductancePlacement(),
              {{2, "2.0 H"}, {1, "1000.0 mH"}, {1e-3, "1000.0 µH"}, {1e-6, "1000.0 nH"}, {5e-10, "0.5 nH"}});
  expectSides(units::capacitance(), capacitancePlacement(),
              {{2e-6, "2.0 µF"}, {1e-6, "1000.0 nF"}, {1e-9, "1000.0 pF"}, {3e-15, "0.003 pF"}});
}

TEST(Reactance, WorkedExamplesAndUnitBoundaries) {
  // XC = 1 / (2π f C): 1 KHz, 1 µF
  EXPECT_EQ(shown(xc::reactanceUnits(), reactance::reactancePlacement(), xc::reactance(1000, 1e-6), "####0.0######"),
            "159.1549431 Ohm");
  // C = 1 / (2π f XC): 50 Hz, 3,183 kOhm is just above 1 µF
  EXPECT_EQ(shown(units::capacitance(), xc::capacitancePlacement(), xc::capacitance(50, 3183), "###0.0####"),
            "1.00003 µF");
  // XL = 2π f L: 100 KHz, 10 µH; L = XL / (2π f): 1 KOhm at 50 Hz; f = XL / (2π L) exactly 1000 Hz
  EXPECT_EQ(shown(xl::reactanceUnits(), reactance::reactancePlacement(), xl::reactance(100e3, 10e-6), "###0.0#######"),
            "6.28318531 Ohm");
  EXPECT_EQ(shown(units::inductance(), xl::inductancePlacement(), xl::inductance(50, 1000), "####0.0####"), "3.1831 H");
  EXPECT_EQ(shown(units::frequency(), reactance::frequencyPlacement(), xl::frequency(6.28318530717958, 1e-3)),
            "1000.0 Hz");

  // The capacitor form writes "kOhm", the coil form "KOhm".
  expectSides(xc::reactanceUnits(), reactance::reactancePlacement(), {{1000, "1000.0 Ohm"}, {1500, "1.5 kOhm"}});
  expectSides(xl::reactanceUnits(), reactance::reactancePlacement(), {{1000, "1000.0 Ohm"}, {2500, "2.5 KOhm"}});
  expectSides(units::capacitance(), xc::capacitancePlacement(), {{2e-6, "2.0 µF"}, {1e-6, "1000.0 nF"}});
  expectSides(units::inductance(), xl::inductancePlacement(), {{2, "2.0 H"}, {1, "1000.0 mH"}});
}

TEST(RL, WorkedExamplesAndTheirOwnBoundarySides) {
  using namespace rl;
  // f = R / (2π L): 1 KOhm, 10 mH; R = 2π f L: 50 Hz, 1 H
  EXPECT_EQ(shown(units::frequency(), frequencyPlacement(), frequency(1000, 0.01), "####0.0########"),
            "15.915494309 KHz");
  EXPECT_EQ(shown(units::resistance(), resistancePlacement(), resistance(50, 1), "####0.0####"), "314.15927 Ohm");
  // L = R / (2π f): 6,2831853 Ohm at 1 KHz is just below 1 mH, so µH, rounded up
  EXPECT_EQ(shown(inductanceUnits(), inductancePlacement(), inductance(1000, 6.2831853), "###0.0####"), "1000.0 µH");

  // The inductance takes a boundary value into the larger unit...
  expectSides(inductanceUnits(), inductancePlacement(),
              {{1, "1.0 H"}, {0.5, "500.0 mH"}, {1e-3, "1.0 mH"}, {0.99999e-3, "999.99 µH"}, {1e-6, "1.0 µH"},
               {5e-7, "500.0 nH"}});
  // ...and to the smaller one for frequency and resistance.
  expectSides(units::frequency(), frequencyPlacement(),
              {{2e6, "2.0 MHz"}, {1e6, "1000.0 KHz"}, {1000.5, "1.0005 KHz"}, {1000, "1000.0 Hz"}});
  expectSides(units::resistance(), resistancePlacement(),
              {{2e6, "2.0 MOhm"}, {1e6, "1000.0 KOhm"}, {1000.5, "1.0005 KOhm"}, {1000, "1000.0 Ohm"}});
}

TEST(Watt, WorkedExamplesAlternativesAndUnits) {
  // U: R·I before √(R·P) before P/I
  EXPECT_EQ(watt::voltage(100, 0.5, 1), 50.0);
  EXPECT_EQ(watt::voltage(100, 0, 1), 10.0);
  EXPECT_NEAR(watt::voltage(2000, 0, 0.005), 3.16227766016838, 1e-14);  // √(2 KOhm · 5 mW)
  EXPECT_EQ(watt::voltage(0, 2, 24), 12.0);
  // I: P/U before U/R
  EXPECT_EQ(watt::current(10, 1000, 1), 0.1);
  EXPECT_EQ(watt::current(10, 1000, 0), 0.01);
  // P: U·I before U²/R; R: U/I before U²/P
  EXPECT_EQ(watt::power(12, 1000, 2), 24.0);
  EXPECT_EQ(watt::power(10, 100, 0), 1.0);
  EXPECT_EQ(watt::resistance(12, 2, 100), 6.0);
  EXPECT_EQ(watt::resistance(10, 0, 4), 25.0);
  // Units from their lower bound on, none below the smallest.
  expectSides(units::voltage(), watt::voltagePlacement(),
              {{1000, "1.0 KV"}, {999.5, "999.5 V"}, {1, "1.0 V"}, {1e-3, "1.0 mV"}, {0.5e-3, ""}, {0, ""}});
  expectSides(units::current(), watt::currentPlacement(),
              {{1, "1.0 A"}, {0.1, "100.0 mA"}, {1e-6, "1.0 µA"}, {0.9e-6, ""}});
  expectSides(watt::powerUnits(), watt::powerPlacement(),
              {{1000, "1.0 KW"}, {1, "1.0 W"}, {1e-3, "1.0 mW"}, {1e-6, "1.0 µW"}, {1e-7, ""}});
  expectSides(units::resistance(), watt::resistancePlacement(), {{1e6, "1000.0 KOhm"}, {0, "0.0 Ohm"}});
}

TEST(FailedArithmetic, IsNoResult) {
  // An overflowing divisor must not turn into a quiet 0.
  EXPECT_FALSE(std::isfinite(schwingk::frequency(1e300, 1e300)));
  EXPECT_FALSE(std::isfinite(schwingk::capacitance(1e200, 1.0)));
  EXPECT_FALSE(std::isfinite(xc::reactance(1e306, 1e300)));
  EXPECT_FALSE(std::isfinite(xl::inductance(1e308, 1.0)));
  EXPECT_FALSE(std::isfinite(rl::frequency(1.0, 1e308)));
  EXPECT_FALSE(std::isfinite(watt::current(0, 0, 5)));  // P / U with U typed as 0
  EXPECT_FALSE(std::isfinite(watt::power(1e200, 0, 1e200)));
  // A tiny quotient that does not overflow is a real result.
  EXPECT_EQ(xl::frequency(1e-300, 1e10), 1e-300 / (6.28318530717958 * 1e10));
}
