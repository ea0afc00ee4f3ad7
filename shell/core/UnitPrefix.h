#pragma once
// Unit-prefix lists of the combos beside the number fields, and the rules
// that pick the prefix a result is shown in. Each form states its own rules
// as data: an ordered list of comparisons with their boundary side.
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace units {

struct Unit {
  QString name;
  int power = 0;  // the unit's factor is 10 raised to this power
  double factor() const;
};
using UnitList = std::vector<Unit>;

QStringList names(const UnitList& list);

// The factor of a list position. A position the list does not have gives 1.
double factorAt(const UnitList& list, int index);

enum class Cmp { Greater, GreaterEq, Less, LessEq };

struct Band {
  Cmp cmp;
  double threshold;  // in base units
  int index;         // list position chosen when value <cmp> threshold
};

// Bands are tested in order; the first that holds wins. Otherwise the value
// takes `otherwise`, or no unit at all when that is -1.
struct Placement {
  std::vector<Band> bands;
  int otherwise = -1;
};

struct Placed {
  int index;
  double scaled;  // value expressed in the chosen unit
};

// Value in base units scaled into its unit: divided by 10^p for positive
// powers, multiplied by 10^-p for negative ones (so 0.5 V becomes 0.5 * 1000 mV).
double scaleTo(const UnitList& list, int index, double value);

std::optional<Placed> place(const UnitList& list, const Placement& rule, double value);

// The two rules most forms share, for the usual lists below: a resistance
// above 10^6 Ohm in "MOhm", above 1000 Ohm in "KOhm", else in "Ohm" (exactly
// 1000 Ohm stays "Ohm"); a frequency above 10^6 Hz in "MHz", above 1000 Hz
// in "KHz", else in "Hz" (exactly 1 MHz is 1000 KHz).
Placement resistanceRule();
Placement frequencyRule();

// The usual lists.
const UnitList& voltage();     // mV V KV
const UnitList& resistance();  // Ohm KOhm MOhm
const UnitList& current();     // µA mA A
const UnitList& frequency();   // MHz KHz Hz
const UnitList& capacitance(); // pF nF µF
const UnitList& inductance();  // nH µH mH H

}  // namespace units
