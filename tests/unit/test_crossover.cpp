// Loudspeaker crossover computation: formulas, both directions in every
// network, the checks and guards, and the deliberate oddities of the form.
#include <gtest/gtest.h>

#include <QLocale>
#include <cmath>
#include <map>

#include "crossover/core/Crossover.h"

using namespace lpbox;

namespace {

// A fresh form: impedances 4 ohm, f_u 598.6 Hz, the mode's default frequency,
// empty components, capacitor combos on µF and inductor combos on mH.
Input fresh(Mode mode) {
  Input in;
  in.text[1] = in.text[6] = in.text[8] = QStringLiteral("4");
  in.text[7] = QStringLiteral("598.6");
  in.text[9] = layout(mode).defaultFrequency;
  return in;
}

// Field -> "text unit" of the writes, e.g. {2, "13.751 µF"}; frequency fields without unit.
std::map<int, QString> shown(const Outcome& out) {
  std::map<int, QString> r;
  for (const Write& w : out.writes) {
    QString unit;
    for (const Slot& s : slotTable())
      if (s.field == w.field)
        unit = units::names(s.kind == Kind::Capacitor ? capacitorUnits() : inductorUnits()).at(w.unit);
    r[w.field] = unit.isEmpty() ? w.text : w.text + QLatin1Char(' ') + unit;
  }
  return r;
}

// Relative comparison: the expected values are worked out independently, so
// the last bits of the product order may differ.
#define EXPECT_REL(a, b) EXPECT_NEAR((a), (b), std::fabs(b) * 1e-13)

Outcome run(Mode mode, const Input& in) { return compute(mode, in, QLocale::c()); }

QString messageOf(Mode mode, const Input& in) {
  const Outcome out = run(mode, in);
  EXPECT_TRUE(out.writes.empty());
  return out.message ? out.message->text : QString();
}

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
  EXPECT_REL(F6(1e-3, 4, 1e-5), 636.6197723675814);    // 4 / (2π · 1 mH)
  EXPECT_REL(F6(0, 4, 1e-5), 3978.8735772973833);      // 1 / (2π · 10 µF · 4)
  EXPECT_REL(F12(1e-3, 4, 1e-5), 900.3163161571062);   // √2 · 4 / (2π · 1 mH)
  EXPECT_REL(F12(0, 4, 1e-5), 2813.4884879909594);     // √2 / (4π · 10 µF · 4)
  EXPECT_EQ(F6(1e-3, 0, 1e-5), 0.0);
  EXPECT_EQ(F12(1e-3, -4, 1e-5), 0.0);
  EXPECT_EQ(F6(0, 4, 0), 0.0);
  EXPECT_EQ(F12(-1, 4, -1), 0.0);
}

TEST(CrossoverFormulas, OverflowIsNotAQuietZero) {
  // 2π · f · R overflows: the result must not pass as a component of 0 F.
  EXPECT_TRUE(std::isnan(C6(1e200, 1e200)));
  EXPECT_TRUE(std::isnan(L18b(1e308, 10)));
}

// Components from the default frequency of each mode, impedances 4 ohm.
TEST(CrossoverFromFrequency, AllFourNetworks) {
  using M = std::map<int, QString>;
  Outcome out = run(Mode::TwoWay6, fresh(Mode::TwoWay6));
  EXPECT_EQ(shown(out), (M{{2, "13.751 µF"}, {4, "220.01 µH"}}));
  EXPECT_FALSE(out.message);
  EXPECT_EQ(out.displayed, 2);

  out = run(Mode::TwoWay12, fresh(Mode::TwoWay12));  // f = 2725
  EXPECT_EQ(shown(out),
            (M{{2, "10.325 µF"}, {10, "10.325 µF"}, {4, "330.391 µH"}, {12, "330.391 µH"}}));

  out = run(Mode::TwoWay18, fresh(Mode::TwoWay18));  // f = 2650
  EXPECT_EQ(shown(out), (M{{2, "30.029 µF"},
                                           {10, "7.507 µF"},
                                           {3, "15.015 µF"},
                                           {4, "360.351 µH"},
                                           {12, "180.175 µH"},
                                           {5, "180.175 µH"}}));

  out = run(Mode::ThreeWay12, fresh(Mode::ThreeWay12));  // f_u = 598.6, f_o = 2800
  EXPECT_EQ(shown(out), (M{{2, "47.001 µF"},
                                             {10, "47.001 µF"},
                                             {3, "10.048 µF"},
                                             {11, "10.048 µF"},
                                             {4, "1.504 mH"},
                                             {12, "1.504 mH"},
                                             {5, "321.542 µH"},
                                             {13, "321.542 µH"}}));
  EXPECT_EQ(out.displayed, 8);
}

