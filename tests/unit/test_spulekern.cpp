// Coil on a core: L = N² · AL, the two combo lists and their prefix rules.
#include <gtest/gtest.h>

#include "calculators/core/SpuleKernCalc.h"
#include "shell/core/Module1.h"

using namespace spulekern;

TEST(SpuleKern, FormulasSolveEachOther) {
  EXPECT_NEAR(inductance(250e-9, 20), 100e-6, 1e-18);
  EXPECT_NEAR(alValue(1e-3, 10), 1e-5, 1e-18);
  EXPECT_NEAR(turns(100e-6, 250e-9), 20.0, 1e-12);
  EXPECT_NEAR(turns(1e-3, 300e-9), 57.735026918962575, 1e-12);  // not rounded to whole turns
}

TEST(SpuleKern, CombosRunInOppositeDirections) {
  EXPECT_EQ(units::names(alUnits()), QStringList({"mH", QStringLiteral("µH"), "nH"}));
  EXPECT_EQ(units::names(inductanceUnits()), QStringList({"nH", QStringLiteral("µH"), "mH", "H"}));
  EXPECT_DOUBLE_EQ(units::factorAt(alUnits(), kAlStart), Module1::TenPow(-9));
  EXPECT_DOUBLE_EQ(units::factorAt(inductanceUnits(), kInductanceStart), Module1::TenPow(-6));
  EXPECT_DOUBLE_EQ(units::factorAt(alUnits(), 0), Module1::TenPow(-3));
}

TEST(SpuleKern, AlPrefixBoundaries) {
  const auto at = [](double al) { return *units::place(alUnits(), alPlacement(), al); };
  EXPECT_EQ(at(1.25).index, 0);
  EXPECT_DOUBLE_EQ(at(1.25).scaled, 1250.0);
  EXPECT_EQ(at(Module1::TenPow(-3)).index, 1);  // 1 mH shows as 1000 µH
  EXPECT_DOUBLE_EQ(at(Module1::TenPow(-3)).scaled, 1000.0);
  EXPECT_EQ(at(1e-5).index, 1);
  EXPECT_EQ(at(Module1::TenPow(-6)).index, 2);  // 1 µH shows as 1000 nH
  EXPECT_EQ(at(250e-9).index, 2);
}

TEST(SpuleKern, InductancePrefixBoundaries) {
  const auto at = [](double l) { return *units::place(inductanceUnits(), inductancePlacement(), l); };
  EXPECT_EQ(at(10).index, 3);
  EXPECT_EQ(at(1).index, 2);
  EXPECT_DOUBLE_EQ(at(1).scaled, 1000.0);
  EXPECT_EQ(at(Module1::TenPow(-3)).index, 1);
  EXPECT_DOUBLE_EQ(at(Module1::TenPow(-3)).scaled, 1000.0);
  EXPECT_EQ(at(Module1::TenPow(-6)).index, 0);
  EXPECT_EQ(at(5e-8).index, 0);
  EXPECT_NEAR(at(5e-8).scaled, 50.0, 1e-9);
}
