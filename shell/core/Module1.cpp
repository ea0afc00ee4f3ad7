#include "shell/core/Module1.h"

#include <QCoreApplication>
#include <charconv>
#include <cmath>
#include <string>

#include "Version.h"

namespace Module1 {

QString versionString() { return QStringLiteral(QUARZEL_VERSION_STRING); }
int versionMajor() { return QUARZEL_VERSION_MAJOR; }
int versionMinor() { return QUARZEL_VERSION_MINOR; }
int versionRevision() { return QUARZEL_VERSION_PATCH; }

double ParseNumber(const QString& text) {
  QString t = text;
  const qsizetype comma = t.indexOf(QLatin1Char(','));
  if (comma >= 0) t[comma] = QLatin1Char('.');

  // Collect the longest prefix that forms a number: blanks, sign, digits,
  // one point, digits, and an exponent only when digits follow it.
  const std::u16string s = t.toStdU16String();
  size_t i = 0;
  while (i < s.size() && (s[i] == u' ' || s[i] == u'\t')) ++i;
  std::string num;
  if (i < s.size() && (s[i] == u'+' || s[i] == u'-')) {
    if (s[i] == u'-') num += '-';
    ++i;
  }
  bool digits = false;
  while (i < s.size() && s[i] >= u'0' && s[i] <= u'9') { num += char(s[i++]); digits = true; }
  if (i < s.size() && s[i] == u'.') {
    num += '.';
    ++i;
    while (i < s.size() && s[i] >= u'0' && s[i] <= u'9') { num += char(s[i++]); digits = true; }
  }
  if (!digits) return 0.0;
  if (i < s.size() && (s[i] == u'e' || s[i] == u'E' || s[i] == u'd' || s[i] == u'D')) {
    size_t j = i + 1;
    std::string exp = "e";
    if (j < s.size() && (s[j] == u'+' || s[j] == u'-')) exp += char(s[j++]);
    bool expDigits = false;
    while (j < s.size() && s[j] >= u'0' && s[j] <= u'9') { exp += char(s[j++]); expDigits = true; }
    if (expDigits) num += exp;
  }
  double value = 0.0;
  const auto res = std::from_chars(num.data(), num.data() + num.size(), value);
  if (res.ec != std::errc() || !std::isfinite(value)) return 0.0;
  return value;
}

double Log10(double x) { return std::log(x) / std::log(10.0); }

double TenPow(double x) { return std::pow(10.0, x); }

namespace {
QString& appDirOverride() {
  static QString dir;
  return dir;
}
}  // namespace

QString appDir() {
  if (!appDirOverride().isEmpty()) return appDirOverride();
  if (QCoreApplication::instance()) return QCoreApplication::applicationDirPath();
  return QStringLiteral(".");
}

void setAppDir(const QString& dir) { appDirOverride() = dir; }

}  // namespace Module1
