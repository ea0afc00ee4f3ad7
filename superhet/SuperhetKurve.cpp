#include "superhet/SuperhetKurve.h"

#include <vector>

#include "shell/OutputTarget.h"
#include "shell/PictureBox.h"
#include "shell/core/NumberFormat.h"
#include "superhet/Superhet.h"

namespace {

// The user scale and the plot area inside it.
const QRectF kSkala(0, 0, 1000, 700);
constexpr double kLinks = 120, kRechts = 960, kOben = 60, kUnten = 600, kNull = 330, kHalbeHoehe = 270;

const QColor kGitter(0xa8, 0xa8, 0xa8);
const QColor kKurve(0x00, 0x3c, 0xc8);
const QColor kMarke(0xd0, 0x10, 0x10);

}  // namespace

// The picture is no smaller than 520 x 364: below that the labels of the
// axes would run into one another.
SuperhetKurve::SuperhetKurve(Superhet* quelle)
    : PlotWindow("SuperhetKurve", QStringLiteral("Superhet - Gleichlauffehler"), QSize(520, 364)), quelle_(quelle) {
  zeichnen();
}

void SuperhetKurve::zeichnen() {
  picture()->clear();
  if (!quelle_ || !quelle_->gueltig()) return;
  // The drawing keeps its own copy, so it redraws at any size without the form.
  const superhet::Gleichlauf g = quelle_->zustand();
  picture()->setSurface(kSkala, [g](OutputTarget& t) { zeichne(t, g); });
}

void SuperhetKurve::zeichne(OutputTarget& t, const superhet::Gleichlauf& g) {
  const double breite = g.fmax - g.fmin;
  const double ymax = superhet::ymax(g.fehlerMax / 1000);
  auto X = [&](double fe) { return kLinks + (kRechts - kLinks) * (fe - g.fmin) / breite; };
  auto Y = [&](double deltaKHz) { return kNull - kHalbeHoehe * deltaKHz / ymax; };
  auto gitterFrequenz = [&](int i) { return g.fmin + i * breite / 10; };
  const double stufen[5] = {ymax, ymax / 2, 0, -ymax / 2, -ymax};

  t.setPen(kGitter, 1, Qt::DotLine);
  for (int i = 0; i <= 10; ++i) t.line({X(gitterFrequenz(i)), kOben}, {X(gitterFrequenz(i)), kUnten});
  for (double d : stufen) t.line({kLinks, Y(d)}, {kRechts, Y(d)});
  t.setPen(Qt::black, 1);
  t.rect(QRectF(QPointF(kLinks, kOben), QPointF(kRechts, kUnten)));
  t.line({kLinks, Y(0)}, {kRechts, Y(0)});

  t.setFont(9);
  t.setTextColor(Qt::black);
  for (int i = 0; i <= 10; i += 2) {
    t.text({X(gitterFrequenz(i)), 610}, numfmt::format(gitterFrequenz(i) / 1000, QStringLiteral("####0")),
           Qt::AlignHCenter | Qt::AlignTop);
  }
  const double zeile = t.TextHeight();
  for (double d : stufen) {
    t.SetOutputY(Y(d) - zeile / 2);
    t.PrintRightAligned(numfmt::format(d, QStringLiteral("##0.0##")), 110);
  }
  t.setFont(10, true);
  t.SetOutputX(kLinks);
  t.SetOutputY(10);
  t.Print(QStringLiteral("Gleichlauffehler fo - fe - fZF [kHz]"));
  t.setFont(9);
  t.text({(kLinks + kRechts) / 2, 610 + zeile * 1.25}, QStringLiteral("Empfangsfrequenz fe [kHz]"),
         Qt::AlignHCenter | Qt::AlignTop);

  std::vector<QPointF> kurve;
  kurve.reserve(g.fehler.size());
  for (int j = 0; j < superhet::kPunkte; ++j) kurve.emplace_back(X(g.fe(j)), Y(g.fehler[size_t(j)] / 1000));
  t.setPen(kKurve, 2);
  t.polyline(kurve);

  t.setPen(kMarke, 2);
  t.setTextColor(kMarke);
  const double punkte[3] = {g.f1, g.f2, g.f3};
  for (int i = 0; i < 3; ++i) {
    t.circle({X(punkte[i]), Y(0)}, 8, Qt::white);
    t.text({X(punkte[i]), Y(0) - 40}, QStringLiteral("f%1").arg(i + 1), Qt::AlignHCenter | Qt::AlignVCenter);
  }
}
