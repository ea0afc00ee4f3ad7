#pragma once
// Resistance of a wire at 20 °C: R = ρ · l / A, with l in metres, A in mm²
// (or through the diameter d in mm) and ρ in Ohm·mm²/m. A press computes every
// empty quantity, one after the other in a fixed order; each step uses what
// the steps before it left.
#include <QString>
#include <QStringList>
#include <vector>

#include "shell/core/UnitPrefix.h"

namespace drahtr {

inline constexpr double kPi = 3.14159265358979;

// The fields and the material combo, as the steps write them.
enum class Field { Diameter, CrossSection, Length, Resistance, Material };

// What the form holds when "&Berechnung" is pressed: the values in the units
// above (length and resistance already multiplied by their combo factors) and
// which of the fields are exactly empty. The material counts as missing when
// its text reads as 0.
struct Input {
  double d = 0, a = 0, l = 0, r = 0, rho = 0;
  bool dEmpty = false, aEmpty = false, lEmpty = false, rEmpty = false;
};

// One thing the computation does, in order: a message box or a field write
// (value in the units above; the form places and formats it).
struct Event {
  enum class Kind { Message, Write } kind;
  QString text;  // Message
  Field field = Field::Diameter;
  double value = 0;
};

std::vector<Event> compute(const Input& in);

// The coupling of the two thickness fields while the user types.
double crossSectionOf(double d);  // π · d² / 4
double diameterOf(double a);      // √(A / π · 4)

// ComboLg "Km", "m", "mm" and ComboR "KOhm", "Ohm", "mOhm", both starting at
// their middle item.
const units::UnitList& lengthUnits();
const units::UnitList& resistanceUnits();
inline constexpr int kLengthStart = 1;
inline constexpr int kResistanceStart = 1;
// From 1000 upwards in the large unit, below 1 in the small one.
units::Placement lengthPlacement();
units::Placement resistancePlacement();

// The materials of ComboMat, each starting with its resistivity.
QStringList materials();

inline const char* const kDiameterMissing = "Bitte min. den Durchmesser des Drahtes eingeben!";
inline const char* const kCrossSectionMissing = "Bitte min. den Querschnitt des Drahtes eingeben!";
inline const char* const kResistanceMissing = "Bitte min. den Widerstandswert eingeben!";

}  // namespace drahtr
