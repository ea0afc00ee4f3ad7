#pragma once
// Losses of an LC circuit, four ways: quality factor Q, bandwidth B = f0 / Q,
// resonance resistance of the parallel circuit Rp = Q · Z0 and loss
// resistance in series with the coil Rs = Z0 / Q, with the characteristic
// resistance Z0 = √(L / C). Two of f0, L, C complete the third; one loss
// quantity gives the other three.
#include <optional>

#include "shell/core/UnitPrefix.h"

namespace qlcr {

struct Input {
  double f = 0, l = 0, c = 0;            // Hz, H, F
  double q = 0, b = 0, rp = 0, rs = 0;   // plain, Hz, Ohm, Ohm
};

enum class Stop { None, TooFewCircuitValues, NoLossValue, QualityTooLow };

struct Result {
  Stop stop = Stop::None;
  int circuitField = -1;  // 0 f0, 1 L, 2 C: the one completed (-1: none)
  double circuitValue = 0;
  std::optional<double> z0;
  // The loss quantities, all written together (only when stop is None).
  double q = 0, b = 0, rp = 0, rs = 0;
};

// A value whose arithmetic fails is left out: its field keeps its content.
Result compute(const Input& in);

// ComboB "MHz", "KHz", "Hz" (start "KHz"); ComboRp "Ohm", "KOhm", "MOhm"
// (start "KOhm"); ComboRs "mOhm", "Ohm", "KOhm" (start "Ohm").
const units::UnitList& seriesResistanceUnits();
// Rs from 1000 Ω upwards in KOhm, from 1 Ω in Ohm, below in mOhm.
units::Placement seriesResistancePlacement();
// Rp and Z0: above 1 MΩ in MOhm, above 1000 Ω in KOhm (1000 Ω itself stays Ohm).
units::Placement resistancePlacement();

inline const char* const kTooFewCircuitValues = "Bitte zwei der Werte Frequenz, Induktivität und Kapazität eingeben!";
inline const char* const kNoLossValue = "Bitte Güte, Bandbreite, Rp oder Rs eingeben!";
inline const char* const kQualityTooLow = "Die Güte muß größer als 0,5 sein!";

}  // namespace qlcr
