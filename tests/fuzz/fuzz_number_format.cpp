// The number-pattern formatter over any double (subnormals, huge values,
// negative zero, infinities, NaN) with the program's own result patterns,
// under a German and a C locale: no exponent, no "inf" or "nan", the
// pattern's decimal places, and the text reads back (through ParseNumber) to
// the value rounded to those places.
#include <QLocale>
#include <QRegularExpression>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <fuzzer/FuzzedDataProvider.h>

#include "shell/core/Module1.h"
#include "shell/core/NumberFormat.h"

namespace {

const char* const Patterns[] = {"####0.0###", "###0.0###", "####0.0########", "####0.0####", "###0.0####",
                                "0", "##0", "###0.00", "####0.0######", "####0.0#####", "##0.0", "###0.0#",
                                "0.0", "#0.0######", "###0.000#", "###0.0#######", "###0.0", "####0.0##",
                                "###", "#"};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider in(data, size);
  const QString pattern = QString::fromLatin1(in.PickValueInArray(Patterns));
  static const QLocale german(QLocale::German, QLocale::Germany);
  const QLocale& locale = in.ConsumeBool() ? german : QLocale::c();
  double v = 0;
  uint64_t bits = in.ConsumeIntegral<uint64_t>();
  std::memcpy(&v, &bits, sizeof v);

  const QString out = numfmt::format(v, pattern, locale);
  if (!std::isfinite(v)) {
    if (!out.isEmpty()) std::abort();
    return 0;
  }
  const qsizetype dot = pattern.indexOf('.');
  const int maxFrac = dot < 0 ? 0 : int(pattern.size() - dot - 1);
  const int minFrac = dot < 0 ? 0 : int(pattern.mid(dot + 1).count('0'));
  static const QRegularExpression shape(QStringLiteral("^-?[0-9]*([.,]([0-9]+))?$"));
  const auto m = shape.match(out);
  // "#" digits alone show nothing for a value that rounds to zero.
  const bool mayBeEmpty = !pattern.left(dot < 0 ? pattern.size() : dot).contains('0');
  if (!m.hasMatch() || (out.isEmpty() && !mayBeEmpty) || out == "-") std::abort();
  const int frac = int(m.captured(2).size());
  if (frac < minFrac || frac > maxFrac) std::abort();
  if (m.capturedLength(1) > 0 && m.captured(1)[0] != locale.decimalPoint()[0]) std::abort();

  const double back = Module1::ParseNumber(out);
  const double step = std::pow(10.0, -maxFrac);
  if (std::fabs(back - v) > step * 0.5000001 + std::fabs(v) * 4e-16) std::abort();
  return 0;
}
