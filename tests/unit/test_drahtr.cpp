// Wire resistance: the coupling formulas, the worked examples, the steps of
// one press that the script tests do not reach, and the result units.
#include <gtest/gtest.h>

#include <QStringList>
#include <cmath>

#include "Shown.h"
#include "calculators/core/DrahtRCalc.h"

using namespace drahtr;

namespace {

constexpr double kCopper = 0.0175;

// Values as typed; a 0 stands for an empty field.
Input filled(double d, double a, double l, double r, double rho) {
  Input in;
  in.d = d, in.a = a, in.l = l, in.r = r, in.rho = rho;
  in.dEmpty = d == 0, in.aEmpty = a == 0, in.lEmpty = l == 0, in.rEmpty = r == 0;
  return in;
}

// The outcome of one press: "msg:<text>" and "<field>=<value>" in order.
std::string trace(const Input& in) {
  QStringList out;
  const char* names[] = {"d", "A", "l", "R", "rho"};
  for (const Event& e : compute(in))
    out << (e.kind == Event::Kind::Message ? "msg:" + e.text
                                           : QString("%1=%2").arg(names[int(e.field)]).arg(e.value, 0, 'g', 12));
  return out.join("; ").toStdString();
}

}  // namespace

TEST(DrahtR, CouplingFormulas) {
  EXPECT_NEAR(crossSectionOf(0.5), 0.196349540849362, 1e-15);  // π · d² / 4
  EXPECT_NEAR(diameterOf(0.785398163397448), 1.0, 1e-15);      // √(A / π · 4)
  EXPECT_TRUE(std::isnan(diameterOf(-1)));
}

TEST(DrahtR, WorkedExamplesReadTheCoupledCrossSection) {
  // The coupling has written A as "0,19635"; the computation reads that back.
  EXPECT_EQ(trace(filled(0.5, 0.19635, 10, 0, kCopper)), "R=0.891265597148");  // rho · l / A
  EXPECT_EQ(trace(filled(1, 0.785398, 0, 1, kCopper)), "l=44.8798857143");     // R · A / rho
}

TEST(DrahtR, StepsTheScriptsDoNotReach) {
  // A typed diameter is not used when R, l and rho are all given.
  EXPECT_EQ(trace(filled(2, 0, 10, 1, kCopper)), "A=0.175; d=0.472034871941");
  // Diameter only, no R: A from d, then d written back, then R.
  EXPECT_EQ(trace(filled(1, 0, 10, 0, kCopper)), "A=0.785398163397; d=1; R=0.222816920329");
  // rho from a length typed as 0 fails; nothing is written for it.
  Input z = filled(0.5, 0.19635, 0, 1, 0);
  z.lEmpty = false;
  EXPECT_EQ(trace(z), "");
}

TEST(DrahtR, LengthAndResistanceUnits) {
  expectSides(lengthUnits(), lengthPlacement(), {{1000, "1.0 Km"}, {999.5, "999.5 m"}, {1, "1.0 m"}, {0.5, "500.0 mm"}});
  expectSides(resistanceUnits(), resistancePlacement(),
              {{1000, "1.0 KOhm"}, {999.5, "999.5 Ohm"}, {1, "1.0 Ohm"}, {0.891265597148, "891.2656 mOhm"}});
}
