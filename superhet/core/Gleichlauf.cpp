#include "superhet/core/Gleichlauf.h"

#include <cmath>

#include "shell/core/Module1.h"

namespace superhet {
namespace {

bool endlich(std::initializer_list<double> werte) {
  for (double w : werte)
    if (!std::isfinite(w)) return false;
  return true;
}

}  // namespace

double Gleichlauf::fehlerBei(double f) const {
  const double w = kZweiPi * f;
  const double cv = 1 / (w * w * le) - cte;  // gang setting that tunes the input circuit to f
  const double cs = cv + cto;
  const double ct = cp * cs / (cp + cs);
  const double fo = 1 / (kZweiPi * std::sqrt(lo * ct));
  return fo - f - fzf;
}

Ergebnis berechne(const Vorgaben& v) {
  Ergebnis r;
  if (!(v.fmin > 0 && v.fmax > 0 && v.fzf > 0 && v.cmin > 0 && v.cmax > 0)) {
    r.pruefung = Pruefung::Unvollstaendig;
    return r;
  }
  if (v.fmax <= v.fmin) {
    r.pruefung = Pruefung::Frequenzbereich;
    return r;
  }
  if (v.cmax <= v.cmin) {
    r.pruefung = Pruefung::Drehko;
    return r;
  }

  Gleichlauf& g = r.werte;
  g.fmin = v.fmin;
  g.fmax = v.fmax;
  g.fzf = v.fzf;

  // Input circuit: Cmin + Cte tunes to fmax, Cmax + Cte to fmin.
  const double k = v.fmax / v.fmin;
  r.k2 = k * k;
  g.cte = (v.cmax - r.k2 * v.cmin) / (r.k2 - 1);
  if (!std::isfinite(r.k2)) {
    // A band so wide that its ratio overflows: no gang and no padder serves it.
    r.pruefung = Pruefung::KeinGleichlauf;
    return r;
  }
  if (!(g.cte >= 0)) {
    r.pruefung = Pruefung::DrehkoReichtNicht;
    return r;
  }
  const double wmax = kZweiPi * v.fmax;
  g.le = 1 / (wmax * wmax * (v.cmin + g.cte));

  // Tracking points at the Chebyshev points of the band.
  g.f2 = (v.fmin + v.fmax) / 2;
  const double abstand = (v.fmax - v.fmin) * std::sqrt(3.0) / 4;
  g.f1 = g.f2 - abstand;
  g.f3 = g.f2 + abstand;

  // Gang setting Cv and (2π fo)² at each point; exact tracking there means
  // Lo · A = 1 / Cp + 1 / (Cv + Cto) at all three.
  double cv[3], a[3];
  const double fi[3] = {g.f1, g.f2, g.f3};
  for (int i = 0; i < 3; ++i) {
    const double we = kZweiPi * fi[i];
    cv[i] = 1 / (we * we * g.le) - g.cte;
    const double wo = kZweiPi * (fi[i] + v.fzf);
    a[i] = wo * wo;
  }
  const double verh = (a[0] - a[1]) * (cv[2] - cv[1]) / ((a[1] - a[2]) * (cv[1] - cv[0]));
  g.cto = (cv[2] - verh * cv[0]) / (verh - 1);
  g.lo = (1 / (cv[0] + g.cto) - 1 / (cv[1] + g.cto)) / (a[0] - a[1]);
  const double w = g.lo * a[0] - 1 / (cv[0] + g.cto);
  g.cp = 1 / w;
  // Arithmetic that overflowed or lost itself leaves no usable circuit either.
  if (!(g.cto >= 0) || !(g.lo > 0) || !(w > 0) || !endlich({g.le, g.cte, g.lo, g.cp, g.cto, g.f1, g.f3})) {
    r.pruefung = Pruefung::KeinGleichlauf;
    return r;
  }

  g.fehlerMax = 0;
  for (int j = 0; j < kPunkte; ++j) {
    g.fehler[size_t(j)] = g.fehlerBei(g.fe(j));
    g.fehlerMax = std::fmax(g.fehlerMax, std::fabs(g.fehler[size_t(j)]));
  }
  for (double d : g.fehler) {
    if (!std::isfinite(d)) {
      r.pruefung = Pruefung::KeinGleichlauf;
      return r;
    }
  }
  return r;
}

double ymax(double m) {
  if (!(m > 0) || !std::isfinite(m)) return 1;
  const double dekade = Module1::TenPow(std::floor(Module1::Log10(m)));
  for (double stufe : {1.0, 2.0, 5.0}) {
    if (stufe * dekade >= m) return stufe * dekade;
  }
  return 10 * dekade;
}

}  // namespace superhet
