// Formulas and result units of the resonant circuit, the reactance forms,
// the RL network and the power form.
#include <gtest/gtest.h>

#include <QLocale>
#include <cmath>
#include <limits>
#include <utility>

#include "calculators/core/RLCalc.h"
#include "calculators/core/ReactanceCalc.h"
#include "calculators/core/SchwingkCalc.h"
#include "calculators/core/WattCalc.h"
#include "shell/core/NumberFormat.h"
#include "shell/core/UnitPrefix.h"

namespace {

// Unit name and field text (decimal point) of a result, "" when no unit fits.
std::pair<QString, QString> shown(const units::UnitList& list, const units::Placement& rule, double value,
                                  const char* pattern) {
  const auto p = units::place(list, rule, value);
  if (!p) return {QString(), QString()};
  return {list[size_t(p->index)].name, numfmt::format(p->scaled, pattern, QLocale::c())};
}
using Shown = std::pair<QString, QString>;
const QString mu = QStringLiteral("µ");

}  // namespace

TEST(Schwingk, ResonanceFormulasWithTheProgramsTwoPi) {
  EXPECT_EQ(schwingk::kTwoPi, 6.28318530717958);
  EXPECT_EQ(shown(units::frequency(), schwingk::frequencyPlacement(), schwingk::frequency(10e-6, 100e-12),
                  "####0.0########"),
            Shown("MHz", "5.03292121"));
  EXPECT_EQ(shown(units::inductance(), schwingk::inductancePlacement(), schwingk::inductance(1e6, 100e-12),
                  "####0.0###"),
            Shown(mu + "H", "253.303"));
  EXPECT_EQ(shown(units::capacitance(), schwingk::capacitancePlacement(), schwingk::capacitance(455e3, 1e-3),
                  "###0.0###"),
            Shown("pF", "122.3538"));
  // Each solved form returns the value the others started from.
  const double f = schwingk::frequency(2.2e-3, 47e-9);
  EXPECT_NEAR(schwingk::inductance(f, 47e-9), 2.2e-3, 1e-15);
  EXPECT_NEAR(schwingk::capacitance(f, 2.2e-3), 47e-9, 1e-20);
  EXPECT_FALSE(std::isfinite(schwingk::frequency(0.0, 1e-9)));
}

TEST(Schwingk, BoundaryValuesFallOnTheirSides) {
  const auto f = [](double v) { return shown(units::frequency(), schwingk::frequencyPlacement(), v, "0.0##"); };
  EXPECT_EQ(f(1e6), Shown("KHz", "1000.0"));
  EXPECT_EQ(f(1.5e6), Shown("MHz", "1.5"));
  EXPECT_EQ(f(1000.0), Shown("Hz", "1000.0"));
  EXPECT_EQ(f(1000.5), Shown("KHz", "1.001"));
  const auto l = [](double v) { return shown(units::inductance(), schwingk::inductancePlacement(), v, "0.0##"); };
  EXPECT_EQ(l(1.0), Shown("mH", "1000.0"));
  EXPECT_EQ(l(2.0), Shown("H", "2.0"));
  EXPECT_EQ(l(1e-3), Shown(mu + "H", "1000.0"));
  EXPECT_EQ(l(1e-6), Shown("nH", "1000.0"));
  EXPECT_EQ(l(5e-10), Shown("nH", "0.5"));
  const auto c = [](double v) { return shown(units::capacitance(), schwingk::capacitancePlacement(), v, "0.0##"); };
  EXPECT_EQ(c(1e-6), Shown("nF", "1000.0"));
  EXPECT_EQ(c(2e-6), Shown(mu + "F", "2.0"));
  EXPECT_EQ(c(1e-9), Shown("pF", "1000.0"));
  EXPECT_EQ(c(3e-15), Shown("pF", "0.003"));
}

