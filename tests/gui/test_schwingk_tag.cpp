// The resonant-circuit form computes by itself when it is activated with the
// Tag "L1", as the dividers hand values over to it; any other Tag does not.
#include <QComboBox>
#include <QLineEdit>
#include <QtTest>

#include "shell/CalcForm.h"
#include "shell/MDIForm1.h"
#include "support/GuiFixture.h"

class TestSchwingkTag : public QObject {
  Q_OBJECT
 private:
  std::shared_ptr<dialogs::QueuedService> dialogs_;

  // Another form in front, then the resonant circuit shown again.
  static void reactivate(MDIForm1* main, CalcForm* form) {
    QVERIFY(main->showShared("Ohm"));
    QCOMPARE(main->activeForm()->objectName(), QString("Ohm"));
    main->showChild(form);
    QCOMPARE(main->activeForm(), form);
  }

 private slots:
  void initTestCase() { dialogs_ = guitest::installDialogs(); }

  void computesOnTagL1() {
    MDIForm1* main = guitest::mainWindow();
    auto* form = qobject_cast<CalcForm*>(main->loadShared("Schwingk"));
    QVERIFY(form);
    auto* text1 = guitest::child<QLineEdit>(form, "Text1");
    auto* text2 = guitest::child<QLineEdit>(form, "Text2");
    auto* text3 = guitest::child<QLineEdit>(form, "Text3");
    auto* comboF = guitest::child<QComboBox>(form, "ComboF");
    auto* comboL = guitest::child<QComboBox>(form, "ComboL");
    auto* comboC = guitest::child<QComboBox>(form, "ComboC");
    QVERIFY(text1 && text2 && text3 && comboF && comboL && comboC);

    // As a divider hands over: f = 1 MHz, C = 100 pF, L emptied, Tag "L1".
    text1->setText("1");
    comboF->setCurrentIndex(0);
    text2->clear();
    text3->setText("100");
    comboC->setCurrentIndex(0);
    form->setTag("L1");
    main->showChild(form);
    QCOMPARE(main->activeForm(), form);
    QCOMPARE(text2->text(), QString("253,303"));
    QCOMPARE(comboL->currentText(), QString::fromUtf8("µH"));
    QCOMPARE(form->tag(), QString());

    // A second activation without the Tag leaves the fields alone.
    text2->clear();
    reactivate(main, form);
    QCOMPARE(text2->text(), QString());

    // Again with "L1" after another form was in front.
    form->setTag("L1");
    reactivate(main, form);
    QCOMPARE(text2->text(), QString("253,303"));
    QCOMPARE(form->tag(), QString());
    QVERIFY(dialogs_->shown.empty());
  }

  void otherTagDoesNotCompute() {
    MDIForm1* main = guitest::mainWindow();
    auto* form = qobject_cast<CalcForm*>(main->loadShared("Schwingk"));
    QVERIFY(form);
    auto* text2 = guitest::child<QLineEdit>(form, "Text2");
    text2->clear();
    form->setTag("C1");
    reactivate(main, form);
    QCOMPARE(text2->text(), QString());
    QCOMPARE(form->tag(), QString("C1"));
  }
};

QTEST_MAIN(TestSchwingkTag)
#include "test_schwingk_tag.moc"
