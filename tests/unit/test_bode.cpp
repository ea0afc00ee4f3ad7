// Plot data of the frequency responses: axis labels, ranges, clipping, and
// the curves of RC, RL, RLC and the crossovers at their marked frequencies.
#include <gtest/gtest.h>

#include <QLocale>
#include <algorithm>
#include <cmath>

#include "crossover/core/CrossoverResponse.h"
#include "shell/core/Bode.h"

namespace {

struct GermanLocale {
  GermanLocale() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
  ~GermanLocale() { QLocale::setDefault(QLocale::c()); }
};

QStringList labels(const std::vector<bode::Tick>& ticks) {
  QStringList l;
  for (const bode::Tick& t : ticks)
    if (!t.label.isEmpty()) l << t.label;
  return l;
}

// Index of the marked frequency in the sweep (it is put in exactly).
size_t at(const bode::Plot& p, double f) {
  return size_t(std::find(p.f.begin(), p.f.end(), f) - p.f.begin());
}

}  // namespace

TEST(Bode, AxisLabelsAndFrequencyTexts) {
  GermanLocale de;
  EXPECT_EQ(labels(bode::frequencyTicks(20, 20000)),
            QStringList({"20 Hz", "50 Hz", "100 Hz", "200 Hz", "500 Hz", "1 kHz", "2 kHz", "5 kHz", "10 kHz",
                         "20 kHz"}));
  // 20 Hz .. 20 kHz: 2..9 of the first decade, 1..9 of two, 1 and 2 of the last.
  EXPECT_EQ(bode::frequencyTicks(20, 20000).size(), 8u + 18u + 2u);
  // Four decades: 2 and 5 by their digit.
  EXPECT_EQ(labels(bode::frequencyTicks(10, 1e5)).mid(0, 4), QStringList({"10 Hz", "2", "5", "100 Hz"}));
  EXPECT_EQ(bode::frequencyText(598.6), "598,6 Hz");
  EXPECT_EQ(bode::frequencyText(2800), "2,8 kHz");
  EXPECT_EQ(bode::frequencyText(1591.549), "1,592 kHz");
  EXPECT_EQ(bode::frequencyText(999999), "1 MHz");
  EXPECT_EQ(bode::frequencyText(0.0159155), "0,01592 Hz");

  bode::Panel ohm{"", bode::Scale::Ohm, 0.1, 1e4, {}};
  EXPECT_EQ(labels(bode::valueTicks(ohm)), QStringList({"0,1 Ohm", "1 Ohm", "10 Ohm", "100 Ohm", "1 kOhm", "10 kOhm"}));
  EXPECT_NEAR(bode::position(ohm, 10), 0.4, 1e-12);
  EXPECT_LT(bode::position(ohm, 0), -100);
  EXPECT_GT(bode::position(ohm, INFINITY), 100);
  bode::Panel deg{"", bode::Scale::Degrees, -90, 90, {}};
  EXPECT_EQ(labels(bode::valueTicks(deg)), QStringList({"-90°", "-45°", "0°", "45°", "90°"}));
}

TEST(Bode, ClipCutsWhereTheLineLeavesTheBand) {
  // Up through the top, back in, down through the bottom.
  const std::vector<QPointF> line{{0, 0.5}, {1, 1.5}, {2, 0.5}, {3, -0.5}};
  const auto pieces = bode::clip(line, 0, 1);
  ASSERT_EQ(pieces.size(), 2u);
  ASSERT_EQ(pieces[0].size(), 2u);
  EXPECT_EQ(pieces[0][1], QPointF(0.5, 1));
  ASSERT_EQ(pieces[1].size(), 3u);
  EXPECT_EQ(pieces[1][0], QPointF(1.5, 1));
  EXPECT_EQ(pieces[1][2], QPointF(2.5, 0));
  // A point that is not a number breaks the line; a line wholly outside is gone.
  EXPECT_EQ(bode::clip({{0, 0.2}, {1, 0.3}, {2, NAN}, {3, 0.4}, {4, 0.5}}, 0, 1).size(), 2u);
  EXPECT_TRUE(bode::clip({{0, 2}, {1, 3}}, 0, 1).empty());
}

