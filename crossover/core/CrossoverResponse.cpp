#include "crossover/core/CrossoverResponse.h"

namespace lpbox {
namespace {

struct PartRef {
  int field;
  ladder::Kind kind;
  ladder::Place place;
};

Way makeWay(const QString& name, std::initializer_list<PartRef> refs, double load, const NetworkValues& v, bool& ok) {
  Way w{name, {}, load};
  if (!(load > 0)) ok = false;
  for (const PartRef& r : refs) {
    const double value = v.part[size_t(r.field)];
    if (!(value > 0)) ok = false;
    w.parts.push_back({r.kind, r.place, value});
  }
  return w;
}

}  // namespace

std::vector<Way> ways(Mode mode, const NetworkValues& v) {
  const auto S = ladder::Place::Series;
  const auto P = ladder::Place::Shunt;
  const auto L = ladder::Kind::L;
  const auto C = ladder::Kind::C;
  std::vector<Way> out;
  auto add = [&](const QString& name, std::initializer_list<PartRef> refs, double load) {
    bool ok = true;
    Way w = makeWay(name, refs, load, v, ok);
    if (ok) out.push_back(std::move(w));
  };
  switch (mode) {
    case Mode::TwoWay6:
      add("Tiefton", {{4, L, S}}, v.rTT);
      add("Hochton", {{2, C, S}}, v.rHT);
      break;
    case Mode::TwoWay12:
      add("Tiefton", {{4, L, S}, {2, C, P}}, v.rTT);
      add("Hochton", {{10, C, S}, {12, L, P}}, v.rHT);
      break;
    case Mode::TwoWay18:
      add("Tiefton", {{4, L, S}, {2, C, P}, {12, L, S}}, v.rTT);
      add("Hochton", {{10, C, S}, {5, L, P}, {3, C, S}}, v.rHT);
      break;
    case Mode::ThreeWay12:
      add("Tiefton", {{4, L, S}, {2, C, P}}, v.rTT);
      add("Mittelton", {{10, C, S}, {12, L, P}, {5, L, S}, {3, C, P}}, v.rMT);
      add("Hochton", {{11, C, S}, {13, L, P}}, v.rHT);
      break;
  }
  return out;
}

std::vector<ladder::Complex> wayTransfers(const std::vector<Way>& ways, double f) {
  std::vector<ladder::Complex> h;
  for (const Way& w : ways) h.push_back(ladder::transfer(w.parts, w.load, f));
  return h;
}

ladder::Complex sumTransfer(const std::vector<Way>& ways, double f) {
  ladder::Complex s = 0;
  for (const ladder::Complex& h : wayTransfers(ways, f)) s += h;
  return s;
}

bode::Plot responsePlot(Mode mode, const NetworkValues& v, double fo, double fu) {
  bode::Plot plot;
  const std::vector<Way> all = ways(mode, v);
  if (all.empty()) return plot;
  const bool threeWay = mode == Mode::ThreeWay12;
  if (threeWay && fu > 0) plot.markers.push_back({fu, QStringLiteral("fu = ") + bode::frequencyText(fu)});
  if (fo > 0)
    plot.markers.push_back({fo, (threeWay ? QStringLiteral("fo = ") : QStringLiteral("fT = ")) + bode::frequencyText(fo)});
  std::vector<double> marked;
  for (const bode::Marker& m : plot.markers) marked.push_back(m.f);
  plot.f = bode::sweep(20, 20000, 481, marked);
  plot.upper = {QStringLiteral("Pegel am Lautsprecher [dB]"), bode::Scale::Decibel, -40, 10, {}};
  auto colour = [](const QString& name) {
    if (name == QLatin1String("Tiefton")) return bode::Colour::Blue;
    if (name == QLatin1String("Mittelton")) return bode::Colour::Green;
    return bode::Colour::Red;
  };
  for (const Way& w : all) plot.upper.curves.push_back({w.name, colour(w.name), {}});
  bode::Curve sum{QStringLiteral("Summe"), bode::Colour::Black, {}};
  for (double f : plot.f) {
    const std::vector<ladder::Complex> h = wayTransfers(all, f);
    ladder::Complex total = 0;
    for (size_t i = 0; i < h.size(); ++i) {
      plot.upper.curves[i].y.push_back(ladder::decibels(h[i]));
      total += h[i];
    }
    sum.y.push_back(ladder::decibels(total));
  }
  plot.upper.curves.push_back(std::move(sum));
  return plot;
}

}  // namespace lpbox
