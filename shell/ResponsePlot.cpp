#include "shell/ResponsePlot.h"

#include <QBoxLayout>
#include <QPushButton>
#include <algorithm>
#include <cmath>

#include "shell/Addition.h"
#include "shell/CalcForm.h"
#include "shell/OutputTarget.h"
#include "shell/PictureBox.h"

namespace {

// The user scale and the horizontal extent of the panels inside it.
const QRectF kSkala(0, 0, 1000, 700);
constexpr double kLinks = 125, kRechts = 965, kRand = 8;

const QColor kGitter(0xc8, 0xc8, 0xc8);
const QColor kNulllinie(0x70, 0x70, 0x70);
const QColor kMarke(0x60, 0x60, 0x60);

QColor farbe(bode::Colour c) {
  switch (c) {
    case bode::Colour::Black: return QColor(0x20, 0x20, 0x20);
    case bode::Colour::Blue: return QColor(0x00, 0x3c, 0xc8);
    case bode::Colour::Green: return QColor(0x00, 0x8c, 0x30);
    case bode::Colour::Red: return QColor(0xd0, 0x28, 0x10);
  }
  return Qt::black;
}

bool dekade(double v) {
  const double l = std::log10(v);
  return std::fabs(l - std::round(l)) < 1e-9;
}

struct Achse {
  double from, to;
  double x(double f) const { return kLinks + (kRechts - kLinks) * bode::position(from, to, f); }
};

// One panel: grid, frame, value labels and the clipped curves.
void feld(OutputTarget& t, const bode::Panel& panel, const QRectF& r, const Achse& achse,
          const std::vector<bode::Tick>& frequenzen, const std::vector<double>& f) {
  auto Y = [&](double anteil) { return r.bottom() - anteil * r.height(); };
  for (const bode::Tick& tick : frequenzen) {
    t.setPen(kGitter, 1, dekade(tick.value) ? Qt::SolidLine : Qt::DotLine);
    t.line({achse.x(tick.value), r.top()}, {achse.x(tick.value), r.bottom()});
  }
  const std::vector<bode::Tick> werte = bode::valueTicks(panel);
  for (const bode::Tick& tick : werte) {
    const double y = Y(bode::position(panel, tick.value));
    const bool null = panel.scale != bode::Scale::Ohm && tick.value == 0;
    t.setPen(null ? kNulllinie : kGitter, 1, tick.label.isEmpty() ? Qt::DotLine : Qt::SolidLine);
    t.line({r.left(), y}, {r.right(), y});
  }
  t.setPen(Qt::black, 1);
  t.rect(r);

  t.setTextColor(Qt::black);
  for (const bode::Tick& tick : werte) {
    if (tick.label.isEmpty()) continue;
    t.text({r.left() - 6, Y(bode::position(panel, tick.value))}, tick.label, Qt::AlignRight | Qt::AlignVCenter);
  }

  for (const bode::Curve& c : panel.curves) {
    std::vector<QPointF> linie;
    linie.reserve(f.size());
    for (size_t i = 0; i < f.size() && i < c.y.size(); ++i) linie.emplace_back(achse.x(f[i]), bode::position(panel, c.y[i]));
    t.setPen(farbe(c.colour), c.colour == bode::Colour::Black ? 2.5 : 2);
    for (std::vector<QPointF>& stueck : bode::clip(linie, 0, 1)) {
      for (QPointF& p : stueck) p.setY(Y(p.y()));
      t.polyline(stueck);
    }
  }
}

}  // namespace

// The least sizes at which labels and panels still stand apart.
ResponsePlot::ResponsePlot(const QString& name, const QString& title, bool phase)
    : PlotWindow(name, title, phase ? QSize(600, 420) : QSize(600, 340)) {}

void ResponsePlot::setPlot(const bode::Plot& plot) {
  picture()->clear();
  if (plot.empty()) return;
  // The drawing keeps its own copy, so it redraws at any size without the form.
  picture()->setSurface(kSkala, [plot](OutputTarget& t) { zeichne(t, plot); });
}

