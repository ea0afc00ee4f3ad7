// Heat-sink arithmetic: thermal resistances, the sheet, its boundaries, and
// the step to a stronger transistor.
#include <gtest/gtest.h>

#include <QFile>
#include <QLocale>
#include <QTemporaryDir>
#include <cmath>

#include "transistor/core/Kuehlkoerper.h"

using namespace kuehlung;

namespace {

Eingaben beispiel() {
  Eingaben e;
  e.p = 1;
  e.tj = 150;
  e.ta = 40;
  e.rthI = 5;
  e.rthW = 0.5;
  e.dicke = 2;
  e.metall = Aluminium;
  return e;
}

TEST(Kuehlkoerper, WorkedExampleNeedsNoHeatSinkButStillGivesTheSheet) {
  const Ergebnis r = rechnen(beispiel());
  EXPECT_EQ(r.fall, Fall::Blech);
  EXPECT_DOUBLE_EQ(r.rthGesamt, 110.0);
  EXPECT_DOUBLE_EQ(r.rthK, 104.5);
  EXPECT_TRUE(r.ohneKuehlungGeprueft);
  EXPECT_TRUE(r.ohneKuehlungMoeglich);
  EXPECT_DOUBLE_EQ(r.deltaT, 5.0);
  EXPECT_FLOAT_EQ(r.k, 0.85f);
  EXPECT_DOUBLE_EQ(r.rsp, 3.16861 / std::sqrt(4.2));
  EXPECT_DOUBLE_EQ(r.flaeche, 650 * double(0.85f) / (104.5 - r.rsp));
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  EXPECT_EQ(blechText(r.flaeche, r.seite), QStringLiteral("Kühlblech: >= 5,37 cm² (2,3 x 2,3 cm) "));
  QLocale::setDefault(QLocale::c());

  // Hot enough that cooling matters: ΔT 40 is not below 40.
  Eingaben e = beispiel();
  e.rthI = 40;
  e.tj = 180;
  e.ta = 0;
  const Ergebnis heiss = rechnen(e);
  EXPECT_TRUE(heiss.ohneKuehlungGeprueft);
  EXPECT_FALSE(heiss.ohneKuehlungMoeglich);
  // T = ΔT + Ta must stay below Tj / 2.
  e = beispiel();
  e.ta = 70;  // T = 75, not below 75
  EXPECT_FALSE(rechnen(e).ohneKuehlungMoeglich);
}

TEST(Kuehlkoerper, FailedArithmeticIsSkippedAndPlausibleTemperatures) {
  // Blackened and horizontal take their own spreading constants.
  Eingaben e = beispiel();
  e.geschwaerzt = true;
  EXPECT_DOUBLE_EQ(rechnen(e).c, 2.67227);
  e.waagerecht = true;
  EXPECT_DOUBLE_EQ(rechnen(e).c, 2.775);

  // No power to dissipate: the division is skipped and Rth stays 0.
  e = beispiel();
  e.p = 0;
  const Ergebnis r0 = rechnen(e);
  EXPECT_EQ(r0.fall, Fall::NichtAbfuehrbar);
  EXPECT_DOUBLE_EQ(r0.rthGesamt, 0.0);
  // No sheet thickness: no spreading resistance, the area still comes out finite.
  e = beispiel();
  e.dicke = 0;
  const Ergebnis rd = rechnen(e);
  EXPECT_EQ(rd.fall, Fall::Blech);
  EXPECT_DOUBLE_EQ(rd.rsp, 0.0);
  EXPECT_TRUE(std::isfinite(rd.flaeche));

  EXPECT_TRUE(tjPlausibel(10) && tjPlausibel(180));
  EXPECT_FALSE(tjPlausibel(9.9) || tjPlausibel(181));
  EXPECT_TRUE(taPlausibel(0) && taPlausibel(99));
  EXPECT_FALSE(taPlausibel(-1) || taPlausibel(100));
}

TEST(Kuehlkoerper, WashersAndTypeCaption) {
  const QStringList& l = isolierscheiben();
  ASSERT_EQ(l.size(), 14);
  EXPECT_EQ(widerstandsText(l[0]), "0,5");
  EXPECT_EQ(widerstandsText(l[4]), "1,25");
  EXPECT_EQ(widerstandsText(l[11]), "0,09");
  EXPECT_EQ(widerstandsText(l[13]), "0,4");
  EXPECT_EQ(widerstandsText("ohne Wert"), "");

  EXPECT_EQ(bezeichnung("SC 239d"), "(SC 239d)      [W]:");
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

  transistor::CurrentTransistor t;
  t.typeName = "SC 239d";
  t.packageCode = 1;
  t.ptot = 0.3f;
  t.ubMagnitude = 12;
  double rthI = 0;
  // P below 1 W asks for Ptot + 0.3 W: 0.6 W, and Ic = 0.96 / 12 = 0.08 A.
  ASSERT_TRUE(staerkererTyp(0.96, t, {}, rthI, pfad));
  EXPECT_EQ(t.typeName, "gross");
  EXPECT_DOUBLE_EQ(rthI, 125.0 / double(0.8f));

  // From 1 W on, Ptot + 1 W: nothing left, the generic type follows.
  ASSERT_TRUE(staerkererTyp(1.0, t, {}, rthI, pfad));
  EXPECT_EQ(t.packageCode, 0);
  EXPECT_FLOAT_EQ(t.ptot, 1.8f);

  // Ic = P / UB: at 3 V, 0.9 W needs 0.3 A, more than "klein" carries twice.
  t.typeName = "SC 239d";
  t.ptot = 0.1f;
  t.ubMagnitude = 3;
  ASSERT_TRUE(staerkererTyp(0.9, t, {}, rthI, pfad));
  EXPECT_EQ(t.typeName, "gross");
  t.typeName = "SC 239d";
  t.ptot = 0.1f;
  t.ubMagnitude = 12;
  ASSERT_TRUE(staerkererTyp(0.9, t, {}, rthI, pfad));
  EXPECT_EQ(t.typeName, "klein");
}

}  // namespace
