// Decibels, circuit quality and the air-core coil: reference values, the
// loss conversions, Wheeler's formula with its close-wound root, and the
// unit rules with their boundary sides.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "Shown.h"
#include "calculators/core/QLCRCalc.h"
#include "calculators/core/SpuleLuftCalc.h"
#include "calculators/core/dBCalc.h"
#include "shell/core/NumberFormat.h"

TEST(Decibel, ReferenceLevelsAndRatioLine) {
  using namespace db;
  const QLocale c = QLocale::c();
  EXPECT_DOUBLE_EQ(level(1, 10, kVoltageFactor), 20.0);
  EXPECT_NEAR(level(1, 0.5, kPowerFactor), -3.0102999566398116, 1e-12);
  EXPECT_EQ(numfmt::format(level(0.775, 1, kVoltageFactor), "###0.0###", c), "2.214");  // dBu
  // 30 dBm is 1 W, 60 dBµV is 1 mV (the boundary takes mV), 6 dB below 1 V
  EXPECT_EQ(shown(powerUnits(), placement(), output(1e-3, 30, kPowerFactor, 1), "####0.0#####"), "1.0 W");
  EXPECT_EQ(shown(voltageUnits(), placement(), output(1e-6, 60, kVoltageFactor, 1), "####0.0#####"), "1.0 mV");
  EXPECT_EQ(shown(voltageUnits(), placement(), input(1, 6, kVoltageFactor, 1), "####0.0#####"), "501.187234 mV");
  EXPECT_EQ(shown(voltageUnits(), placement(), output(1, 20, kVoltageFactor, -1), "####0.0#####"), "100.0 mV");
  expectSides(voltageUnits(), placement(), {{1, "1.0 V"}, {0.999, "999.0 mV"}, {1e-3, "1.0 mV"}, {5e-4, "500.0 µV"}});
  // A power of ten beyond the double range fails instead of giving 0 or inf.
  EXPECT_FALSE(std::isfinite(input(1, 4000, kPowerFactor, 1)));
  EXPECT_FALSE(std::isfinite(output(1, 4000, kPowerFactor, 1)));

  ASSERT_EQ(references().size(), 5u);
  EXPECT_DOUBLE_EQ(references()[4].value, 0.775);
  EXPECT_TRUE(references()[1].power);

  EXPECT_EQ(ratioLine(10, c), "Verhältnis Ausgang / Eingang: 10.0");
  EXPECT_EQ(ratioLine(0.001, c), "Verhältnis Ausgang / Eingang: 0.001");
  EXPECT_EQ(ratioLine(0.00099996, QLocale(QLocale::German)), "Verhältnis Ausgang / Eingang: 1,000E-03");
  EXPECT_EQ(ratioLine(2.5e-9, c), "Verhältnis Ausgang / Eingang: 2.500E-09");
  EXPECT_EQ(ratioLine(0, c), "Verhältnis Ausgang / Eingang: 0.000E+00");
  EXPECT_EQ(ratioLine(9.9996e-100, c), "Verhältnis Ausgang / Eingang: 1.000E-99");
  EXPECT_EQ(ratioLine(9.9994e-100, c), "");  // no three-digit exponent
  EXPECT_EQ(ratioLine(std::numeric_limits<double>::infinity(), c), "");
  EXPECT_EQ(numfmt::format(123456, "0.000E+00", c), "1.235E+05");
}

