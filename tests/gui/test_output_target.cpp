// The drawing surface: user scale to device, right alignment, recorded texts.
#include <QImage>
#include <QtTest>

#include "shell/OutputTarget.h"

class OutputTargetTest : public QObject {
  Q_OBJECT

 private slots:
  void userScaleMapsOntoTheDevice() {
    QImage img(500, 350, QImage::Format_ARGB32_Premultiplied);
    QPainter p(&img);
    OutputTarget stretch(p, QRectF(0, 0, 500, 350), QRectF(0, 0, 1000, 700));
    QCOMPARE(stretch.map(QPointF(1000, 700)), QPointF(500, 350));
    // Keeping proportions centres the drawing in the wider device.
    OutputTarget keep(p, QRectF(0, 0, 500, 350), QRectF(0, 0, 200, 200), OutputTarget::Fit::Keep);
    QCOMPARE(keep.map(QPointF(0, 0)), QPointF(75, 0));
    QCOMPARE(keep.map(QPointF(200, 200)), QPointF(425, 350));
  }

  void rightAlignedTextEndsAtX() {
    QImage img(400, 300, QImage::Format_ARGB32_Premultiplied);
    QPainter p(&img);
    OutputTarget t(p, QRectF(0, 0, 400, 300), QRectF(0, 0, 200, 150));
    const double w = t.TextWidth("12,5");
    QVERIFY(w > 0);
    t.SetOutputY(10);
    t.PrintRightAligned("12,5", 120);
    // Print moves to the next line, back to the line start.
    QCOMPARE(t.CurrentX(), 0.0);
    QVERIFY(qAbs(t.CurrentY() - (10 + t.TextHeight())) < 1e-9);
    t.text(QPointF(50, 50), "Mitte", Qt::AlignHCenter | Qt::AlignVCenter);
    QCOMPARE(t.texts(), QStringList({"12,5", "Mitte"}));
  }
};

QTEST_MAIN(OutputTargetTest)
#include "test_output_target.moc"
