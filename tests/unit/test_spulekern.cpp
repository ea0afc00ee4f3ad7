// Coil on a core: L = N² · AL and the prefix rules of its two combos.
#include <gtest/gtest.h>

#include "Shown.h"
#include "calculators/core/SpuleKernCalc.h"

using namespace spulekern;

TEST(SpuleKern, WorkedExamplesAndUnitBoundaries) {
  EXPECT_NEAR(inductance(250e-9, 20), 100e-6, 1e-18);            // 20² · 250 nH
  EXPECT_NEAR(alValue(1e-3, 10), 1e-5, 1e-18);                   // 1 mH / 10²
  EXPECT_NEAR(turns(100e-6, 250e-9), 20.0, 1e-12);               // √(100 µH / 250 nH)
  EXPECT_NEAR(turns(1e-3, 300e-9), 57.735026918962575, 1e-12);  // not rounded to whole turns
  // ComboAl runs from large to small units, ComboL from small to large.
  expectSides(alUnits(), alPlacement(),
              {{1.25, "1250.0 mH"}, {1e-3, "1000.0 µH"}, {1e-5, "10.0 µH"}, {1e-6, "1000.0 nH"}, {250e-9, "250.0 nH"}});
  expectSides(inductanceUnits(), inductancePlacement(),
              {{10, "10.0 H"}, {1, "1000.0 mH"}, {1e-3, "1000.0 µH"}, {1e-6, "1000.0 nH"}, {5e-8, "50.0 nH"}});
}
