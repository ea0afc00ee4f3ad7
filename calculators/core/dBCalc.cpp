#include "calculators/core/dBCalc.h"

#include <cmath>

#include "shell/core/NumberFormat.h"

namespace db {

const std::array<Reference, 5>& references() {
  static const std::array<Reference, 5> r{{
      {QStringLiteral("frei"), false, 0, kUnitStart},
      {QStringLiteral("1 mW  (dBm)"), true, 1, 1},
      {QStringLiteral("1 µV  (dBµV)"), false, 1, 0},
      {QStringLiteral("1 V  (dBV)"), false, 1, 2},
      {QStringLiteral("0,775 V  (dBu)"), false, 0.775, 2},
  }};
  return r;
}

QString ratioLine(double ratio, const QLocale& locale) {
  if (!std::isfinite(ratio)) return QString();
  QString number;
  if (ratio >= 0.001) {
    number = numfmt::format(ratio, "####0.0####", locale);
  } else {
    number = numfmt::format(ratio, "0.000E+00", locale);
    if (number.section(QLatin1Char('E'), 1).size() > 3) return QString();
  }
  return QStringLiteral("Verhältnis Ausgang / Eingang: ") + number;
}

}  // namespace db
