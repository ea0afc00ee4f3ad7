#pragma once
// Tracking of a superheterodyne's oscillator circuit to its input circuit,
// both tuned by two equal sections of one variable capacitor (gang). The
// oscillator runs above the received frequency: fo = fe + fZF.
//
// Input circuit: Le across the gang section with Cte in parallel, so that
// the gang covers fmin..fmax exactly. Oscillator circuit: Lo across a series
// padder Cp leading to the gang section, which has the trimmer Cto in
// parallel. Tracking is exact at three frequencies at the Chebyshev points of
// the band; in between the oscillator is off by Δ = fo − fe − fZF.
//
// Everything in base units: Hz, F, H.
#include <array>

namespace superhet {

inline constexpr double kZweiPi = 6.28318530717958;
inline constexpr int kPunkte = 201;  // samples of the error over the band

struct Vorgaben {
  double fmin = 0, fmax = 0, fzf = 0;  // band limits, intermediate frequency
  double cmin = 0, cmax = 0;           // gang range, strays included
};

// The outcome of the checks, in the order they are made.
enum class Pruefung {
  Ok,
  Unvollstaendig,     // an input is not above 0
  Frequenzbereich,    // fmax <= fmin
  Drehko,             // Cmax <= Cmin
  DrehkoReichtNicht,  // Cmax / Cmin below the band's k²
  KeinGleichlauf,     // no positive Lo, Cp and Cto track the three points
};

// The tracked circuits and their error over the band.
struct Gleichlauf {
  double fmin = 0, fmax = 0, fzf = 0;
  double le = 0, cte = 0;          // input circuit
  double lo = 0, cp = 0, cto = 0;  // oscillator circuit
  double f1 = 0, f2 = 0, f3 = 0;   // tracking points
  std::array<double, kPunkte> fehler{};  // Δ at fe(j), j = 0..200
  double fehlerMax = 0;                  // largest |Δ|

  // The received frequency of sample j.
  double fe(int j) const { return fmin + j * (fmax - fmin) / (kPunkte - 1); }
  // Δ at any received frequency in the band.
  double fehlerBei(double fe) const;
};

struct Ergebnis {
  Pruefung pruefung = Pruefung::Ok;
  double k2 = 0;  // (fmax / fmin)², the capacitance ratio the band needs
  Gleichlauf werte;  // valid only with Pruefung::Ok
};

Ergebnis berechne(const Vorgaben& v);

// Full scale of the error axis in kHz for the largest error m in kHz: the
// smallest of 1, 2, 5 and 10 times 10^k (k = m's decade, rounded down) that
// is at least m; 1 when there is no error.
double ymax(double m);

}  // namespace superhet
