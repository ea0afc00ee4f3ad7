// Decibels, circuit quality and the air-core coil: reference levels and the
// ratio line, the order in which the quality form completes its values,
// Wheeler's close-wound root, and the unit rules with their boundary sides.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "Shown.h"
#include "calculators/core/QLCRCalc.h"
#include "calculators/core/SpuleLuftCalc.h"
#include "calculators/core/dBCalc.h"

TEST(Decibel, ReferenceLevelsAndRatioLine) {
  using namespace db;
  const QLocale c = QLocale::c();
  EXPECT_DOUBLE_EQ(level(1, 10, kVoltageFactor), 20.0);
  EXPECT_NEAR(level(1, 0.5, kPowerFactor), -3.0102999566398116, 1e-12);
  EXPECT_NEAR(level(references()[4].value, 1, kVoltageFactor), 2.2139, 1e-4);  // dBu
  // 30 dBm is 1 W; 60 dBµV is 1 mV, which the boundary puts into mV
  EXPECT_EQ(shown(powerUnits(), placement(), output(1e-3, 30, kPowerFactor, 1)), "1.0 W");
  EXPECT_EQ(shown(voltageUnits(), placement(), output(1e-6, 60, kVoltageFactor, 1)), "1.0 mV");
  EXPECT_EQ(shown(voltageUnits(), placement(), output(1, 20, kVoltageFactor, -1)), "100.0 mV");
  expectSides(voltageUnits(), placement(), {{1, "1.0 V"}, {0.999, "999.0 mV"}, {1e-3, "1.0 mV"}, {5e-4, "500.0 µV"}});
  // A power of ten beyond the double range fails instead of passing as 0.
  EXPECT_FALSE(std::isfinite(input(1, 4000, kPowerFactor, 1)));

  EXPECT_EQ(ratioLine(0.001, c), "Verhältnis Ausgang / Eingang: 0.001");
  EXPECT_EQ(ratioLine(0.00099996, QLocale(QLocale::German)), "Verhältnis Ausgang / Eingang: 1,000E-03");
  EXPECT_EQ(ratioLine(0, c), "Verhältnis Ausgang / Eingang: 0.000E+00");
  EXPECT_EQ(ratioLine(9.9996e-100, c), "Verhältnis Ausgang / Eingang: 1.000E-99");
  EXPECT_EQ(ratioLine(9.9994e-100, c), "");  // no three-digit exponent
  EXPECT_EQ(ratioLine(std::numeric_limits<double>::infinity(), c), "");
}

TEST(CircuitQuality, CompletionOrderAndStops) {
  using namespace qlcr;
  Input in;
  in.f = 1e6, in.l = 1e-3, in.c = 100e-12, in.rs = 5;
  Result r = compute(in);
  EXPECT_EQ(r.circuitField, 0);  // all three given: f0 again from L and C
  EXPECT_NEAR(r.circuitValue, 503292.12, 0.01);
  in.f = 0, in.c = -1;           // the first value not above 0 is the missing one
  EXPECT_EQ(compute(in).stop, Stop::TooFewCircuitValues);
  in.f = 1e6, in.c = 0;
  r = compute(in);
  EXPECT_EQ(r.circuitField, 2);
  in.rs = 0, in.q = 0.5;
  r = compute(in);
  EXPECT_EQ(r.stop, Stop::QualityTooLow);
  EXPECT_TRUE(r.z0);  // the circuit and Z0 are still written
  in.q = 0;
  EXPECT_EQ(compute(in).stop, Stop::NoLossValue);

  expectSides(seriesResistanceUnits(), seriesResistancePlacement(),
              {{1000, "1.0 KOhm"}, {999, "999.0 Ohm"}, {1, "1.0 Ohm"}, {0.5, "500.0 mOhm"}});
  expectSides(units::resistance(), resistancePlacement(), {{1e6, "1000.0 KOhm"}, {1000, "1000.0 Ohm"}});
}

TEST(AirCoil, WheelerAndCloseWoundRoot) {
  using namespace spuleluft;
  EXPECT_DOUBLE_EQ(inductance(20, 10, 20), 40000.0 / 24892);
  // The close-wound root satisfies Wheeler's formula with l = N · d.
  const double n = closeWoundTurns(10, 20, 0.5);
  EXPECT_NEAR(n, 22.749, 5e-4);
  EXPECT_NEAR(inductance(n, 20, n * 0.5), 10.0, 1e-12);
  EXPECT_NEAR(turns(inductance(7, 12, 9), 12, 9), 7.0, 1e-12);
  EXPECT_NEAR(length(inductance(7, 12, 9), 7, 12), 9.0, 1e-12);

  // L wanted, l empty: the close-wound length is written too.
  Input in;
  in.n = 10, in.d = 20, in.wire = 0.5, in.lEmpty = in.lengthEmpty = true;
  Result r = compute(in);
  EXPECT_DOUBLE_EQ(*r.length, 5.0);
  EXPECT_TRUE(r.tooShort);
  // l wanted while L reads 0: a wire diameter does not stand in for L.
  in = Input{};
  in.n = 5, in.d = 10, in.wire = 0.5, in.lengthEmpty = true;
  EXPECT_EQ(compute(in).stop, Stop::TooFewValues);

  expectSides(inductanceUnits(), inductancePlacement(),
              {{2, "2000.0 mH"}, {1e-3, "1000.0 µH"}, {1e-6, "1000.0 nH"}, {5e-9, "5.0 nH"}});
}
