#include "calculators/core/SpuleLuftCalc.h"

#include <cmath>

#include "calculators/core/CheckedMath.h"
#include "shell/core/Arith.h"
#include "shell/core/Module1.h"

namespace spuleluft {
namespace {
// Wheeler's inch constants 18 and 40, times 25,4.
constexpr double kDiameterTerm = 457.2;
constexpr double kLengthTerm = 1016;

}  // namespace

double inductance(double n, double d, double l) {
  return d * d * n * n / calcmath::divisor(kDiameterTerm * d + kLengthTerm * l);
}

double turns(double lMicro, double d, double l) {
  return std::sqrt(lMicro * (kDiameterTerm * d + kLengthTerm * l)) / calcmath::divisor(d);
}

double closeWoundTurns(double lMicro, double d, double wire) {
  const double b = kLengthTerm * wire * lMicro;
  return (b + std::sqrt(b * b + 4 * d * d * kDiameterTerm * d * lMicro)) / calcmath::divisor(2 * d * d);
}

double length(double lMicro, double n, double d) {
  return (d * d * n * n / calcmath::divisor(lMicro) - kDiameterTerm * d) / kLengthTerm;
}

double wireLength(double n, double d) { return n * kPi * d / 1000; }

Result compute(const Input& in) {
  Result r;
  if (!(in.d > 0)) {
    r.stop = Stop::DiameterMissing;
    return r;
  }
  const bool lengthKnown = in.length > 0 || in.wire > 0;
  if ((in.l > 0) + (in.n > 0) + lengthKnown < 2) {
    r.stop = Stop::TooFewValues;
    return r;
  }
  if (!in.lEmpty && !in.nEmpty && !in.lengthEmpty) {
    r.stop = Stop::NoEmptyField;
    return r;
  }
  // The unknown is the first empty field of L, N and l; it needs both others.
  const bool inputsThere = in.lEmpty   ? in.n > 0 && lengthKnown
                           : in.nEmpty ? in.l > 0 && lengthKnown
                                       : in.l > 0 && in.n > 0;
  if (!inputsThere) {
    r.stop = Stop::TooFewValues;
    return r;
  }

  const double lMicro = in.l * Module1::TenPow(6);
  double n = in.n, len = in.length;
  if (in.lEmpty) {
    if (!(len > 0) && arith::assign(len, n * in.wire)) r.length = len;
    const double l = inductance(n, in.d, len) * Module1::TenPow(-6);
    if (arith::ok(l)) r.inductance = l;
  } else if (in.nEmpty) {
    const double turnsFound = len > 0 ? turns(lMicro, in.d, len) : closeWoundTurns(lMicro, in.d, in.wire);
    if (arith::assign(n, turnsFound)) r.turns = n;
    if (!(in.length > 0) && arith::assign(len, n * in.wire)) r.length = len;
  } else {
    const double found = length(lMicro, n, in.d);
    if (arith::ok(found) && found <= 0) {
      r.stop = Stop::Unreachable;
      return r;
    }
    if (arith::assign(len, found)) r.length = len;
  }

  const double wire = wireLength(n, in.d);
  if (arith::ok(wire)) r.wireLength = wire;
  r.tooShort = len < 0.4 * in.d;
  return r;
}

const units::UnitList& inductanceUnits() {
  static const units::UnitList l{{"nH", -9}, {QStringLiteral("µH"), -6}, {"mH", -3}};
  return l;
}

units::Placement inductancePlacement() {
  using units::Cmp;
  return {{{Cmp::Greater, Module1::TenPow(-3), 2}, {Cmp::Greater, Module1::TenPow(-6), 1}}, 0};
}

}  // namespace spuleluft
