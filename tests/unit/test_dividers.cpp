// Capacitive and inductive matching dividers: the reading check, the fixed
// order of the computing steps with their messages, the early end of the
// inductive divider, the result units and the values handed to the
// resonant circuit.
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

const std::string kMustBeEmpty = "M:Das zu berechnende Feld muß leer sein!";

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

TEST(CTeiler, WorkedExampleFillsRatiosAndBothCapacitors) {
  Values v;
  v.r1 = 50;
  v.r2 = 1000;
  v.f = 10e6;
  const divider::Run run = cteiler::compute(v, emptyFields({Ratio, Matching, Part1, Part2}));
  EXPECT_EQ(trace(run), (std::vector<std::string>{"S0", "S1", "S6", "C5", "S5"}));
  EXPECT_NEAR(shown(run, Ratio), std::sqrt(20.0), 1e-12);
  EXPECT_NEAR(shown(run, Matching), 20, 1e-12);
  EXPECT_NEAR(shown(run, Part2) * 1e12, 225.843, 1e-3);
  EXPECT_NEAR(shown(run, Part1) * 1e12, 784.157, 1e-3);
  EXPECT_EQ(run.computed, 4);
  EXPECT_TRUE(run.enableHandOver);
  // The design relation holds for the result.
  EXPECT_NEAR(run.values.r1 * run.values.u * run.values.f * run.values.x2, 0.505, 1e-12);
}

TEST(CTeiler, FailingStepsShowTheirMessagesAndTheRunGoesOn) {
  // C1 and f given, nothing to reach R1 from: R1 and R2 come out 0 and are
  // shown; C2 from C1 and the resistances divides 0 by 0 and is skipped; C1
  // keeps its value; the frequency is asked for.
  Values v;
  v.u = 2;
  v.f = 1e6;
  v.x1 = 100e-12;
  divider::Run run = cteiler::compute(v, emptyFields({Matching, Res1, Res2, Part2}));
  EXPECT_EQ(trace(run),
            (std::vector<std::string>{"S1", "M:Bitte min. das Spannungsverhältnis oder \r\neinen der Widerstände oder C2 eingeben!",
                                      "S3", "S4"}));
  EXPECT_EQ(shown(run, Res1), 0);
  EXPECT_EQ(shown(run, Res2), 0);
  EXPECT_EQ(run.values.x1, 100e-12);

  // All fields filled: nothing to compute.
  Values full;
  full.u = 2;
  full.a = 4;
  full.f = 1e6;
  full.r1 = 50;
  full.r2 = 200;
  full.x1 = 1e-9;
  full.x2 = 1e-9;
  run = cteiler::compute(full, Empty{});
  EXPECT_EQ(trace(run), std::vector<std::string>{kMustBeEmpty});
  EXPECT_FALSE(run.enableHandOver);
}

TEST(CTeiler, CapacitorsGiveRatiosAndFrequencyWithoutResistances) {
  // C1 = 300 pF, C2 = 100 pF, R1 = 50 Ohm: ü = C1/C2 + 1 = 4, a = 16,
  // R2 = 50 · 16, f from the design relation.
  Values v;
  v.r1 = 50;
  v.x1 = 300e-12;
  v.x2 = 100e-12;
  const divider::Run run = cteiler::compute(v, emptyFields({Ratio, Matching, Res2, Freq}));
  EXPECT_EQ(trace(run), (std::vector<std::string>{"S0", "S1", "S4", "S2"}));
  EXPECT_NEAR(shown(run, Ratio), 4, 1e-12);
  EXPECT_NEAR(shown(run, Matching), 16, 1e-12);
  EXPECT_NEAR(shown(run, Res2), 800, 1e-9);
  EXPECT_NEAR(shown(run, Freq), 0.505 / (100e-12 * 4 * 50), 1e-3);

  // Without anything for the ratios both messages come, and without C2 the
  // frequency cannot follow.
  Values w;
  w.r1 = 50;
  w.f = 1e6;
  w.x1 = 1e-9;
  const divider::Run none = cteiler::compute(w, emptyFields({Ratio, Matching}));
  EXPECT_EQ(trace(none),
            (std::vector<std::string>{
                "M:Bitte min. das Anpassungverhältnis oder \r\nbeide Widerstände oder beide Kondensatoren eingeben!",
                "M:Bitte min. das Spannungsverhältnis oder \r\nbeide Widerstände oder beide Kondensatoren eingeben!",
                kMustBeEmpty}));
}

