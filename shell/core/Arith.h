#pragma once
// Computation handlers skip a statement whose arithmetic fails (division by
// zero, overflow, root of a negative number): the target keeps what it had.
#include <cmath>

namespace arith {

inline bool ok(double v) { return std::isfinite(v); }

// Assigns value to target only when the arithmetic that produced it worked.
inline bool assign(double& target, double value) {
  if (!ok(value)) return false;
  target = value;
  return true;
}

}  // namespace arith
