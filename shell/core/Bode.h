#pragma once
// Frequency-response plots as data: frequencies on a logarithmic axis, a
// panel for the level (or the impedance) with its curves, optionally a
// panel for the phase below it, and marked frequencies. The plot window
// draws this; building it here keeps the contents checkable without a
// screen.
#include <QPointF>
#include <QString>
#include <optional>
#include <utility>
#include <vector>

namespace bode {

enum class Scale {
  Decibel,  // linear in dB, grid every 10 dB
  Degrees,  // linear in degrees, grid every 45°
  Ohm,      // logarithmic, grid at 1..9 per decade, labelled at the decades
};

// The colour of a curve; the same curve keeps it in both panels.
enum class Colour { Black, Blue, Green, Red };

struct Curve {
  QString name;  // legend entry
  Colour colour;
  std::vector<double> y;  // one value per frequency of the plot
};

struct Panel {
  QString title;  // caption of the value axis, e.g. "Pegel [dB]"
  Scale scale;
  double lo = 0, hi = 0;  // range shown, in dB, degrees or ohm
  std::vector<Curve> curves;
};

struct Marker {
  double f;       // Hz
  QString label;  // e.g. "fg = 1,592 kHz"
};

struct Plot {
  std::vector<double> f;       // ascending, Hz; empty: nothing to plot
  Panel upper;                 // level or impedance
  std::optional<Panel> lower;  // phase
  std::vector<Marker> markers;
  bool empty() const { return f.empty(); }
};

struct Tick {
  double value;
  QString label;  // empty: a grid line without a label
};

// Grid of a logarithmic frequency axis: 1..9 times each power of ten within
// the range. 1, 2 and 5 are labelled with their unit ("20 Hz", "1 kHz");
// over more than three decades the 2 and 5 carry only their digit, so the
// labels do not run into one another.
std::vector<Tick> frequencyTicks(double from, double to);
// Grid of a value axis: every 10 dB, every 45° or at 1..9 per decade of ohm
// (labelled at the decades), within the panel's range.
std::vector<Tick> valueTicks(const Panel& panel);

// A frequency with four significant digits and its unit: "598,6 Hz",
// "2,8 kHz", "1,2 MHz" (decimal separator of the current locale).
QString frequencyText(double hz);

// Where a value sits in the panel: 0 at lo, 1 at hi (on a logarithmic scale
// for ohm). Values outside give positions outside 0..1; 0 and infinity are
// placed far outside instead of failing.
double position(const Panel& panel, double value);
// Where a frequency sits on the axis from..to: 0 at from, 1 at to.
double position(double from, double to, double f);

// The pieces of a polyline that lie in lo <= y <= hi, cut exactly where the
// line leaves or enters the band.
std::vector<std::vector<QPointF>> clip(const std::vector<QPointF>& line, double lo, double hi);

// Frequencies from..to spaced evenly on the logarithmic axis, with the
// extra frequencies (marked ones, where curves have notches or peaks) put in
// at their places.
std::vector<double> sweep(double from, double to, int points, const std::vector<double>& extra = {});

// The four decades around a frequency: powers of ten two decades either
// side of the decade nearest to it.
std::pair<double, double> decadesAround(double f);

// Ranges that hold the curves of a panel: dB to the next 10 above (at least
// 10 dB headroom over 0) and at most 70 dB below that; degrees at least
// -90..90 in steps of 45; ohm whole decades with some room above and
// below the curves, at most three decades beyond
// the values at the ends of the sweep (a lossless circuit's zero or pole
// would otherwise swallow the scale).
void fitRange(Panel& panel);

// Plots of the simple circuits, computed over the four decades around the
// corner or resonance frequency. Values that are 0, negative or not finite
// give an empty plot.
// RC: low-pass (R in series, output across C) and high-pass (C in series,
// output across R), level and phase, fg = 1 / (2 pi R C) marked.
Plot rcFilter(double r, double c);
// RL: low-pass (L in series, output across R) and high-pass (R in series,
// output across L), level and phase, fg = R / (2 pi L) marked.
Plot rlFilter(double r, double l);
// RLC: impedance magnitude and phase of R, L and C in series or all three
// in parallel, f0 = 1 / (2 pi sqrt(L C)) marked. r of 0 means no resistor.
Plot rlcImpedance(double r, double l, double c, bool parallel);

}  // namespace bode
