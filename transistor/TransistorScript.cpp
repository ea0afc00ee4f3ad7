// Script mode command `transistor NAME CODE PTOT POLARITY UB`: sets the
// program-wide current transistor as a finished amplifier design leaves it
// (type name, package code, Ptot in W, "npn" or "pnp", UB magnitude in V).
// Numbers are written with a point; a NAME with blanks goes in double quotes.
#include <QtGlobal>
#include <cfloat>
#include <cmath>

#include "shell/ScriptRunner.h"
#include "transistor/core/TransistorState.h"

namespace {

bool number(const QString& word, double& out) {
  bool ok = false;
  out = word.toDouble(&ok);  // always with a point, whatever the locale
  return ok && std::isfinite(out) && std::fabs(out) <= double(FLT_MAX);
}

QString setTransistor(const QString& line) {
  QString rest = line;
  const QString name = script::nextWord(rest);
  const QString codeWord = script::nextWord(rest);
  const QString ptotWord = script::nextWord(rest);
  const QString polarity = script::nextWord(rest);
  const QString ubWord = script::nextWord(rest);
  if (ubWord.isEmpty() || !rest.trimmed().isEmpty())
    return QStringLiteral("transistor needs NAME CODE PTOT POLARITY UB");
  bool ok = false;
  const int code = codeWord.toInt(&ok);
  if (!ok || code < -32768 || code > 32767) return "bad package code " + codeWord;
  double ptot = 0, ub = 0;
  if (!number(ptotWord, ptot)) return "bad Ptot " + ptotWord;
  if (!number(ubWord, ub)) return "bad UB " + ubWord;
  if (polarity != QLatin1String("npn") && polarity != QLatin1String("pnp")) return "bad polarity " + polarity;

  transistor::CurrentTransistor& t = transistor::current();
  t.typeName = name;
  t.packageCode = qint16(code);
  t.ptot = float(ptot);
  t.polarity = polarity;
  t.ubMagnitude = float(std::fabs(ub));
  return QString();
}

const bool registered = script::registerCommand(QStringLiteral("transistor"), setTransistor);

}  // namespace
