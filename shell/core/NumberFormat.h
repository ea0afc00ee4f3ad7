#pragma once
// Number patterns of the result fields, e.g. "####0.0###": "0" is a digit
// that is always shown, "#" a digit shown only when needed; the value is
// rounded (half away from zero) to the pattern's last decimal place and
// written with the decimal separator of the given locale. A pattern with an
// exponent, "0.000E+00", shows one integer digit and the exponent with at
// least the pattern's number of exponent digits.
#include <QLocale>
#include <QString>

namespace numfmt {

// Formats value with pattern; a value that is not finite gives "".
QString format(double value, const QString& pattern, const QLocale& locale = QLocale());

// The number as plain text, as a program turns a number into text (shortest
// form that reads back to the same value, with the locale's separator).
QString plain(double value, const QLocale& locale = QLocale());

}  // namespace numfmt
