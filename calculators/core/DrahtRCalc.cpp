#include "calculators/core/DrahtRCalc.h"

#include <cmath>

#include "shell/core/Arith.h"

namespace drahtr {

double crossSectionOf(double d) { return kPi * (d * d) / 4; }
double diameterOf(double a) { return std::sqrt(a / kPi * 4); }

std::vector<Event> compute(const Input& in) {
  std::vector<Event> out;
  auto message = [&out](const char* text) { out.push_back({Event::Kind::Message, QString::fromUtf8(text)}); };
  // A field is written only when the statement that gave its value worked;
  // a failed one (division by zero, overflow) leaves the field as it was.
  auto write = [&out](Field f, double v, bool ok) {
    if (ok && arith::ok(v)) out.push_back({Event::Kind::Write, QString(), f, v});
  };

  double d = in.d, a = in.a, l = in.l, r = in.r, rho = in.rho;
  int known = 0;
  for (double v : {d, a, l, r, rho}) {
    if (v > 0) ++known;
  }
  if (known < 3) {
    message("Bitte min. drei Werte eingeben!");
    return out;
  }

  int steps = 0;
  bool dEmpty = in.dEmpty;

  if (in.aEmpty) {
    ++steps;
    // With R, l and ρ given the wire follows from them; the diameter is not used.
    if (r > 0 && l > 0 && rho > 0) d = 0;
    bool aOk = true, dOk = true;
    if (d > 0) {
      aOk = arith::assign(a, d * d / 4 * kPi);
    } else if (rho > 0) {
      aOk = arith::assign(a, l * rho / r);
      dOk = aOk && arith::assign(d, std::sqrt(a / kPi * 4));
    } else {
      message(kDiameterMissing);
      a = 0;
    }
    write(Field::CrossSection, a, aOk);
    write(Field::Diameter, d, dOk);
    if (dOk && arith::ok(d)) dEmpty = false;
  }

  if (dEmpty) {
    ++steps;
    // Likewise the cross-section: it is taken as 0 and shown so.
    if (r > 0 && l > 0 && rho > 0) a = 0;
    bool dOk = true;
    if (a > 0) {
      dOk = arith::assign(d, std::sqrt(a / kPi * 4));
    } else if (rho > 0) {
      dOk = arith::assign(d, std::sqrt((l * rho / r) / kPi * 4));
    } else {
      message(kCrossSectionMissing);
    }
    write(Field::Diameter, d, dOk);
    write(Field::CrossSection, a, true);
  }

  if (in.lEmpty) {
    ++steps;
    bool ok = true;
    if (r > 0)
      ok = arith::assign(l, r * a / rho);
    else
      message(kResistanceMissing);
    write(Field::Length, l, ok);
  }

  if (in.rEmpty) {
    ++steps;
    write(Field::Resistance, r, arith::assign(r, l * rho / a));
  }

  if (rho == 0) {
    ++steps;
    write(Field::Material, rho, arith::assign(rho, r * a / l));
  }

  if (steps == 0) message("Das zu berechnende Feld muß leer sein!");
  return out;
}

const units::UnitList& lengthUnits() {
  static const units::UnitList l{{"Km", 3}, {"m", 0}, {"mm", -3}};
  return l;
}

const units::UnitList& resistanceUnits() {
  static const units::UnitList l{{"KOhm", 3}, {"Ohm", 0}, {"mOhm", -3}};
  return l;
}

units::Placement lengthPlacement() {
  using units::Cmp;
  return {{{Cmp::GreaterEq, 1000.0, 0}, {Cmp::Less, 1.0, 2}}, 1};
}

units::Placement resistancePlacement() {
  using units::Cmp;
  return {{{Cmp::GreaterEq, 1000.0, 0}, {Cmp::Less, 1.0, 2}}, 1};
}

QStringList materials() {
  return {
      QStringLiteral("0.0175        (Kupfer)"),
      QStringLiteral("0.0287        (Aluminium)"),
      QStringLiteral("0.0165        (Silber)"),
      QStringLiteral("0.020          (Gold)"),
      QStringLiteral("0.048          (Zink)"),
      QStringLiteral("0.05            (Wolfram)"),
      QStringLiteral("0.061          (Nickel)"),
      QStringLiteral("0.075          (Messing)"),
      QStringLiteral("0.10            (Zinn)"),
      QStringLiteral("0.1              (Platin)"),
      QStringLiteral("0.100          (Eisen rein)"),
      QStringLiteral("0.130          (Eisen)"),
      QStringLiteral("0.180          (Stahlguß)"),
      QStringLiteral("0.18            (Bronze)"),
      QStringLiteral("0.188          (Blei)"),
      QStringLiteral("0.5              (Konstantan)"),
      QStringLiteral("1.10            (Chromnickel)"),
      QStringLiteral("8.00            (Graphit)"),
  };
}

}  // namespace drahtr