TEST(CrossoverFromFrequency, EnteredComponentsAreReplacedAndDisplayOrderIsSlotOrder) {
  Input in = fresh(Mode::TwoWay12);
  in.text[12] = "99";
  in.text[2] = "1";
  const Outcome out = run(Mode::TwoWay12, in);
  ASSERT_EQ(out.writes.size(), 4u);
  EXPECT_EQ(out.writes[0].field, 2);
  EXPECT_EQ(out.writes[1].field, 4);
  EXPECT_EQ(out.writes[2].field, 10);
  EXPECT_EQ(out.writes[3].field, 12);
  EXPECT_EQ(out.writes[3].text, "330.391");
}

// The frequency from entered components, written into the empty field, then
// the whole network from it.
TEST(CrossoverFromComponents, AllFourNetworks) {
  using M = std::map<int, QString>;
  Input in = fresh(Mode::TwoWay6);
  in.text[9] = "";
  in.text[4] = "0.22";  // mH: f = 4 / (2π · 0.22 mH)
  EXPECT_EQ(shown(run(Mode::TwoWay6, in)), (M{{2, "13.75 µF"}, {4, "220.0 µH"}, {9, "2893.73"}}));

  in = fresh(Mode::TwoWay12);
  in.text[9] = "";
  in.text[8] = "8";
  in.text[10] = "10";  // CH first: f = √2 / (4π · 10 µF · 8)
  in.text[4] = "5";    // LT would give another frequency
  EXPECT_EQ(shown(run(Mode::TwoWay12, in)),
            (M{{2, "20.0 µF"}, {10, "10.0 µF"}, {4, "640.0 µH"}, {12, "1.28 mH"}, {9, "1406.74"}}));

  in = fresh(Mode::TwoWay18);
  in.text[9] = "";
  in.text[10] = "7.5";  // C1H → CT = 30 µF, f = 1 / (π · 4 · 30 µF)
  in.text[5] = "0.18";  // LH
  Outcome out = run(Mode::TwoWay18, in);
  EXPECT_EQ(shown(out), (M{{2, "30.0 µF"},
                                           {10, "7.5 µF"},
                                           {3, "15.0 µF"},
                                           {4, "360.0 µH"},
                                           {12, "180.0 µH"},
                                           {5, "180.0 µH"},
                                           {9, "2652.58"}}));

  in = fresh(Mode::ThreeWay12);
  in.text[7] = "";
  in.text[9] = "";
  in.text[2] = "47";   // C1T: f_u = √2 / (4π · 47 µF · 4)
  in.text[11] = "10";  // C2H: f_o = √2 / (4π · 10 µF · 4)
  in.text[5] = "5";    // L2M comes after C2H in the order
  out = run(Mode::ThreeWay12, in);
  EXPECT_EQ(shown(out), (M{{2, "47.0 µF"},
                                             {10, "47.0 µF"},
                                             {3, "10.0 µF"},
                                             {11, "10.0 µF"},
                                             {4, "1.504 mH"},
                                             {12, "1.504 mH"},
                                             {5, "320.0 µH"},
                                             {13, "320.0 µH"},
                                             {7, "598.61"},
                                             {9, "2813.49"}}));
  EXPECT_EQ(out.displayed, 8);
}

TEST(CrossoverFromComponents, OddReadingsKept) {
  // 2W6 tests R_TT but derives f from the capacitor with R_HT.
  Input in = fresh(Mode::TwoWay6);
  in.text[9] = "";
  in.text[8] = "8";
  in.text[2] = "10";  // f = 1 / (2π · 8 · 10 µF)
  EXPECT_EQ(shown(run(Mode::TwoWay6, in)).at(9), "1989.44");

  // Text10 is read with ComboC1, not with its own combo.
  in = fresh(Mode::TwoWay12);
  in.text[9] = "";
  in.text[10] = "10";
  in.text[12] = "5";
  in.comboC1 = 1;  // nF: CH = 10 nF → f = √2 / (4π · 10 nF · 4) = 2813488.5
  EXPECT_EQ(shown(run(Mode::TwoWay12, in)).at(9), "2813488.49");

  // Text5 (LH in 2W18) is read with ComboL2.
  in = fresh(Mode::TwoWay18);
  in.text[9] = "";
  in.text[10] = "7.5";
  in.text[5] = "180";
  in.comboL2 = 0;  // µH
  in.comboL1 = 2;  // would be H
  EXPECT_EQ(shown(run(Mode::TwoWay18, in)).at(5), "180.0 µH");

  // A frequency that reads as 0 but is not empty is derived, not written back.
  in = fresh(Mode::TwoWay6);
  in.text[9] = "0";
  in.text[4] = "0.22";
  const auto m = shown(run(Mode::TwoWay6, in));
  EXPECT_EQ(m.count(9), 0u);
  EXPECT_EQ(m.at(2), "13.75 µF");
}

