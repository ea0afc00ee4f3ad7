#include "calculators/core/RLCCalc.h"

#include <cmath>

#include "calculators/core/CheckedMath.h"
#include "shell/core/Module1.h"

namespace rlc {

namespace {
// +90, -90 or 0 degrees when there is no resistor.
double pureReactive(double inductive, double capacitive) {
  if (inductive > capacitive) return 90.0;
  if (inductive < capacitive) return -90.0;
  return 0.0;
}
}  // namespace

Result analyse(double f, double r, double l, double c, bool parallel) {
  Result res;
  const double w = kTwoPi * f;
  res.xl = w * l;
  res.xc = 1.0 / calcmath::divisor(w * c);
  if (!parallel) {
    const double x = res.xl - res.xc;
    res.z = std::sqrt(r * r + x * x);
    res.phi = r > 0 ? std::atan(x / r) * 180.0 / kPi : pureReactive(res.xl, res.xc);
  } else {
    const double g = r > 0 ? 1.0 / r : 0.0;
    const double bl = 1.0 / calcmath::divisor(res.xl);
    const double bc = 1.0 / calcmath::divisor(res.xc);
    const double b = bc - bl;
    const double y = std::sqrt(g * g + b * b);
    res.zEmpty = y == 0;
    res.z = y > 0 ? 1.0 / y : std::nan("");
    res.phi = g > 0 ? std::atan((bl - bc) / g) * 180.0 / kPi : pureReactive(bl, bc);
  }
  if (std::fabs(res.phi) < 0.005) res.phi = 0;
  const double root = std::sqrt(l * c);
  res.f0 = 1.0 / calcmath::divisor(kTwoPi * root);
  return res;
}

QString behaviour(double phi) {
  if (phi == 0) return QStringLiteral("ohmsch (Resonanz)");
  if (phi > 0) return QStringLiteral("induktiv");
  return QStringLiteral("kapazitiv");
}

units::Placement resistancePlacement() {
  return units::resistanceRule();
}

units::Placement frequencyPlacement() {
  return units::frequencyRule();
}

}  // namespace rlc
