#include "crossover/core/Crossover.h"

#include <cmath>

#include "shell/core/Arith.h"
#include "shell/core/Module1.h"
#include "shell/core/NumberFormat.h"

namespace lpbox {

double sqrt2() { return std::sqrt(2.0); }

namespace {

// An overflowing product would turn "1 / product" into a harmless-looking 0.
double checked(double v) { return arith::ok(v) ? v : std::nan(""); }

}  // namespace

double C12(double R, double f) { return sqrt2() / checked(FOUR_PI * f * R); }
double C6(double R, double f) { return 1.0 / checked(TWO_PI * f * R); }
double C18a(double R, double f) { return 1.0 / checked(PI * f * R); }
double C18b(double R, double f) { return 1.0 / checked(FOUR_PI * f * R); }
double L12(double R, double f) { return checked(sqrt2() * R) / checked(TWO_PI * f); }
double L6(double R, double f) { return R / checked(TWO_PI * f); }
double L18a(double R, double f) { return checked(3.0 * R) / checked(FOUR_PI * f); }
double L18b(double R, double f) { return checked(3.0 * R) / checked(EIGHT_PI * f); }

double F6(double L, double R, double C) {
  if (R <= 0) return 0;
  if (L > 0) return R / checked(TWO_PI * L);
  if (C > 0) return 1.0 / checked(TWO_PI * C * R);
  return 0;
}

double F12(double L, double R, double C) {
  if (R <= 0) return 0;
  if (L > 0) return checked(sqrt2() * R) / checked(TWO_PI * L);
  if (C > 0) return sqrt2() / checked(FOUR_PI * C * R);
  return 0;
}

std::optional<Mode> modeFromTag(const QString& tag) {
  if (tag == QLatin1String("2W6")) return Mode::TwoWay6;
  if (tag == QLatin1String("2W12")) return Mode::TwoWay12;
  if (tag == QLatin1String("2W18")) return Mode::TwoWay18;
  if (tag == QLatin1String("3W12")) return Mode::ThreeWay12;
  return std::nullopt;
}

const std::array<Slot, 8>& slotTable() {
  static const std::array<Slot, 8> s{{
      {2, "ComboC1", "Label2", Kind::Capacitor, "ComboC1"},
      {4, "ComboL1", "Label5", Kind::Inductor, "ComboL1"},
      {10, "Combo1", "Label11", Kind::Capacitor, "ComboC1"},
      {3, "ComboC2", "Label3", Kind::Capacitor, "ComboC2"},
      {11, "Combo2", "Label12", Kind::Capacitor, "ComboC2"},
      {12, "Combo3", "Label13", Kind::Inductor, "ComboL1"},
      {5, "ComboL2", "Label6", Kind::Inductor, "ComboL2"},
      {13, "Combo4", "Label14", Kind::Inductor, "ComboL2"},
  }};
  return s;
}

const ModeLayout& layout(Mode mode) {
  using O = std::optional<QString>;
  const O none;
  static const ModeLayout w6{QStringLiteral("2W6"),
                             QStringLiteral("Frequenzweiche Zwei-Wegebox 6dB/Oktave"),
                             QStringLiteral("LP_2Weg_6dB.jpg"),
                             QStringLiteral("2893.6"),
                             {O(QStringLiteral("C (Kapazität) :")), O(QStringLiteral("L (Induktivität) :")), none, none,
                              none, none, none, none},
                             {true, true, false, false, false, false, false, false},
                             false};
  static const ModeLayout w12{QStringLiteral("2W12"),
                              QStringLiteral("Frequenzweiche Zwei-Wegebox 12dB/Oktave"),
                              QStringLiteral("LP_2Weg_12dB.jpg"),
                              QStringLiteral("2725"),
                              {O(QStringLiteral("CT (Kapazität) :")), O(QStringLiteral("LT (Induktivität) :")),
                               O(QStringLiteral("CH :")), none, none, O(QStringLiteral("LH :")), none, none},
                              {true, true, true, false, false, true, false, false},
                              false};
  static const ModeLayout w18{QStringLiteral("2W18"),
                              QStringLiteral("Frequenzweiche Zwei-Wegebox 18dB/Oktave"),
                              QStringLiteral("LP_2Weg_18dB.jpg"),
                              QStringLiteral("2650"),
                              {O(QStringLiteral("CT (Kapazität) :")), O(QStringLiteral("L1T (Induktivität) :")),
                               O(QStringLiteral("C1H :")), O(QStringLiteral("C2H :")), none, O(QStringLiteral("L2T :")),
                               O(QStringLiteral("LH :")), none},
                              {true, true, true, true, false, true, true, false},
                              false};
  // Three-way sets only the first two captions; the other six keep the
  // captions the form is created with, which are the three-way ones.
  static const ModeLayout w3{QStringLiteral("3W12"),
                             QStringLiteral("Frequenzweiche Drei-Wegebox 12dB/Oktave"),
                             QStringLiteral("LP_3Weg_12dB.jpg"),
                             QStringLiteral("2800"),
                             {O(QStringLiteral("C1T (Kapazität) :")), O(QStringLiteral("L1T (Induktivität):")), none,
                              none, none, none, none, none},
                             {true, true, true, true, true, true, true, true},
                             true};
  switch (mode) {
    case Mode::TwoWay6: return w6;
    case Mode::TwoWay12: return w12;
    case Mode::TwoWay18: return w18;
    case Mode::ThreeWay12: break;
  }
  return w3;
}

const units::UnitList& capacitorUnits() { return units::capacitance(); }

const units::UnitList& inductorUnits() {
  static const units::UnitList l{{QStringLiteral("µH"), -6}, {QStringLiteral("mH"), -3}, {QStringLiteral("H"), 0}};
  return l;
}

namespace {

// Thrown when arithmetic fails past the checks: the run ends where it is.
struct ArithmeticFault {};

double need(double v) {
  if (!arith::ok(v)) throw ArithmeticFault{};
  return v;
}

const QString kComponentPattern = QStringLiteral("####0.0##");
const QString kFrequencyPattern = QStringLiteral("###0.0#");

Message plain(const QString& text) { return {text, Module1::AppTitle, Icon::None}; }
Message warn(const QString& text, const QString& title) { return {text, title, Icon::Exclamation}; }

// Component values of one run, indexed by the N of their field TextN.
using Parts = std::array<double, 14>;

class Run {
 public:
  Run(Mode mode, const Input& in, const QLocale& locale, Outcome& out)
      : mode_(mode), in_(in), locale_(locale), out_(out), lay_(layout(mode)) {}

