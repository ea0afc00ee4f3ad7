// ParseNumber over any text: never fails, always gives a finite number, reads
// the same text the same way whether it came as UTF-8 or Latin-1, and ignores
// a leading blank and a trailing letter.
#include <cmath>
#include <cstdint>
#include <cstdlib>

#include "shell/core/Module1.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const char* chars = reinterpret_cast<const char*>(data);
  const QString utf8 = QString::fromUtf8(chars, qsizetype(size));
  const QString latin1 = QString::fromLatin1(chars, qsizetype(size));
  const double a = Module1::ParseNumber(utf8);
  const double b = Module1::ParseNumber(latin1);
  if (!std::isfinite(a) || !std::isfinite(b)) std::abort();
  if (utf8 == latin1 && a != b) std::abort();
  // A leading blank or a trailing letter changes nothing.
  if (Module1::ParseNumber(" " + latin1) != b || Module1::ParseNumber(latin1 + "x") != b) std::abort();
  return 0;
}
