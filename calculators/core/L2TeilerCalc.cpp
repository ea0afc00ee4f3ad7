#include "calculators/core/L2TeilerCalc.h"

#include <cmath>

#include "shell/core/Arith.h"
#include "shell/core/Module1.h"

namespace l2teiler {

using divider::Field;
using divider::Step;

double turnsConstant() { return 0.00395 * Module1::TenPow(-6); }

divider::Run compute(divider::Values v, divider::Empty empty, bool tapped) {
  divider::Run run;
  auto message = [&](const QString& text) { run.message(text); };
  auto show = [&](Field field, double value) { run.show(field, value); };
  auto endEarly = [&](Field field) {
    run.steps.push_back({Step::Clear, field, 0, {}});
    run.endedEarly = true;
    run.values = v;
    return run;
  };
  const QString& nl = Module1::NL;
  const auto square = [](double x) { return x * x; };

  const auto partsRatio = [](const divider::Values& w) { return w.x2 / w.x1 + 1; };
  divider::ratioSteps(v, empty, partsRatio, QStringLiteral("Induktivitäten"), run);

  // R1 from R2, through the coils when both are known.
  if (empty[Field::Res1]) {
    if (v.x1 > 0 && v.x2 > 0 && v.u > 0 && v.r2 > 0) {
      arith::assign(v.r1, v.r2 / square(v.x2 / v.x1 + 1));
    } else if (v.r2 > 0 && v.u > 0) {
      arith::assign(v.r1, v.r2 / square(v.u));
    } else {
      message("Bitte min. das Spannungsverhältnis oder " + nl + "den Widerständ R2 eingeben!");
      v.r1 = 0;
    }
    show(Field::Res1, v.r1);
  }

  divider::resistance2Step(v, empty, partsRatio, run);

  // L1 before L2. Without it nothing further can follow: the run ends.
  if (empty[Field::Part1]) {
    if (v.f > 0 && v.r1 > 0 && v.x2 == 0) {
      arith::assign(v.x1, v.r1 / (kDesign * kTwoPi * v.f));
    } else if (v.r1 > 0 && v.r2 > 0 && v.x2 > 0) {
      arith::assign(v.x1, v.x2 / (std::sqrt(v.r2 / v.r1) - 1));
    } else if (v.u > 0 && v.x2 > 0) {
      arith::assign(v.x1, v.x2 / (v.u - 1));
    } else {
      message("Bitte min. das Spannungsverhältnis oder " + nl + "beide Widerstände oder L2 eingeben!");
      v.x1 = 0;
    }
    if (v.x1 == 0) return endEarly(Field::Part1);
    ++run.computed;  // written with L2 below
  }

  // L2, likewise ending the run when it comes out 0.
  if (empty[Field::Part2]) {
    if (v.f > 0 && v.x1 == 0) {
      arith::assign(v.x2, (v.r1 * v.u - v.r1) / (kDesign * kTwoPi * v.f));
    } else if (v.x1 == 0) {
      message(QStringLiteral("Bitte Frequenz eingeben!"));
      v.x2 = 0;
    } else {
      v.x2 = 0;
      if (v.u > 0) arith::assign(v.x2, (v.u - 1) * v.x1);
      if (v.r1 > 0 && v.r2 > 0) arith::assign(v.x2, (std::sqrt(v.r2 / v.r1) - 1) * v.x1);
    }
    if (v.x2 == 0) return endEarly(Field::Part2);
    ++run.computed;
  }

  // One coil with a tap: the same total, split by the turns below and above
  // the tap. Done on every press, typed inductances included.
  if (tapped) {
    const double k = turnsConstant();
    double n = 0, n1 = 0, n2 = 0;
    arith::assign(n, std::sqrt((v.x1 + v.x2) / k));
    arith::assign(n1, n / v.u);
    arith::assign(n2, n - n1);
    arith::assign(v.x1, k * square(n1));
    arith::assign(v.x2, k * square(n2));
  }

  // Both inductances are written every time; one that is not positive leaves
  // its field empty.
  for (Field field : {Field::Part1, Field::Part2}) {
    const double l = field == Field::Part1 ? v.x1 : v.x2;
    if (l <= 0)
      run.steps.push_back({Step::Clear, field, 0, {}});
    else
      run.steps.push_back({Step::Show, field, l, {}});
  }

  // Frequency at which L1 has one seventeenth of R1 as its reactance.
  if (empty[Field::Freq]) {
    if (v.x1 != 0 && v.r1 != 0) {
      arith::assign(v.f, v.r1 / (kDesign * kTwoPi * v.x1));
    } else {
      message(QStringLiteral("Bitte Frequenz vorgeben!"));
      v.f = 0;
    }
    if (v.f != 0) show(Field::Freq, v.f);
  }

  if (run.computed > 0)
    run.enableHandOver = true;
  else
    message(QStringLiteral("Das zu berechnende Feld muß leer sein!"));
  run.values = v;
  return run;
}

units::Placement inductancePlacement() {
  using units::Cmp;
  return {{{Cmp::LessEq, Module1::TenPow(-3), 0}, {Cmp::LessEq, 1.0, 1}}, 2};
}

double totalInductance(double l1, double l2, bool tapped) {
  double l = 0;
  if (tapped) {
    const double k = turnsConstant();
    double n1 = 0, n2 = 0;
    arith::assign(n1, std::sqrt(l1 / k));
    arith::assign(n2, std::sqrt(l2 / k));
    arith::assign(l, k * ((n1 + n2) * (n1 + n2)));
  } else {
    arith::assign(l, l1 + l2);
  }
  return l;
}

units::Placement handOverPlacement() {
  using units::Cmp;
  return {{{Cmp::GreaterEq, 1.0, 3}, {Cmp::GreaterEq, Module1::TenPow(-3), 2}}, 1};
}

}  // namespace l2teiler
