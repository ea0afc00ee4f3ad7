#include "shell/core/NumberFormat.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

namespace numfmt {
namespace {

struct Pattern {
  int minInt = 0;
  int minFrac = 0;
  int maxFrac = 0;
};

Pattern parsePattern(const QString& p) {
  Pattern r;
  const qsizetype dot = p.indexOf(QLatin1Char('.'));
  const QString intPart = dot < 0 ? p : p.left(dot);
  const QString fracPart = dot < 0 ? QString() : p.mid(dot + 1);
  r.minInt = int(intPart.count(QLatin1Char('0')));
  r.maxFrac = int(fracPart.size());
  r.minFrac = int(fracPart.count(QLatin1Char('0')));
  return r;
}

// Decimal digits of |v| in its shortest exact-round-trip form, as an integer
// digit string and a fraction digit string.
void decimalDigits(double v, std::string& intDigits, std::string& fracDigits) {
  char buf[64];
  const auto res = std::to_chars(buf, buf + sizeof buf, std::fabs(v), std::chars_format::scientific);
  const std::string s(buf, res.ptr);
  const size_t e = s.find('e');
  std::string mant = s.substr(0, e);
  const int exp10 = std::stoi(s.substr(e + 1));
  mant.erase(std::remove(mant.begin(), mant.end(), '.'), mant.end());
  // value = 0.mant * 10^(exp10 + 1)
  const int point = exp10 + 1;
  if (point <= 0) {
    intDigits = "0";
    fracDigits = std::string(size_t(-point), '0') + mant;
  } else if (point >= int(mant.size())) {
    intDigits = mant + std::string(size_t(point - int(mant.size())), '0');
    fracDigits.clear();
  } else {
    intDigits = mant.substr(0, size_t(point));
    fracDigits = mant.substr(size_t(point));
  }
}

// Adds one to the last digit of a digit string, carrying; returns the carry.
bool increment(std::string& digits) {
  for (auto it = digits.rbegin(); it != digits.rend(); ++it) {
    if (*it == '9') {
      *it = '0';
    } else {
      ++*it;
      return false;
    }
  }
  return true;
}

// Scientific pattern such as "0.000E+00": one integer digit, the decimals of
// the mantissa part, and an exponent with at least as many digits as the
// pattern's zeros after "E+" (sign always) or "E-" (minus only).
QString scientific(double value, const QString& pattern, const QLocale& locale) {
  const qsizetype e = pattern.indexOf(QLatin1Char('E'));
  const Pattern p = parsePattern(pattern.left(e));
  const QString expPart = pattern.mid(e + 1);
  const bool plusSign = expPart.startsWith(QLatin1Char('+'));
  const int expDigits = std::max(1, int(expPart.count(QLatin1Char('0'))));

  std::string digits(1, '0');
  int exp10 = 0;
  if (value != 0) {
    char buf[64];
    const auto res = std::to_chars(buf, buf + sizeof buf, std::fabs(value), std::chars_format::scientific);
    const std::string s(buf, res.ptr);
    const size_t ePos = s.find('e');
    digits = s.substr(0, ePos);
    digits.erase(std::remove(digits.begin(), digits.end(), '.'), digits.end());
    exp10 = std::stoi(s.substr(ePos + 1));
  }
  const size_t keep = size_t(1 + p.maxFrac);
  if (digits.size() > keep) {
    const bool roundUp = digits[keep] >= '5';
    digits.resize(keep);
    if (roundUp && increment(digits)) {
      digits.insert(digits.begin(), '1');
      digits.pop_back();
      ++exp10;
    }
  }
  std::string frac = digits.substr(1);
  while (int(frac.size()) > p.minFrac && frac.back() == '0') frac.pop_back();
  while (int(frac.size()) < p.minFrac) frac.push_back('0');

  QString out;
  if (value < 0) out += locale.negativeSign();
  out += QLatin1Char(digits[0]);
  if (!frac.empty()) out += locale.decimalPoint() + QString::fromLatin1(frac.data(), qsizetype(frac.size()));
  out += QLatin1Char('E');
  if (exp10 < 0)
    out += QLatin1Char('-');
  else if (plusSign)
    out += QLatin1Char('+');
  out += QString::number(std::abs(exp10)).rightJustified(expDigits, QLatin1Char('0'));
  return out;
}

}  // namespace

QString format(double value, const QString& pattern, const QLocale& locale) {
  if (!std::isfinite(value)) return QString();
  if (pattern.contains(QLatin1Char('E'))) return scientific(value, pattern, locale);
  const Pattern p = parsePattern(pattern);
  std::string intDigits, fracDigits;
  decimalDigits(value, intDigits, fracDigits);

  if (int(fracDigits.size()) > p.maxFrac) {
    const bool roundUp = fracDigits[size_t(p.maxFrac)] >= '5';
    fracDigits.resize(size_t(p.maxFrac));
    if (roundUp && increment(fracDigits) && increment(intDigits)) intDigits.insert(intDigits.begin(), '1');
  }
  while (int(fracDigits.size()) > p.minFrac && !fracDigits.empty() && fracDigits.back() == '0') fracDigits.pop_back();
  while (int(fracDigits.size()) < p.minFrac) fracDigits.push_back('0');

  // Leading zeros go, except those the pattern's "0" digits ask for.
  size_t firstNonZero = intDigits.find_first_not_of('0');
  intDigits = firstNonZero == std::string::npos ? std::string() : intDigits.substr(firstNonZero);
  while (int(intDigits.size()) < p.minInt) intDigits.insert(intDigits.begin(), '0');

  const bool isZero = intDigits.find_first_not_of('0') == std::string::npos &&
                      fracDigits.find_first_not_of('0') == std::string::npos;
  QString out;
  if (value < 0 && !isZero) out += locale.negativeSign();
  out += QString::fromLatin1(intDigits.data(), qsizetype(intDigits.size()));
  if (!fracDigits.empty()) {
    out += locale.decimalPoint();
    out += QString::fromLatin1(fracDigits.data(), qsizetype(fracDigits.size()));
  }
  return out;
}

QString plain(double value, const QLocale& locale) {
  if (!std::isfinite(value)) return QString();
  char buf[64];
  const auto res = std::to_chars(buf, buf + sizeof buf, value);
  QString s = QString::fromLatin1(buf, qsizetype(res.ptr - buf));
  s.replace(QLatin1Char('.'), locale.decimalPoint());
  return s;
}

}  // namespace numfmt