  void go();

 private:
  double read(int n) const { return Module1::ParseNumber(in_.text[size_t(n)]); }
  double readCombo(const char* combo) const;
  void stop(const Message& m) { out_.message = m; }
  bool impedance(double v, const QString& text);
  bool frequency(double v, const QString& text);
  void readComponents(Kind kind);
  bool anyPositive(Kind kind) const;
  void complete18();
  void computeAll();
  void display();

  Mode mode_;
  const Input& in_;
  const QLocale& locale_;
  Outcome& out_;
  const ModeLayout& lay_;
  int S = 0;  // given values ("Vorgaben") counted
  int K = 0;  // components given
  double rTT = 0, rMT = 0, rHT = 0;
  double f = 0, fu = 0;  // f is the only (two-way) or the upper (three-way) frequency
  Parts c{};
};

double Run::readCombo(const char* combo) const {
  const QLatin1String name(combo);
  int index = in_.comboC1;
  if (name == QLatin1String("ComboC2")) index = in_.comboC2;
  if (name == QLatin1String("ComboL1")) index = in_.comboL1;
  if (name == QLatin1String("ComboL2")) index = in_.comboL2;
  const bool cap = name.startsWith(QLatin1String("ComboC"));
  return units::factorAt(cap ? capacitorUnits() : inductorUnits(), index);
}

// Returns false when the run has to end.
bool Run::impedance(double v, const QString& text) {
  if (v <= 0) return true;  // empty or negative: passed over without a word
  if (v <= 0.1) {
    stop(warn(text, QStringLiteral("Lautsprecher-Impedanz")));
    return false;
  }
  ++S;
  return true;
}

bool Run::frequency(double v, const QString& text) {
  if (v <= 0) return true;
  if (v < 10) {  // 10 Hz itself is accepted, whatever the message says
    stop(warn(text, QStringLiteral("Trennfrequenz")));
    return false;
  }
  ++S;
  return true;
}

void Run::readComponents(Kind kind) {
  for (size_t i = 0; i < slotTable().size(); ++i) {
    const Slot& s = slotTable()[i];
    if (s.kind != kind || !lay_.visible[i]) continue;
    const double v = read(s.field) * readCombo(s.readCombo);
    c[size_t(s.field)] = v;
    if (v > 0) ++K;
  }
}

bool Run::anyPositive(Kind kind) const {
  for (size_t i = 0; i < slotTable().size(); ++i)
    if (slotTable()[i].kind == kind && lay_.visible[i] && c[size_t(slotTable()[i].field)] > 0) return true;
  return false;
}

// The 18 dB network with equal impedances: CT = 2 C2H = 4 C1H and
// L1T = 2 L2T = 2 LH. Missing (exactly zero) values are filled in this order.
void Run::complete18() {
  double& CT = c[2];
  double& C1H = c[10];
  double& C2H = c[3];
  double& L1T = c[4];
  double& L2T = c[12];
  double& LH = c[5];
  if (C1H > 0) {
    if (C2H == 0) C2H = need(2 * C1H);
    if (CT == 0) CT = need(4 * C1H);
  }
  if (C2H > 0) {
    if (C1H == 0) C1H = need(C2H / 2);
    if (CT == 0) CT = need(2 * C2H);
  }
  if (CT > 0) {
    if (C2H == 0) C2H = need(CT / 2);
    if (C1H == 0) C1H = need(CT / 4);
  }
  if (LH > 0) {
    if (L2T == 0) L2T = need(LH);
    if (L1T == 0) L1T = need(2 * LH);
  }
  if (L1T > 0) {
    if (L2T == 0) L2T = need(L1T / 2);
    if (LH == 0) LH = need(L1T / 2);
  }
  if (L2T > 0) {
    if (LH == 0) LH = need(L2T);
    if (L1T == 0) L1T = need(2 * L2T);
  }
}

void Run::computeAll() {
  switch (mode_) {
    case Mode::TwoWay6:
      c[2] = need(C6(rHT, f));
      c[4] = need(L6(rTT, f));
      break;
    case Mode::TwoWay12:
      c[2] = need(C12(rTT, f));
      c[10] = need(C12(rHT, f));
      c[4] = need(L12(rTT, f));
      c[12] = need(L12(rHT, f));
      break;
    case Mode::TwoWay18:
      c[2] = need(C18a(rTT, f));
      c[10] = need(C18b(rHT, f));
      c[3] = need(C6(rHT, f));
      c[4] = need(L18a(rTT, f));
      c[12] = need(L18b(rTT, f));
      c[5] = need(L18b(rHT, f));
      break;
    case Mode::ThreeWay12:
      c[2] = need(C12(rTT, fu));
      c[10] = need(C12(rMT, fu));
      c[3] = need(C12(rMT, f));
      c[11] = need(C12(rHT, f));
      c[4] = need(L12(rTT, fu));
      c[12] = need(L12(rMT, fu));
      c[5] = need(L12(rMT, f));
      c[13] = need(L12(rHT, f));
      break;
  }
}

void Run::display() {
  // A value exactly on a boundary goes to the smaller unit.
  const units::Placement capRule{
      {{units::Cmp::Greater, Module1::TenPow(-6), 2}, {units::Cmp::Greater, Module1::TenPow(-9), 1}}, 0};
  const units::Placement indRule{{{units::Cmp::Greater, 1.0, 2}, {units::Cmp::Greater, Module1::TenPow(-3), 1}}, 0};
  for (size_t i = 0; i < slotTable().size(); ++i) {
    const Slot& s = slotTable()[i];
    if (!lay_.visible[i]) continue;
    const double v = c[size_t(s.field)];
    if (!(v > 0)) continue;
    const bool cap = s.kind == Kind::Capacitor;
    const auto placed = units::place(cap ? capacitorUnits() : inductorUnits(), cap ? capRule : indRule, v);
    const double shown = need(placed->scaled);
    out_.writes.push_back({s.field, numfmt::format(shown, kComponentPattern, locale_), placed->index});
    ++out_.displayed;
  }
}

void Run::go() {
  const bool three = lay_.threeWay;
  const int complete = three ? 5 : 3;

  // 1. Impedances.
  rTT = read(1);
  if (!impedance(rTT, QStringLiteral("Bitte Tiefton R-TT eingeben!"))) return;
  if (three) {
    rMT = read(6);
    if (!impedance(rMT, QStringLiteral("Bitte Mittelton R-MT eingeben!"))) return;
  }
  rHT = read(8);
  if (!impedance(rHT, QStringLiteral("Bitte Hochton R-HT eingeben!"))) return;

  // 2.
  if (S < (three ? 3 : 2)) return stop(plain(QStringLiteral("Bitte Lautsprecher-Impedanzen komplett eingeben!")));

  // 3. Crossover frequencies.
  if (three) {
    fu = read(7);
    if (!frequency(fu, QStringLiteral("Die untere Trennfrequenz muß >10 Hz sein!"))) return;
    f = read(9);
    if (!frequency(f, QStringLiteral("Die obere Trennfrequenz muß >10 Hz sein!"))) return;
  } else {
    f = read(9);
    if (!frequency(f, QStringLiteral("Die Trennfrequenz muß >10 Hz sein!"))) return;
  }

  // 4. and 5. Components, capacitors first, with the guards of each mode.
  readComponents(Kind::Capacitor);
  if (mode_ == Mode::TwoWay18 && !anyPositive(Kind::Capacitor) && S < 3)
    return stop(plain(QStringLiteral("Bitte min. einen Kondensator unter Schaltung oder die Trennfrequenz eingeben!")));
  readComponents(Kind::Inductor);
  switch (mode_) {
    case Mode::TwoWay6:
      // Both impedances are counted by now, so this never fires.
      if (S < 2 && K < 2) return stop(plain(QStringLiteral("Bitte min. zwei Werte unter Schaltung eingeben!")));
      break;
    case Mode::TwoWay12:
      if (S < 3 && K < 2) return stop(plain(QStringLiteral("Bitte min. drei Werte unter Schaltung eingeben!")));
      break;
    case Mode::TwoWay18:
      if (!anyPositive(Kind::Inductor) && S < 3)
        return stop(plain(QStringLiteral("Bitte min. eine Induktivität unter Schaltung eingeben!")));
      if (S < 3 && K < 2) return stop(plain(QStringLiteral("Bitte min. zwei Werte unter Schaltung eingeben!")));
      break;
    case Mode::ThreeWay12:
      if (S < 5 && K < 3) return stop(plain(QStringLiteral("Bitte min. drei Werte unter Schaltung eingeben!")));
      break;
  }

  // 6. A missing frequency comes from the components (only one that reads
  // exactly 0; a negative one stays as it is).
  if (S < complete) {
    switch (mode_) {
      case Mode::TwoWay6:
        if (f == 0) {
          // Tests R_TT but computes with R_HT; kept so.
          if (c[2] > 0 && rTT > 0)
            f = need(F6(0, rHT, c[2]));
          else if (c[4] > 0 && rTT > 0)
            f = need(F6(c[4], rTT, 0));
          if (f > 0) ++S;
        }
        break;
      case Mode::TwoWay12:
        if (f == 0) {
          if (c[10] > 0 && rHT > 0)
            f = need(F12(0, rHT, c[10]));  // CH
          else if (c[4] > 0 && rTT > 0)
            f = need(F12(c[4], rTT, 0));  // LT
          else if (c[2] > 0 && rTT > 0)
            f = need(F12(0, rTT, c[2]));  // CT
          else if (c[12] > 0 && rHT > 0)
            f = need(F12(c[12], rHT, 0));  // LH
          if (f > 0) ++S;
        }
        break;
      case Mode::TwoWay18:
        complete18();
        if (f == 0) {
          f = need(C18a(rTT, c[2]));  // 1 / (pi R_TT CT)
          if (f > 0) ++S;
        }
        break;
      case Mode::ThreeWay12:
        if (fu == 0) {
          if (c[2] > 0 && rTT > 0)
            fu = need(F12(0, rTT, c[2]));  // C1T
          else if (c[4] > 0 && rTT > 0)
            fu = need(F12(c[4], rTT, 0));  // L1T
          else if (c[10] > 0 && rMT > 0)
            fu = need(F12(0, rMT, c[10]));  // C1M
          else if (c[12] > 0 && rMT > 0)
            fu = need(F12(c[12], rMT, 0));  // L1M
          if (fu > 0) ++S;
        }
        if (f == 0) {
          if (c[11] > 0 && rHT > 0)
            f = need(F12(0, rHT, c[11]));  // C2H
          else if (c[13] > 0 && rHT > 0)
            f = need(F12(c[13], rHT, 0));  // L2H
          else if (c[3] > 0 && rMT > 0)
            f = need(F12(0, rMT, c[3]));  // C2M
          else if (c[5] > 0 && rMT > 0)
            f = need(F12(c[5], rMT, 0));  // L2M
          if (f > 0) ++S;
        }
        break;
    }
  }

  // 7. With every given value at hand the whole network is recomputed.
  if (S == complete) computeAll();

  // 8.
  display();

  // 9. A frequency field left empty gets the frequency that was derived.
  if (three && in_.text[7].isEmpty() && fu > 0) out_.writes.push_back({7, numfmt::format(fu, kFrequencyPattern, locale_), -1});
  if (in_.text[9].isEmpty() && f > 0) out_.writes.push_back({9, numfmt::format(f, kFrequencyPattern, locale_), -1});

  // 10.
  if (out_.displayed == 0) stop(plain(QStringLiteral("Zuwenige Daten!")));
}

}  // namespace

Outcome compute(Mode mode, const Input& in, const QLocale& locale) {
  Outcome out;
  try {
    Run(mode, in, locale, out).go();
  } catch (const ArithmeticFault&) {
    out.message.reset();
  }
  return out;
}

}  // namespace lpbox