TEST(CircuitQuality, LossesFromEachSource) {
  using namespace qlcr;
  // f0 = 1 MHz, C = 100 pF, Q = 100: L completed, Z0 = 1591.5494 Ω
  Input in;
  in.f = 1e6, in.c = 100e-12, in.q = 100;
  Result r = compute(in);
  ASSERT_EQ(r.stop, Stop::None);
  EXPECT_EQ(r.circuitField, 1);
  EXPECT_NEAR(r.circuitValue, 2.533029591058449e-4, 1e-16);
  EXPECT_NEAR(*r.z0, 1591.5494, 1e-4);
  EXPECT_NEAR(r.b, 10000, 1e-6);
  EXPECT_EQ(shown(units::resistance(), resistancePlacement(), r.rp, "####0.0###"), "159.1549 KOhm");
  EXPECT_EQ(shown(seriesResistanceUnits(), seriesResistancePlacement(), r.rs, "####0.0###"), "15.9155 Ohm");

  // f0 from L and C with Rp as source; then a complete triple is recomputed.
  in = Input{};
  in.l = 200e-6, in.c = 500e-12, in.rp = 100e3;
  r = compute(in);
  EXPECT_EQ(r.circuitField, 0);
  EXPECT_NEAR(r.circuitValue, 503292.12, 0.01);
  EXPECT_NEAR(r.q, 158.114, 1e-3);
  in.f = 1, in.rp = 0, in.rs = 5;
  EXPECT_EQ(compute(in).circuitField, 0);
  EXPECT_NEAR(compute(in).q, 632.4555 / 5, 1e-3);
  // Bandwidth as source: 10,7 MHz, 200 KHz
  in = Input{};
  in.f = 10.7e6, in.c = 100e-12, in.b = 200e3;
  EXPECT_NEAR(compute(in).q, 53.5, 1e-9);

  in = Input{};
  in.f = 1e6, in.c = 100e-12, in.q = 0.5;
  r = compute(in);
  EXPECT_EQ(r.stop, Stop::QualityTooLow);
  EXPECT_EQ(r.circuitField, 1);  // the triple is still completed
  in.q = 0;
  EXPECT_EQ(compute(in).stop, Stop::NoLossValue);
  in.c = 0;
  EXPECT_EQ(compute(in).stop, Stop::TooFewCircuitValues);

  expectSides(seriesResistanceUnits(), seriesResistancePlacement(),
              {{1000, "1.0 KOhm"}, {999, "999.0 Ohm"}, {1, "1.0 Ohm"}, {0.5, "500.0 mOhm"}});
  expectSides(units::resistance(), resistancePlacement(), {{1e6, "1000.0 KOhm"}, {1000, "1000.0 Ohm"}});
}

TEST(AirCoil, WheelerAndCloseWoundRoot) {
  using namespace spuleluft;
  EXPECT_DOUBLE_EQ(inductance(20, 10, 20), 40000.0 / 24892);
  EXPECT_DOUBLE_EQ(turns(1, 10, 10), std::sqrt(14732.0) / 10);
  EXPECT_NEAR(length(1, 20, 10), 34.87, 0.005);
  EXPECT_NEAR(length(10, 10, 10), -3.5157, 1e-4);
  // The close-wound root satisfies Wheeler's formula with l = N · d.
  const double n = closeWoundTurns(10, 20, 0.5);
  EXPECT_NEAR(n, 22.749, 5e-4);
  EXPECT_NEAR(inductance(n, 20, n * 0.5), 10.0, 1e-12);
  EXPECT_NEAR(wireLength(n, 20), 1.43, 0.005);

  Input in;
  in.l = 10e-6, in.d = 20, in.wire = 0.5, in.nEmpty = in.lengthEmpty = true;
  Result r = compute(in);
  ASSERT_EQ(r.stop, Stop::None);
  EXPECT_NEAR(*r.length, 11.374, 5e-4);
  EXPECT_FALSE(r.tooShort);
  // L of a close-wound coil: l = N · d is written too; 5 mm < 0,4 · 20 mm
  in = Input{};
  in.n = 10, in.d = 20, in.wire = 0.5, in.lEmpty = in.lengthEmpty = true;
  r = compute(in);
  EXPECT_DOUBLE_EQ(*r.length, 5.0);
  EXPECT_NEAR(*r.inductance, 2.8121e-6, 1e-10);
  EXPECT_TRUE(r.tooShort);

  in = Input{};
  in.l = 10e-6, in.n = 10, in.d = 10, in.lengthEmpty = true;
  r = compute(in);
  EXPECT_EQ(r.stop, Stop::Unreachable);
  EXPECT_FALSE(r.wireLength);
  in.d = 0;
  EXPECT_EQ(compute(in).stop, Stop::DiameterMissing);
  // Only a wire diameter for the length, but l is the unknown: too few values.
  in = Input{};
  in.l = 1e-6, in.d = 10, in.wire = 0.5, in.nEmpty = false, in.lengthEmpty = true;
  EXPECT_EQ(compute(in).stop, Stop::TooFewValues);
  in.n = 5, in.lengthEmpty = false;
  EXPECT_EQ(compute(in).stop, Stop::NoEmptyField);

  expectSides(inductanceUnits(), inductancePlacement(),
              {{2, "2000.0 mH"}, {1e-3, "1000.0 µH"}, {1e-6, "1000.0 nH"}, {5e-9, "5.0 nH"}});
}
