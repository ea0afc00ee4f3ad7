// Transfer functions of RC, RL, RLC and the crossover networks, checked at
// their corner and crossover frequencies against the closed forms.
#include <gtest/gtest.h>

#include <cmath>

#include "crossover/core/CrossoverResponse.h"
#include "shell/core/Ladder.h"

using ladder::Kind;
using ladder::Place;

namespace {
constexpr double kTwoPi = 6.28318530717958;
}

TEST(Ladder, FirstOrderCornerIsMinusThreeDecibelsAndFortyFiveDegrees) {
  const double r = 1e3, c = 100e-9, f0 = 1.0 / (kTwoPi * r * c);
  // RC low-pass: 1 / (1 + j f/f0); high-pass: j (f/f0) / (1 + j f/f0).
  auto lp = ladder::transfer({{Kind::R, Place::Series, r}, {Kind::C, Place::Shunt, c}}, 0, f0);
  auto hp = ladder::transfer({{Kind::C, Place::Series, c}, {Kind::R, Place::Shunt, r}}, 0, f0);
  EXPECT_NEAR(ladder::decibels(lp), -3.0103, 1e-4);
  EXPECT_NEAR(ladder::degrees(lp), -45.0, 1e-9);
  EXPECT_NEAR(ladder::decibels(hp), -3.0103, 1e-4);
  EXPECT_NEAR(ladder::degrees(hp), 45.0, 1e-9);
  // RL low-pass (L in series, R across the output), f0 = R / (2 pi L).
  const double l = 10e-3, fl = r / (kTwoPi * l);
  auto rl = ladder::transfer({{Kind::L, Place::Series, l}, {Kind::R, Place::Shunt, r}}, 0, fl);
  EXPECT_NEAR(ladder::decibels(rl), -3.0103, 1e-4);
  EXPECT_NEAR(ladder::degrees(rl), -45.0, 1e-9);
  // A decade above the corner the low-pass has fallen by about 20 dB.
  auto lp10 = ladder::transfer({{Kind::R, Place::Series, r}, {Kind::C, Place::Shunt, c}}, 0, 10 * f0);
  EXPECT_NEAR(ladder::decibels(lp10), -20.043, 1e-3);
}

TEST(Ladder, RlcImpedanceAtResonanceAndOffIt) {
  // f = 1 kHz, R = 100, L = 10 mH, C = 1 µF: series |Z| = 138,8457, phase -43,93.
  auto zs = ladder::seriesRLC(100, 10e-3, 1e-6, 1000);
  EXPECT_NEAR(std::abs(zs), 138.8457, 1e-4);
  EXPECT_NEAR(ladder::degrees(zs), -43.93, 5e-3);
  auto zp = ladder::parallelRLC(100, 10e-3, 1e-6, 1000);
  EXPECT_NEAR(std::abs(zp), 72.0224, 1e-4);
  EXPECT_NEAR(ladder::degrees(zp), 43.93, 5e-3);
  const double f0 = 1.0 / (kTwoPi * std::sqrt(10e-3 * 1e-6));
  EXPECT_NEAR(std::abs(ladder::seriesRLC(100, 10e-3, 1e-6, f0)), 100.0, 1e-6);
  EXPECT_NEAR(std::abs(ladder::parallelRLC(100, 10e-3, 1e-6, f0)), 100.0, 1e-6);
  // Lossless parallel circuit at resonance: no finite level, but no inf either.
  EXPECT_TRUE(std::isfinite(ladder::decibels(ladder::parallelRLC(0, 10e-3, 1e-6, f0))));
}

namespace {
lpbox::NetworkValues valuesFor(lpbox::Mode mode, double r, double f) {
  using namespace lpbox;
  NetworkValues v;
  v.rTT = v.rMT = v.rHT = r;
  auto& p = v.part;
  switch (mode) {
    case Mode::TwoWay6: p[2] = C6(r, f); p[4] = L6(r, f); break;
    case Mode::TwoWay12: p[2] = p[10] = C12(r, f); p[4] = p[12] = L12(r, f); break;
    case Mode::TwoWay18:
      p[2] = C18a(r, f); p[10] = C18b(r, f); p[3] = C6(r, f);
      p[4] = L18a(r, f); p[12] = L18b(r, f); p[5] = L18b(r, f);
      break;
    case Mode::ThreeWay12: break;
  }
  return v;
}
}  // namespace