TEST(Bode, FiltersAndCircuitsAtTheirMarkedFrequency) {
  GermanLocale de;
  // RC 1 kOhm, 100 nF and RL 1 kOhm, 10 mH: -3,01 dB and -45° / +45° at fg.
  for (const bode::Plot& p : {bode::rcFilter(1e3, 100e-9), bode::rlFilter(1e3, 10e-3)}) {
    ASSERT_FALSE(p.empty());
    ASSERT_EQ(p.markers.size(), 1u);
    const size_t i = at(p, p.markers[0].f);
    ASSERT_LT(i, p.f.size());
    EXPECT_NEAR(p.upper.curves[0].y[i], -3.0103, 1e-4);
    EXPECT_NEAR(p.upper.curves[1].y[i], -3.0103, 1e-4);
    EXPECT_NEAR(p.lower->curves[0].y[i], -45, 1e-9);
    EXPECT_NEAR(p.lower->curves[1].y[i], 45, 1e-9);
    EXPECT_EQ(p.upper.hi, 10);
    EXPECT_LE(p.upper.lo, -40);
  }
  EXPECT_EQ(bode::rcFilter(1e3, 100e-9).markers[0].label, "fg = 1,592 kHz");
  EXPECT_EQ(bode::rlFilter(1e3, 10e-3).f.front(), 100.0);  // fg 15,9 kHz: 100 Hz .. 1 MHz

  // Series RLC: |Z| = R at f0, the scale one decade below; lossless parallel:
  // the pole does not take the scale beyond three decades over the ends.
  const bode::Plot s = bode::rlcImpedance(100, 10e-3, 1e-6, false);
  const size_t i0 = at(s, s.markers[0].f);
  EXPECT_NEAR(s.upper.curves[0].y[i0], 100, 1e-6);
  EXPECT_NEAR(s.lower->curves[0].y[i0], 0, 1e-6);
  EXPECT_DOUBLE_EQ(s.upper.lo, 10);
  const bode::Plot p = bode::rlcImpedance(0, 10e-3, 1e-6, true);
  EXPECT_EQ(p.markers[0].label, "f0 = 1,592 kHz");
  EXPECT_LE(p.upper.hi, 1e4 * 1.0001);

  // Nothing to plot.
  EXPECT_TRUE(bode::rcFilter(0, 1e-6).empty());
  EXPECT_TRUE(bode::rlFilter(-1, 1e-3).empty());
  EXPECT_TRUE(bode::rlcImpedance(10, NAN, 1e-6, false).empty());
  EXPECT_TRUE(bode::rcFilter(1e-200, 1e-200).empty());  // fg far beyond any axis
}

TEST(Bode, CrossoverPlotsHaveAWayPerDriverAndTheSum) {
  GermanLocale de;
  using lpbox::Mode;
  lpbox::NetworkValues v;
  v.rTT = v.rMT = v.rHT = 4;
  const double fu = 598.6, fo = 2800;
  v.part[2] = v.part[10] = lpbox::C12(4, fu);
  v.part[4] = v.part[12] = lpbox::L12(4, fu);
  v.part[3] = v.part[11] = lpbox::C12(4, fo);
  v.part[5] = v.part[13] = lpbox::L12(4, fo);
  const bode::Plot three = lpbox::responsePlot(Mode::ThreeWay12, v, fo, fu);
  ASSERT_EQ(three.upper.curves.size(), 4u);
  EXPECT_EQ(three.upper.curves[3].name, "Summe");
  EXPECT_FALSE(three.lower);
  EXPECT_EQ(three.f.front(), 20.0);
  EXPECT_EQ(three.f.back(), 20000.0);
  ASSERT_EQ(three.markers.size(), 2u);
  EXPECT_EQ(three.markers[0].label, "fu = 598,6 Hz");
  EXPECT_EQ(three.markers[1].label, "fo = 2,8 kHz");
  // First order: the ways at -3 dB at fT and the sum flat everywhere.
  lpbox::NetworkValues w;
  w.rTT = w.rHT = 4;
  w.part[2] = lpbox::C6(4, fo);
  w.part[4] = lpbox::L6(4, fo);
  const bode::Plot six = lpbox::responsePlot(Mode::TwoWay6, w, fo);
  EXPECT_EQ(six.markers[0].label, "fT = 2,8 kHz");
  const size_t i = at(six, fo);
  EXPECT_NEAR(six.upper.curves[0].y[i], -3.0103, 1e-3);
  for (double y : six.upper.curves[2].y) EXPECT_NEAR(y, 0, 1e-9);
  EXPECT_TRUE(lpbox::responsePlot(Mode::TwoWay18, w, fo).empty());  // parts missing
}
