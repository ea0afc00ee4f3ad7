#include "shell/core/StandardValues.h"

#include <QLocale>
#include <array>
#include <cmath>
#include <vector>

#include "shell/core/Module1.h"
#include "shell/core/NumberFormat.h"

namespace eseries {
namespace {

constexpr std::array<double, 6> kE6 = {1.0, 1.5, 2.2, 3.3, 4.7, 6.8};
constexpr std::array<double, 12> kE12 = {1.0, 1.2, 1.5, 1.8, 2.2, 2.7, 3.3, 3.9, 4.7, 5.6, 6.8, 8.2};
constexpr std::array<double, 24> kE24 = {1.0, 1.1, 1.2, 1.3, 1.5, 1.6, 1.8, 2.0, 2.2, 2.4, 2.7, 3.0,
                                         3.3, 3.6, 3.9, 4.3, 4.7, 5.1, 5.6, 6.2, 6.8, 7.5, 8.2, 9.1};
constexpr std::array<double, 96> kE96 = {
    1.00, 1.02, 1.05, 1.07, 1.10, 1.13, 1.15, 1.18, 1.21, 1.24, 1.27, 1.30, 1.33, 1.37, 1.40, 1.43,
    1.47, 1.50, 1.54, 1.58, 1.62, 1.65, 1.69, 1.74, 1.78, 1.82, 1.87, 1.91, 1.96, 2.00, 2.05, 2.10,
    2.15, 2.21, 2.26, 2.32, 2.37, 2.43, 2.49, 2.55, 2.61, 2.67, 2.74, 2.80, 2.87, 2.94, 3.01, 3.09,
    3.16, 3.24, 3.32, 3.40, 3.48, 3.57, 3.65, 3.74, 3.83, 3.92, 4.02, 4.12, 4.22, 4.32, 4.42, 4.53,
    4.64, 4.75, 4.87, 4.99, 5.11, 5.23, 5.36, 5.49, 5.62, 5.76, 5.90, 6.04, 6.19, 6.34, 6.49, 6.65,
    6.81, 6.98, 7.15, 7.32, 7.50, 7.68, 7.87, 8.06, 8.25, 8.45, 8.66, 8.87, 9.09, 9.31, 9.53, 9.76};

// Value = mantissa * 10^exponent with 1 <= mantissa < 10, the exponent
// corrected where the floating-point logarithm lands just beside a power of ten.
bool split(double value, int& exponent, double& mantissa) {
  // Far outside any part's range (1e-30 to 1e30) there is no standard value.
  if (!std::isfinite(value) || value < 1e-30 || value > 1e30) return false;
  exponent = int(std::floor(std::log10(value)));
  mantissa = value / std::pow(10.0, exponent);
  if (mantissa >= 10.0) {
    ++exponent;
    mantissa = value / std::pow(10.0, exponent);
  } else if (mantissa < 1.0) {
    --exponent;
    mantissa = value / std::pow(10.0, exponent);
  }
  return std::isfinite(mantissa);
}

// A standard value in the decade, written so that 8.2 * 10^3 is exactly 8200.
double scaled(double m, int exponent) {
  // The mantissas have at most two decimals: scale the integer 100 * m.
  const double hundredths = std::round(m * 100.0);
  return exponent >= 2 ? hundredths * std::pow(10.0, exponent - 2) : hundredths / std::pow(10.0, 2 - exponent);
}

}  // namespace

QString name(Series s) {
  switch (s) {
    case Series::E6: return QStringLiteral("E6");
    case Series::E12: return QStringLiteral("E12");
    case Series::E24: return QStringLiteral("E24");
    case Series::E96: return QStringLiteral("E96");
  }
  return {};
}

std::span<const double> mantissas(Series s) {
  switch (s) {
    case Series::E6: return kE6;
    case Series::E12: return kE12;
    case Series::E24: return kE24;
    case Series::E96: return kE96;
  }
  return {};
}

std::optional<Nearest> nearest(Series s, double value) {
  int e = 0;
  double m = 0;
  if (!split(value, e, m)) return std::nullopt;
  const std::span<const double> list = mantissas(s);
  // Candidates: the decade's mantissas and the next decade's 1.0.
  double chosen = 10.0;
  for (size_t k = 0; k < list.size(); ++k) {
    const double upper = k + 1 < list.size() ? list[k + 1] : 10.0;
    if (m * m < list[k] * upper) {  // below the geometric mean of the neighbours
      chosen = list[k];
      break;
    }
  }
  const double v = chosen == 10.0 ? scaled(1.0, e + 1) : scaled(chosen, e);
  const double dev = (v - value) / value;
  if (!std::isfinite(v) || !std::isfinite(dev)) return std::nullopt;
  return Nearest{v, dev};
}

std::optional<double> atOrAbove(Series s, double value) {
  int e = 0;
  double m = 0;
  if (!split(value, e, m)) return std::nullopt;
  for (double c : mantissas(s))
    if (c >= m * (1 - 1e-6)) return scaled(c, e);
  return scaled(1.0, e + 1);
}

QString deviationText(double deviation) {
  const double percent = deviation * 100.0;
  QString t = numfmt::format(std::fabs(percent), "##0.0#");
  const QString zero = numfmt::format(0.0, "##0.0#");
  if (t == zero) return QStringLiteral("0 %");
  return (percent > 0 ? QStringLiteral("+") : QStringLiteral("-")) + t + QStringLiteral(" %");
}

std::vector<Series> seriesFor(Part p) {
  if (p == Part::Resistor) return {Series::E12, Series::E24, Series::E96};
  return {Series::E6, Series::E12, Series::E24};
}

QString valueText(double value, const units::UnitList& list) {
  if (list.empty() || !std::isfinite(value)) return {};
  // The largest unit whose factor does not exceed the value; the smallest
  // unit when none does.
  size_t unit = 0;
  for (size_t k = 1; k < list.size(); ++k)
    if (list[k].factor() < list[unit].factor()) unit = k;
  const double limit = value * (1 + 1e-12);
  for (size_t k = 0; k < list.size(); ++k)
    if (list[k].factor() <= limit && list[k].factor() > list[unit].factor()) unit = k;
  // Below 1 of the smallest unit the digits of the mantissa still show.
  const double scaled = units::scaleTo(list, int(unit), value);
  const QString number = numfmt::format(scaled, scaled >= 1 ? "##0.0#" : "0.0#####");
  if (number.isEmpty() || !(Module1::ParseNumber(number) > 0)) return {};
  return number + ' ' + list[unit].name;
}

QString describe(Series s, double value, const units::UnitList& list) {
  const std::optional<Nearest> n = nearest(s, value);
  if (!n) return {};
  const QString v = valueText(n->value, list);
  if (v.isEmpty()) return {};
  return name(s) + ' ' + v + QStringLiteral(" (") + deviationText(n->deviation) + ')';
}

std::optional<Pair> bestDividerPair(Series s, double r1, double r2, double ratio) {
  int e1 = 0, e2 = 0;
  double m1 = 0, m2 = 0;
  if (!split(r1, e1, m1) || !split(r2, e2, m2) || !std::isfinite(ratio) || ratio <= 0) return std::nullopt;
  std::vector<double> list(mantissas(s).begin(), mantissas(s).end());
  list.push_back(10.0);
  std::optional<Pair> best;
  for (double a : list) {
    const double ra = scaled(a, e1);
    for (double b : list) {
      const double rb = scaled(b, e2);
      const double q = (ra + rb) / rb;
      const double err = (q - ratio) / ratio;
      if (!std::isfinite(err)) continue;
      if (!best || std::fabs(err) < std::fabs(best->error)) best = Pair{ra, rb, q, err};
    }
  }
  return best;
}

}  // namespace eseries
