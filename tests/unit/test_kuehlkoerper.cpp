// Heat-sink arithmetic: the worked example, the check without cooling, failed
// steps, and the step to a stronger transistor over a small catalogue.
#include <gtest/gtest.h>

#include <QFile>
#include <QLocale>
#include <QTemporaryDir>
#include <cmath>

#include "transistor/core/Kuehlkoerper.h"

using namespace kuehlung;

namespace {

// P 1 W, Tj 150 °C, Ta 40 °C, Rth,i 5 K/W, Rth,w 0,5 K/W, aluminium 2 mm, vertical, bright.
Eingaben beispiel() { return {.p = 1, .tj = 150, .ta = 40, .rthI = 5, .rthW = 0.5, .dicke = 2, .metall = Aluminium}; }

TEST(Kuehlkoerper, WorkedExampleNeedsNoHeatSinkButStillGivesTheSheet) {
  const Ergebnis r = rechnen(beispiel());
  EXPECT_EQ(r.fall, Fall::Blech);
  EXPECT_DOUBLE_EQ(r.rthK, 104.5);  // (Tj - Ta) / P - Rth,i - Rth,w
  EXPECT_TRUE(r.ohneKuehlungMoeglich);
  EXPECT_DOUBLE_EQ(r.deltaT, 5.0);  // P · Rth,i
  EXPECT_DOUBLE_EQ(r.rsp, 3.16861 / std::sqrt(4.2));                   // c / √(λ · d)
  EXPECT_DOUBLE_EQ(r.flaeche, 650 * double(0.85f) / (104.5 - r.rsp));  // 650 k / (Rth,K - Rsp)
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  EXPECT_EQ(blechText(r.flaeche, r.seite), QStringLiteral("Kühlblech: >= 5,37 cm² (2,3 x 2,3 cm) "));
  QLocale::setDefault(QLocale::c());
}

TEST(Kuehlkoerper, BoundariesConstantsAndFailedSteps) {
  // The rise must stay below 40 K: ΔT = 40 is not enough.
  Eingaben e = beispiel();
  e.rthI = 40;
  e.tj = 180;
  e.ta = 0;
  EXPECT_TRUE(rechnen(e).ohneKuehlungGeprueft);
  EXPECT_FALSE(rechnen(e).ohneKuehlungMoeglich);
  // T = ΔT + Ta must stay below Tj / 2: 75 is not below 75.
  e = beispiel();
  e.ta = 70;
  EXPECT_FALSE(rechnen(e).ohneKuehlungMoeglich);

  // Horizontal sheets take their own spreading constants, bright (k 1) or blackened (k 0,5).
  EXPECT_DOUBLE_EQ(ausbreitungsKonstante(lageFaktor(true, false)), 3.3);
  EXPECT_DOUBLE_EQ(ausbreitungsKonstante(lageFaktor(true, true)), 2.775);

  // No power: the division is skipped, Rth stays 0 and the heat counts as not removable.
  e = beispiel();
  e.p = 0;
  EXPECT_EQ(rechnen(e).fall, Fall::NichtAbfuehrbar);
  EXPECT_DOUBLE_EQ(rechnen(e).rthGesamt, 0.0);
  // No sheet thickness: no spreading resistance, the area still comes out finite.
  e = beispiel();
  e.dicke = 0;
  const Ergebnis r = rechnen(e);
  EXPECT_EQ(r.fall, Fall::Blech);
  EXPECT_DOUBLE_EQ(r.rsp, 0.0);
  EXPECT_TRUE(std::isfinite(r.flaeche));

  EXPECT_TRUE(tjPlausibel(10) && tjPlausibel(180) && taPlausibel(0) && taPlausibel(99));
  EXPECT_FALSE(tjPlausibel(9.9) || tjPlausibel(181) || taPlausibel(-1) || taPlausibel(100));
  // The washer's resistance is the text behind the first colon.
  EXPECT_EQ(widerstandsText(isolierscheiben()[13]), "0,4");  // "ohne,Kühlkörper eloxiert ...:0,4"
  EXPECT_EQ(widerstandsText("ohne Wert"), "");
  // A long type name is cut to fit the caption.
  EXPECT_EQ(bezeichnung("Sehr langer Typname"), "(Sehr langer Ty[W]:");
}

TEST(Kuehlkoerper, StrongerTypeStepsToALeadedNormalType) {
  QTemporaryDir dir;
  const QString pfad = dir.filePath("Transist.dat");
  QFile f(pfad);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write("Kopf\r\n"
          "\"SC 239d\",25,0.1,0.3,1,\"npn\"\r\n"
          "\"klein\",45,0.2,0.5,1,\"npn\"\r\n"
          "\"smd\",45,1,0.8,10,\"npn-smd\"\r\n"
          "\"darl\",45,1,0.8,1,\"npn-Darlgt\"\r\n"
          "\"gross\",45,1,0.8,1,\"npn\"\r\n"
          "\"*\",0,0,0,0,\"\"\r\n");
  f.close();

  transistor::CurrentTransistor t{.typeName = "SC 239d", .ptot = 0.3f, .ubMagnitude = 12};
  double rthI = 0;
  // Below 1 W: Pmin = Ptot + 0.3 W = 0.6 W, Ic = 0.96 W / 12 V = 0.08 A.
  ASSERT_TRUE(staerkererTyp(0.96, t, {}, rthI, pfad));
  EXPECT_EQ(t.typeName, "gross");
  EXPECT_DOUBLE_EQ(rthI, 125.0 / double(0.8f));
}

}  // namespace
