#pragma once
// Two components whose total follows the reciprocal sum 1/X = 1/X1 + 1/X2:
// resistors in parallel, capacitors in series, inductors in parallel. Any
// one of X1, X2 and X from the other two, in one of three modes.
#include <QString>
#include <optional>

#include "shell/core/UnitPrefix.h"

namespace reihen {

struct Mode {
  QString tag;        // "ParR", "ReiheC" or "ParL"
  QString caption;
  QString labels[3];  // X1, X2, total
  QString formula;
  const units::UnitList* units;
  int start;
  units::Placement placement;
  QString title;      // title of the range message
};

// The mode a window's tag names, if any.
std::optional<Mode> modeFor(const QString& tag);

inline double total(double x1, double x2) { return x1 * x2 / (x1 + x2); }
// The total must stay below the one given component.
inline bool totalTooLarge(double x, double given) { return x >= given; }
// The other component for a total below the given one.
inline double otherPart(double x, double given) { return x * given / (given - x); }

inline const char* const kRangeMessage = "Der Gesamtwert muß kleiner als der Einzelwert sein!";

}  // namespace reihen
