// Keyboard use through Qt's own key handling (shortcut map, focus chain,
// access keys), label widths in every form and mode, the printed page.
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenu>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include "shell/FormRegistry.h"
#include "shell/MDIForm1.h"
#include "shell/PrintService.h"
#include "support/GuiFixture.h"

namespace {

// As a keyboard sends a key: modifiers first, the press to the focused
// control, the release to the one focused afterwards.
void hit(Qt::Key key, Qt::KeyboardModifiers mods = Qt::NoModifier) {
  QList<Qt::Key> held;
  if (mods & Qt::ShiftModifier) held << Qt::Key_Shift;
  if (mods & Qt::AltModifier) held << Qt::Key_Alt;
  if (mods & Qt::ControlModifier) held << Qt::Key_Control;
  for (Qt::Key m : held) QTest::keyPress(QApplication::focusWidget(), m);
  QTest::keyPress(QApplication::focusWidget(), key, mods);
  QTest::keyRelease(QApplication::focusWidget(), key, mods);
  for (Qt::Key m : held) QTest::keyRelease(QApplication::focusWidget(), m);
}

QStringList texts(QWidget* form) {
  QStringList r;
  for (QLineEdit* e : form->findChildren<QLineEdit*>())
    if (!qobject_cast<QComboBox*>(e->parentWidget())) r << e->objectName() + "=" + e->text();
  return r;
}

}  // namespace

class KeyboardTest : public QObject {
  Q_OBJECT

  MDIForm1* w = nullptr;

  QWidget* open(const QString& item) {
    w->menuAction(item)->trigger();
    return w->activeForm();
  }
  QLineEdit* field(QWidget* form, const char* name) { return guitest::child<QLineEdit>(form, name); }

 private slots:
  void init() {
    guitest::installDialogs();
    w = guitest::mainWindow();
    for (QMdiSubWindow* s : w->childWindows()) s->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    w->activateWindow();
    QApplication::setActiveWindow(w);
    QVERIFY(QTest::qWaitForWindowActive(w));
  }

  void typingReturnAndAccessKeys() {
    QTest::keyClick(w, Qt::Key_L, Qt::ControlModifier);
    QWidget* watt = w->activeForm();
    QTest::keyClicks(QApplication::focusWidget(), "12");  // the first field has the focus
    hit(Qt::Key_Tab);
    hit(Qt::Key_Tab);  // over the unit combo
    QTest::keyClicks(QApplication::focusWidget(), "2");
    QCOMPARE(texts(watt), (QStringList{"Text1=12", "Text2=2", "Text3=", "Text4="}));
    hit(Qt::Key_Return);
    QCOMPARE(field(watt, "Text3")->text(), QString("6,0"));
    hit(Qt::Key_B, Qt::AltModifier);  // "&Berechnung", not the menu "&Berechnungen"
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(field(watt, "Text4")->text(), QString("72,0"));
    hit(Qt::Key_N, Qt::AltModifier);
    QCOMPARE(field(watt, "Text1")->text(), QString());
    // After "&Neu" the next value goes into the first field, not the button.
    QTest::keyClicks(QApplication::focusWidget(), "12");
    QCOMPARE(field(watt, "Text1")->text(), QString("12"));
    field(watt, "Text2")->setText("2");
    field(watt, "Text2")->setFocus();
    hit(Qt::Key_Enter, Qt::KeypadModifier);
    QCOMPARE(field(watt, "Text3")->text(), QString("6,0"));
    // Ctrl+F4 and Ctrl+W close the active child.
    open("mnuOhm");
    hit(Qt::Key_F4, Qt::ControlModifier);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(w->childWindows().size(), 1);
    hit(Qt::Key_W, Qt::ControlModifier);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(w->childWindows().size(), 0);
    // A form without the letter leaves it to the menu bar.
    open("mnuInfo");
    hit(Qt::Key_B, Qt::AltModifier);
    QVERIFY(qobject_cast<QMenu*>(QApplication::activePopupWidget()));
    hit(Qt::Key_Escape);
    hit(Qt::Key_Escape);
  }

  void movingOverFilledFieldsKeepsEveryValue_data() {
    QTest::addColumn<QString>("item");
    QTest::newRow("power") << "mnuLeistung";
    QTest::newRow("capacitive divider") << "mnuCTeiler";
    QTest::newRow("inductive divider") << "mnuL2Teiler";
  }

