#include "transistor/core/TransistorState.h"

#include <array>

namespace transistor {

CurrentTransistor& current() {
  static CurrentTransistor state;
  return state;
}

DesignState& design() {
  static DesignState state;
  return state;
}

QString packageName(int code) {
  static const std::array<const char*, 12> names = {
      "TO 92", "TO 92z", "TO 18", "TO 39", "TO 126", "TO 220", "SOT 93", "TO ?", "TO 3",
      "SOT 23 (SMD) ", "SOT 89 (SMD) ", "SOT 223/SOT-K63(SMD) "};
  if (code < 1 || code > int(names.size())) return QStringLiteral(" ?");
  return QString::fromLatin1(names[size_t(code - 1)]);
}

}  // namespace transistor
