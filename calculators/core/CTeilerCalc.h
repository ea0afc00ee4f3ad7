#pragma once
// Capacitive divider used as an impedance-matching tap: two capacitors C1
// (in series, at the top) and C2 (to ground) transform the low impedance R1
// at the tap up to R2 across the whole divider at a given frequency.
//
// The seven quantities are read and checked, then every empty field is
// filled in one run of fixed steps, each using what the earlier ones left in
// the working values. A run is described as a list of steps (messages,
// results, emptied fields) that the form plays back in order, so the whole
// sequence can be checked without a window. The inductive divider
// (L2TeilerCalc.h) shares the fields, the reading and the result rules.
#include <QString>
#include <array>
#include <optional>
#include <vector>

#include "shell/core/UnitPrefix.h"

namespace divider {

// The seven fields of both divider forms, in the order they are read.
enum Field {
  Ratio = 0,  // Text7: voltage ratio ü = U2/U1
  Matching,   // Text1: matching ratio a = R2/R1
  Freq,       // Text6: frequency f
  Res1,       // Text2: R1, the low impedance at the tap
  Res2,       // Text3: R2, the high impedance
  Part1,      // Text4: C1 or L1
  Part2,      // Text5: C2 or L2
  FieldCount
};

// Working values in base units (Hz, ohm, farad or henry).
struct Values {
  double u = 0, a = 0, f = 0, r1 = 0, r2 = 0, x1 = 0, x2 = 0;
};

// Which fields hold exactly no text; only those are computed.
using Empty = std::array<bool, FieldCount>;

struct Note {
  QString text;
  bool warning = false;  // exclamation icon and the title "Spannungsteiler"
};

// Title of the range messages of both dividers.
inline const char* const kTitle = "Spannungsteiler";

// Reading and checking: the first range message in reading order, or the
// message for fewer than three known values; nothing when the run may go on.
std::optional<Note> check(const Values& v);

struct Step {
  enum Kind { Message, Show, Clear };
  Kind kind;
  Field field = Ratio;  // Show, Clear
  double value = 0;     // Show: in base units
  QString text;         // Message
};

struct Run {
  std::vector<Step> steps;
  Values values;          // working values at the end of the run
  int computed = 0;       // fields computed in this run
  bool enableHandOver = false;
  bool endedEarly = false;  // an inductance came out 0 (inductive divider)

  void message(const QString& text) { steps.push_back({Step::Message, Ratio, 0, text}); }
  void show(Field field, double value) {
    steps.push_back({Step::Show, field, value, {}});
    ++computed;
  }
};

// The first two steps of both dividers: the voltage ratio and the matching
// ratio, each from the resistances, from the two parts (through their ratio,
// C1/C2 + 1 or L2/L1 + 1) or from the other ratio. `partsWord` names the
// parts in the messages ("Kondensatoren", "Induktivitäten").
void ratioSteps(Values& v, const Empty& empty, double (*partsRatio)(const Values&), const QString& partsWord,
                Run& run);

// R2 of both dividers: the two parts fix the ratio when both are known,
// otherwise the voltage ratio does.
void resistance2Step(Values& v, const Empty& empty, double (*partsRatio)(const Values&), Run& run);

// Result rules of the fields (list positions of the form's combos).
units::Placement resistancePlacement();   // >= 1 MOhm MOhm, >= 1 KOhm KOhm, else Ohm
units::Placement capacitancePlacement();  // > 1 µF µF, > 1 nF nF, else pF
units::Placement frequencyPlacement();    // > 1 MHz MHz, > 1 kHz KHz, else Hz
inline const char* const kRatioPattern = "####0.0#####";
inline const char* const kResistancePattern = "####0.0###";
inline const char* const kPartPattern = "###0.0###";
inline const char* const kFrequencyPattern = "###0.0###";

// The pattern a field's result is written with.
QString patternOf(Field field);

}  // namespace divider

namespace cteiler {

// R1 · ü · f · C2 = 0.505 in base units.
double designConstant();

// One press of "&Berechnung" after the check has passed.
divider::Run compute(divider::Values v, divider::Empty empty);

// Series capacitance of C1 and C2, handed to the resonant circuit; a failing
// division leaves it 0.
double seriesCapacitance(double c1, double c2);
// Its unit in the resonant circuit's capacitance combo (pF, nF, µF).
units::Placement handOverPlacement();
inline const char* const kHandOverPattern = "####0.0####";

}  // namespace cteiler