TEST(Reactance, CapacitorFormulasAndUnits) {
  EXPECT_EQ(units::names(xc::reactanceUnits()), QStringList({"Ohm", "kOhm"}));
  EXPECT_EQ(shown(xc::reactanceUnits(), reactance::reactancePlacement(), xc::reactance(1000.0, 1e-6),
                  "####0.0######"),
            Shown("Ohm", "159.1549431"));
  // 50 Hz, 3,183 kOhm: just above 1 µF.
  const double c = xc::capacitance(50.0, 3183.0);
  EXPECT_GT(c, 1e-6);
  EXPECT_EQ(shown(units::capacitance(), xc::capacitancePlacement(), c, "###0.0####"), Shown(mu + "F", "1.00003"));
  EXPECT_NEAR(xc::frequency(3183.0, c), 50.0, 1e-9);
  const auto x = [](double v) { return shown(xc::reactanceUnits(), reactance::reactancePlacement(), v, "0.0##"); };
  EXPECT_EQ(x(1000.0), Shown("Ohm", "1000.0"));
  EXPECT_EQ(x(1500.0), Shown("kOhm", "1.5"));
  EXPECT_EQ(shown(units::capacitance(), xc::capacitancePlacement(), 1e-6, "0.0"), Shown("nF", "1000.0"));
}

TEST(Reactance, CoilFormulasAndUnits) {
  EXPECT_EQ(units::names(xl::reactanceUnits()), QStringList({"Ohm", "KOhm"}));
  EXPECT_EQ(shown(xl::reactanceUnits(), reactance::reactancePlacement(), xl::reactance(100e3, 10e-6),
                  "###0.0#######"),
            Shown("Ohm", "6.28318531"));
  EXPECT_EQ(shown(units::inductance(), xl::inductancePlacement(), xl::inductance(50.0, 1000.0), "####0.0####"),
            Shown("H", "3.1831"));
  EXPECT_EQ(shown(units::frequency(), reactance::frequencyPlacement(), xl::frequency(6.28318530717958, 1e-3),
                  "####0.0######"),
            Shown("Hz", "1000.0"));
  EXPECT_EQ(shown(xl::reactanceUnits(), reactance::reactancePlacement(), 2500.0, "0.0"), Shown("KOhm", "2.5"));
  EXPECT_EQ(shown(units::inductance(), xl::inductancePlacement(), 1.0, "0.0"), Shown("mH", "1000.0"));
}

TEST(RL, FormulasAndTheirOwnBoundarySides) {
  EXPECT_EQ(units::names(rl::inductanceUnits()), QStringList({"H", "mH", mu + "H", "nH"}));
  EXPECT_EQ(shown(units::frequency(), rl::frequencyPlacement(), rl::frequency(1000.0, 0.01), "####0.0########"),
            Shown("KHz", "15.915494309"));
  EXPECT_EQ(shown(units::resistance(), rl::resistancePlacement(), rl::resistance(50.0, 1.0), "####0.0####"),
            Shown("Ohm", "314.15927"));
  EXPECT_NEAR(rl::inductance(1000.0, 6.2831853), 1e-3, 1e-10);
  const auto l = [](double v) { return shown(rl::inductanceUnits(), rl::inductancePlacement(), v, "###0.0####"); };
  EXPECT_EQ(l(1.0), Shown("H", "1.0"));
  EXPECT_EQ(l(1e-3), Shown("mH", "1.0"));
  EXPECT_EQ(l(0.99999e-3), Shown(mu + "H", "999.99"));
  EXPECT_EQ(l(1e-6), Shown(mu + "H", "1.0"));
  EXPECT_EQ(l(5e-7), Shown("nH", "500.0"));
  const auto f = [](double v) { return shown(units::frequency(), rl::frequencyPlacement(), v, "0.0"); };
  EXPECT_EQ(f(1e6), Shown("KHz", "1000.0"));
  EXPECT_EQ(f(1000.0), Shown("Hz", "1000.0"));
  EXPECT_EQ(f(2e6), Shown("MHz", "2.0"));
  const auto r = [](double v) { return shown(units::resistance(), rl::resistancePlacement(), v, "0.0"); };
  EXPECT_EQ(r(1000.0), Shown("Ohm", "1000.0"));
  EXPECT_EQ(r(1e6), Shown("KOhm", "1000.0"));
  EXPECT_EQ(r(2e6), Shown("MOhm", "2.0"));
}

TEST(Overflow, AnOverflowingDivisorFailsInsteadOfGivingZero) {
  EXPECT_FALSE(std::isfinite(schwingk::frequency(1e300, 1e300)));
  EXPECT_FALSE(std::isfinite(schwingk::capacitance(1e200, 1.0)));
  EXPECT_FALSE(std::isfinite(xc::reactance(1e306, 1e300)));
  EXPECT_FALSE(std::isfinite(xl::inductance(1e308, 1.0)));
  EXPECT_FALSE(std::isfinite(rl::frequency(1.0, 1e308)));
  // A tiny quotient that does not overflow is a real result.
  EXPECT_EQ(xl::frequency(1e-300, 1e10), 1e-300 / (6.28318530717958 * 1e10));
}

