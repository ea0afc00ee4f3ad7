#include "calculators/core/QLCRCalc.h"

#include <cmath>

#include "calculators/core/CheckedMath.h"
#include "calculators/core/SchwingkCalc.h"
#include "shell/core/Arith.h"
#include "shell/core/Module1.h"

namespace qlcr {

Result compute(const Input& in) {
  Result r;
  double f = in.f, l = in.l, c = in.c;
  if ((f > 0) + (l > 0) + (c > 0) < 2) {
    r.stop = Stop::TooFewCircuitValues;
    return r;
  }
  // The first value not above 0 is the missing one; with all three given the
  // frequency is computed again, so the three always agree.
  r.circuitField = !(f > 0) ? 0 : !(l > 0) ? 1 : !(c > 0) ? 2 : 0;
  double* target = r.circuitField == 0 ? &f : r.circuitField == 1 ? &l : &c;
  const double value = r.circuitField == 0   ? schwingk::frequency(l, c)
                       : r.circuitField == 1 ? schwingk::inductance(f, c)
                                             : schwingk::capacitance(f, l);
  if (arith::assign(*target, value)) {
    r.circuitValue = value;
  } else {
    r.circuitField = -1;
  }

  double z0 = 0;
  if (arith::assign(z0, std::sqrt(l / calcmath::divisor(c)))) r.z0 = z0;

  double q = 0;
  if (in.q > 0) {
    q = in.q;
  } else if (in.b > 0) {
    arith::assign(q, f / in.b);
  } else if (in.rp > 0) {
    arith::assign(q, in.rp / calcmath::divisor(z0));
  } else if (in.rs > 0) {
    arith::assign(q, z0 / in.rs);
  } else {
    r.stop = Stop::NoLossValue;
    return r;
  }
  if (q <= 0.5) {
    r.stop = Stop::QualityTooLow;
    return r;
  }
  r.q = q;
  r.b = f / q;
  r.rp = q * z0;
  r.rs = z0 / q;
  return r;
}

const units::UnitList& seriesResistanceUnits() {
  static const units::UnitList l{{"mOhm", -3}, {"Ohm", 0}, {"KOhm", 3}};
  return l;
}

units::Placement seriesResistancePlacement() {
  using units::Cmp;
  return {{{Cmp::GreaterEq, 1000.0, 2}, {Cmp::GreaterEq, 1.0, 1}}, 0};
}

units::Placement resistancePlacement() {
  return units::resistanceRule();
}

}  // namespace qlcr