TEST(CTeiler, HandOverCapacitance) {
  EXPECT_NEAR(cteiler::seriesCapacitance(300e-12, 100e-12), 75e-12, 1e-24);
  EXPECT_EQ(cteiler::seriesCapacitance(1e-9, -1e-9), 0);  // division by zero skipped
  const auto p = cteiler::handOverPlacement();
  EXPECT_EQ(units::place(units::capacitance(), p, 1e-6)->index, 2);  // 1 µF stays µF here
  EXPECT_EQ(units::place(units::capacitance(), p, 1e-9)->index, 1);
  EXPECT_EQ(units::place(units::capacitance(), p, 0.99e-9)->index, 0);
}

TEST(L2Teiler, WorkedExampleWithTwoCoilsAndWithATappedCoil) {
  Values v;
  v.r1 = 50;
  v.r2 = 1000;
  v.f = 1e6;
  const Empty e = emptyFields({Ratio, Matching, Part1, Part2});
  divider::Run run = l2teiler::compute(v, e, false);
  EXPECT_EQ(trace(run), (std::vector<std::string>{"S0", "S1", "S5", "S6"}));
  EXPECT_NEAR(shown(run, Part1) * 1e6, 0.46810, 1e-5);
  EXPECT_NEAR(shown(run, Part2) * 1e6, 1.62532, 1e-5);
  EXPECT_EQ(run.computed, 4);
  EXPECT_TRUE(run.enableHandOver);

  run = l2teiler::compute(v, e, true);
  EXPECT_NEAR(shown(run, Part1) * 1e6, 0.10468, 1e-5);
  EXPECT_NEAR(shown(run, Part2) * 1e6, 1.26188, 1e-5);
  // The turns below and above the tap make up the whole coil, and the whole
  // coil has ü times the turns below the tap.
  const double k = l2teiler::turnsConstant();
  const double n1 = std::sqrt(shown(run, Part1) / k), n2 = std::sqrt(shown(run, Part2) / k);
  EXPECT_NEAR((n1 + n2) / n1, std::sqrt(20.0), 1e-9);

  // Typed coils are rewritten, tapped or not, and a typed value above 1 H
  // asks for a unit the combo does not have.
  Values typed;
  typed.r1 = 50;
  typed.r2 = 200;
  typed.x1 = 2;
  typed.x2 = 2e-3;
  run = l2teiler::compute(typed, emptyFields({Ratio}), false);
  EXPECT_EQ(trace(run), (std::vector<std::string>{"S0", "S5", "S6"}));
  const auto placed = units::place(units::UnitList{{"µH", -6}, {"mH", -3}}, l2teiler::inductancePlacement(), 2);
  EXPECT_EQ(placed->index, 2);
  EXPECT_EQ(placed->scaled, 2);
}

TEST(L2Teiler, AnInductanceThatComesOutZeroEndsTheRun) {
  // L1: neither f with R1 nor a way through L2.
  Values v;
  v.u = 3;
  v.r1 = 50;
  v.a = 9;
  divider::Run run = l2teiler::compute(v, emptyFields({Res2, Part1, Part2, Freq}), false);
  EXPECT_EQ(trace(run), (std::vector<std::string>{
                            "S4", "M:Bitte min. das Spannungsverhältnis oder \r\nbeide Widerstände oder L2 eingeben!", "C5"}));
  EXPECT_TRUE(run.endedEarly);
  EXPECT_FALSE(run.enableHandOver);

  // L1 from L2 with R1 = R2: √1 − 1 divides by zero, L1 stays 0, the run
  // ends silently.
  Values w;
  w.r1 = 50;
  w.r2 = 50;
  w.x2 = 1e-6;
  run = l2teiler::compute(w, emptyFields({Ratio, Part1}), false);
  EXPECT_EQ(trace(run), (std::vector<std::string>{"S0", "C5"}));

  // L1 typed as 0 and no frequency: L2 asks for it and ends the run.
  Values z;
  z.u = 2;
  z.r1 = 50;
  z.r2 = 200;
  run = l2teiler::compute(z, emptyFields({Part2, Freq}), false);
  EXPECT_EQ(trace(run), (std::vector<std::string>{"M:Bitte Frequenz eingeben!", "C6"}));
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
