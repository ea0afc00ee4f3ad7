#include "calculators/core/CTeilerCalc.h"

#include <cmath>

#include "shell/core/Arith.h"
#include "shell/core/Module1.h"

namespace divider {

std::optional<Note> check(const Values& v) {
  int known = 0;
  if (v.u > 0) {
    if (v.u <= 1.0) return Note{QStringLiteral("Das Spannungsverhältnis muß >1,0 sein!"), true};
    ++known;
  }
  if (v.a > 0) {
    if (v.a <= 1.0) return Note{QStringLiteral("Das Anpassungsverhältnis muß >1,0 sein!"), true};
    ++known;
  }
  if (v.f > 0) ++known;
  if (v.r1 > 0) ++known;
  if (v.r2 > 0) {
    if (v.r1 > 0 && v.r2 < v.r1) return Note{QStringLiteral("R1 muß kleiner bis gleich R2 sein!"), true};
    ++known;
  }
  if (v.x1 > 0) ++known;
  if (v.x2 > 0) ++known;
  if (known < 3) return Note{QStringLiteral("Bitte min. drei Werte eingeben!"), false};
  return std::nullopt;
}

units::Placement resistancePlacement() {
  using units::Cmp;
  return {{{Cmp::GreaterEq, Module1::TenPow(6), 2}, {Cmp::GreaterEq, Module1::TenPow(3), 1}}, 0};
}

units::Placement capacitancePlacement() {
  using units::Cmp;
  return {{{Cmp::Greater, Module1::TenPow(-6), 2}, {Cmp::Greater, Module1::TenPow(-9), 1}}, 0};
}

units::Placement frequencyPlacement() {
  using units::Cmp;
  return {{{Cmp::Greater, Module1::TenPow(6), 0}, {Cmp::Greater, Module1::TenPow(3), 1}}, 2};
}

void ratioSteps(Values& v, const Empty& empty, double (*partsRatio)(const Values&), const QString& partsWord,
                Run& run) {
  const QString& nl = Module1::NL;
  const auto square = [](double x) { return x * x; };
  if (empty[Ratio]) {
    if (v.r1 > 0 && v.r2 > 0) {
      arith::assign(v.u, std::sqrt(v.r2 / v.r1));
    } else if (v.x1 > 0 && v.x2 > 0) {
      arith::assign(v.u, std::sqrt(square(partsRatio(v))));
    } else if (v.a > 0) {
      arith::assign(v.u, std::sqrt(v.a));
    } else {
      run.message("Bitte min. das Anpassungverhältnis oder " + nl + "beide Widerstände oder beide " + partsWord +
                  " eingeben!");
      v.u = 0;
    }
    if (v.u != 0) run.show(Ratio, v.u);
  }
  if (empty[Matching]) {
    if (v.r1 > 0 && v.r2 > 0) {
      arith::assign(v.a, v.r2 / v.r1);
    } else if (v.x1 > 0 && v.x2 > 0) {
      arith::assign(v.a, square(partsRatio(v)));
    } else if (v.u > 0) {
      arith::assign(v.a, square(v.u));
    } else {
      run.message("Bitte min. das Spannungsverhältnis oder " + nl + "beide Widerstände oder beide " + partsWord +
                  " eingeben!");
      v.a = 0;
    }
    if (v.a != 0) run.show(Matching, v.a);
  }
}

void resistance2Step(Values& v, const Empty& empty, double (*partsRatio)(const Values&), Run& run) {
  if (!empty[Res2]) return;
  const double ratio = v.x1 != 0 && v.x2 != 0 ? partsRatio(v) : v.u;
  arith::assign(v.r2, v.r1 * (ratio * ratio));
  run.show(Res2, v.r2);
}

QString patternOf(Field field) {
  switch (field) {
    case Ratio:
    case Matching: return QString::fromLatin1(kRatioPattern);
    case Res1:
    case Res2: return QString::fromLatin1(kResistancePattern);
    case Freq: return QString::fromLatin1(kFrequencyPattern);
    default: return QString::fromLatin1(kPartPattern);
  }
}

}  // namespace divider

namespace cteiler {

using divider::Field;
using divider::Step;

double designConstant() { return 5.05 * Module1::TenPow(-1); }

divider::Run compute(divider::Values v, divider::Empty empty) {
  divider::Run run;
  auto message = [&](const QString& text) { run.message(text); };
  auto show = [&](Field field, double value) { run.show(field, value); };
  const QString& nl = Module1::NL;
  const auto square = [](double x) { return x * x; };

  const auto partsRatio = [](const divider::Values& w) { return w.x1 / w.x2 + 1; };
  divider::ratioSteps(v, empty, partsRatio, QStringLiteral("Kondensatoren"), run);

  // R1 from R2 and the ratio, or from C2 at the frequency; shown even as 0.
  if (empty[Field::Res1]) {
    if (v.r2 > 0) {
      arith::assign(v.r1, v.r2 / square(v.u));
    } else if (v.x2 > 0) {
      arith::assign(v.r1, 0.505 / (v.u * v.f * v.x2));
    } else {
      message("Bitte min. das Spannungsverhältnis oder " + nl + "einen der Widerstände oder C2 eingeben!");
      v.r1 = 0;
    }
    show(Field::Res1, v.r1);
  }

  divider::resistance2Step(v, empty, partsRatio, run);

  // C2 from the design relation, or from C1 and the resistances.
  if (empty[Field::Part2]) {
    if (v.f > 0 && v.x1 == 0) {
      arith::assign(v.x2, designConstant() / (v.u * v.f * v.r1));
    } else if (v.x1 == 0) {
      message(QStringLiteral("Bitte Frequenz eingeben!"));
      v.x2 = 0;
    } else {
      arith::assign(v.x2, v.x1 / (std::sqrt(v.r2 / v.r1) - 1));
    }
    if (v.x2 != 0) {
      show(Field::Part2, v.x2);
      // C1 follows the new C2 in the next step.
      if (v.u > 0) {
        run.steps.push_back({Step::Clear, Field::Part1, 0, {}});
        empty[Field::Part1] = true;
      }
    }
  }

  // C1 from C2 and the ratio.
  if (empty[Field::Part1]) {
    arith::assign(v.x1, (v.u - 1) * v.x2);
    if (v.x1 != 0) show(Field::Part1, v.x1);
  }

  // Frequency from the design relation.
  if (empty[Field::Freq]) {
    if (v.x2 != 0 && v.u != 0 && v.r1 != 0) {
      arith::assign(v.f, designConstant() / (v.x2 * v.u * v.r1));
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

double seriesCapacitance(double c1, double c2) {
  double cs = 0;
  arith::assign(cs, c1 * c2 / (c1 + c2));
  return cs;
}

units::Placement handOverPlacement() {
  using units::Cmp;
  return {{{Cmp::GreaterEq, Module1::TenPow(-6), 2}, {Cmp::GreaterEq, Module1::TenPow(-9), 1}}, 0};
}

}  // namespace cteiler