TEST(CrossoverResponse, WaysMeetAtTheCrossoverFrequency) {
  using lpbox::Mode;
  const double r = 4, f = 2800;
  // First order: each way -3,01 dB, the sum flat (1/(1+s) + s/(1+s) = 1).
  auto w6 = lpbox::ways(Mode::TwoWay6, valuesFor(Mode::TwoWay6, r, f));
  ASSERT_EQ(w6.size(), 2u);
  for (auto h : lpbox::wayTransfers(w6, f)) EXPECT_NEAR(ladder::decibels(h), -3.0103, 1e-3);
  EXPECT_NEAR(ladder::decibels(lpbox::sumTransfer(w6, f)), 0.0, 1e-9);
  EXPECT_NEAR(ladder::decibels(lpbox::sumTransfer(w6, 97.0)), 0.0, 1e-9);
  // Second order Butterworth: each way -3,01 dB and 180° apart, so the sum
  // has its notch at the crossover frequency.
  auto w12 = lpbox::ways(Mode::TwoWay12, valuesFor(Mode::TwoWay12, r, f));
  auto h12 = lpbox::wayTransfers(w12, f);
  for (auto h : h12) EXPECT_NEAR(ladder::decibels(h), -3.0103, 1e-3);
  EXPECT_LT(std::abs(lpbox::sumTransfer(w12, f)), 1e-9);
  // Third order, normalised to s = j at the crossover frequency: the woofer's
  // T of 1,5 s, 2 s, 0,75 s gives 1 / (1 + 2,25 s + 3 s^2 + 2,25 s^3) = -1/2;
  // the tweeter's 2/s, 0,75 s, 1/s gives 1 / (-5/3 - j/3).
  auto w18 = lpbox::ways(Mode::TwoWay18, valuesFor(Mode::TwoWay18, r, f));
  auto h18 = lpbox::wayTransfers(w18, f);
  ASSERT_EQ(h18.size(), 2u);
  EXPECT_NEAR(std::abs(h18[0] - ladder::Complex(-0.5, 0)), 0.0, 1e-6);
  EXPECT_NEAR(std::abs(h18[1] - 1.0 / ladder::Complex(-5.0 / 3, -1.0 / 3)), 0.0, 1e-6);
  EXPECT_NEAR(std::abs(lpbox::sumTransfer(w18, f) - (h18[0] + h18[1])), 0.0, 1e-12);
  // An incomplete network has no way to plot.
  lpbox::NetworkValues empty;
  empty.rTT = empty.rHT = r;
  EXPECT_TRUE(lpbox::ways(Mode::TwoWay12, empty).empty());
}

TEST(CrossoverResponse, ThreeWayMidrangeIsABandPass) {
  using namespace lpbox;
  const double r = 4, fu = 598.6, fo = 2800;
  NetworkValues v;
  v.rTT = v.rMT = v.rHT = r;
  v.part[2] = C12(r, fu); v.part[10] = C12(r, fu); v.part[3] = C12(r, fo); v.part[11] = C12(r, fo);
  v.part[4] = L12(r, fu); v.part[12] = L12(r, fu); v.part[5] = L12(r, fo); v.part[13] = L12(r, fo);
  auto w = ways(Mode::ThreeWay12, v);
  ASSERT_EQ(w.size(), 3u);
  const double mid = std::sqrt(fu * fo);
  auto h = wayTransfers(w, mid);
  EXPECT_GT(ladder::decibels(h[1]), ladder::decibels(h[0]));
  EXPECT_GT(ladder::decibels(h[1]), ladder::decibels(h[2]));
  EXPECT_LT(ladder::decibels(wayTransfers(w, 20)[1]), -20);
  EXPECT_LT(ladder::decibels(wayTransfers(w, 20000)[1]), -20);
}
