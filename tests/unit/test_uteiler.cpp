// Resistive voltage divider: formulas, the ratio check and the prefix rule.
#include <gtest/gtest.h>

#include "Shown.h"
#include "calculators/core/UTeilerCalc.h"

TEST(UTeiler, WorkedExamplesUnitBoundariesAndRatioCheck) {
  EXPECT_DOUBLE_EQ(uteiler::ratio(9000, 1000), 10.0);   // R1 / R2 + 1
  EXPECT_DOUBLE_EQ(uteiler::upper(2, 4700), 4700.0);    // (ratio - 1) · R2
  EXPECT_DOUBLE_EQ(uteiler::lower(11, 1e6), 1e5);       // R1 / (ratio - 1)
  expectSides(units::resistance(), uteiler::resistancePlacement(),
              {{4.7e6, "4.7 MOhm"}, {1e6, "1000.0 KOhm"}, {1000.5, "1.0005 KOhm"}, {1000, "1000.0 Ohm"}});
  // The ratio must exceed 1; 0 (or empty) is simply not given.
  EXPECT_TRUE(uteiler::ratioRefused(1.0));
  EXPECT_FALSE(uteiler::ratioRefused(1.0000001));
  EXPECT_FALSE(uteiler::ratioRefused(0.0));
  EXPECT_FALSE(uteiler::ratioRefused(-2.0));
}
