// Superheterodyne tracking: the solution tracks exactly at its three points,
// the worked bands, the refusals, and the full scale of the error plot.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "superhet/core/Gleichlauf.h"

using namespace superhet;

namespace {

Ergebnis band(double fminKHz, double fmaxKHz, double fzfKHz = 455, double cminPF = 12, double cmaxPF = 500) {
  return berechne({fminKHz * 1e3, fmaxKHz * 1e3, fzfKHz * 1e3, cminPF * 1e-12, cmaxPF * 1e-12});
}

// Values as the form shows them: µH, pF, kHz.
double uH(double h) { return h * 1e6; }
double pF(double f) { return f * 1e12; }
double kHz(double hz) { return hz / 1e3; }

}  // namespace

TEST(SuperhetTracking, ExactAtTheThreePointsWithASignChangeAtEach) {
  for (const Ergebnis& r : {band(520, 1620), band(150, 285), band(5900, 12000), band(520, 1620, 10700, 20, 400)}) {
    ASSERT_EQ(r.pruefung, Pruefung::Ok);
    const Gleichlauf& g = r.werte;
    const double schritt = (g.fmax - g.fmin) / 1000;
    for (double f : {g.f1, g.f2, g.f3}) {
      EXPECT_NEAR(g.fehlerBei(f), 0, 1e-6 * g.fehlerMax) << f;
      EXPECT_LT(g.fehlerBei(f - schritt) * g.fehlerBei(f + schritt), 0) << f;
    }
    // Chebyshev points: 6,7 % of the band inside its ends.
    EXPECT_NEAR((g.f1 - g.fmin) / (g.fmax - g.fmin), 0.0670, 1e-4);
    EXPECT_NEAR(g.f1 + g.f3, g.fmin + g.fmax, 1e-6);
  }
}

TEST(SuperhetTracking, WorkedBands) {
  const Ergebnis mw = band(520, 1620);
  ASSERT_EQ(mw.pruefung, Pruefung::Ok);
  const Gleichlauf& g = mw.werte;
  EXPECT_NEAR(mw.k2, 9.7056, 5e-5);
  EXPECT_NEAR(pF(g.cte), 44.06, 0.005);
  EXPECT_NEAR(uH(g.le), 172.183, 0.0005);
  EXPECT_NEAR(kHz(g.f1), 593.7, 0.05);
  EXPECT_NEAR(kHz(g.f2), 1070.0, 1e-9);
  EXPECT_NEAR(kHz(g.f3), 1546.3, 0.05);
  EXPECT_NEAR(pF(g.cto), 55.0, 0.05);
  EXPECT_NEAR(uH(g.lo), 99.948, 0.0005);
  EXPECT_NEAR(pF(g.cp), 498.84, 0.005);
  // Largest error at the lower band end, positive; the extremes in between.
  EXPECT_NEAR(kHz(g.fehlerMax), 7.19, 0.005);
  EXPECT_EQ(g.fehler[0], g.fehlerMax);
  EXPECT_NEAR(kHz(g.fehler[200]), -3.58, 0.005);
  const auto lo = std::min_element(g.fehler.begin(), g.fehler.end());
  EXPECT_NEAR(kHz(*lo), -5.86, 0.01);
  EXPECT_NEAR(kHz(g.fe(int(lo - g.fehler.begin()))), 778, 6);
  const auto hi = std::max_element(g.fehler.begin() + 100, g.fehler.end());  // between f2 and f3
  EXPECT_NEAR(kHz(*hi), 4.15, 0.01);
  EXPECT_NEAR(kHz(g.fe(int(hi - g.fehler.begin()))), 1328, 6);

  // Long and short wave (their components are checked through the form):
  // the largest errors that set the plot's scale.
  EXPECT_NEAR(kHz(band(150, 285).werte.fehlerMax), 0.435, 0.0005);
  EXPECT_NEAR(kHz(band(5900, 12000).werte.fehlerMax), 2.919, 0.0005);

  // Cmin and Cmax change the components, not the curve.
  const Ergebnis anders = band(520, 1620, 455, 20, 400);
  ASSERT_EQ(anders.pruefung, Pruefung::Ok);
  EXPECT_NEAR(anders.werte.fehlerMax, g.fehlerMax, 1e-6);
}

TEST(SuperhetTracking, RefusalsInTheirOrder) {
  EXPECT_EQ(band(0, 1620).pruefung, Pruefung::Unvollstaendig);
  EXPECT_EQ(band(1620, 520, 455, 500, 12).pruefung, Pruefung::Frequenzbereich);  // band before gang
  EXPECT_EQ(band(520, 520).pruefung, Pruefung::Frequenzbereich);
  EXPECT_EQ(band(520, 1620, 455, 500, 500).pruefung, Pruefung::Drehko);
  const Ergebnis klein = band(520, 1620, 455, 12, 100);
  EXPECT_EQ(klein.pruefung, Pruefung::DrehkoReichtNicht);
  EXPECT_NEAR(klein.k2, 9.7056, 5e-5);
  // A ratio exactly k² needs no parallel capacitance.
  EXPECT_EQ(band(100, 300, 455, 10, 90).pruefung, Pruefung::Ok);
  // Bands whose numbers overflow the arithmetic give no circuit, not a broken one.
  EXPECT_EQ(band(1e-300, 1e300).pruefung, Pruefung::KeinGleichlauf);
  EXPECT_EQ(band(1e300, 2e300).pruefung, Pruefung::KeinGleichlauf);
}

TEST(SuperhetPlot, FullScaleSteps) {
  EXPECT_EQ(ymax(0.435), 0.5);
  EXPECT_EQ(ymax(7.19), 10);
  EXPECT_EQ(ymax(2.919), 5);
  EXPECT_EQ(ymax(1.5), 2);
  EXPECT_DOUBLE_EQ(ymax(1000), 1000);  // a whole decade stays
  EXPECT_DOUBLE_EQ(ymax(0.001), 0.001);
  EXPECT_EQ(ymax(0), 1);
}
