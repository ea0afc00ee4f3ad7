#pragma once
// Standard values of the IEC 60063 series: the part one can buy next to a
// computed resistance, capacitance or inductance, and the resistor pair that
// best gives a wanted divider ratio.
#include <QString>
#include <optional>
#include <span>
#include <vector>

#include "shell/core/UnitPrefix.h"

namespace eseries {

enum class Series { E6, E12, E24, E96 };

QString name(Series s);                       // "E12"
std::span<const double> mantissas(Series s);  // 1.0 ... < 10, ascending

struct Nearest {
  double value;      // the standard value, in the same unit as the input
  double deviation;  // (value - computed) / computed, e.g. 0.025 for +2,5 %
};

// The standard value nearest to `value` on the logarithmic scale: the
// geometric mean of two neighbours is the boundary (a value exactly on it
// goes to the upper neighbour). Decades are found exactly, so 1000 lies in
// the decade of 1000, not of 100. None for values that are not finite or
// lie outside 1e-30 to 1e30.
std::optional<Nearest> nearest(Series s, double value);

// The smallest standard value at or above `value`; a value that lies a
// rounding error (10^-6 relative) above a standard value stays on it.
std::optional<double> atOrAbove(Series s, double value);

// The deviation as the forms show it: "+2,5 %", "-0,75 %", "0 %".
QString deviationText(double deviation);

// What a computed value is: a resistor (E12, E24, E96) or a capacitor or
// inductor (E6, E12, E24).
enum class Part { Resistor, Capacitor, Inductor };
std::vector<Series> seriesFor(Part p);

// A value in base units written in the unit of `list` that puts it at 1 or
// above (the list's smallest unit below that), e.g. "8,2 KOhm".
QString valueText(double value, const units::UnitList& list);

// One standard value as the forms show it, e.g. "E12 8,2 KOhm (+2,5 %)": the
// value in the unit of `list` that puts it at 1 or above (the list's
// smallest unit below that), with the deviation from `value` (base units).
// Empty when there is no standard value.
QString describe(Series s, double value, const units::UnitList& list);

// The pair R1, R2 of standard values, R1 within the decade of r1 and R2
// within the decade of r2 (both decade edges included), whose divider ratio
// (R1 + R2) / R2 comes closest to `ratio`.
struct Pair {
  double r1;
  double r2;
  double ratio;  // (r1 + r2) / r2
  double error;  // (ratio - wanted) / wanted
};
std::optional<Pair> bestDividerPair(Series s, double r1, double r2, double ratio);

}  // namespace eseries
