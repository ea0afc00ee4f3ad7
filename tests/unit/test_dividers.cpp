// Capacitive and inductive matching dividers: the reading check, the result
// units, R1 through the coils, and the values handed to the resonant
// circuit. The worked examples, the order of the steps and their messages
// and the early end are exercised through the forms by the script tests.
#include <gtest/gtest.h>

#include <cmath>

#include "calculators/core/CTeilerCalc.h"
#include "calculators/core/L2TeilerCalc.h"
#include "shell/core/UnitPrefix.h"

using namespace divider;

namespace {

Empty emptyFields(std::initializer_list<Field> fields) {
  Empty e{};
  for (Field f : fields) e[size_t(f)] = true;
  return e;
}

// The steps of a run in a compact form: "M:<text>", "S<field>", "C<field>".
std::vector<std::string> trace(const divider::Run& run) {
  std::vector<std::string> r;
  for (const Step& s : run.steps) {
    if (s.kind == Step::Message)
      r.push_back("M:" + s.text.toStdString());
    else
      r.push_back((s.kind == Step::Show ? "S" : "C") + std::to_string(int(s.field)));
  }
  return r;
}

double shown(const divider::Run& run, Field f) {
  double v = NAN;
  for (const Step& s : run.steps)
    if (s.kind == Step::Show && s.field == f) v = s.value;
  return v;
}

}  // namespace

TEST(DividerCheck, RangeMessagesInReadingOrderAndTheCount) {
  Values v;
  v.u = 1.0;  // exactly 1 is refused, before a wrong matching ratio
  v.a = 0.5;
  v.f = 1e6;
  v.r1 = 50;
  v.r2 = 1000;
  auto n = check(v);
  ASSERT_TRUE(n);
  EXPECT_EQ(n->text, QString::fromUtf8("Das Spannungsverhältnis muß >1,0 sein!"));
  EXPECT_TRUE(n->warning);

  v.u = 0;  // zero is merely unknown
  v.a = 1.0;
  EXPECT_EQ(check(v)->text, QString::fromUtf8("Das Anpassungsverhältnis muß >1,0 sein!"));

  v.a = 0;
  v.r2 = 49;
  EXPECT_EQ(check(v)->text, QString::fromUtf8("R1 muß kleiner bis gleich R2 sein!"));
  v.r2 = 50;  // equal is allowed
  EXPECT_FALSE(check(v));

  // Two values only; a refused value never reaches the count.
  Values two;
  two.u = 2;
  two.f = 1e6;
  n = check(two);
  ASSERT_TRUE(n);
  EXPECT_EQ(n->text, "Bitte min. drei Werte eingeben!");
  EXPECT_FALSE(n->warning);
  two.r2 = 100;  // R2 without R1 counts
  EXPECT_FALSE(check(two));
}

TEST(DividerUnits, BoundariesFallOnTheirOwnSides) {
  const auto at = [](const units::UnitList& l, const units::Placement& p, double v) { return units::place(l, p, v)->index; };
  EXPECT_EQ(at(units::resistance(), resistancePlacement(), 1e6), 2);  // 1 MOhm
  EXPECT_EQ(at(units::resistance(), resistancePlacement(), 1e3), 1);
  EXPECT_EQ(at(units::resistance(), resistancePlacement(), 999.9), 0);
  EXPECT_EQ(at(units::capacitance(), capacitancePlacement(), 1e-6), 1);  // 1000 nF
  EXPECT_NEAR(units::place(units::capacitance(), capacitancePlacement(), 1e-6)->scaled, 1000, 1e-9);
  EXPECT_EQ(at(units::capacitance(), capacitancePlacement(), 1e-9), 0);
  EXPECT_EQ(at(units::frequency(), frequencyPlacement(), 1e6), 1);  // 1000 KHz
  EXPECT_EQ(at(units::frequency(), frequencyPlacement(), 1e3), 2);
  EXPECT_EQ(at(units::frequency(), frequencyPlacement(), 1000.5), 1);
}

TEST(CTeiler, HandOverCapacitance) {
  EXPECT_NEAR(cteiler::seriesCapacitance(300e-12, 100e-12), 75e-12, 1e-24);
  EXPECT_EQ(cteiler::seriesCapacitance(1e-9, -1e-9), 0);  // division by zero skipped
  const auto p = cteiler::handOverPlacement();
  EXPECT_EQ(units::place(units::capacitance(), p, 1e-6)->index, 2);  // 1 µF stays µF here
  EXPECT_EQ(units::place(units::capacitance(), p, 1e-9)->index, 1);
  EXPECT_EQ(units::place(units::capacitance(), p, 0.99e-9)->index, 0);
}

TEST(L2Teiler, ResistancesFromTheCoils) {
  // L1 = 1 µH, L2 = 3 µH: ü = 4; R1 = R2 / 16 in preference to ü.
  Values v;
  v.u = 2;  // typed ratio differs; the coils win for R1
  v.r2 = 1600;
  v.x1 = 1e-6;
  v.x2 = 3e-6;
  divider::Run run = l2teiler::compute(v, emptyFields({Res1, Freq}), false);
  EXPECT_NEAR(shown(run, Res1), 100, 1e-9);
  EXPECT_NEAR(shown(run, Freq), 100 / (17 * l2teiler::kTwoPi * 1e-6), 1e-3);
  EXPECT_EQ(trace(run), (std::vector<std::string>{"S3", "S5", "S6", "S2"}));
}

TEST(L2Teiler, HandOverInductance) {
  EXPECT_NEAR(l2teiler::totalInductance(1e-6, 3e-6, false), 4e-6, 1e-18);
  // One coil: the turns add, so the inductance grows with their square.
  const double k = l2teiler::turnsConstant();
  EXPECT_NEAR(l2teiler::totalInductance(k * 25, k * 100, true), k * 225, 1e-18);
  EXPECT_EQ(l2teiler::totalInductance(-1e-6, 1e-6, true), k * (std::sqrt(1e-6 / k) * std::sqrt(1e-6 / k)));
  const auto p = l2teiler::handOverPlacement();
  EXPECT_EQ(units::place(units::inductance(), p, 1.0)->index, 3);
  EXPECT_EQ(units::place(units::inductance(), p, 1e-3)->index, 2);
  EXPECT_EQ(units::place(units::inductance(), p, 0.99e-3)->index, 1);
}