void ResponsePlot::zeichne(OutputTarget& t, const bode::Plot& plot) {
  if (plot.empty()) return;
  const Achse achse{plot.f.front(), plot.f.back()};
  t.setFont(9);
  const double zeile = t.TextHeight();

  // Marked frequencies within the axis; a label that would run into the one
  // before it goes one row up.
  struct Beschriftung {
    double x;
    QString text;
    int reihe;
    QRectF platz;
  };
  std::vector<Beschriftung> marken;
  int reihen = 0;
  for (const bode::Marker& m : plot.markers) {
    if (!(m.f >= achse.from && m.f <= achse.to)) continue;
    const double x = achse.x(m.f), w = t.TextWidth(m.label);
    const double links = std::clamp(x - w / 2, kRand, kSkala.right() - kRand - w);
    Beschriftung b{x, m.label, 0, QRectF(links - 4, 0, w + 8, 1)};
    while (std::any_of(marken.begin(), marken.end(), [&](const Beschriftung& o) {
      return o.reihe == b.reihe && o.platz.intersects(b.platz);
    }))
      ++b.reihe;
    reihen = std::max(reihen, b.reihe + 1);
    marken.push_back(b);
  }

  // From the top: panel title and legend, the marker labels, the panels;
  // at the bottom the frequency labels and the axis caption.
  const double titel = kRand;
  const double oben = titel + zeile * 1.5 + reihen * zeile * 1.05 + 4;
  const double unten = kSkala.bottom() - kRand - zeile * 2.7;
  QRectF erstes(QPointF(kLinks, oben), QPointF(kRechts, unten));
  QRectF zweites;
  // Between the panels the phase title, clear of the value labels that
  // stand out half a line above and below the panels' edges.
  const double luecke = zeile * 2 + 6;
  if (plot.lower) {
    const double hoehe = (unten - oben - luecke) * 0.58;
    erstes.setBottom(oben + hoehe);
    zweites = QRectF(QPointF(kLinks, erstes.bottom() + luecke), QPointF(kRechts, unten));
  }

  t.setTextColor(Qt::black);
  t.setFont(9, true);
  t.text({kRand, titel}, plot.upper.title, Qt::AlignLeft | Qt::AlignTop);
  t.setFont(9);
  // Legend: a piece of each curve and its name, flush right.
  const double stueck = 28, abstand = 6, zwischen = 20;
  double breite = 0;
  for (const bode::Curve& c : plot.upper.curves) breite += stueck + abstand + t.TextWidth(c.name) + zwischen;
  double x = kRechts - breite + zwischen;
  const double mitte = titel + zeile / 2;
  for (const bode::Curve& c : plot.upper.curves) {
    t.setPen(farbe(c.colour), c.colour == bode::Colour::Black ? 2.5 : 2);
    t.line({x, mitte}, {x + stueck, mitte});
    x += stueck + abstand;
    t.text({x, mitte}, c.name, Qt::AlignLeft | Qt::AlignVCenter);
    x += t.TextWidth(c.name) + zwischen;
  }

  t.setTextColor(kMarke);
  for (const Beschriftung& b : marken)
    t.text({b.platz.center().x(), oben - 3 - b.reihe * zeile * 1.05}, b.text, Qt::AlignHCenter | Qt::AlignBottom);

  const std::vector<bode::Tick> frequenzen = bode::frequencyTicks(achse.from, achse.to);
  feld(t, plot.upper, erstes, achse, frequenzen, plot.f);
  if (plot.lower) {
    t.setFont(9, true);
    t.text({kRand, erstes.bottom() + zeile / 2 + 3}, plot.lower->title, Qt::AlignLeft | Qt::AlignTop);
    t.setFont(9);
    feld(t, *plot.lower, zweites, achse, frequenzen, plot.f);
  }
  const QRectF& letztes = plot.lower ? zweites : erstes;

  t.setPen(kMarke, 1.5, Qt::DashLine);
  for (const Beschriftung& b : marken) {
    t.line({b.x, erstes.top()}, {b.x, erstes.bottom()});
    if (plot.lower) t.line({b.x, zweites.top()}, {b.x, zweites.bottom()});
  }

  // The frequency labels clear the lowest value label beside the corner.
  const double unterschrift = letztes.bottom() + zeile / 2 + 1;
  t.setTextColor(Qt::black);
  for (const bode::Tick& tick : frequenzen) {
    if (tick.label.isEmpty()) continue;
    // Labels at the ends stay within the picture.
    const double x = achse.x(tick.value), w = t.TextWidth(tick.label);
    if (x + w / 2 > kSkala.right() - 2)
      t.text({kSkala.right() - 2, unterschrift}, tick.label, Qt::AlignRight | Qt::AlignTop);
    else
      t.text({x, unterschrift}, tick.label, Qt::AlignHCenter | Qt::AlignTop);
  }
  t.text({(kLinks + kRechts) / 2, unterschrift + zeile * 1.1}, QStringLiteral("Frequenz f"),
         Qt::AlignHCenter | Qt::AlignTop);
}

FrequencyResponse::FrequencyResponse(CalcForm* form, QBoxLayout* column, const QString& caption)
    : QObject(form), form_(form) {
  button_ = new QPushButton(caption, form);
  button_->setObjectName("cmdFrequenzgang");
  button_->setAutoDefault(false);
  button_->setToolTip(QStringLiteral("Frequenzgang anzeigen"));
  button_->setEnabled(false);
  addition::mark(button_);
  column->insertWidget(std::max(0, column->count() - 1), button_);
  connect(button_, &QPushButton::clicked, this, [this] { open(); });
  // Closing the form takes its plot along.
  connect(form, &CalcForm::unloaded, this, [this] {
    if (window_) window_->schliessen();
  });
}

QString FrequencyResponse::title() const { return QStringLiteral("Frequenzgang - ") + form_->caption().trimmed(); }

void FrequencyResponse::setPlot(bode::Plot plot) {
  if (plot.empty()) {
    reset();
    return;
  }
  plot_ = std::move(plot);
  button_->setEnabled(true);
  if (window_) {
    window_->setWindowTitle(title());
    window_->setPlot(plot_);
  }
}

void FrequencyResponse::reset() {
  plot_ = bode::Plot();
  button_->setEnabled(false);
  if (window_) window_->schliessen();
}

void FrequencyResponse::open() {
  if (plot_.empty()) return;
  if (!window_) {
    window_ = new ResponsePlot(form_->objectName() + QStringLiteral("_Frequenzgang"), title(), bool(plot_.lower));
    window_->setPlot(plot_);
  }
  window_->zeigenUnter(form_);
}
