// Transfer functions of the crossover networks, checked at the crossover
// frequency against the closed forms (first order and the RC, RL and RLC
// plots are checked with their plots).
#include <gtest/gtest.h>

#include <cmath>

#include "crossover/core/CrossoverResponse.h"
#include "shell/core/Ladder.h"

using ladder::Kind;
using ladder::Place;

namespace {
constexpr double kTwoPi = 6.28318530717958;
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
