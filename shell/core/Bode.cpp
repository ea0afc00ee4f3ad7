#include "shell/core/Bode.h"

#include <algorithm>
#include <cmath>

#include "shell/core/Ladder.h"
#include "shell/core/NumberFormat.h"

namespace bode {
namespace {

constexpr double kTwoPi = 6.28318530717958;
// Points of a sweep over the plot's width: smooth at any window size.
constexpr int kPoints = 481;
// Corner and resonance frequencies the simple circuits are plotted for; the
// axis then stays within labels that read well.
constexpr double kLowest = 0.01, kHighest = 1e10;
// Positions far outside a panel for 0 and infinity on a logarithmic scale.
constexpr double kFarOutside = 1e6;

bool usable(double v) { return std::isfinite(v) && v > 0; }

// A number rounded to four significant digits, without trailing zeros.
QString significant(double v) {
  if (v == 0) return QStringLiteral("0");
  const int digits = int(std::floor(std::log10(std::fabs(v)) + 1e-9));
  const int decimals = std::clamp(3 - digits, 0, 8);
  return numfmt::format(v, QStringLiteral("0.") + QString(decimals, QLatin1Char('#')));
}

// Value with the largest prefix that keeps it at 1 or more.
QString withUnit(double v, const QString& unit) {
  static const struct {
    double factor;
    const char* prefix;
  } prefixes[] = {{1e9, "G"}, {1e6, "M"}, {1e3, "k"}};
  for (const auto& p : prefixes) {
    // Rounded first, so 999,99 kHz becomes 1 MHz and not "1000 kHz".
    if (std::fabs(v) >= p.factor * (1 - 5e-5)) return significant(v / p.factor) + " " + p.prefix + unit;
  }
  return significant(v) + " " + unit;
}

// 1..9 times each power of ten from `from` to `to`.
template <class Label>
std::vector<Tick> logTicks(double from, double to, Label label) {
  std::vector<Tick> ticks;
  if (!usable(from) || !usable(to) || to <= from) return ticks;
  const int first = int(std::floor(std::log10(from) + 1e-9));
  const int last = int(std::floor(std::log10(to) + 1e-9));
  for (int n = first; n <= last; ++n) {
    const double decade = std::pow(10.0, n);
    for (int m = 1; m <= 9; ++m) {
      const double v = m * decade;
      if (v < from * (1 - 1e-9) || v > to * (1 + 1e-9)) continue;
      ticks.push_back({v, label(m, v)});
    }
  }
  return ticks;
}

Panel levelPanel(const QString& title) { return {title, Scale::Decibel, 0, 0, {}}; }
Panel phasePanel() { return {QStringLiteral("Phase [°]"), Scale::Degrees, 0, 0, {}}; }

// Low-pass and high-pass of one corner frequency, level and phase.
Plot filterPlot(const std::vector<ladder::Part>& lowPass, const std::vector<ladder::Part>& highPass, double fg) {
  Plot plot;
  if (!(fg >= kLowest && fg <= kHighest)) return plot;
  const auto [from, to] = decadesAround(fg);
  plot.f = sweep(from, to, kPoints, {fg});
  plot.upper = levelPanel(QStringLiteral("Pegel Ua / Ue [dB]"));
  plot.lower = phasePanel();
  const struct {
    const char* name;
    Colour colour;
    const std::vector<ladder::Part>& parts;
  } filters[] = {{"Tiefpass", Colour::Blue, lowPass}, {"Hochpass", Colour::Red, highPass}};
  for (const auto& filter : filters) {
    Curve level{QString::fromLatin1(filter.name), filter.colour, {}};
    Curve phase = level;
    for (double f : plot.f) {
      const ladder::Complex h = ladder::transfer(filter.parts, 0, f);
      level.y.push_back(ladder::decibels(h));
      phase.y.push_back(ladder::degrees(h));
    }
    plot.upper.curves.push_back(std::move(level));
    plot.lower->curves.push_back(std::move(phase));
  }
  fitRange(plot.upper);
  fitRange(*plot.lower);
  plot.markers.push_back({fg, QStringLiteral("fg = ") + frequencyText(fg)});
  return plot;
}

}  // namespace

std::vector<Tick> frequencyTicks(double from, double to) {
  const bool narrow = usable(from) && usable(to) && std::log10(to / from) > 3 + 1e-9;
  return logTicks(from, to, [narrow](int m, double v) {
    if (m != 1 && m != 2 && m != 5) return QString();
    if (narrow && m != 1) return QString::number(m);
    return frequencyText(v);
  });
}

std::vector<Tick> valueTicks(const Panel& panel) {
  std::vector<Tick> ticks;
  if (!(panel.hi > panel.lo)) return ticks;
  switch (panel.scale) {
    case Scale::Decibel:
    case Scale::Degrees: {
      const double step = panel.scale == Scale::Decibel ? 10 : 45;
      const QString unit = panel.scale == Scale::Decibel ? QString() : QStringLiteral("°");
      for (double v = std::ceil(panel.lo / step - 1e-9) * step; v <= panel.hi + 1e-9; v += step)
        ticks.push_back({v, numfmt::format(v, QStringLiteral("0")) + unit});
      break;
    }
    case Scale::Ohm:
      ticks = logTicks(panel.lo, panel.hi,
                       [](int m, double v) { return m == 1 ? withUnit(v, QStringLiteral("Ohm")) : QString(); });
      break;
  }
  return ticks;
}

QString frequencyText(double hz) { return withUnit(hz, QStringLiteral("Hz")); }

double position(const Panel& panel, double value) {
  if (panel.scale != Scale::Ohm) return (value - panel.lo) / (panel.hi - panel.lo);
  if (std::isnan(value)) return value;
  if (value <= 0) return -kFarOutside;
  if (std::isinf(value)) return kFarOutside;
  return std::log10(value / panel.lo) / std::log10(panel.hi / panel.lo);
}

double position(double from, double to, double f) { return std::log10(f / from) / std::log10(to / from); }

std::vector<std::vector<QPointF>> clip(const std::vector<QPointF>& line, double lo, double hi) {
  std::vector<std::vector<QPointF>> pieces;
  std::vector<QPointF> piece;
  auto finish = [&] {
    if (piece.size() >= 2) pieces.push_back(piece);
    piece.clear();
  };
  auto finite = [](QPointF p) { return std::isfinite(p.x()) && std::isfinite(p.y()); };
  for (size_t i = 1; i < line.size(); ++i) {
    const QPointF a = line[i - 1], b = line[i];
    if (!finite(a) || !finite(b)) {
      finish();
      continue;
    }
    // The part of the segment a + t (b - a), 0 <= t <= 1, inside the band.
    double t0 = 0, t1 = 1;
    const double dy = b.y() - a.y();
    if (dy == 0) {
      if (a.y() < lo || a.y() > hi) t0 = 2;
    } else {
      const double ta = (lo - a.y()) / dy, tb = (hi - a.y()) / dy;
      t0 = std::max(0.0, std::min(ta, tb));
      t1 = std::min(1.0, std::max(ta, tb));
    }
    if (t0 > t1) {
      finish();
      continue;
    }
    // Ends on the band's edge are put exactly on it.
    auto at = [&](double t) {
      QPointF p = a + t * (b - a);
      p.setY(std::clamp(p.y(), lo, hi));
      return p;
    };
    if (piece.empty() || t0 > 0) {
      finish();
      piece.push_back(at(t0));
    }
    piece.push_back(at(t1));
    if (t1 < 1) finish();
  }
  finish();
  return pieces;
}

std::vector<double> sweep(double from, double to, int points, const std::vector<double>& extra) {
  std::vector<double> f = ladder::logSweep(from, to, points);
  if (f.empty()) return f;
  for (double e : extra) {
    if (!(e > from && e < to)) continue;
    auto it = std::lower_bound(f.begin(), f.end(), e);
    // A frequency already in the sweep (to about a millionth) stays once.
    if (std::fabs(*it / e - 1) < 1e-6 || std::fabs(*(it - 1) / e - 1) < 1e-6) continue;
    f.insert(it, e);
  }
  return f;
}

std::pair<double, double> decadesAround(double f) {
  const double n = std::round(std::log10(f));
  return {std::pow(10.0, n - 2), std::pow(10.0, n + 2)};
}

void fitRange(Panel& panel) {
  double lo = INFINITY, hi = -INFINITY;
  double endLo = INFINITY, endHi = -INFINITY;  // values at the ends of the sweep
  for (const Curve& c : panel.curves) {
    for (double v : c.y) {
      if (!std::isfinite(v) || (panel.scale == Scale::Ohm && v <= 0)) continue;
      lo = std::min(lo, v);
      hi = std::max(hi, v);
    }
    for (double v : {c.y.empty() ? NAN : c.y.front(), c.y.empty() ? NAN : c.y.back()}) {
      if (!usable(v)) continue;
      endLo = std::min(endLo, v);
      endHi = std::max(endHi, v);
    }
  }
  switch (panel.scale) {
    case Scale::Decibel: {
      if (!(lo <= hi)) lo = hi = 0;
      panel.hi = std::max(10.0, std::ceil((hi + 0.5) / 10) * 10);
      panel.lo = std::clamp(std::floor(lo / 10) * 10, panel.hi - 70, panel.hi - 30);
      break;
    }
    case Scale::Degrees:
      if (!(lo <= hi)) lo = hi = 0;
      panel.lo = std::max(-180.0, std::min(-90.0, std::floor(lo / 45 + 1e-9) * 45));
      panel.hi = std::min(180.0, std::max(90.0, std::ceil(hi / 45 - 1e-9) * 45));
      break;
    case Scale::Ohm: {
      if (!(lo <= hi)) lo = hi = 1;
      if (!(endLo <= endHi)) endLo = lo, endHi = hi;
      // A curve that just touches a decade gets the next one as room.
      double a = std::floor(std::log10(lo) - 0.05), b = std::ceil(std::log10(hi) + 0.05);
      a = std::max(a, std::floor(std::log10(endLo) + 1e-9) - 3);
      b = std::min(b, std::ceil(std::log10(endHi) - 1e-9) + 3);
      if (b - a < 2) {
        a = std::floor((a + b) / 2) - 1;
        b = a + 2;
      }
      panel.lo = std::pow(10.0, a);
      panel.hi = std::pow(10.0, b);
      break;
    }
  }
}

Plot rcFilter(double r, double c) {
  if (!usable(r) || !usable(c)) return {};
  using ladder::Kind;
  using ladder::Place;
  return filterPlot({{Kind::R, Place::Series, r}, {Kind::C, Place::Shunt, c}},
                    {{Kind::C, Place::Series, c}, {Kind::R, Place::Shunt, r}}, 1.0 / (kTwoPi * r * c));
}

Plot rlFilter(double r, double l) {
  if (!usable(r) || !usable(l)) return {};
  using ladder::Kind;
  using ladder::Place;
  return filterPlot({{Kind::L, Place::Series, l}, {Kind::R, Place::Shunt, r}},
                    {{Kind::R, Place::Series, r}, {Kind::L, Place::Shunt, l}}, r / (kTwoPi * l));
}

Plot rlcImpedance(double r, double l, double c, bool parallel) {
  Plot plot;
  if (!(std::isfinite(r) && r >= 0) || !usable(l) || !usable(c)) return plot;
  const double f0 = 1.0 / (kTwoPi * std::sqrt(l * c));
  if (!(f0 >= kLowest && f0 <= kHighest)) return plot;
  const auto [from, to] = decadesAround(f0);
  plot.f = sweep(from, to, kPoints, {f0});
  plot.upper = {QStringLiteral("Impedanz |Z| [Ohm]"), Scale::Ohm, 0, 0, {}};
  plot.lower = phasePanel();
  const QString name = parallel ? QStringLiteral("Parallelschwingkreis") : QStringLiteral("Reihenschwingkreis");
  Curve magnitude{name, Colour::Blue, {}};
  Curve phase = magnitude;
  for (double f : plot.f) {
    const ladder::Complex z = parallel ? ladder::parallelRLC(r, l, c, f) : ladder::seriesRLC(r, l, c, f);
    magnitude.y.push_back(std::abs(z));
    phase.y.push_back(ladder::degrees(z));
  }
  plot.upper.curves.push_back(std::move(magnitude));
  plot.lower->curves.push_back(std::move(phase));
  fitRange(plot.upper);
  fitRange(*plot.lower);
  plot.markers.push_back({f0, QStringLiteral("f0 = ") + frequencyText(f0)});
  return plot;
}

}  // namespace bode