  void movingOverFilledFieldsKeepsEveryValue() {
    QFETCH(QString, item);
    QWidget* form = open(item);
    int n = 1;
    for (QLineEdit* e : form->findChildren<QLineEdit*>())
      if (!qobject_cast<QComboBox*>(e->parentWidget())) e->setText(QString::number(n++));
    const QStringList before = texts(form);
    for (int i = 0; i < 30; ++i) hit(Qt::Key_Tab);
    for (int i = 0; i < 30; ++i) hit(Qt::Key_Backtab, Qt::ShiftModifier);
    for (QLabel* l : form->findChildren<QLabel*>()) {  // label access keys land in their fields
      const qsizetype amp = l->text().indexOf('&');
      if (l->buddy() && amp >= 0) hit(Qt::Key(l->text().at(amp + 1).toUpper().unicode()), Qt::AltModifier);
    }
    hit(Qt::Key_Home, Qt::ShiftModifier);
    hit(Qt::Key_Escape);
    QCOMPARE(texts(form), before);
  }

  void noLabelIsCutOffInAnyFormOrMode() {
    QStringList views = forms::names();
    views.removeAll("LP_Box");
    views << "LP_2Weg_6dB" << "LP_2Weg_12dB" << "LP_2Weg_18dB" << "LP_3Weg_12dB";
    for (const QString& view : views) {
      QWidget* form = view.startsWith("LP_") ? open(view) : w->showShared(view);
      QVERIFY2(form, qPrintable(view));
      QApplication::processEvents();
      for (QLabel* l : form->findChildren<QLabel*>()) {
        if (!l->isVisible() || l->text().isEmpty()) continue;
        const bool fits = l->wordWrap() ? l->height() >= l->heightForWidth(l->width())
                                        : l->width() >= l->minimumSizeHint().width();
        QVERIFY2(fits, qPrintable(view + "/" + l->objectName() + ": " + l->text()));
      }
      form->parentWidget()->close();
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
  }

  void printedPageShowsNoSelectionAndNothingSqueezed_data() {
    QTest::addColumn<QString>("item");
    QTest::newRow("power") << "mnuLeistung";
    QTest::newRow("ohmic divider") << "mnuUTeiler";
  }

  void printedPageShowsNoSelectionAndNothingSqueezed() {
    QFETCH(QString, item);
    QTemporaryDir dir;
    printing::setMode(printing::Mode::Pdf, dir.filePath("page.pdf"));
    QWidget* form = open(item);
    QTest::keyClicks(QApplication::focusWidget(), "12");
    bool roomy = false;
    printing::setObserver([&](const QString&, int) { roomy = form->height() >= form->sizeHint().height(); });
    auto* print = guitest::child<QPushButton>(form, "Command3");
    const QSize window = form->parentWidget()->size();
    QTest::mouseClick(print, Qt::LeftButton);
    printing::setObserver({});
    printing::setMode(printing::Mode::System);
    QVERIFY(roomy);
    QApplication::processEvents();
    QCOMPARE(form->parentWidget()->size(), window);
    QCOMPARE(QApplication::focusWidget(), print);

    QProcess render;  // pdftoppm from poppler-utils
    render.start("pdftoppm", {"-r", "100", "-png", "-singlefile", dir.filePath("page.pdf"), dir.filePath("page")});
    QVERIFY(render.waitForFinished(30000) && render.exitCode() == 0);
    const QImage page = QImage(dir.filePath("page.png")).convertToFormat(QImage::Format_RGB32);
    QVERIFY(!page.isNull());
    const QColor sel = form->palette().color(QPalette::Active, QPalette::Highlight);
    for (int y = 0; y < page.height(); ++y)
      for (int x = 0; x < page.width(); ++x) {
        const QColor c = page.pixelColor(x, y);
        const int d = std::abs(c.red() - sel.red()) + std::abs(c.green() - sel.green()) + std::abs(c.blue() - sel.blue());
        if (d < 40) QFAIL(qPrintable(QString("selection colour at %1,%2").arg(x).arg(y)));
      }
  }
};

QTEST_MAIN(KeyboardTest)
#include "test_keyboard.moc"
