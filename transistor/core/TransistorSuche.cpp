#include "transistor/core/TransistorSuche.h"

#include "shell/core/Module1.h"
#include "shell/core/NumberFormat.h"
#include "transistor/core/SequentialReader.h"

#include <string>
#include <string_view>

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

// The fields of the record being read, as the search reads them: every
// field read overwrites the one before, and only at the end of the search
// does what was read last go to the outputs. Text stays in its Latin-1
// bytes while the file is scanned.
struct Satz {
  enum Feld { Name = 1, Uce = 2, Ic = 4, Ptot = 8, Code = 16, Klasse = 32 };
  std::string name;
  qint16 uceMax = 0;
  float icMax = 0.0f;
  float ptot = 0.0f;
  qint16 packageCode = 0;
  std::string klasse;
  int gelesen = 0;  // the fields that some record has set

  int lesen(seqio::SequentialReader& datei) {
    int e = datei.readText(name);
    if (e != seqio::Ok) return e;
    gelesen |= Name;
    if ((e = datei.readInt16(uceMax)) != seqio::Ok) return e;
    gelesen |= Uce;
    if ((e = datei.readSingle(icMax)) != seqio::Ok) return e;
    gelesen |= Ic;
    if ((e = datei.readSingle(ptot)) != seqio::Ok) return e;
    gelesen |= Ptot;
    if ((e = datei.readInt16(packageCode)) != seqio::Ok) return e;
    gelesen |= Code;
    if ((e = datei.readText(klasse)) != seqio::Ok) return e;
    gelesen |= Klasse;
    return seqio::Ok;
  }

  void uebertragen(Suchauftrag& a, CurrentTransistor& t) const {
    const auto text = [](const std::string& s) { return QString::fromLatin1(s.data(), qsizetype(s.size())); };
    if (gelesen & Name) t.typeName = text(name);
    if (gelesen & Uce) a.uceMax = uceMax;
    if (gelesen & Ic) a.icMax = icMax;
    if (gelesen & Ptot) t.ptot = ptot;
    if (gelesen & Code) t.packageCode = packageCode;
    if (gelesen & Klasse) a.klasse = text(klasse);
  }
};

// A text compared with the Latin-1 bytes of a record. A text that Latin-1
// cannot hold equals no record's text.
struct Latin1Text {
  explicit Latin1Text(const QString& s) : bytes(s.toLatin1().toStdString()) {
    for (QChar c : s) darstellbar = darstellbar && c.unicode() <= 0xFF;
  }
  bool gleich(std::string_view s) const { return darstellbar && s == bytes; }
  bool enthalten(std::string_view s) const { return darstellbar && s.find(bytes) != std::string_view::npos; }
  std::string bytes;
  bool darstellbar = true;
};

bool enthaelt(std::string_view s, std::string_view teil) { return s.find(teil) != std::string_view::npos; }

// Whether a record that passed the hard limits suits the SMD choice and the
// transistor kind of the design.
bool passtZurWahl(std::string_view klasse, qint16 smdWahl, float ube) {
  const bool smd = enthaelt(klasse, "smd");
  const bool darlington = enthaelt(klasse, "Darlgt");
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

bool erfuelltGrenzen(const Suchauftrag& a, const CurrentTransistor& t, const Satz& s, const Latin1Text& polaritaet) {
  const float doppelterStrom = 2.0f * a.ic;
  return a.pmin <= s.ptot && t.ubMagnitude <= float(s.uceMax) && doppelterStrom <= s.icMax &&
         polaritaet.enthalten(s.klasse);
}

}  // namespace

void TransistorSuche(Suchauftrag& a, CurrentTransistor& t, const FehlerFrage& frage, const QString& pfad) {
  const Latin1Text ausgeschlossen(t.typeName);
  const Latin1Text polaritaet(t.polarity);
  seqio::SequentialReader datei;
  Satz satz;

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
  // Ends the search: what was read goes to the outputs, then the generic
  // type where one is built.
  auto ende = [&](bool generisch) {
    datei.close();
    satz.uebertragen(a, t);
    if (generisch) generischerTyp(a, t);
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
  if (!schritt([&] { return datei.readLine(kopf); })) return ende(true);

  while (!datei.atEnd()) {
    if (!schritt([&] { return satz.lesen(datei); })) return ende(true);
    if (satz.name == "*") return ende(true);
    if (!erfuelltGrenzen(a, t, satz, polaritaet)) continue;
    if (passtZurWahl(satz.klasse, a.smdWahl, a.ube) && !ausgeschlossen.gleich(satz.name)) break;
  }
  ende(false);
}

}  // namespace transistor
