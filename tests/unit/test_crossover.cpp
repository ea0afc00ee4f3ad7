// Loudspeaker crossover: the component and frequency formulas, and the
// oddities of a run that the script tests of the form do not reach (those run
// all four networks in both directions and show every message).
#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <utility>

#include "crossover/core/Crossover.h"

using namespace lpbox;

namespace {

// A fresh form (impedances 4 ohm, f_u 598.6 Hz, the mode's default frequency,
// capacitor combos on µF, inductor combos on mH) with some texts changed.
Input fresh(Mode mode, std::initializer_list<std::pair<int, const char*>> changes) {
  Input in;
  in.text[1] = in.text[6] = in.text[8] = QStringLiteral("4");
  in.text[7] = QStringLiteral("598.6");
  in.text[9] = layout(mode).defaultFrequency;
  for (const auto& [field, text] : changes) in.text[field] = QString::fromUtf8(text);
  return in;
}

Outcome run(Mode mode, const Input& in) { return compute(mode, in, QLocale::c()); }

// Field -> "text unit" of the writes, e.g. {2, "13.751 µF"}; frequency fields without unit.
std::map<int, std::string> shown(const Outcome& out) {
  std::map<int, std::string> r;
  for (const Write& w : out.writes) {
    QString unit;
    for (const Slot& s : slotTable())
      if (s.field == w.field)
        unit = units::names(s.kind == Kind::Capacitor ? capacitorUnits() : inductorUnits()).at(w.unit);
    r[w.field] = (unit.isEmpty() ? w.text : w.text + QLatin1Char(' ') + unit).toStdString();
  }
  return r;
}

// The expected values are worked out independently, so the last bits may differ.
#define EXPECT_REL(a, b) EXPECT_NEAR((a), (b), std::fabs(b) * 1e-13)

}  // namespace

TEST(CrossoverFormulas, ComponentsAndFrequencies) {
  EXPECT_REL(C12(4, 1000), 2.8134884879909597e-05);   // √2 / (4π · 1000 · 4)
  EXPECT_REL(C6(4, 1000), 3.9788735772973843e-05);    // 1 / (2π · 1000 · 4)
  EXPECT_REL(C18a(4, 1000), 7.957747154594767e-05);   // 1 / (π · 1000 · 4)
  EXPECT_REL(C18b(4, 1000), 1.9894367886486922e-05);  // 1 / (4π · 1000 · 4)
  EXPECT_REL(L12(4, 1000), 9.003163161571062e-04);    // √2 · 4 / (2π · 1000)
  EXPECT_REL(L6(4, 1000), 6.366197723675814e-04);     // 4 / (2π · 1000)
  EXPECT_REL(L18a(4, 1000), 9.549296585513722e-04);   // 3 · 4 / (4π · 1000)
  EXPECT_REL(L18b(4, 1000), 4.774648292756861e-04);   // 3 · 4 / (8π · 1000)

  // The inductor wins over the capacitor; no impedance or no component gives 0.
  EXPECT_REL(F6(1e-3, 4, 1e-5), 636.6197723675814);   // 4 / (2π · 1 mH)
  EXPECT_REL(F6(0, 4, 1e-5), 3978.8735772973833);     // 1 / (2π · 10 µF · 4)
  EXPECT_REL(F12(1e-3, 4, 1e-5), 900.3163161571062);  // √2 · 4 / (2π · 1 mH)
  EXPECT_REL(F12(0, 4, 1e-5), 2813.4884879909594);    // √2 / (4π · 10 µF · 4)
  EXPECT_EQ(F6(1e-3, 0, 1e-5), 0.0);
  EXPECT_EQ(F12(1e-3, -4, 1e-5), 0.0);
  EXPECT_EQ(F6(0, 4, 0), 0.0);
  EXPECT_EQ(F12(-1, 4, -1), 0.0);

  // 2π · f · R overflows: the result must not pass as a component of 0 F.
  EXPECT_TRUE(std::isnan(C6(1e200, 1e200)));
  EXPECT_TRUE(std::isnan(L18b(1e308, 10)));
}

TEST(CrossoverRun, OddReadingsImpedancesAndHugeValues) {
  // A frequency that reads as 0 but is not empty is derived, not written back.
  auto m = shown(run(Mode::TwoWay6, fresh(Mode::TwoWay6, {{9, "0"}, {4, "0.22"}})));
  EXPECT_EQ(m.count(9), 0u);
  EXPECT_EQ(m.at(2), "13.75 µF");

  // 2W18: Text5 (LH) is read with ComboL2, not with ComboL1.
  Input in = fresh(Mode::TwoWay18, {{9, ""}, {10, "7.5"}, {5, "180"}});
  in.comboL2 = 0;  // µH
  in.comboL1 = 2;  // would be H
  EXPECT_EQ(shown(run(Mode::TwoWay18, in)).at(5), "180.0 µH");

  // 2W18: a CT given beside C1H is not missing, so it sets f = 1 / (π · 4 · 60 µF).
  m = shown(run(Mode::TwoWay18, fresh(Mode::TwoWay18, {{9, ""}, {10, "7.5"}, {2, "60"}, {4, "1"}})));
  EXPECT_EQ(m.at(9), "1326.29");

  // A negative impedance is not refused, only missing; R_MT does not matter in a two-way box.
  const Outcome out = run(Mode::ThreeWay12, fresh(Mode::ThreeWay12, {{6, "-4"}}));
  ASSERT_TRUE(out.message);
  EXPECT_EQ(out.message->text, "Bitte Lautsprecher-Impedanzen komplett eingeben!");
  EXPECT_FALSE(run(Mode::TwoWay6, fresh(Mode::TwoWay6, {{6, "0.05"}})).message);

  // Components too large to compute end the run quietly.
  const Outcome huge = run(Mode::TwoWay6, fresh(Mode::TwoWay6, {{1, "1e300"}, {8, "1e300"}, {9, "1e300"}}));
  EXPECT_TRUE(huge.writes.empty());
  EXPECT_FALSE(huge.message);
}

TEST(CrossoverRun, BoundaryValuesGoToTheSmallerUnit) {
  // A negative frequency is neither counted nor derived: the entered
  // components, completed by the network's ratios (C1H = C2H / 2), are only
  // shown again, each in its unit.
  Input in = fresh(Mode::TwoWay18, {{9, "-1"},
                                    {2, "1"},          // 1 µF
                                    {3, "1000000"},    // 1 F in µF, the largest unit
                                    {4, "1"},          // 1 mH
                                    {12, "1000"},      // 1 H, read with ComboL1 on mH
                                    {5, "1000000"}});  // 1 H, read with ComboL2 on µH
  in.comboL2 = 0;
  const Outcome out = run(Mode::TwoWay18, in);
  EXPECT_EQ(shown(out), (std::map<int, std::string>{{2, "1000.0 nF"}, {3, "1000000.0 µF"}, {10, "500000.0 µF"},
                                                    {4, "1000.0 µH"}, {12, "1000.0 mH"}, {5, "1000.0 mH"}}));
  EXPECT_FALSE(out.message);
}
