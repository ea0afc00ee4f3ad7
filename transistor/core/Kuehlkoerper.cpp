#include "transistor/core/Kuehlkoerper.h"

#include <cfloat>
#include <cmath>

#include "shell/core/Arith.h"
#include "shell/core/NumberFormat.h"

namespace kuehlung {

const QStringList& isolierscheiben() {
  static const QStringList liste = {
      QStringLiteral("Glimmerscheibe 50um mit WL-Paste :0,5"),
      QStringLiteral("Glimmerscheibe 100um mit WL-Paste:0,7"),
      QStringLiteral("Glimmerscheibe 150um mit WL-Paste:1,7"),
      QStringLiteral("Glimmerscheibe 400um mit WL-Paste:2,5"),
      QStringLiteral("Glimmerscheibe 50um ohne WL-Paste:1,25"),
      QStringLiteral("Glimmerscheibe 100um ohne WL-Paste:1,5"),
      QStringLiteral("Glimmerscheibe 150um ohne WL-Paste:2,5"),
      QStringLiteral("Glimmerscheibe 400um ohne WL-Paste:3,2"),
      QStringLiteral("Hardpapierscheibe 100um m.WL-Paste:0,8"),
      QStringLiteral("Polyesterfolie 36um mit WL-Paste :0,5"),
      QStringLiteral("Silikon-Folie 130um ohne WL-Paste:0,09"),
      QStringLiteral("Wärmeleit-Klebeband 130um o.WL-Paste:0,09"),
      QStringLiteral("ohne,Kühlkörper blank mit WL-Paste:0,2"),
      QStringLiteral("ohne,Kühlkörper eloxiert mit WL-Paste:0,4"),
  };
  return liste;
}

QString widerstandsText(const QString& scheibe) {
  const qsizetype doppelpunkt = scheibe.indexOf(QLatin1Char(':'));
  return doppelpunkt < 0 ? QString() : scheibe.mid(doppelpunkt + 1);
}

QString metallName(int metall) {
  static const char* const namen[] = {"Aluminium", "Kupfer", "Stahl", "Messing", "Silber", "Zink"};
  if (metall < 0 || metall >= MetallAnzahl) return QString();
  return QString::fromLatin1(namen[metall]);
}

double waermeleitfaehigkeit(int metall) {
  static const double lambda[] = {2.1, 3.8, 0.46, 1.1, 4.1868, 1.2};
  if (metall < 0 || metall >= MetallAnzahl) return 0.0;
  return lambda[metall];
}

float lageFaktor(bool waagerecht, bool geschwaerzt) {
  float k = waagerecht ? 1.0f : 0.85f;
  if (geschwaerzt) k = k / 2.0f;
  return k;
}

double ausbreitungsKonstante(float k) {
  if (k < 0.5f) return 2.67227;
  if (k == 0.5f) return 2.775;
  if (k == 0.85f) return 3.16861;
  if (k == 1.0f) return 3.3;
  return 0.0;
}

bool tjPlausibel(double tj) { return tj >= 10.0 && tj <= 180.0; }
bool taPlausibel(double ta) { return ta >= 0.0 && ta <= 99.0; }

Ergebnis rechnen(const Eingaben& e) {
  Ergebnis r;
  arith::assign(r.rthGesamt, (e.tj - e.ta) / e.p);
  arith::assign(r.rthK, r.rthGesamt - (e.rthW + e.rthI));
  if (r.rthK < 0.1) {
    r.fall = Fall::NichtAbfuehrbar;
    return r;
  }
  if (r.rthK > 60.0) {
    r.ohneKuehlungGeprueft = true;
    arith::assign(r.deltaT, e.p * e.rthI);
    double t = 0;
    arith::assign(t, r.deltaT + e.ta);
    r.ohneKuehlungMoeglich = r.deltaT < 40.0 && t < e.tj / 2.0;
  }
  r.k = lageFaktor(e.waagerecht, e.geschwaerzt);
  r.c = ausbreitungsKonstante(r.k);
  arith::assign(r.rsp, r.c / std::sqrt(waermeleitfaehigkeit(e.metall) * e.dicke));
  arith::assign(r.flaeche, 650.0 * double(r.k) / (r.rthK - r.rsp));
  if (r.flaeche < 0) {
    r.fall = Fall::BlechZuGross;
    return r;
  }
  arith::assign(r.seite, std::sqrt(r.flaeche));
  return r;
}

QString blechText(double flaeche, double seite) {
  const QString s = numfmt::format(seite, QStringLiteral("##0.0"));
  return QStringLiteral("Kühlblech: >= ") + numfmt::format(flaeche, QStringLiteral("###0.0#")) +
         QStringLiteral(" cm² (") + s + QStringLiteral(" x ") + s + QStringLiteral(" cm) ");
}

QString bezeichnung(const QString& typName) {
  const QString klammer = QStringLiteral("(") + typName + QStringLiteral(")");
  return klammer.leftJustified(15, QLatin1Char(' '), true) + QStringLiteral("[W]:");
}

bool staerkererTyp(double p, transistor::CurrentTransistor& t, const transistor::FehlerFrage& frage,
                   double& rthI, const QString& pfad) {
  transistor::Suchauftrag a;
  a.pmin = t.ptot + (p < 1.0 ? 0.3f : 1.0f);
  double ic = 0;
  arith::assign(ic, p / double(t.ubMagnitude));
  if (std::fabs(ic) <= double(FLT_MAX)) a.ic = float(ic);
  a.smdWahl = 0;
  a.ube = 0.0f;
  transistor::TransistorSuche(a, t, frage, pfad);
  return arith::assign(rthI, 125.0 / double(t.ptot));
}

}  // namespace kuehlung
