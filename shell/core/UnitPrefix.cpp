#include "shell/core/UnitPrefix.h"

#include "shell/core/Module1.h"

namespace units {

double Unit::factor() const {
  // 1 and 1000 are plain constants; every other factor is a power of ten.
  if (power == 0) return 1.0;
  if (power == 3) return 1000.0;
  return Module1::TenPow(power);
}

QStringList names(const UnitList& list) {
  QStringList r;
  for (const Unit& u : list) r << u.name;
  return r;
}

double factorAt(const UnitList& list, int index) {
  if (index < 0 || index >= int(list.size())) return 1.0;
  return list[size_t(index)].factor();
}

double scaleTo(const UnitList& list, int index, double value) {
  if (index < 0 || index >= int(list.size())) return value;
  const int p = list[size_t(index)].power;
  if (p == 0) return value;
  if (p > 0) return value / list[size_t(index)].factor();
  return value * (p == -3 ? 1000.0 : Module1::TenPow(-p));
}

static bool holds(Cmp cmp, double v, double t) {
  switch (cmp) {
    case Cmp::Greater: return v > t;
    case Cmp::GreaterEq: return v >= t;
    case Cmp::Less: return v < t;
    case Cmp::LessEq: return v <= t;
  }
  return false;
}

std::optional<Placed> place(const UnitList& list, const Placement& rule, double value) {
  int index = rule.otherwise;
  for (const Band& b : rule.bands) {
    if (holds(b.cmp, value, b.threshold)) {
      index = b.index;
      break;
    }
  }
  if (index < 0) return std::nullopt;
  return Placed{index, scaleTo(list, index, value)};
}

Placement resistanceRule() {
  return {{{Cmp::Greater, Module1::TenPow(6), 2}, {Cmp::Greater, 1000.0, 1}}, 0};
}

Placement frequencyRule() {
  return {{{Cmp::Greater, Module1::TenPow(6), 0}, {Cmp::Greater, 1000.0, 1}}, 2};
}

const UnitList& voltage() {
  static const UnitList l{{"mV", -3}, {"V", 0}, {"KV", 3}};
  return l;
}
const UnitList& resistance() {
  static const UnitList l{{"Ohm", 0}, {"KOhm", 3}, {"MOhm", 6}};
  return l;
}
const UnitList& current() {
  static const UnitList l{{QStringLiteral("µA"), -6}, {"mA", -3}, {"A", 0}};
  return l;
}
const UnitList& frequency() {
  static const UnitList l{{"MHz", 6}, {"KHz", 3}, {"Hz", 0}};
  return l;
}
const UnitList& capacitance() {
  static const UnitList l{{"pF", -12}, {"nF", -9}, {QStringLiteral("µF"), -6}};
  return l;
}
const UnitList& inductance() {
  static const UnitList l{{"nH", -9}, {QStringLiteral("µH"), -6}, {"mH", -3}, {"H", 0}};
  return l;
}

}  // namespace units
