// Number parsing, number patterns and unit placement shared by every form.
#include <gtest/gtest.h>

#include <QLocale>
#include <cmath>
#include <limits>

#include "calculators/core/OhmCalc.h"
#include "shell/core/Json.h"
#include "shell/core/Module1.h"
#include "shell/core/NumberFormat.h"
#include "shell/core/UnitPrefix.h"

using Module1::ParseNumber;

TEST(ParseNumber, ReadsLeadingNumberAfterFirstComma) {
  EXPECT_EQ(ParseNumber(""), 0.0);
  EXPECT_EQ(ParseNumber("abc"), 0.0);
  EXPECT_EQ(ParseNumber("1,5"), 1.5);
  EXPECT_EQ(ParseNumber("2.5e3"), 2500.0);
  EXPECT_EQ(ParseNumber("1,5,2"), 1.5);
  EXPECT_EQ(ParseNumber("1.234,5"), 1.234);
  EXPECT_EQ(ParseNumber("2E-3"), 0.002);
  EXPECT_EQ(ParseNumber(" 5"), 5.0);
  EXPECT_EQ(ParseNumber("-4"), -4.0);
  EXPECT_EQ(ParseNumber(",5"), 0.5);
  EXPECT_EQ(ParseNumber("12 V"), 12.0);
  EXPECT_EQ(ParseNumber("3e"), 3.0);
  EXPECT_EQ(ParseNumber("0.0175        (Kupfer)"), 0.0175);
}

TEST(ParseNumber, NumbersBeyondDoubleAndOddTextGiveZero) {
  EXPECT_EQ(ParseNumber("1e999"), 0.0);
  EXPECT_EQ(ParseNumber("inf"), 0.0);
  EXPECT_EQ(ParseNumber("nan"), 0.0);
  EXPECT_EQ(ParseNumber("-"), 0.0);
  EXPECT_EQ(ParseNumber(QString(10000, '9')), 0.0);  // too large for a double
}

TEST(Powers, Log10AndTenPow) {
  EXPECT_NEAR(Module1::Log10(1000), 3.0, 1e-15);
  EXPECT_EQ(Module1::TenPow(-3), 0.001);
  EXPECT_EQ(Module1::TenPow(6), 1e6);
}

TEST(NumberFormat, PatternsFollowDigitRules) {
  const QLocale c = QLocale::c();
  EXPECT_EQ(numfmt::format(8000 / 1000.0, "####0.0###", c), "8.0");
  EXPECT_EQ(numfmt::format(3.16227766016838, "####0.0###", c), "3.1623");
  EXPECT_EQ(numfmt::format(0.25, "###0.0", c), "0.3");   // half away from zero
  EXPECT_EQ(numfmt::format(-0.25, "###0.0", c), "-0.3");
  EXPECT_EQ(numfmt::format(9.99996, "####0.0###", c), "10.0");
  EXPECT_EQ(numfmt::format(0.5, "##0", c), "1");
  EXPECT_EQ(numfmt::format(1234.5678, "###0.000#", c), "1234.5678");
  EXPECT_EQ(numfmt::format(2.4, "###", c), "2");
  EXPECT_EQ(numfmt::format(0.1, "0.0", c), "0.1");
  EXPECT_EQ(numfmt::format(1e-7, "####0.0###", c), "0.0");
  EXPECT_EQ(numfmt::format(-1e-7, "####0.0###", c), "0.0");  // no "-0,0"
  EXPECT_EQ(numfmt::format(1e20, "###0.0#", c), "100000000000000000000.0");
  EXPECT_EQ(numfmt::format(159.15494309189535, "####0.0######", c), "159.1549431");
}

TEST(NumberFormat, LocaleSeparatorAndNoInfinity) {
  const QLocale de(QLocale::German, QLocale::Germany);
  EXPECT_EQ(numfmt::format(1000, "####0.0###", de), "1000,0");
  EXPECT_EQ(numfmt::format(0.891267681314614 * 1000, "####0.0###", de), "891,2677");
  EXPECT_EQ(numfmt::format(std::numeric_limits<double>::infinity(), "0.0", de), "");
  EXPECT_EQ(numfmt::format(std::nan(""), "0.0", de), "");
  EXPECT_EQ(numfmt::plain(2.5, de), "2,5");
  EXPECT_EQ(ParseNumber(numfmt::format(4.7, "####0.0###", de)), 4.7);
}

TEST(UnitPlacement, OhmRulesKeepTheirBoundarySides) {
  using units::place;
  auto v = [](double x) { return *place(units::voltage(), ohm::voltagePlacement(), x); };
  EXPECT_EQ(v(1.0).index, 0);  // exactly 1 V -> 1000 mV
  EXPECT_EQ(v(1.0).scaled, 1000.0);
  EXPECT_EQ(v(1000.0).index, 1);  // exactly 1000 V stays V
  EXPECT_EQ(v(1000.5).index, 2);
  auto r = [](double x) { return *place(units::resistance(), ohm::resistancePlacement(), x); };
  EXPECT_EQ(r(1000.0).index, 0);
  EXPECT_EQ(r(1e6).index, 1);
  EXPECT_EQ(r(1e6).scaled, 1000.0);
  EXPECT_EQ(r(4700).scaled, 4.7);
  auto i = [](double x) { return *place(units::current(), ohm::currentPlacement(), x); };
  EXPECT_EQ(i(1.0).index, 2);
  EXPECT_EQ(i(0.001).index, 1);
  EXPECT_EQ(i(0.001).scaled, 1.0);
  EXPECT_EQ(i(1e-6).index, 0);
  EXPECT_EQ(i(1e-6).scaled, 1.0);
}

TEST(UnitPlacement, NoUnitWhenNothingMatches) {
  const units::Placement onlyAbove{{{units::Cmp::GreaterEq, 1.0, 1}}, -1};
  EXPECT_FALSE(units::place(units::voltage(), onlyAbove, 0.5).has_value());
  EXPECT_EQ(units::factorAt(units::voltage(), 7), 1.0);
}

TEST(Json, QuotesControlCharacters) {
  EXPECT_EQ(json::quote("a\"b\\c\r\n\t\x01"), "\"a\\\"b\\\\c\\r\\n\\t\\u0001\"");
  EXPECT_EQ(json::Object().add("x", 1).add("y", true).str(), "{\"x\":1,\"y\":true}");
}
