// Resistive voltage divider: formulas, the ratio check and the prefix rule.
#include <gtest/gtest.h>

#include "calculators/core/UTeilerCalc.h"

TEST(UTeiler, FormulasSolveEachOther) {
  EXPECT_DOUBLE_EQ(uteiler::ratio(9000, 1000), 10.0);
  EXPECT_DOUBLE_EQ(uteiler::upper(2, 4700), 4700.0);
  EXPECT_DOUBLE_EQ(uteiler::lower(11, 1e6), 1e5);
  EXPECT_NEAR(uteiler::upper(uteiler::ratio(3300, 680), 680), 3300.0, 1e-9);
}

TEST(UTeiler, RatioMustExceedOne) {
  EXPECT_TRUE(uteiler::ratioRefused(1.0));
  EXPECT_TRUE(uteiler::ratioRefused(0.5));
  EXPECT_FALSE(uteiler::ratioRefused(1.0000001));
  EXPECT_FALSE(uteiler::ratioRefused(0.0));  // empty or 0: simply not given
  EXPECT_FALSE(uteiler::ratioRefused(-2.0));
}

TEST(UTeiler, ResistancePrefixBoundaries) {
  const auto& list = units::resistance();
  const auto at = [&](double r) { return units::place(list, uteiler::resistancePlacement(), r); };
  EXPECT_EQ(at(1000)->index, 0);
  EXPECT_DOUBLE_EQ(at(1000)->scaled, 1000.0);
  EXPECT_EQ(at(1000.5)->index, 1);
  EXPECT_EQ(at(1e6)->index, 1);
  EXPECT_DOUBLE_EQ(at(1e6)->scaled, 1000.0);
  EXPECT_EQ(at(4.7e6)->index, 2);
  EXPECT_DOUBLE_EQ(at(4.7e6)->scaled, 4.7);
  EXPECT_EQ(at(0.5)->index, 0);
}
