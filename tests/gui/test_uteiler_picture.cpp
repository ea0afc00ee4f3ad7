// The voltage divider's schematic is drawn by the program at any size (its
// enlargement after a double click is checked with the other dividers).
#include <QImage>
#include <QtTest>

#include "shell/MDIForm1.h"
#include "shell/PictureBox.h"
#include "support/GuiFixture.h"

namespace {

// Share of pixels that are clearly not white.
double inked(const QImage& img) {
  int dark = 0;
  for (int y = 0; y < img.height(); ++y)
    for (int x = 0; x < img.width(); ++x)
      if (qGray(img.pixel(x, y)) < 128) ++dark;
  return double(dark) / (img.width() * img.height());
}

}  // namespace

class UTeilerPictureTest : public QObject {
  Q_OBJECT

 private slots:
  void schematicScalesWithItsBox() {
    guitest::installDialogs();
    MDIForm1* w = guitest::mainWindow();
    auto* image = guitest::child<PictureBox>(w->showShared("UTeiler"), "Image1");
    QVERIFY(image && !image->isEmpty());
    // The same drawing at two sizes covers about the same share of the
    // picture: the lines grow with it instead of staying hairlines.
    const QImage small = image->render(QSize(240, 262)).toImage();
    const QImage large = image->render(QSize(960, 1048)).toImage();
    const double a = inked(small), b = inked(large);
    QVERIFY2(a > 0.02, qPrintable(QString::number(a)));
    QVERIFY2(std::abs(a - b) < 0.35 * a, qPrintable(QString("%1 %2").arg(a).arg(b)));
  }
};

QTEST_MAIN(UTeilerPictureTest)
#include "test_uteiler_picture.moc"
