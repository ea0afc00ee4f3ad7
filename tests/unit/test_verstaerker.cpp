// The amplifier designer: standard-value rounding, design and analysis of
// the worked stages, the gain messages, the data page and the parts list.
#include <gtest/gtest.h>

#include <QLocale>

#include "transistor/core/Verstaerker.h"

using namespace verstaerker;

namespace {

class Verstaerker : public ::testing::Test {
 protected:
  void SetUp() override { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
  void TearDown() override { QLocale::setDefault(QLocale::c()); }

  static Entwurf stufe(const char* ub, const char* ic, const char* vu, const char* fu, const char* rl,
                       bool darlington = false, int smd = 0) {
    Vorgaben v = lesen(ub, ic, vu, fu, rl);
    v.darlington = darlington;
    v.smdWahl = smd;
    EXPECT_FALSE(pruefen(v).has_value());
    return entwerfen(v);
  }
  static std::string r(double ohm) { return widerstand(ohm).text().toStdString(); }
  static std::string c(double farad) { return kondensator(farad).text().toStdString(); }
  static std::string zeile(const std::vector<Stueckzeile>& z, const char* pos) {
    for (const Stueckzeile& s : z)
      if (s.pos == pos) return (s.wert + " | " + s.ausfuehrung).toStdString();
    return "-";
  }
};

TEST_F(Verstaerker, RoundingToStandardValues) {
  // E24 nearest is the standard-value search of every form (tested there).
  // Next higher E12, a rounding error above a standard value stays on it.
  EXPECT_EQ(c(E12up(7.09e-6)), "8,2 µF");
  EXPECT_EQ(c(E12up(4.7000000047e-6)), "4,7 µF");
  EXPECT_EQ(c(E12up(4.71e-6)), "5,6 µF");
  EXPECT_EQ(c(E12up(8.3e-6)), "10 µF");
  EXPECT_EQ(c(E12up(1e-6)), "1 µF");
  EXPECT_EQ(c(E12up(990e-9)), "1 µF");
  EXPECT_EQ(c(E12up(99e-12)), "100 pF");
  // Value texts: a whole number without decimals.
  EXPECT_EQ(r(91000), "91 kOhm");
  EXPECT_EQ(r(999), "999 Ohm");
  EXPECT_EQ(r(1000), "1 kOhm");
  EXPECT_EQ(r(455.2), "455,2 Ohm");
  EXPECT_EQ(r(2.2e6), "2,2 MOhm");
  EXPECT_EQ(c(470e-9), "470 nF");
  EXPECT_TRUE(widerstand(1.0 / 0.0).zahl.isEmpty());
}

TEST_F(Verstaerker, Checks) {
  auto titel = [](const char* ub, const char* ic, const char* vu, const char* fu, const char* rl) {
    const auto p = pruefen(lesen(ub, ic, vu, fu, rl));
    return p ? (p->titel.isEmpty() ? std::string("plain") : p->titel.toStdString()) : std::string("ok");
  };
  EXPECT_EQ(titel("-", "1", "10", "20", "10"), "plain");
  EXPECT_EQ(titel("12", "0", "10", "20", "10"), "plain");
  EXPECT_EQ(titel("2", "1", "10", "20", "10"), "Betriebsspannung");
  EXPECT_EQ(titel(" -3", "1", "10", "20", "10"), "ok");
  EXPECT_EQ(titel("12", "1", "0,5", "20", "10"), "Verstärkung");
  EXPECT_EQ(titel("12", "1", "", "20", "10"), "ok");
  EXPECT_EQ(titel("12", "1", "10", "0,5", "10"), "Grenzfrequenz");
}

TEST_F(Verstaerker, PresetStage) {
  const Entwurf e = stufe("12", "1", "10", "20", "10");
  EXPECT_EQ(e.hinweis, Hinweis::Keiner);
  EXPECT_EQ(r(e.re), "1,2 kOhm");
  EXPECT_EQ(r(e.rc), "5,6 kOhm");
  EXPECT_EQ(r(e.re1), "330 Ohm");
  EXPECT_EQ(r(e.re2), "910 Ohm");
  EXPECT_EQ(r(e.r2), "20 kOhm");
  EXPECT_EQ(r(e.r1), "91 kOhm");
  EXPECT_NEAR(e.icA, 1.018e-3, 1e-6);
  EXPECT_NEAR(e.ue, 1.275, 1e-3);
  EXPECT_NEAR(e.uc, 6.298, 1e-3);
  EXPECT_NEAR(e.uce, 5.023, 1e-3);
  EXPECT_NEAR(e.pmin, 0.0102, 1e-4);
  EXPECT_NEAR(e.vuIst, 10.097, 1e-3);
  EXPECT_NEAR(e.rein, 11221, 1);
  EXPECT_EQ(c(e.c1), "8,2 µF");
  EXPECT_EQ(c(e.c2), "5,6 µF");
  EXPECT_EQ(c(e.ce), "33 µF");
  EXPECT_NEAR(e.fuIst, 19.032, 1e-3);
  EXPECT_NEAR(2 * e.uaMax, 7.31, 5e-3);

  Typ t{"SC 239d", "TO 92", 0.3, 0.0102, 25, 0.1, "npn", true};
  const auto d = datenzeilen(e, t);
  ASSERT_EQ(d.size(), 23u);
  EXPECT_EQ((d[3].text).toStdString(), "UCE max 25 V,  IC max 0,1 A");
  EXPECT_EQ((d[17].zahl + " " + d[17].einheit).toStdString(), "20,084 dB");
  EXPECT_EQ((d[18].zahl + " " + d[18].einheit).toStdString(), "11,2 kOhm");
  EXPECT_EQ((d[21].zahl).toStdString(), "19,032");
  // A type taken by the heat-sink calculator: no class and limits.
  t.eigeneSuche = false;
  EXPECT_EQ(datenzeilen(e, t).size(), 21u);

  const auto s = stueckliste(e, t);
  EXPECT_EQ(s.size(), 9u);
  EXPECT_EQ(zeile(s, "R1"), "91 kOhm | 0,25 W");
  EXPECT_EQ(zeile(s, "CE"), "33 µF | Elko 16 V");
  Entwurf smd = e;
  smd.v.smdWahl = 2;
  for (const Stueckzeile& z : stueckliste(smd, t)) {
    if (z.pos.startsWith('R')) {
      EXPECT_EQ(z.ausfuehrung.toStdString(), "0,125 W SMD 0805");
    }
  }
}

TEST_F(Verstaerker, GainMessages) {
  const Entwurf gross = stufe("12", "1", "500", "20", "10");
  EXPECT_EQ(gross.hinweis, Hinweis::GroessteVerstaerkung);
  EXPECT_EQ(gross.re1, 0);
  EXPECT_EQ(r(gross.re2), "1,2 kOhm");
  EXPECT_EQ(c(gross.c1), "39 µF");
  EXPECT_EQ(c(gross.ce), "330 µF");
  EXPECT_NEAR(gross.vuIst, 144.71, 5e-3);
  EXPECT_NEAR(gross.fuIst, 20.017, 1e-3);
  EXPECT_EQ(r(gross.rein), "2,2 kOhm");
  EXPECT_EQ(stueckliste(gross, {}).size(), 8u);  // no RE1

  // Empty gain field: the same stage without a message.
  const Entwurf leer = stufe("12", "1", "", "20", "10");
  EXPECT_EQ(leer.hinweis, Hinweis::Keiner);
  EXPECT_DOUBLE_EQ(leer.vuIst, gross.vuIst);
  // RE1 below 1 Ohm is left out, with the message.
  EXPECT_EQ(stufe("12", "1", "135", "20", "10").hinweis, Hinweis::GroessteVerstaerkung);
  const Entwurf knapp = stufe("12", "1", "132", "20", "10");
  EXPECT_EQ(knapp.hinweis, Hinweis::Keiner);
  EXPECT_EQ(r(knapp.re1), "1,2 Ohm");
  EXPECT_NEAR(knapp.vuIst, 137.916, 1e-3);
  // A gain below what RE alone gives: RE1 takes all of RE, no RE2 and CE.
  const Entwurf klein = stufe("12", "1", "1", "20", "10");
  EXPECT_EQ(klein.hinweis, Hinweis::KleinsteVerstaerkung);
  EXPECT_EQ(klein.re1, klein.re);
  EXPECT_EQ(klein.re2, 0);
  EXPECT_EQ(klein.ce, 0);
  EXPECT_EQ(stueckliste(klein, {}).size(), 7u);
  EXPECT_NE(hinweisText(Hinweis::KleinsteVerstaerkung).indexOf("\r\nDie kleinste"), -1);
}

TEST_F(Verstaerker, PnpDarlington) {
  const Entwurf e = stufe("-24", "10", "20", "50", "4,7", true);
  EXPECT_EQ(e.v.s, -1);
  EXPECT_EQ(r(e.r1), "180 kOhm");
  EXPECT_EQ(r(e.r2), "39 kOhm");
  EXPECT_EQ(r(e.rc), "1,1 kOhm");
  EXPECT_EQ(r(e.re1), "39 Ohm");
  EXPECT_EQ(r(e.re2), "200 Ohm");
  EXPECT_EQ(c(e.c1), "1,8 µF");
  EXPECT_EQ(c(e.c2), "5,6 µF");
  EXPECT_EQ(c(e.ce), "100 µF");
  EXPECT_NEAR(e.fuIst, 44.758, 1e-3);
  EXPECT_NEAR(e.pt, 0.103621, 1e-6);
  EXPECT_NEAR(2 * e.uaMax, 16.697, 1e-3);
  Typ t{"MPSA64", "TO 92z", 0.625, 0.2072, 30, 0.5, "pnp-Darlgt", true};
  const auto d = datenzeilen(e, t);
  EXPECT_EQ(d[9].zahl.toStdString(), "-2,552");   // UE
  EXPECT_EQ(d[12].zahl.toStdString(), "-9,714");  // UCE
  EXPECT_EQ(d[13].zahl.toStdString(), "103,621");
  const auto s = stueckliste(e, t);
  EXPECT_EQ(zeile(s, "RC"), "1,1 kOhm | 0,5 W");
  EXPECT_EQ(zeile(s, "CE"), "100 µF | Elko 35 V");
  EXPECT_EQ(zeile(s, "C1"), "1,8 µF | Elko 35 V");
  Entwurf smd = e;
  smd.v.smdWahl = 2;
  EXPECT_EQ(zeile(stueckliste(smd, t), "RC"), "1,1 kOhm | 0,5 W SMD 2010");
}

TEST_F(Verstaerker, SmdStage) {
  const Entwurf e = stufe("24", "50", "5", "20", "0,47", false, 2);
  EXPECT_EQ(r(e.re), "47 Ohm");
  EXPECT_EQ(r(e.rc), "220 Ohm");
  EXPECT_EQ(r(e.re1), "30 Ohm");
  EXPECT_EQ(r(e.re2), "18 Ohm");
  EXPECT_EQ(r(e.r1), "3,9 kOhm");
  EXPECT_EQ(r(e.r2), "620 Ohm");
  EXPECT_NEAR(e.icA, 47.781e-3, 1e-6);
  EXPECT_EQ(r(e.rein), "455,2 Ohm");
  const auto s = stueckliste(e, {});
  EXPECT_EQ(zeile(s, "RC"), "220 Ohm | 2 W bedrahtet (SMD nur bis 1 W)");
  EXPECT_EQ(zeile(s, "R1"), "3,9 kOhm | 0,25 W SMD 1206");
  EXPECT_EQ(zeile(s, "RE1"), "30 Ohm | 0,25 W SMD 1206");
  EXPECT_EQ(zeile(s, "R2"), "620 Ohm | 0,125 W SMD 0805");
  EXPECT_EQ(zeile(s, "RE2"), "18 Ohm | 0,125 W SMD 0805");
  EXPECT_EQ(zeile(s, "C1"), "180 µF | Elko 35 V SMD");
  EXPECT_EQ(zeile(s, "C2"), "120 µF | Elko 35 V SMD");
  EXPECT_EQ(zeile(s, "CE"), "820 µF | Elko 35 V SMD");
}

TEST_F(Verstaerker, Ratings) {
  // Each limit inclusive; beyond the lists the number itself.
  EXPECT_EQ(widerstandsAusfuehrung(0.25, 0), "0,25 W");
  EXPECT_EQ(widerstandsAusfuehrung(0.2501, 1), "0,5 W");
  EXPECT_EQ(widerstandsAusfuehrung(10.4, 0), "10 W");
  EXPECT_EQ(widerstandsAusfuehrung(10.6, 0), "11 W");
  EXPECT_EQ(widerstandsAusfuehrung(0.125, 2), "0,125 W SMD 0805");
  EXPECT_EQ(widerstandsAusfuehrung(1.0, 2), "1 W SMD 2512");
  EXPECT_EQ(widerstandsAusfuehrung(12, 2), "12 W bedrahtet (SMD nur bis 1 W)");
  EXPECT_EQ(kondensatorAusfuehrung(1e-6, 5.04, 0), "Elko 6,3 V");
  EXPECT_EQ(kondensatorAusfuehrung(0.99e-6, 5.05, 1), "Kondensator 10 V");
  EXPECT_EQ(kondensatorAusfuehrung(1e-9, 400, 2), "Kondensator 500 V SMD");
}

}  // namespace
