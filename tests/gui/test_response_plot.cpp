// Frequency-response plots: curves are cut where they leave their panel, so
// nothing is drawn over the axes (the windows themselves are checked in the
// script tests).
#include <QImage>
#include <QtTest>

#include "crossover/core/CrossoverResponse.h"
#include "shell/OutputTarget.h"
#include "shell/ResponsePlot.h"

namespace {

// Draws the plot at the size of its user scale, so pixels are user units.
QStringList draw(const bode::Plot& plot, QImage* image = nullptr) {
  QImage img(1000, 700, QImage::Format_ARGB32_Premultiplied);
  img.fill(Qt::white);
  QPainter p(&img);
  OutputTarget t(p, QRectF(0, 0, 1000, 700), QRectF(0, 0, 1000, 700));
  ResponsePlot::zeichne(t, plot);
  p.end();
  if (image) *image = img;
  return t.texts();
}

}  // namespace

class ResponsePlotTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  }

  void curvesStayInsideTheirPanel() {
    // The 12 dB crossover's sum has a notch far below -40 dB and each way
    // falls below it too; nothing of the curves may run into the labels.
    lpbox::NetworkValues v;
    v.rTT = v.rHT = 4;
    v.part[2] = v.part[10] = lpbox::C12(4, 2725);
    v.part[4] = v.part[12] = lpbox::L12(4, 2725);
    QImage img;
    const QStringList texts = draw(lpbox::responsePlot(lpbox::Mode::TwoWay12, v, 2725), &img);
    QVERIFY(texts.contains("fT = 2,725 kHz"));
    QVERIFY(texts.contains("Summe"));
    auto isCurve = [](QRgb c) {
      return (qBlue(c) > 150 && qRed(c) < 60) || (qRed(c) > 150 && qGreen(c) < 80 && qBlue(c) < 80);
    };
    // The lowest grid line is -40 dB: find the frame's bottom edge below it.
    int bottom = 0;
    for (int y = 699; y > 0 && !bottom; --y)
      if (qGray(img.pixel(500, y)) < 40) bottom = y;
    QVERIFY(bottom > 500);
    int inside = 0;
    for (int y = 0; y < 700; ++y) {
      for (int x = 0; x < 1000; ++x) {
        if (!isCurve(img.pixel(x, y))) continue;
        if (y > bottom + 2) QFAIL(qPrintable(QString("curve below the panel at %1, %2").arg(x).arg(y)));
        ++inside;
      }
    }
    QVERIFY(inside > 500);
  }
};

QTEST_MAIN(ResponsePlotTest)
#include "test_response_plot.moc"
