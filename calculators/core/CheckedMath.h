#pragma once
// A divisor whose arithmetic overflowed must not turn the quotient into a
// plausible 0: the statement counts as failed and its result is not written.
#include <cmath>
#include <limits>

namespace calcmath {

inline double divisor(double v) { return std::isfinite(v) ? v : std::numeric_limits<double>::quiet_NaN(); }

}  // namespace calcmath
