// The forms used with the keyboard alone, through Qt's own key handling
// (shortcut map, focus chain, access keys): typing into a fresh form, moving
// over filled fields without losing a value, Return computing, the active
// form's access keys before the menu bar's, Ctrl+F4; and, over every form and
// mode, no label cut off; the printed page without a selection.
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include "shell/CalcForm.h"
#include "shell/FormRegistry.h"
#include "shell/MDIForm1.h"
#include "shell/PrintService.h"
#include "support/GuiFixture.h"

namespace {

// A key as a keyboard sends it: modifiers pressed first, the press to the
// control that has the focus, the release to the one that has it afterwards.
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
  std::shared_ptr<dialogs::QueuedService> boxes;

  QWidget* open(const char* item) {
    w->menuAction(item)->trigger();
    return w->activeForm();
  }
  QLineEdit* field(QWidget* form, const char* name) { return guitest::child<QLineEdit>(form, name); }

 private slots:
  void init() {
    boxes = guitest::installDialogs();
    w = guitest::mainWindow();
    for (QMdiSubWindow* s : w->childWindows()) s->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    w->activateWindow();
    QApplication::setActiveWindow(w);
    QVERIFY(QTest::qWaitForWindowActive(w));
  }

  void typingGoesIntoTheFirstFieldAndReturnComputes() {
    QTest::keyClick(w, Qt::Key_L, Qt::ControlModifier);  // "L&eistung"
    QWidget* watt = w->activeForm();
    QCOMPARE(watt->objectName(), QString("Watt"));
    QCOMPARE(QApplication::focusWidget(), field(watt, "Text1"));
    QTest::keyClicks(QApplication::focusWidget(), "12");
    hit(Qt::Key_Tab);  // over the unit combo into the resistance
    hit(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), field(watt, "Text2"));
    QTest::keyClicks(QApplication::focusWidget(), "2");
    hit(Qt::Key_Return);
    QCOMPARE(field(watt, "Text3")->text(), QString("6,0"));
    field(watt, "Text3")->clear();
    hit(Qt::Key_Enter, Qt::KeypadModifier);
    QCOMPARE(field(watt, "Text3")->text(), QString("6,0"));
    QVERIFY(boxes->shown.empty());
  }

  void movingOverFilledFieldsKeepsEveryValue_data() {
    QTest::addColumn<QString>("item");
    QTest::newRow("power") << "mnuLeistung";
    QTest::newRow("capacitive divider") << "mnuCTeiler";
    QTest::newRow("inductive divider") << "mnuL2Teiler";
    QTest::newRow("wire") << "mnuDrahtR";
  }

  void movingOverFilledFieldsKeepsEveryValue() {
    QFETCH(QString, item);
    QWidget* form = open(qPrintable(item));
    int n = 1;
    for (QLineEdit* e : form->findChildren<QLineEdit*>())
      if (!qobject_cast<QComboBox*>(e->parentWidget())) e->setText(QString::number(n++));
    const QStringList before = texts(form);
    for (int i = 0; i < 30; ++i) hit(Qt::Key_Tab);
    for (int i = 0; i < 30; ++i) hit(Qt::Key_Backtab, Qt::ShiftModifier);
    // The access keys of the labels land in their fields.
    for (QLabel* l : form->findChildren<QLabel*>()) {
      const qsizetype amp = l->text().indexOf('&');
      if (l->buddy() && amp >= 0) hit(Qt::Key(l->text().at(amp + 1).toUpper().unicode()), Qt::AltModifier);
    }
    hit(Qt::Key_Right);
    hit(Qt::Key_Home, Qt::ShiftModifier);
    hit(Qt::Key_Escape);
    QCOMPARE(texts(form), before);
    // A typed character still couples as before (Watt: U typed empties I and P).
    if (item == "mnuLeistung") {
      field(form, "Text1")->setFocus();
      hit(Qt::Key_5);
      QCOMPARE(field(form, "Text3")->text(), QString());
    }
  }

  void accessKeysOfTheActiveFormComeFirst() {
    QWidget* watt = open("mnuLeistung");
    field(watt, "Text1")->setText("12");
    field(watt, "Text2")->setText("2");
    hit(Qt::Key_B, Qt::AltModifier);  // "&Berechnung", not the menu "&Berechnungen"
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(field(watt, "Text3")->text(), QString("6,0"));
    hit(Qt::Key_N, Qt::AltModifier);  // "&Neu"
    QCOMPARE(field(watt, "Text1")->text(), QString());
    // A form without the letter leaves it to the menu bar.
    open("mnuInfo");
    hit(Qt::Key_B, Qt::AltModifier);
    QVERIFY(qobject_cast<QMenu*>(QApplication::activePopupWidget()));
    hit(Qt::Key_Escape);
    hit(Qt::Key_Escape);
  }

  void ctrlF4AndCtrlWCloseTheActiveChild() {
    open("mnuLeistung");
    open("mnuOhm");
    hit(Qt::Key_F4, Qt::ControlModifier);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(w->childWindows().size(), 1);
    field(w->childWindows().first()->widget(), "Text1")->setFocus();
    hit(Qt::Key_W, Qt::ControlModifier);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(w->childWindows().size(), 0);
  }

  void noLabelIsCutOffInAnyFormOrMode() {
    QStringList views;
    for (const QString& name : forms::names()) {
      if (name != "LP_Box") views << name;
    }
    views << "LP_2Weg_6dB" << "LP_2Weg_12dB" << "LP_2Weg_18dB" << "LP_3Weg_12dB";
    for (const QString& view : views) {
      QWidget* form = view.startsWith("LP_") ? open(qPrintable(view)) : w->showShared(view);
      QVERIFY2(form, qPrintable(view));
      QApplication::processEvents();
      for (QLabel* l : form->findChildren<QLabel*>()) {
        if (!l->isVisible() || l->text().isEmpty()) continue;
        const QString what = view + "/" + l->objectName() + ": " + l->text();
        if (l->wordWrap())
          QVERIFY2(l->height() >= l->heightForWidth(l->width()), qPrintable(what));
        else
          QVERIFY2(l->width() >= l->minimumSizeHint().width(), qPrintable(what));
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
    const QString pdf = dir.filePath("page.pdf");
    printing::setMode(printing::Mode::Pdf, pdf);
    QWidget* form = open(qPrintable(item));
    QTest::keyClicks(QApplication::focusWidget(), "12");
    bool roomy = false;
    printing::setObserver([&](const QString&, int) { roomy = form->height() >= form->sizeHint().height(); });
    auto* print = guitest::child<QPushButton>(form, "Command3");
    const QSize window = form->parentWidget()->size();
    QTest::mouseClick(print, Qt::LeftButton);
    printing::setObserver({});
    QVERIFY(roomy);
    // Afterwards the form is as it was, with the focus where it was.
    QApplication::processEvents();
    QCOMPARE(form->parentWidget()->size(), window);
    QCOMPARE(QApplication::focusWidget(), print);

    QProcess render;
    render.start("pdftoppm", {"-r", "100", "-png", "-singlefile", pdf, dir.filePath("page")});
    QVERIFY2(render.waitForFinished(30000) && render.exitCode() == 0, "pdftoppm (poppler-utils) renders the page");
    const QImage page(dir.filePath("page.png"));
    QVERIFY(!page.isNull());
    const QColor selection = form->palette().color(QPalette::Active, QPalette::Highlight);
    int hits = 0;
    for (int y = 0; y < page.height(); ++y)
      for (int x = 0; x < page.width(); ++x) {
        const QColor c = page.pixelColor(x, y);
        if (std::abs(c.red() - selection.red()) + std::abs(c.green() - selection.green()) +
                std::abs(c.blue() - selection.blue()) < 40)
          ++hits;
      }
    QCOMPARE(hits, 0);
    printing::setMode(printing::Mode::System);
  }
};

QTEST_MAIN(KeyboardTest)
#include "test_keyboard.moc"
