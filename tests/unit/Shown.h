#pragma once
// How a result field shows a value given in base units: "<number> <unit>" in
// the unit its rule picks, with a decimal point; "" when no unit fits.
#include <gtest/gtest.h>

#include <QLocale>
#include <initializer_list>
#include <string>

#include "shell/core/NumberFormat.h"
#include "shell/core/UnitPrefix.h"

inline std::string shown(const units::UnitList& list, const units::Placement& rule, double value,
                         const char* pattern = "0.0###") {
  const auto p = units::place(list, rule, value);
  if (!p) return {};
  return (numfmt::format(p->scaled, pattern, QLocale::c()) + ' ' + list[size_t(p->index)].name).toStdString();
}

// Values on both sides of a rule's boundaries and how each is shown.
struct Side {
  double value;
  const char* expected;
};
inline void expectSides(const units::UnitList& list, const units::Placement& rule, std::initializer_list<Side> sides) {
  for (const Side& s : sides) EXPECT_EQ(shown(list, rule, s.value), s.expected) << "value " << s.value;
}
