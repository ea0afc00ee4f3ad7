#pragma once
// Frequency response of ladder networks: parts in series with the signal
// line or across it, from an ideal voltage source to a resistive load.
#include <complex>
#include <vector>

namespace ladder {

using Complex = std::complex<double>;

enum class Kind { R, L, C };
enum class Place { Series, Shunt };

struct Part {
  Kind kind;
  Place place;
  double value;  // ohm, henry or farad
};

// Impedance of one part at angular frequency w.
Complex impedance(Kind kind, double value, double w);

// Output voltage over input voltage at frequency f (Hz) for the parts in
// order from the source to the load; a load of 0 or less means no load
// (open output).
Complex transfer(const std::vector<Part>& parts, double load, double f);

// Impedance of R, L and C in series, or all three in parallel, at f (Hz).
// A resistance of 0 or less means no resistor.
Complex seriesRLC(double r, double l, double c, double f);
Complex parallelRLC(double r, double l, double c, double f);

// Level in dB of a complex ratio; very small magnitudes are held at `floor`
// so that a notch never gives minus infinity.
double decibels(Complex h, double floor = -200.0);
// Phase in degrees, -180 < phase <= 180.
double degrees(Complex h);

// Frequencies spaced evenly on a logarithmic axis, both ends included.
std::vector<double> logSweep(double from, double to, int points);

}  // namespace ladder
