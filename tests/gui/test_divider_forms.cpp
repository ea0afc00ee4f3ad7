// The divider forms: their schematic enlarged behind the child windows after
// a double click, and the printout of the capacitive and inductive dividers
// taken with all five buttons hidden and the identification line shown.
#include <QImage>
#include <QLabel>
#include <QMdiArea>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include "shell/MDIForm1.h"
#include "shell/PictureBox.h"
#include "shell/PrintService.h"
#include "support/GuiFixture.h"

class DividerFormsTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { guitest::installDialogs(); }

  void doubleClickEnlargesTheSchematic_data() {
    printingHidesAllFiveButtons_data();
    QTest::newRow("voltage") << "UTeiler";
  }

  void doubleClickEnlargesTheSchematic() {
    QFETCH(QString, form);
    MDIForm1* w = guitest::mainWindow();
    QWidget* f = w->showShared(form);
    QVERIFY(f);
    auto* image = guitest::child<PictureBox>(f, "Image1");
    QVERIFY(image && !image->isEmpty());
    w->setBackgroundPicture(nullptr);
    QCOMPARE(w->mdiArea()->background().style(), Qt::SolidPattern);

    QTest::mouseDClick(image, Qt::LeftButton);
    const QBrush bg = w->mdiArea()->background();
    QCOMPARE(bg.style(), Qt::TexturePattern);
    const QImage shown = (bg.textureImage().isNull() ? bg.texture().toImage() : bg.textureImage())
                             .convertToFormat(QImage::Format_RGB32);
    // It is this form's own schematic, drawn at the size of the background.
    const QImage expected = image->render(w->mdiArea()->viewport()->size()).toImage().convertToFormat(QImage::Format_RGB32);
    QCOMPARE(shown, expected);
    // The enlarged picture stays after the form is closed.
    f->close();
    QCOMPARE(w->mdiArea()->background().style(), Qt::TexturePattern);
  }

  void printingHidesAllFiveButtons_data() {
    QTest::addColumn<QString>("form");
    QTest::newRow("capacitive") << "CTeiler";
    QTest::newRow("inductive") << "L2Teiler";
  }

  void printingHidesAllFiveButtons() {
    QFETCH(QString, form);
    QTemporaryDir dir;
    MDIForm1* w = guitest::mainWindow();
    QWidget* f = w->showShared(form);
    QVERIFY(f);
    const QList<QPushButton*> buttons = f->findChildren<QPushButton*>(QRegularExpression("^Command[1-5]$"));
    QCOMPARE(buttons.size(), 5);
    auto* label = guitest::child<QLabel>(f, "Label_Text");
    QVERIFY(label);

    int jobs = 0;
    printing::setMode(printing::Mode::Pdf, dir.filePath("out.pdf"));
    printing::setObserver([&](const QString&, int) {
      ++jobs;
      for (QPushButton* b : buttons) QVERIFY2(b->isHidden(), qPrintable(b->objectName()));
      QVERIFY(!label->isHidden());
    });
    QMetaObject::invokeMethod(guitest::child<QPushButton>(f, "Command3"), "click");
    printing::setObserver({});
    QCOMPARE(jobs, 1);
    for (QPushButton* b : buttons) QVERIFY(!b->isHidden());
    QVERIFY(label->isHidden());
    f->close();
  }
};

QTEST_MAIN(DividerFormsTest)
#include "test_divider_forms.moc"
