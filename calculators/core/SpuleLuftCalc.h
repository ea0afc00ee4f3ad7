#pragma once
// Single-layer air-core coil by Wheeler's formula in millimetres:
// L [µH] = D² · N² / (457,2 · D + 1016 · l), D the diameter from wire centre
// to wire centre and l the winding length; a close-wound coil has l = N · d
// with the wire diameter d (insulation included). About 1 % accurate for
// l > 0,4 · D.
#include <optional>

#include "shell/core/UnitPrefix.h"

namespace spuleluft {

inline constexpr double kPi = 3.14159265358979;

// L in µH from N, D and l.
double inductance(double n, double d, double l);
// N from L (µH), D and l.
double turns(double lMicro, double d, double l);
// N of a close-wound coil from L (µH), D and the wire diameter: the positive
// root of D² · N² − 1016 · wire · L · N − 457,2 · D · L = 0.
double closeWoundTurns(double lMicro, double d, double wire);
// Winding length l from L (µH), N and D; 0 or less when the inductance cannot
// be reached.
double length(double lMicro, double n, double d);
// Wire length in m of N turns of diameter D (mm).
double wireLength(double n, double d);

// What the form holds: L in H (value times ComboL factor), N, D, l and the
// wire diameter in mm, and which of the fields L, N, l are exactly empty.
struct Input {
  double l = 0, n = 0, d = 0, length = 0, wire = 0;
  bool lEmpty = false, nEmpty = false, lengthEmpty = false;
};

// Why a press ends without a result.
enum class Stop { None, DiameterMissing, TooFewValues, NoEmptyField, Unreachable };

// The fields written (in H, turns and mm) and the wire length in m; a value
// whose arithmetic failed is left out. `tooShort` asks for the accuracy
// warning after the result.
struct Result {
  Stop stop = Stop::None;
  std::optional<double> inductance, turns, length;
  std::optional<double> wireLength;
  bool tooShort = false;
};

Result compute(const Input& in);

// ComboL: "nH", "µH", "mH"; starts at "µH". Above 1 mH in mH (also above 1 H),
// above 1 µH in µH, otherwise nH; boundary values take the smaller unit.
const units::UnitList& inductanceUnits();
inline constexpr int kInductanceStart = 1;
units::Placement inductancePlacement();


}  // namespace spuleluft