TEST(CrossoverFromComponents, EighteenDbCompletionOrder) {
  // Only C2H and L2T: C1H = C2H / 2, CT = 2 C2H, LH = L2T, L1T = 2 L2T, all
  // replaced afterwards from f = 1 / (π · R_TT · CT).
  Input in = fresh(Mode::TwoWay18);
  in.text[9] = "";
  in.text[3] = "15";
  in.text[12] = "0.18";
  EXPECT_EQ(shown(run(Mode::TwoWay18, in)).at(9), "2652.58");

  // CT given next to C1H: CT is not missing, so it sets f.
  in = fresh(Mode::TwoWay18);
  in.text[9] = "";
  in.text[10] = "7.5";
  in.text[2] = "60";
  in.text[4] = "1";
  EXPECT_EQ(shown(run(Mode::TwoWay18, in)).at(9), "1326.29");  // 1 / (π · 4 · 60 µF)
}

TEST(CrossoverFromComponents, ThreeWayFrequenciesIndependent) {
  // Only f_o missing: f_u stays as typed, Text7 is not written.
  Input in = fresh(Mode::ThreeWay12);
  in.text[9] = "";
  in.text[13] = "0.32";  // L2H: f_o = √2 · 4 / (2π · 0.32 mH)
  in.text[2] = "1";
  in.text[4] = "1";
  const auto m = shown(run(Mode::ThreeWay12, in));
  EXPECT_EQ(m.at(9), "2813.49");
  EXPECT_EQ(m.count(7), 0u);
  EXPECT_EQ(m.at(2), "47.001 µF");

  // Only f_u derivable: the entered components are shown as they are,
  // nothing is recomputed, Text7 gets f_u and Text9 stays empty.
  in = fresh(Mode::ThreeWay12);
  in.text[7] = "";
  in.text[9] = "";
  in.text[12] = "1.504";  // L1M
  in.text[2] = "1000";    // C1T, shown as 1000 µF
  in.text[4] = "2";       // L1T comes before L1M but after C1T
  const Outcome out = run(Mode::ThreeWay12, in);
  const auto m2 = shown(out);
  EXPECT_EQ(m2.at(7), "28.13");  // √2 / (4π · 1000 µF · 4)
  EXPECT_EQ(m2.count(9), 0u);
  EXPECT_EQ(m2.at(2), "1000.0 µF");
  EXPECT_EQ(m2.at(4), "2.0 mH");
  EXPECT_EQ(m2.at(12), "1.504 mH");
  EXPECT_EQ(out.displayed, 3);
}

TEST(CrossoverChecks, Impedances) {
  Input in = fresh(Mode::TwoWay6);
  in.text[1] = "0,05";
  Outcome out = run(Mode::TwoWay6, in);
  ASSERT_TRUE(out.message);
  EXPECT_EQ(out.message->text, "Bitte Tiefton R-TT eingeben!");
  EXPECT_EQ(out.message->title, "Lautsprecher-Impedanz");
  EXPECT_EQ(out.message->icon, Icon::Exclamation);

  in = fresh(Mode::ThreeWay12);
  in.text[6] = "0.1";  // 0.1 itself is still too small
  EXPECT_EQ(messageOf(Mode::ThreeWay12, in), "Bitte Mittelton R-MT eingeben!");
  in.text[6] = "0.11";
  in.text[8] = "0.01";
  EXPECT_EQ(messageOf(Mode::ThreeWay12, in), "Bitte Hochton R-HT eingeben!");

  // Empty, negative or non-numeric impedances pass silently into the count.
  in = fresh(Mode::TwoWay12);
  in.text[1] = "";
  out = run(Mode::TwoWay12, in);
  ASSERT_TRUE(out.message);
  EXPECT_EQ(out.message->text, "Bitte Lautsprecher-Impedanzen komplett eingeben!");
  EXPECT_EQ(out.message->icon, Icon::None);
  in = fresh(Mode::ThreeWay12);
  in.text[6] = "-4";
  EXPECT_EQ(messageOf(Mode::ThreeWay12, in), "Bitte Lautsprecher-Impedanzen komplett eingeben!");
  // R_MT does not matter in a two-way box.
  in = fresh(Mode::TwoWay6);
  in.text[6] = "0.05";
  EXPECT_FALSE(run(Mode::TwoWay6, in).message);
}

