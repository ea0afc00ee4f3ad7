#pragma once
// Design and analysis of a class-A common-emitter stage with current
// feedback: the emitter resistor split into RE1 (unbypassed, sets the gain)
// and RE2 (bypassed by CE), base divider R1/R2, collector resistor RC,
// coupling capacitors C1 and C2 into the next stage's input resistance RL.
// Resistors are rounded to E24, capacitors up to E12; the stage is then
// analysed as built. Also the texts of the data page and the parts list.
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace verstaerker {

// Nearest E24 value on the logarithmic scale; 0 for a value that is not
// positive and finite.
double E24(double x);
// Next E12 value at or above x (a value a rounding error above a standard
// value stays on it); 0 for a value that is not positive and finite.
double E12up(double x);

// Constants of the transistor kind.
struct Art {
  double ube;     // base-emitter voltage, V
  double b;       // current gain (conservative minimum)
  double n;       // dynamic emitter resistance factor
  double uceSat;  // saturation voltage, V
};
Art art(bool darlington);
constexpr double UT = 0.026;

struct Vorgaben {
  double s = 1;      // sign of UB: -1 for a pnp stage
  double u = 0;      // UB magnitude, V
  double ic = 0;     // wanted collector current, A
  double vu = 0;     // wanted gain; 0: largest
  double fu = 0;     // lower cutoff frequency, Hz
  double rl = 0;     // load (next stage's input resistance), Ohm
  bool darlington = false;
  int smdWahl = 0;   // 0 "kein SMD", 1 "gemischt", 2 "nur SMD"
};

// Reads the five fields as the form shows them: UB in V with an optional
// leading "-", Ic in mA, Vu, fu in Hz, RL in kOhm.
Vorgaben lesen(const QString& ub, const QString& ic, const QString& vu, const QString& fu, const QString& rl);

// A check that stops the design: message, title and whether it carries the
// exclamation icon (the first check is a plain box with the program's title).
struct Pruefung {
  QString text;
  QString titel;
  bool warnung = true;
};
std::optional<Pruefung> pruefen(const Vorgaben& v);

enum class Hinweis { Keiner, GroessteVerstaerkung, KleinsteVerstaerkung };
QString hinweisText(Hinweis h);  // the gain message, lines joined with NL

struct Entwurf {
  Vorgaben v;
  Hinweis hinweis = Hinweis::Keiner;
  // Standard values, Ohm and F; 0 for a part the stage does not have.
  double re = 0, rc = 0, re1 = 0, re2 = 0, r1 = 0, r2 = 0;
  double c1 = 0, c2 = 0, ce = 0;
  // Analysis (magnitudes).
  double rcl = 0;                                  // RC parallel RL
  double ib = 0, icA = 0, ie = 0;                  // A
  double ue = 0, ubas = 0, uc = 0, uce = 0;        // V
  double pt = 0, pmin = 0;                         // W
  double ir1 = 0, ir2 = 0, iges = 0;               // A
  double rd = 0, vuIst = 0, rein = 0, raus = 0;
  double f1 = 0, f2 = 0, fe = 0, fuIst = 0;        // Hz
  double uaMax = 0;                                // V peak
};

// Design and analysis of a stage whose inputs passed the checks.
Entwurf entwerfen(const Vorgaben& v);

// "91 kOhm", "5,6 kOhm", "330 Ohm" / "8,2 µF", "470 nF"; number and unit
// apart for the data page. An empty number for a value that is not finite.
struct Wert {
  QString zahl;
  QString einheit;
  QString text() const { return zahl + QLatin1Char(' ') + einheit; }
};
Wert widerstand(double ohm);
Wert kondensator(double farad);

// What the data page and the parts list show of the catalogue type.
struct Typ {
  QString name;       // the current type name
  QString gehaeuse;   // its package text
  double ptot = 0;    // W
  double pmin = 0;    // the designer's Pmin as its search left it
  int uceMax = 0;
  double icMax = 0;
  QString klasse;
  bool eigeneSuche = false;  // the designer's own search found this type
};

// One line of the data page: caption at the left, then either a number
// (right-aligned) with its unit, or a text (left-aligned).
struct Datenzeile {
  QString titel;
  QString zahl;
  QString einheit;
  QString text;
};
std::vector<Datenzeile> datenzeilen(const Entwurf& e, const Typ& t);

// The rating of a resistor that must take twice its dissipation p2 = 2 P.
QString widerstandsAusfuehrung(double p2, int smdWahl);
// A capacitor in a stage with supply magnitude u.
QString kondensatorAusfuehrung(double farad, double u, int smdWahl);

struct Stueckzeile {
  QString pos, wert, ausfuehrung;
};
std::vector<Stueckzeile> stueckliste(const Entwurf& e, const Typ& t);

}  // namespace verstaerker
