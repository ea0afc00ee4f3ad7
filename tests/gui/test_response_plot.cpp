// Frequency-response plots: what the window shows for RC, RLC and a
// crossover, curves kept inside their panels, and the button that opens the
// window from a form.
#include <QImage>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QtTest>

#include "crossover/core/CrossoverResponse.h"
#include "shell/CalcForm.h"
#include "shell/MDIForm1.h"
#include "shell/OutputTarget.h"
#include "shell/PictureBox.h"
#include "shell/ResponsePlot.h"
#include "support/GuiFixture.h"

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
    guitest::installDialogs();
  }

  void filtersAndResonantCircuitsShowTheirTexts() {
    // RC, 1 kOhm and 100 nF: fg = 1,592 kHz, four decades around 1 kHz.
    const QStringList rc = draw(bode::rcFilter(1e3, 100e-9));
    for (const char* s : {"Pegel Ua / Ue [dB]", "Tiefpass", "Hochpass", "fg = 1,592 kHz", "Phase [°]", "-90°", "90°",
                          "0", "-40", "10 Hz", "1 kHz", "100 kHz", "Frequenz f"})
      QVERIFY2(rc.contains(QString::fromUtf8(s)), s);
    QVERIFY(!rc.contains("5 kHz"));  // over four decades only the digit
    // Series RLC, 100 Ohm, 10 mH, 1 µF: f0 = 1,592 kHz; |Z| falls to R there.
    const QStringList series = draw(bode::rlcImpedance(100, 10e-3, 1e-6, false));
    for (const char* s : {"Impedanz |Z| [Ohm]", "Reihenschwingkreis", "f0 = 1,592 kHz", "100 Ohm", "1 kOhm",
                          "Phase [°]"})
      QVERIFY2(series.contains(QString::fromUtf8(s)), s);
    const QStringList parallel = draw(bode::rlcImpedance(0, 10e-3, 1e-6, true));
    QVERIFY(parallel.contains("Parallelschwingkreis"));
    QVERIFY(parallel.contains("f0 = 1,592 kHz"));
    // Nothing that can be plotted: no drawing at all.
    QVERIFY(draw(bode::rcFilter(0, 1e-6)).isEmpty());
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

  void buttonOpensFollowsAndClosesWithTheForm() {
    MDIForm1* main = guitest::mainWindow();
    auto* form = qobject_cast<CalcForm*>(main->showShared("RL"));
    QVERIFY(form);
    auto* button = guitest::child<QPushButton>(form, "cmdFrequenzgang");
    QVERIFY(button && !button->isEnabled());
    guitest::child<QLineEdit>(form, "Text2")->setText("1");
    guitest::child<QLineEdit>(form, "Text3")->setText("10");
    QTest::mouseClick(guitest::child<QPushButton>(form, "Command1"), Qt::LeftButton);
    QVERIFY(button->isEnabled());
    QTest::mouseClick(button, Qt::LeftButton);
    auto* plot = qobject_cast<ResponsePlot*>(main->activeForm());
    QVERIFY(plot);
    QCOMPARE(plot->objectName(), QString("RL_Frequenzgang"));
    QVERIFY(plot->picture()->texts().contains("fg = 15,92 kHz"));
    // The next press redraws the open window.
    main->activate(form);
    guitest::child<QLineEdit>(form, "Text1")->clear();
    guitest::child<QLineEdit>(form, "Text2")->setText("2");
    QTest::mouseClick(guitest::child<QPushButton>(form, "Command1"), Qt::LeftButton);
    QVERIFY(plot->picture()->texts().contains("fg = 31,83 kHz"));
    // Closing the form takes the plot along.
    QPointer<ResponsePlot> watch(plot);
    form->closeForm();
    QTRY_VERIFY(!watch);
  }
};

QTEST_MAIN(ResponsePlotTest)
#include "test_response_plot.moc"
