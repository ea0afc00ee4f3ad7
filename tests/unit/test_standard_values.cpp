// Standard values next to computed parts, and the divider pair search.
#include <gtest/gtest.h>

#include <QLocale>

#include "shell/core/StandardValues.h"

using eseries::Series;

namespace {
struct GermanLocale : ::testing::Test {
  void SetUp() override { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
  void TearDown() override { QLocale::setDefault(QLocale::c()); }
};
}  // namespace

TEST_F(GermanLocale, TextsOfStandardValues) {
  // (The Ohm's-law example 8 kOhm is checked through its form.)
  EXPECT_EQ(eseries::deviationText(-0.0123), "-1,23 %");
  // The unit is the one that puts the standard value at 1 or above.
  EXPECT_EQ(eseries::describe(Series::E12, 990.0, units::resistance()), "E12 1,0 KOhm (+1,01 %)");
  EXPECT_EQ(eseries::describe(Series::E6, 0.5e-12, units::capacitance()), "E6 0,47 pF (-6,0 %)");
  EXPECT_EQ(eseries::describe(Series::E24, 2.0e-3, units::inductance()), "E24 2,0 mH (0 %)");
  // Below the smallest unit the mantissa keeps its digits.
  EXPECT_EQ(eseries::describe(Series::E12, 3.183e-14, units::capacitance()), "E12 0,033 pF (+3,68 %)");
  EXPECT_EQ(eseries::describe(Series::E24, 0.0, units::inductance()), "");
}

TEST(StandardValues, DecadesAreExact) {
  // log10(1000) is a hair below 3 in floating point; 1000 still is 1,0 kOhm.
  for (double v : {1000.0, 1e-6, 1e-9, 10.0, 1e6, 100e-12}) {
    auto n = eseries::nearest(Series::E12, v);
    ASSERT_TRUE(n);
    EXPECT_EQ(n->value, v);
    EXPECT_EQ(n->deviation, 0.0);
  }
  EXPECT_EQ(eseries::deviationText(0.0), "0 %");
  // Just below a decade the next decade's 1,0 is nearest.
  EXPECT_EQ(eseries::nearest(Series::E24, 9.7e3)->value, 10e3);
  EXPECT_EQ(eseries::nearest(Series::E96, 0.99)->value, 1.0);
}

TEST(StandardValues, GeometricMeanIsTheBoundary) {
  // Between 4,7 and 5,1 (E24) the boundary is sqrt(4,7 * 5,1) = 4,8959: a
  // linear midpoint would send 4898 to 4,7 kOhm.
  EXPECT_EQ(eseries::nearest(Series::E24, 4898.0)->value, 5100.0);
  EXPECT_EQ(eseries::nearest(Series::E24, 4895.0)->value, 4700.0);
  // E6 between 4,7 and 6,8: boundary 5,653.
  EXPECT_NEAR(eseries::nearest(Series::E6, 5.65e-6)->value, 4.7e-6, 1e-18);
  EXPECT_NEAR(eseries::nearest(Series::E6, 5.66e-6)->value, 6.8e-6, 1e-18);
  // Capacitor values come out as the exact double of the printed value.
  EXPECT_EQ(eseries::nearest(Series::E12, 8.1e-9)->value, 8.2e-9);
}

TEST(StandardValues, E96HasNinetySixMantissasInOrder) {
  auto m = eseries::mantissas(Series::E96);
  ASSERT_EQ(m.size(), 96u);
  for (size_t k = 1; k < m.size(); ++k) EXPECT_LT(m[k - 1], m[k]);
  EXPECT_EQ(eseries::nearest(Series::E96, 3.0e3)->value, 3.01e3);
  EXPECT_EQ(eseries::nearest(Series::E96, 9.9e3)->value, 10e3);
}

TEST(StandardValues, NothingForValuesThatAreNoParts) {
  for (double v : {0.0, -5.0, std::numeric_limits<double>::infinity(), std::nan(""), 5e-324})
    EXPECT_FALSE(eseries::nearest(Series::E12, v).has_value()) << v;
}

TEST(StandardValues, DividerPairComesClosestWithinTheDecades) {
  // Ue/Ua = 3,3 from R1 = 23 kOhm and R2 = 10 kOhm.
  auto p = eseries::bestDividerPair(Series::E24, 23e3, 10e3, 3.3);
  ASSERT_TRUE(p);
  EXPECT_NEAR(p->ratio, (p->r1 + p->r2) / p->r2, 1e-12);
  // No pair of E24 values in those decades does better.
  for (double a : eseries::mantissas(Series::E24))
    for (double b : eseries::mantissas(Series::E24))
      EXPECT_LE(std::fabs(p->error), std::fabs(((a * 1e4 + b * 1e4) / (b * 1e4) - 3.3) / 3.3) + 1e-15);
  // An exact pair exists in E96 for 10: 9,09 k over 1,0 k is 10,09; 
  // 18,0 k over 2,0 k is exactly 10.
  auto q = eseries::bestDividerPair(Series::E24, 18e3, 2e3, 10.0);
  ASSERT_TRUE(q);
  EXPECT_DOUBLE_EQ(q->ratio, 10.0);
  EXPECT_FALSE(eseries::bestDividerPair(Series::E96, 0, 1e3, 2.0));
}
