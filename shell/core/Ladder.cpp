#include "shell/core/Ladder.h"

#include <cmath>

namespace ladder {
namespace {
constexpr double kTwoPi = 6.28318530717958;
}

Complex impedance(Kind kind, double value, double w) {
  switch (kind) {
    case Kind::R: return {value, 0.0};
    case Kind::L: return {0.0, w * value};
    case Kind::C: return {0.0, -1.0 / (w * value)};
  }
  return {};
}

Complex transfer(const std::vector<Part>& parts, double load, double f) {
  // Chain (ABCD) matrix of the network: a series impedance Z is
  // [1 Z; 0 1], a shunt admittance Y is [1 0; Y 1]. With the load R at the
  // output, Uin = A Uout + B Iout and Iout = Uout / R.
  const double w = kTwoPi * f;
  Complex a = 1, b = 0, c = 0, d = 1;
  for (const Part& p : parts) {
    const Complex z = impedance(p.kind, p.value, w);
    if (p.place == Place::Series) {
      b = a * z + b;
      d = c * z + d;
    } else {
      const Complex y = 1.0 / z;
      a = a + b * y;
      c = c + d * y;
    }
  }
  const Complex den = load > 0 ? a + b / load : a;
  return 1.0 / den;
}

Complex seriesRLC(double r, double l, double c, double f) {
  const double w = kTwoPi * f;
  return Complex(r > 0 ? r : 0.0, 0.0) + impedance(Kind::L, l, w) + impedance(Kind::C, c, w);
}

Complex parallelRLC(double r, double l, double c, double f) {
  const double w = kTwoPi * f;
  const Complex y = Complex(r > 0 ? 1.0 / r : 0.0, 0.0) + 1.0 / impedance(Kind::L, l, w) + 1.0 / impedance(Kind::C, c, w);
  return 1.0 / y;
}

double decibels(Complex h, double floor) {
  const double m = std::abs(h);
  if (!(m > 0) || !std::isfinite(m)) return std::isfinite(m) ? floor : -floor;
  const double db = 20.0 * std::log10(m);
  return db < floor ? floor : db;
}

double degrees(Complex h) {
  const double ph = std::arg(h) * 180.0 / 3.14159265358979;
  return std::isfinite(ph) ? ph : 0.0;
}

std::vector<double> logSweep(double from, double to, int points) {
  std::vector<double> f;
  if (points < 2 || !(from > 0) || !(to > from)) return f;
  const double l0 = std::log10(from), l1 = std::log10(to);
  for (int i = 0; i < points; ++i) f.push_back(std::pow(10.0, l0 + (l1 - l0) * i / (points - 1)));
  f.front() = from;
  f.back() = to;
  return f;
}

}  // namespace ladder
