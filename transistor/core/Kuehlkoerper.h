#pragma once
// Heat-sink arithmetic: the largest thermal resistance a heat sink may have,
// and the square flat sheet that provides it.
#include <QString>
#include <QStringList>

#include "transistor/core/TransistorSuche.h"

namespace kuehlung {

// The insulating washers in list order, each "name:R" with R in K/W.
const QStringList& isolierscheiben();

// The text behind the first colon of a washer item ("0,5"); empty without one.
QString widerstandsText(const QString& scheibe);

// Sheet metals in the order of their option buttons.
enum Metall { Aluminium, Kupfer, Stahl, Messing, Silber, Zink, MetallAnzahl };
QString metallName(int metall);
double waermeleitfaehigkeit(int metall);  // λ in W/(cm·K); 0 for an unknown index

// k from the sheet's position and surface, and the spreading constant c by k
// (0 when k is none of the four values the options give).
float lageFaktor(bool waagerecht, bool geschwaerzt);
double ausbreitungsKonstante(float k);

struct Eingaben {
  double p = 0;       // power to dissipate, W
  double tj = 0;      // largest junction temperature, °C
  double ta = 0;      // largest ambient temperature, °C
  double rthI = 0;    // inner thermal resistance of the transistor, K/W
  double rthW = 0;    // transistor to heat sink (washer), K/W
  double dicke = 0;   // sheet thickness, mm
  int metall = Aluminium;
  bool waagerecht = false;
  bool geschwaerzt = false;
};

enum class Fall {
  Blech,            // a sheet size was found
  NichtAbfuehrbar,  // Rth,K below 0.1 K/W: no ordinary heat sink removes the heat
  BlechZuGross,     // the sheet's own spreading resistance already exceeds Rth,K
};

struct Ergebnis {
  Fall fall = Fall::Blech;
  double rthGesamt = 0;  // (Tj - Ta) / P
  double rthK = 0;       // largest allowed heat-sink resistance
  // Above 60 K/W the transistor is checked without any cooling.
  bool ohneKuehlungGeprueft = false;
  bool ohneKuehlungMoeglich = false;
  double deltaT = 0;     // its rise above ambient without cooling, K
  float k = 0;
  double c = 0;
  double rsp = 0;        // spreading resistance of the sheet, K/W
  double flaeche = 0;    // sheet area, cm²
  double seite = 0;      // side of the square sheet, cm
};

// Every step whose arithmetic fails (P = 0, d = 0, ...) is skipped and leaves
// its value at 0, as the form's handler does.
Ergebnis rechnen(const Eingaben& e);

// The junction and ambient temperatures accepted without a question.
bool tjPlausibel(double tj);
bool taPlausibel(double ta);

// "Kühlblech: >= 5,37 cm² (2,3 x 2,3 cm) "
QString blechText(double flaeche, double seite);

// "(SC 239d)      [W]:": the type name in brackets, left-justified in 15
// characters (cut if longer), then the unit.
QString bezeichnung(const QString& typName);

// Steps to the next stronger leaded, non-Darlington type for a power p:
// Pmin is the current Ptot plus 0.3 W (p below 1 W) or 1 W, Ic is p over the
// UB magnitude. The found type becomes the current transistor. Returns true
// and sets rthI to 125 / Ptot of the new type when that division works.
bool staerkererTyp(double p, transistor::CurrentTransistor& t, const transistor::FehlerFrage& frage,
                   double& rthI, const QString& pfad = transistor::katalogPfad());

}  // namespace kuehlung
