#include "transistor/core/TransistorSuche.h"

#include "shell/core/Module1.h"
#include "shell/core/NumberFormat.h"
#include "transistor/core/SequentialReader.h"

namespace transistor {

QString katalogPfad() { return Module1::appDir() + QStringLiteral("/Transist.dat"); }

void generischerTyp(Suchauftrag& a, CurrentTransistor& t) {
  a.klasse = t.polarity;
  if (double(a.ube) > 0.8) a.klasse += QStringLiteral("-Darlgt");
  if (a.smdWahl == 2) a.klasse += QStringLiteral("-smd");
  t.packageCode = 0;
  if (a.pmin < 1.0f) {
    if (double(a.pmin) < 0.1) a.pmin = 0.1f;
    t.typeName = numfmt::format(a.pmin, QStringLiteral("0.0")) + QStringLiteral(" W-Typ");
  } else {
    t.typeName = numfmt::format(a.pmin, QStringLiteral("###")) + QStringLiteral(" W-Typ");
  }
  t.ptot = a.pmin;
}

namespace {

// Whether a record that passed the hard limits suits the SMD choice and the
// transistor kind of the design.
bool passtZurWahl(const QString& klasse, qint16 smdWahl, float ube) {
  const bool smd = klasse.contains(QStringLiteral("smd"));
  const bool darlington = klasse.contains(QStringLiteral("Darlgt"));
  bool ok = false;
  switch (smdWahl) {
    case 0: ok = !smd; break;
    case 1: ok = true; break;
    case 2: ok = smd; break;
    default: break;
  }
  // A Darlington design (Ube above 0.8 V) keeps only Darlingtons, a normal
  // one only normal types; between 0.8 and 0.9 V both kinds pass.
  if (double(ube) > 0.8 && darlington) {
    // stays as it is
  } else if (double(ube) >= 0.9 || darlington) {
    ok = false;
  }
  return ok;
}

bool erfuelltGrenzen(const Suchauftrag& a, const CurrentTransistor& t) {
  const float doppelterStrom = 2.0f * a.ic;
  return a.pmin <= t.ptot && t.ubMagnitude <= float(a.uceMax) && doppelterStrom <= a.icMax &&
         a.klasse.contains(t.polarity);
}

}  // namespace

void TransistorSuche(Suchauftrag& a, CurrentTransistor& t, const FehlerFrage& frage, const QString& pfad) {
  const QString ausgeschlossen = t.typeName;
  seqio::SequentialReader datei;

  // True when the user wants the failed step repeated.
  auto wiederholen = [&](int nummer) {
    DateiFehler f;
    f.nummer = nummer;
    f.titel = QStringLiteral("Fehler ") + QString::number(nummer);
    f.text = seqio::errorDescription(nummer);
    if (nummer == seqio::FileNotFound) f.text += Module1::NL + pfad;
    return frage && frage(f) == FehlerAntwort::Wiederholen;
  };

  // Runs one reading step; on an error it is repeated from the same place
  // as long as the user asks for it. False when the user cancelled.
  auto schritt = [&](auto&& lesen) {
    const auto stelle = datei.mark();
    for (bool erstesMal = true;; erstesMal = false) {
      int fehler = erstesMal ? seqio::Ok : datei.reset(stelle);
      if (fehler == seqio::Ok) fehler = lesen();
      if (fehler == seqio::Ok) return true;
      if (!wiederholen(fehler)) return false;
    }
  };

  for (;;) {
    const int fehler = datei.open(pfad);
    if (fehler == seqio::Ok) break;
    if (!wiederholen(fehler)) {
      generischerTyp(a, t);
      return;
    }
  }

  QString kopf;
  if (!schritt([&] { return datei.readLine(kopf); })) {
    datei.close();
    generischerTyp(a, t);
    return;
  }

  while (!datei.atEnd()) {
    const bool gelesen = schritt([&] {
      int e = datei.readText(t.typeName);
      if (e == seqio::Ok) e = datei.readInt16(a.uceMax);
      if (e == seqio::Ok) e = datei.readSingle(a.icMax);
      if (e == seqio::Ok) e = datei.readSingle(t.ptot);
      if (e == seqio::Ok) e = datei.readInt16(t.packageCode);
      if (e == seqio::Ok) e = datei.readText(a.klasse);
      return e;
    });
    if (!gelesen) {
      datei.close();
      generischerTyp(a, t);
      return;
    }
    if (t.typeName == QStringLiteral("*")) {
      generischerTyp(a, t);
      break;
    }
    if (!erfuelltGrenzen(a, t)) continue;
    if (passtZurWahl(a.klasse, a.smdWahl, a.ube) && t.typeName != ausgeschlossen) break;
  }
  datei.close();
}

}  // namespace transistor