TEST(CrossoverChecks, Frequencies) {
  Input in = fresh(Mode::TwoWay6);
  in.text[9] = "9,99";
  Outcome out = run(Mode::TwoWay6, in);
  ASSERT_TRUE(out.message);
  EXPECT_EQ(out.message->text, "Die Trennfrequenz muß >10 Hz sein!");
  EXPECT_EQ(out.message->title, "Trennfrequenz");
  EXPECT_EQ(out.message->icon, Icon::Exclamation);
  in.text[9] = "10";  // accepted despite the wording
  out = run(Mode::TwoWay6, in);
  EXPECT_FALSE(out.message);
  EXPECT_EQ(shown(out).at(2), "3978.874 µF");  // 1 / (2π · 10 · 4)

  in = fresh(Mode::ThreeWay12);
  in.text[7] = "5";
  in.text[9] = "5";
  EXPECT_EQ(messageOf(Mode::ThreeWay12, in), "Die untere Trennfrequenz muß >10 Hz sein!");
  in.text[7] = "100";
  EXPECT_EQ(messageOf(Mode::ThreeWay12, in), "Die obere Trennfrequenz muß >10 Hz sein!");
}

TEST(CrossoverChecks, ModeGuards) {
  // 2W12: no frequency and a single component.
  Input in = fresh(Mode::TwoWay12);
  in.text[9] = "";
  in.text[10] = "10";
  EXPECT_EQ(messageOf(Mode::TwoWay12, in), "Bitte min. drei Werte unter Schaltung eingeben!");

  // 2W18: the capacitor check comes before the inductor check.
  in = fresh(Mode::TwoWay18);
  in.text[9] = "";
  EXPECT_EQ(messageOf(Mode::TwoWay18, in),
            "Bitte min. einen Kondensator unter Schaltung oder die Trennfrequenz eingeben!");
  in.text[10] = "7.5";  // only C1H: stops before anything is completed
  EXPECT_EQ(messageOf(Mode::TwoWay18, in), "Bitte min. eine Induktivität unter Schaltung eingeben!");

  // 3W12: two components are not enough without both frequencies.
  in = fresh(Mode::ThreeWay12);
  in.text[9] = "";
  in.text[2] = "47";
  in.text[11] = "10";
  EXPECT_EQ(messageOf(Mode::ThreeWay12, in), "Bitte min. drei Werte unter Schaltung eingeben!");

  // 2W6 with no frequency and no components gets past its guard and has
  // nothing to show; the empty frequency field stays empty.
  in = fresh(Mode::TwoWay6);
  in.text[9] = "";
  const Outcome out = run(Mode::TwoWay6, in);
  EXPECT_TRUE(out.writes.empty());
  ASSERT_TRUE(out.message);
  EXPECT_EQ(out.message->text, "Zuwenige Daten!");
  EXPECT_EQ(out.message->icon, Icon::None);
}

TEST(CrossoverDisplay, BoundaryValuesGoToTheSmallerUnit) {
  // A negative frequency is neither counted nor derived: the entered
  // components are only redisplayed.
  Input in = fresh(Mode::TwoWay18);
  in.text[9] = "-1";
  in.text[2] = "1";        // 1 µF
  in.comboC1 = 2;
  in.text[3] = "1000000";  // ComboC2 on µF: 1 F, shown in µF, the largest unit
  in.text[4] = "1";        // 1 mH
  in.text[12] = "1000";    // 1 H (ComboL1 on mH)
  in.text[5] = "1000000";  // ComboL2 on µH: 1 H as well
  in.comboL2 = 0;
  const Outcome out = run(Mode::TwoWay18, in);
  const auto m = shown(out);
  EXPECT_EQ(m.at(2), "1000.0 nF");
  EXPECT_EQ(m.at(3), "1000000.0 µF");
  EXPECT_EQ(m.at(4), "1000.0 µH");
  EXPECT_EQ(m.at(12), "1000.0 mH");
  EXPECT_EQ(m.at(5), "1000.0 mH");
  EXPECT_EQ(m.count(9), 0u);
  EXPECT_FALSE(out.message);

  // German number format for the results and the frequency.
  in = fresh(Mode::TwoWay6);
  in.text[9] = "";
  in.text[4] = "0,22";
  const Outcome de = compute(Mode::TwoWay6, in, QLocale(QLocale::German, QLocale::Germany));
  ASSERT_EQ(de.writes.size(), 3u);
  EXPECT_EQ(de.writes[0].text, "13,75");
  EXPECT_EQ(de.writes[2].text, "2893,73");
}

TEST(CrossoverArithmetic, FailureEndsTheRunQuietly) {
  // LT of 1e-320 H makes the derived frequency overflow.
  Input in = fresh(Mode::TwoWay12);
  in.text[9] = "";
  in.text[4] = "1e-320";
  in.text[2] = "1";
  in.comboL1 = 2;
  Outcome out = run(Mode::TwoWay12, in);
  EXPECT_TRUE(out.writes.empty());
  EXPECT_FALSE(out.message);

  // Huge impedance and frequency: the components cannot be computed.
  in = fresh(Mode::TwoWay6);
  in.text[1] = in.text[8] = "1e300";
  in.text[9] = "1e300";
  out = run(Mode::TwoWay6, in);
  EXPECT_TRUE(out.writes.empty());
  EXPECT_FALSE(out.message);
}
