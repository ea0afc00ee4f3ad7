#include "transistor/core/Verstaerker.h"

#include <array>
#include <cmath>

#include "shell/core/Module1.h"
#include "shell/core/NumberFormat.h"
#include "shell/core/StandardValues.h"

namespace verstaerker {
namespace {

constexpr double kPi2 = 6.28318530717958;

double parallel(double a, double b) { return a * b / (a + b); }

QString zahl(double v, const char* muster) { return numfmt::format(v, QString::fromLatin1(muster)); }

// The scaled value with no decimal when it is a whole number.
Wert wert(double v, const QString& einheit) {
  if (!std::isfinite(v)) return {QString(), einheit};
  const bool ganz = std::fabs(v - std::round(v)) < 1e-6 * std::fabs(v);
  return {zahl(v, ganz ? "0" : "0.0"), einheit};
}

}  // namespace

double E24(double x) {
  const auto n = eseries::nearest(eseries::Series::E24, x);
  return n ? n->value : 0;
}

double E12up(double x) { return eseries::atOrAbove(eseries::Series::E12, x).value_or(0); }

Art art(bool darlington) {
  if (darlington) return {1.38, 1000, 2, 1.0};
  return {0.72, 100, 1, 0.3};
}

Vorgaben lesen(const QString& ub, const QString& ic, const QString& vu, const QString& fu, const QString& rl) {
  Vorgaben v;
  QString u = ub.trimmed();
  if (u.startsWith(QLatin1Char('-'))) {
    v.s = -1;
    u = u.mid(1);
  }
  v.u = Module1::ParseNumber(u);
  v.ic = Module1::ParseNumber(ic) / 1000;
  v.vu = Module1::ParseNumber(vu);
  v.fu = Module1::ParseNumber(fu);
  v.rl = Module1::ParseNumber(rl) * 1000;
  return v;
}

std::optional<Pruefung> pruefen(const Vorgaben& v) {
  if (!(v.u > 0) || !(v.ic > 0) || !(v.fu > 0) || !(v.rl > 0))
    return Pruefung{QStringLiteral("Bitte Betriebsspannung, Kollektorstrom, Grenzfrequenz und Lastwiderstand eingeben!"),
                    QString(), false};
  if (v.u < 3)
    return Pruefung{QStringLiteral("Die Betriebsspannung muß mindestens 3 V betragen!"),
                    QStringLiteral("Betriebsspannung")};
  if (v.vu > 0 && v.vu < 1)
    return Pruefung{QStringLiteral("Die Verstärkung muß mindestens 1 sein!"), QStringLiteral("Verstärkung")};
  if (v.fu < 1)
    return Pruefung{QStringLiteral("Die untere Grenzfrequenz muß mindestens 1 Hz betragen!"),
                    QStringLiteral("Grenzfrequenz")};
  return std::nullopt;
}

QString hinweisText(Hinweis h) {
  const QString erste = QStringLiteral("Die gewünschte Verstärkung ist mit diesem Arbeitspunkt nicht erreichbar.");
  switch (h) {
    case Hinweis::GroessteVerstaerkung:
      return erste + Module1::NL + QStringLiteral("Die größte mögliche Verstärkung wird verwendet.");
    case Hinweis::KleinsteVerstaerkung:
      return erste + Module1::NL + QStringLiteral("Die kleinste mögliche Verstärkung wird verwendet.");
    case Hinweis::Keiner:
      break;
  }
  return QString();
}

Entwurf entwerfen(const Vorgaben& v) {
  const Art a = art(v.darlington);
  Entwurf e;
  e.v = v;
  const double U = v.u, Ic = v.ic;

  // Operating point: a tenth of UB across the emitter resistor, the
  // collector midway between UB and the emitter for the largest swing.
  const double ue0 = 0.1 * U;
  const double ie0 = Ic * (1 + 1 / a.b);
  e.re = E24(ue0 / ie0);
  e.rc = E24((U - ue0) / (2 * Ic));
  const double rd0 = a.n * UT / Ic;
  e.rcl = parallel(e.rc, v.rl);

  // The unbypassed part RE1 sets the gain.
  const double re1x = v.vu > 0 ? e.rcl / v.vu - rd0 : 0;
  if (v.vu == 0) {
    e.re1 = 0;
  } else if (!(re1x >= 1)) {
    e.hinweis = Hinweis::GroessteVerstaerkung;
    e.re1 = 0;
  } else if (re1x >= e.re) {
    e.hinweis = Hinweis::KleinsteVerstaerkung;
    e.re1 = e.re;
  } else {
    e.re1 = E24(re1x);
  }
  e.re2 = e.re - e.re1 >= 1 ? E24(e.re - e.re1) : 0;

  // Base divider with ten times the base current.
  const double ubas0 = ue0 + a.ube;
  const double ib0 = Ic / a.b;
  const double iq = 10 * ib0;
  e.r2 = E24(ubas0 / iq);
  e.r1 = E24((U - ubas0) / (iq + ib0));

  // The stage as built.
  const double ret = e.re1 + e.re2;
  const double uth = U * e.r2 / (e.r1 + e.r2);
  const double rth = parallel(e.r1, e.r2);
  e.ib = (uth - a.ube) / (rth + (a.b + 1) * ret);
  e.icA = a.b * e.ib;
  e.ie = (a.b + 1) * e.ib;
  e.ue = e.ie * ret;
  e.ubas = e.ue + a.ube;
  e.uc = U - e.icA * e.rc;
  e.uce = e.uc - e.ue;
  e.pt = e.uce * e.icA;
  // The quiescent dissipation is the largest of a class-A stage; twice it
  // covers the derating at higher temperature.
  e.pmin = 2 * e.pt;
  e.ir1 = (U - e.ubas) / e.r1;
  e.ir2 = e.ubas / e.r2;
  e.iges = e.icA + e.ir1;
  e.rd = a.n * UT / e.icA;
  e.vuIst = e.rcl / (e.rd + e.re1);
  e.rein = 1 / (1 / e.r1 + 1 / e.r2 + 1 / (a.b * (e.rd + e.re1)));
  e.raus = e.rc;

  // CE sets the cutoff; C1 and C2 are sized for a tenth of it.
  e.c1 = E12up(10 / (kPi2 * v.fu * e.rein));
  e.c2 = E12up(10 / (kPi2 * v.fu * (e.rc + v.rl)));
  const double rCe = e.re2 > 0 ? parallel(e.re2, e.rd + e.re1) : 0;
  e.ce = e.re2 > 0 ? E12up(1 / (kPi2 * v.fu * rCe)) : 0;
  e.f1 = 1 / (kPi2 * e.c1 * e.rein);
  e.f2 = 1 / (kPi2 * e.c2 * (e.rc + v.rl));
  e.fe = e.ce > 0 ? 1 / (kPi2 * e.ce * rCe) : 0;
  e.fuIst = std::sqrt(e.f1 * e.f1 + e.f2 * e.f2 + e.fe * e.fe);

  // RE1 takes its share of the collector-emitter swing; the collector
  // current can fall by IC at most.
  e.uaMax = std::min((e.uce - a.uceSat) * e.rcl / (e.rcl + e.re1), e.icA * e.rcl);
  return e;
}

Wert widerstand(double ohm) {
  if (ohm < 1000) return wert(ohm, QStringLiteral("Ohm"));
  if (ohm < 1e6) return wert(ohm / 1000, QStringLiteral("kOhm"));
  return wert(ohm / 1e6, QStringLiteral("MOhm"));
}

Wert kondensator(double farad) {
  if (farad < Module1::TenPow(-9)) return wert(farad / Module1::TenPow(-12), QStringLiteral("pF"));
  if (farad < Module1::TenPow(-6)) return wert(farad / Module1::TenPow(-9), QStringLiteral("nF"));
  return wert(farad / Module1::TenPow(-6), QStringLiteral("µF"));
}

std::vector<Datenzeile> datenzeilen(const Entwurf& e, const Typ& t) {
  const double s = e.v.s;
  std::vector<Datenzeile> z;
  auto text = [&](const char* titel, const QString& t) { z.push_back({QString::fromUtf8(titel), {}, {}, t}); };
  auto nr = [&](const char* titel, double v, const char* einheit, const char* muster = "###0.0##") {
    z.push_back({QString::fromUtf8(titel), zahl(v, muster), QString::fromUtf8(einheit), {}});
  };
  auto r = [&](const char* titel, double ohm) {
    const Wert w = widerstand(ohm);
    z.push_back({QString::fromUtf8(titel), w.zahl, w.einheit, {}});
  };
  text("Transistor T1:", t.name);
  text("Gehäuse:", t.gehaeuse);
  if (t.eigeneSuche) {
    text("Klasse:", t.klasse);
    text("Grenzwerte:", QStringLiteral("UCE max ") + QString::number(t.uceMax) + QStringLiteral(" V,  IC max ") +
                            zahl(t.icMax, "##0.0##") + QStringLiteral(" A"));
  }
  nr("Ptot T1:", t.ptot, "W", "##0.0###");
  nr("Betriebsspannung UB:", s * e.v.u, "V");
  nr("Kollektorstrom IC:", e.icA * 1000, "mA");
  nr("Basisstrom IB:", e.ib * 1e6, "µA");
  nr("Querstrom durch R2:", e.ir2 * 1000, "mA");
  nr("Emitterspannung UE:", s * e.ue, "V");
  nr("Basisspannung:", s * e.ubas, "V");
  nr("Kollektorspannung UC:", s * e.uc, "V");
  nr("Kollektor-Emitter-Spannung UCE:", s * e.uce, "V");
  nr("Verlustleistung T1 PT:", e.pt * 1000, "mW");
  nr("erforderliche Belastbarkeit Pmin:", t.pmin, "W", "##0.0###");
  nr("Stromaufnahme:", e.iges * 1000, "mA");
  nr("Spannungsverstärkung Vu:", e.vuIst, "");
  nr("Spannungsverstärkung:", 20 * Module1::Log10(e.vuIst), "dB");
  r("Eingangswiderstand:", e.rein);
  r("Ausgangswiderstand:", e.raus);
  r("Lastwiderstand RL:", e.v.rl);
  nr("untere Grenzfrequenz fu:", e.fuIst, "Hz");
  nr("max. Ausgangsspannung:", 2 * e.uaMax, "Vss");
  return z;
}

QString widerstandsAusfuehrung(double p2, int smdWahl) {
  static const std::array<std::pair<double, const char*>, 6> bedrahtet = {
      {{0.25, "0,25 W"}, {0.5, "0,5 W"}, {1, "1 W"}, {2, "2 W"}, {5, "5 W"}, {10, "10 W"}}};
  static const std::array<std::pair<double, const char*>, 4> smd = {
      {{0.125, "0,125 W SMD 0805"}, {0.25, "0,25 W SMD 1206"}, {0.5, "0,5 W SMD 2010"}, {1, "1 W SMD 2512"}}};
  if (smdWahl == 2) {
    for (const auto& [p, text] : smd) {
      if (p >= p2) return QString::fromLatin1(text);
    }
  }
  QString t;
  for (const auto& [p, text] : bedrahtet) {
    if (p >= p2) {
      t = QString::fromLatin1(text);
      break;
    }
  }
  if (t.isEmpty()) t = zahl(p2, "0") + QStringLiteral(" W");
  if (smdWahl == 2) t += QStringLiteral(" bedrahtet (SMD nur bis 1 W)");
  return t;
}

QString kondensatorAusfuehrung(double farad, double u, int smdWahl) {
  static const std::array<std::pair<double, const char*>, 11> spannungen = {
      {{6.3, "6,3"}, {10, "10"}, {16, "16"}, {25, "25"}, {35, "35"}, {50, "50"},
       {63, "63"}, {100, "100"}, {160, "160"}, {250, "250"}, {400, "400"}}};
  QString t = farad >= Module1::TenPow(-6) ? QStringLiteral("Elko ") : QStringLiteral("Kondensator ");
  const double noetig = 1.25 * u;
  QString spannung;
  for (const auto& [v, text] : spannungen) {
    if (v >= noetig) {
      spannung = QString::fromLatin1(text);
      break;
    }
  }
  if (spannung.isEmpty()) spannung = zahl(noetig, "0");
  t += spannung + QStringLiteral(" V");
  if (smdWahl == 2) t += QStringLiteral(" SMD");
  return t;
}

std::vector<Stueckzeile> stueckliste(const Entwurf& e, const Typ& t) {
  std::vector<Stueckzeile> z;
  z.push_back({QStringLiteral("T1"), t.name, t.gehaeuse});
  const int smd = e.v.smdWahl;
  auto r = [&](const char* pos, double ohm, double strom) {
    if (ohm > 0) z.push_back({QString::fromLatin1(pos), widerstand(ohm).text(),
                              widerstandsAusfuehrung(2 * strom * strom * ohm, smd)});
  };
  r("R1", e.r1, e.ir1);
  r("R2", e.r2, e.ir2);
  r("RC", e.rc, e.icA);
  r("RE1", e.re1, e.ie);
  r("RE2", e.re2, e.ie);
  auto c = [&](const char* pos, double farad) {
    if (farad > 0)
      z.push_back({QString::fromLatin1(pos), kondensator(farad).text(), kondensatorAusfuehrung(farad, e.v.u, smd)});
  };
  c("C1", e.c1);
  c("C2", e.c2);
  c("CE", e.ce);
  return z;
}

}  // namespace verstaerker
