#pragma once
// Passive loudspeaker crossovers: two-way networks of 6, 12 and 18 dB/octave
// and a three-way network of 12 dB/octave. Works in both directions: from the
// impedances and the crossover frequency to every component, or from entered
// components to the frequency and then to the complete set of components.
// No widgets here; the form LP_Box hands in its field texts and applies the
// outcome.
#include <QLocale>
#include <QString>
#include <array>
#include <optional>
#include <vector>

#include "shell/core/UnitPrefix.h"

namespace lpbox {

// The constants exactly as the program writes them.
inline constexpr double PI = 3.14159265358979;
inline constexpr double TWO_PI = 6.28318530717958;
inline constexpr double FOUR_PI = 12.56637061435916;
inline constexpr double EIGHT_PI = 25.13274122871832;
double sqrt2();  // computed at run time

// Component formulas: R in ohm, f in hertz, C in farad, L in henry.
// A product that overflows makes the result NaN, so the caller's check
// catches it instead of silently dividing by infinity.
double C12(double R, double f);   // sqrt2 / (4pi f R)
double C6(double R, double f);    // 1 / (2pi f R)
double C18a(double R, double f);  // 1 / (pi f R)
double C18b(double R, double f);  // 1 / (4pi f R)
double L12(double R, double f);   // sqrt2 R / (2pi f)
double L6(double R, double f);    // R / (2pi f)
double L18a(double R, double f);  // 3 R / (4pi f)
double L18b(double R, double f);  // 3 R / (8pi f)
// Frequency of a 6 or 12 dB network from an inductor (preferred) or a capacitor.
double F6(double L, double R, double C);
double F12(double L, double R, double C);

enum class Mode { TwoWay6, TwoWay12, TwoWay18, ThreeWay12 };

// "2W6", "2W12", "2W18", "3W12"; any other text is no mode at all.
std::optional<Mode> modeFromTag(const QString& tag);

enum class Kind { Capacitor, Inductor };

// One component slot of the circuit frame, in display order.
struct Slot {
  int field;          // N of TextN
  const char* combo;  // its own unit combo (written on display)
  const char* label;  // its caption label
  Kind kind;
  // The combo whose factor scales the slot's value when it is read: the
  // first slot of the same kind in the same row of combos, not always the
  // slot's own one (Text10 is read with ComboC1, Text12 with ComboL1, ...).
  const char* readCombo;
};
const std::array<Slot, 8>& slotTable();

// What the form shows in one mode.
struct ModeLayout {
  QString tag;
  QString caption;           // window caption set by the menu item
  QString picture;           // file name, appended to the program's folder
  QString defaultFrequency;  // written into Text9 on every activation
  // Caption per slot (same order as slotTable()); nullopt leaves the label as the
  // form created it. A slot is visible when visible[i] is true.
  std::array<std::optional<QString>, 8> captions;
  std::array<bool, 8> visible;
  bool threeWay;
};
const ModeLayout& layout(Mode mode);

// Unit lists of the slot combos.
const units::UnitList& capacitorUnits();  // pF nF µF
const units::UnitList& inductorUnits();   // µH mH H

// What the compute button reads from the form.
struct Input {
  std::array<QString, 14> text;  // text[n] is the content of TextN, n = 1..13
  int comboC1 = 2;
  int comboC2 = 2;
  int comboL1 = 1;
  int comboL2 = 1;
};

enum class Icon { None, Exclamation };

struct Message {
  QString text;
  QString title;
  Icon icon = Icon::None;
};

// One field to write. unit is the list position to select in the field's own
// combo before writing, or -1 for the frequency fields, which have none.
struct Write {
  int field;
  QString text;
  int unit;
};

// The result of one press of "&Berechnung": the fields to write, in order,
// then at most one message. A message from the checks comes with no writes;
// "Zuwenige Daten!" may follow the frequency writes. An arithmetic failure
// ends the run quietly: the writes made up to that point, and no message.
struct Outcome {
  std::vector<Write> writes;
  std::optional<Message> message;
  int displayed = 0;  // number of components written (D)
};

Outcome compute(Mode mode, const Input& in, const QLocale& locale = QLocale());

}  // namespace lpbox