TEST(Watt, AlternativesAreTriedInTheirOrder) {
  // U: R·I before √(R·P) before P/I.
  EXPECT_EQ(watt::voltage(100.0, 0.5, 1.0), 50.0);
  EXPECT_EQ(watt::voltage(100.0, 0.0, 1.0), 10.0);
  EXPECT_EQ(watt::voltage(0.0, 2.0, 24.0), 12.0);
  EXPECT_EQ(watt::voltage(0.0, 0.0, 24.0), 0.0);
  EXPECT_NEAR(watt::voltage(2000.0, 0.0, 0.005), 3.16227766016838, 1e-14);
  // I: P/U before U/R.
  EXPECT_EQ(watt::current(10.0, 1000.0, 1.0), 0.1);
  EXPECT_EQ(watt::current(10.0, 1000.0, 0.0), 0.01);
  EXPECT_EQ(watt::current(10.0, 0.0, 0.0), 0.0);
  // P: U·I before U²/R; R: U/I before U²/P.
  EXPECT_EQ(watt::power(12.0, 1000.0, 2.0), 24.0);
  EXPECT_EQ(watt::power(10.0, 100.0, 0.0), 1.0);
  EXPECT_EQ(watt::resistance(12.0, 2.0, 100.0), 6.0);
  EXPECT_EQ(watt::resistance(10.0, 0.0, 1.0), 100.0);
  EXPECT_EQ(watt::resistance(10.0, 0.0, 0.0), 0.0);
  // A voltage of 0 next to a power: the division fails, nothing is written.
  EXPECT_FALSE(std::isfinite(watt::current(0.0, 0.0, 5.0)));
  EXPECT_FALSE(std::isfinite(watt::power(1e200, 0.0, 1e200)));
  const double inf = std::numeric_limits<double>::infinity();
  EXPECT_FALSE(std::isfinite(watt::current(inf, 100.0, 5.0)));
  EXPECT_FALSE(std::isfinite(watt::resistance(10.0, 0.0, inf)));
  EXPECT_EQ(std::vector<int>(std::begin(watt::kSearchOrder), std::end(watt::kSearchOrder)),
            std::vector<int>({0, 2, 3, 1}));
}

TEST(Watt, UnitsFromAtOrAboveTheirLowerBoundAndNoneBelowTheSmallest) {
  const auto u = [](double v) { return shown(units::voltage(), watt::voltagePlacement(), v, "0.0###"); };
  EXPECT_EQ(u(1000.0), Shown("KV", "1.0"));
  EXPECT_EQ(u(999.5), Shown("V", "999.5"));
  EXPECT_EQ(u(1.0), Shown("V", "1.0"));
  EXPECT_EQ(u(1e-3), Shown("mV", "1.0"));
  EXPECT_EQ(u(0.5e-3), Shown());
  EXPECT_EQ(u(0.0), Shown());
  const auto i = [](double v) { return shown(units::current(), watt::currentPlacement(), v, "0.0###"); };
  EXPECT_EQ(i(1.0), Shown("A", "1.0"));
  EXPECT_EQ(i(0.1), Shown("mA", "100.0"));
  EXPECT_EQ(i(1e-6), Shown(mu + "A", "1.0"));
  EXPECT_EQ(i(0.9e-6), Shown());
  const auto p = [](double v) { return shown(watt::powerUnits(), watt::powerPlacement(), v, "0.0###"); };
  EXPECT_EQ(units::names(watt::powerUnits()), QStringList({mu + "W", "mW", "W", "KW"}));
  EXPECT_EQ(p(1000.0), Shown("KW", "1.0"));
  EXPECT_EQ(p(1.0), Shown("W", "1.0"));
  EXPECT_EQ(p(1e-3), Shown("mW", "1.0"));
  EXPECT_EQ(p(1e-6), Shown(mu + "W", "1.0"));
  EXPECT_EQ(p(1e-7), Shown());
  const auto r = [](double v) { return shown(units::resistance(), watt::resistancePlacement(), v, "0.0###"); };
  EXPECT_EQ(r(1000.0), Shown("Ohm", "1000.0"));
  EXPECT_EQ(r(1e6), Shown("KOhm", "1000.0"));
  EXPECT_EQ(r(0.0), Shown("Ohm", "0.0"));
}
