// The voltage divider's schematic: drawn by the program at any size, and
// shown enlarged behind the child windows after a double click.
#include <QImage>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QtTest>

#include "shell/MDIForm1.h"
#include "shell/PictureBox.h"
#include "support/GuiFixture.h"

namespace {

// Share of pixels in a rectangle that are clearly not white.
double inked(const QImage& img, const QRect& r) {
  int dark = 0;
  for (int y = r.top(); y <= r.bottom(); ++y)
    for (int x = r.left(); x <= r.right(); ++x)
      if (qGray(img.pixel(x, y)) < 128) ++dark;
  return double(dark) / (r.width() * r.height());
}

}  // namespace

class UTeilerPictureTest : public QObject {
  Q_OBJECT

 private slots:
  void schematicScalesWithItsBox() {
    guitest::installDialogs();
    MDIForm1* w = guitest::mainWindow();
    QWidget* form = w->showShared("UTeiler");
    QVERIFY(form);
    auto* image = guitest::child<PictureBox>(form, "Image1");
    QVERIFY(image);
    QVERIFY(!image->isEmpty());
    // The same drawing at two sizes covers about the same share of the
    // picture: the lines grow with it instead of staying hairlines.
    const QImage small = image->render(QSize(240, 262)).toImage();
    const QImage large = image->render(QSize(960, 1048)).toImage();
    const double a = inked(small, small.rect()), b = inked(large, large.rect());
    QVERIFY2(a > 0.02, qPrintable(QString::number(a)));
    QVERIFY2(std::abs(a - b) < 0.35 * a, qPrintable(QString("%1 %2").arg(a).arg(b)));
  }

  void doubleClickShowsItBehindTheWindows() {
    MDIForm1* w = guitest::mainWindow();
    QWidget* form = w->showShared("UTeiler");
    auto* image = guitest::child<PictureBox>(form, "Image1");
    w->setBackgroundPicture(nullptr);
    QCOMPARE(w->mdiArea()->background().style(), Qt::SolidPattern);

    QTest::mouseDClick(image, Qt::LeftButton);
    const QBrush bg = w->mdiArea()->background();
    QCOMPARE(bg.style(), Qt::TexturePattern);
    const QImage shown = bg.textureImage().isNull() ? bg.texture().toImage() : bg.textureImage();
    QCOMPARE(shown.size(), w->mdiArea()->viewport()->size());
    QVERIFY(inked(shown, shown.rect()) > 0.01);

    // The enlarged picture stays after the form is closed.
    form->close();
    QCOMPARE(w->mdiArea()->background().style(), Qt::TexturePattern);
  }
};

QTEST_MAIN(UTeilerPictureTest)
#include "test_uteiler_picture.moc"
