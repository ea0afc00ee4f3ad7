// Wire resistance: the steps of one press in their order, with their
// messages and writes, the coupling formulas, the prefix rules and the
// material list.
#include <gtest/gtest.h>

#include <QStringList>
#include <cmath>

#include "calculators/core/DrahtRCalc.h"
#include "shell/core/Module1.h"

using namespace drahtr;

namespace {

constexpr double kCopper = 0.0175;

// The outcome in a form that is easy to compare: "msg:<text>" and
// "<field>=<value>" in order, joined by "; ".
std::string trace(const Input& in) {
  QStringList r;
  const char* names[] = {"d", "A", "l", "R", "rho"};
  for (const Event& e : compute(in)) {
    if (e.kind == Event::Kind::Message)
      r << "msg:" + e.text;
    else
      r << QString("%1=%2").arg(names[int(e.field)]).arg(e.value, 0, 'g', 12);
  }
  return r.join("; ").toStdString();
}

std::string lines(const QStringList& l) { return l.join("; ").toStdString(); }

Input filled(double d, double a, double l, double r, double rho) {
  Input in;
  in.d = d, in.a = a, in.l = l, in.r = r, in.rho = rho;
  in.dEmpty = d == 0, in.aEmpty = a == 0, in.lEmpty = l == 0, in.rEmpty = r == 0;
  return in;
}

}  // namespace

TEST(DrahtR, CouplingFormulas) {
  EXPECT_NEAR(crossSectionOf(0.5), 0.196349540849362, 1e-15);
  EXPECT_NEAR(crossSectionOf(1), 0.785398163397448, 1e-15);
  EXPECT_NEAR(diameterOf(0.785398163397448), 1.0, 1e-15);
  EXPECT_TRUE(std::isnan(diameterOf(-1)));
}

TEST(DrahtR, WorkedExamplesReadTheCoupledCrossSection) {
  // The coupling has written A as "0,19635"; the computation reads that back.
  EXPECT_EQ(trace(filled(0.5, 0.19635, 10, 0, kCopper)), lines(QStringList{"R=0.891265597148"}));
  EXPECT_EQ(trace(filled(1, 0.785398, 0, 1, kCopper)), lines(QStringList{"l=44.8798857143"}));
}

TEST(DrahtR, EveryEmptyFieldInOrder) {
  // Thickness from R, l and rho: step 1 writes A and d, step 2 then has nothing to do.
  EXPECT_EQ(trace(filled(0, 0, 10, 1, kCopper)), lines(QStringList({"A=0.175", "d=0.472034871941"})));
  // A typed diameter is not used when R, l and rho are all given.
  EXPECT_EQ(trace(filled(2, 0, 10, 1, kCopper)), lines(QStringList({"A=0.175", "d=0.472034871941"})));
  // Diameter only, no R: A from d, then d written back.
  EXPECT_EQ(trace(filled(1, 0, 10, 0, kCopper)), lines(QStringList({"A=0.785398163397", "d=1", "R=0.222816920329"})));
  // Material missing: rho from R, A and l, after the other steps.
  EXPECT_EQ(trace(filled(0, 0.785398, 10, 1, 0)), lines(QStringList({"d=0.999999895978", "A=0.785398", "rho=0.0785398"})));
}

TEST(DrahtR, StepMessagesDoNotStopLaterSteps) {
  // Length and resistance empty: the length step complains and writes 0,
  // the resistance step still runs (and gives 0 from that length).
  EXPECT_EQ(trace(filled(0.5, 0.19635, 0, 0, kCopper)), lines(QStringList({"msg:" + QString(kResistanceMissing), "l=0", "R=0"})));
  // Diameter empty with a cross-section given and R, l, rho known: the
  // cross-section is taken as 0 and shown so.
  EXPECT_EQ(trace(filled(0, 1, 10, 1, kCopper)), lines(QStringList({"d=0.472034871941", "A=0"})));
}

TEST(DrahtR, FailedDivisionLeavesTheFieldAlone) {
  Input in = filled(0.5, 0, 10, 0, kCopper);
  in.aEmpty = false;  // the cross-section field holds "0"
  EXPECT_EQ(trace(in), "");
  // rho from a zero length fails as well; nothing is written for it.
  Input z = filled(0.5, 0.19635, 0, 1, 0);
  z.lEmpty = false;
  EXPECT_EQ(trace(z), "");
}

TEST(DrahtR, TooFewValuesOrNothingEmpty) {
  EXPECT_EQ(trace(filled(0, 0, 10, 0, kCopper)), lines(QStringList{"msg:Bitte min. drei Werte eingeben!"}));
  EXPECT_EQ(trace(filled(1, 0.785398, 10, 1, kCopper)), lines(QStringList{"msg:Das zu berechnende Feld muß leer sein!"}));
}

TEST(DrahtR, PrefixBoundaries) {
  const auto at = [](const units::UnitList& list, const units::Placement& rule, double v) {
    return *units::place(list, rule, v);
  };
  EXPECT_EQ(at(lengthUnits(), lengthPlacement(), 1000).index, 0);
  EXPECT_DOUBLE_EQ(at(lengthUnits(), lengthPlacement(), 1000).scaled, 1.0);
  EXPECT_EQ(at(lengthUnits(), lengthPlacement(), 999.99).index, 1);
  EXPECT_EQ(at(lengthUnits(), lengthPlacement(), 1).index, 1);
  EXPECT_EQ(at(lengthUnits(), lengthPlacement(), 0.5).index, 2);
  EXPECT_DOUBLE_EQ(at(lengthUnits(), lengthPlacement(), 0.5).scaled, 500.0);
  EXPECT_EQ(at(resistanceUnits(), resistancePlacement(), 1000).index, 0);
  EXPECT_EQ(at(resistanceUnits(), resistancePlacement(), 1).index, 1);
  EXPECT_EQ(at(resistanceUnits(), resistancePlacement(), 0.891265597148).index, 2);
  EXPECT_NEAR(at(resistanceUnits(), resistancePlacement(), 0.891265597148).scaled, 891.265597148, 1e-9);
}

TEST(DrahtR, MaterialsStartWithTheirResistivity) {
  const QStringList m = materials();
  ASSERT_EQ(m.size(), 18);
  const double rho[] = {0.0175, 0.0287, 0.0165, 0.020, 0.048, 0.05, 0.061, 0.075, 0.10,
                        0.1,    0.100,  0.130,  0.180, 0.18,  0.188, 0.5, 1.10,  8.00};
  for (int i = 0; i < 18; ++i) EXPECT_DOUBLE_EQ(Module1::ParseNumber(m[i]), rho[i]) << i;
  EXPECT_EQ(m[12], QString::fromUtf8("0.180          (Stahlguß)"));
}
