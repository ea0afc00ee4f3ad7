// The resonant-circuit form computes by itself when it is activated with the
// Tag "L1", as the dividers hand values over to it, and then clears the Tag;
// without a Tag or with any other one it leaves its fields alone.
#include <QComboBox>
#include <QLineEdit>
#include <QtTest>

#include "shell/CalcForm.h"
#include "shell/MDIForm1.h"
#include "support/GuiFixture.h"

class TestSchwingkTag : public QObject {
  Q_OBJECT

 private slots:
  void computesOnlyOnTagL1() {
    auto dialogs = guitest::installDialogs();
    MDIForm1* main = guitest::mainWindow();
    auto* form = qobject_cast<CalcForm*>(main->loadShared("Schwingk"));
    QVERIFY(form);
    auto* text2 = guitest::child<QLineEdit>(form, "Text2");
    auto* comboL = guitest::child<QComboBox>(form, "ComboL");
    QVERIFY(text2 && comboL);
    // As a divider hands over: f = 1 MHz, C = 100 pF, L to be computed.
    guitest::child<QLineEdit>(form, "Text1")->setText("1");
    guitest::child<QComboBox>(form, "ComboF")->setCurrentIndex(0);
    guitest::child<QLineEdit>(form, "Text3")->setText("100");
    guitest::child<QComboBox>(form, "ComboC")->setCurrentIndex(0);

    // L emptied, the Tag set, another form in front, then this one again.
    const auto activateWithTag = [&](const QString& tag) {
      text2->clear();
      form->setTag(tag);
      QVERIFY(main->showShared("Ohm"));
      main->showChild(form);
      QCOMPARE(main->activeForm(), form);
    };
    for (const QString tag : {"", "C1"}) {
      activateWithTag(tag);
      QCOMPARE(text2->text(), QString());
      QCOMPARE(form->tag(), tag);
    }
    activateWithTag("L1");
    QCOMPARE(text2->text(), QString("253,303"));
    QCOMPARE(comboL->currentText(), QString::fromUtf8("µH"));
    QCOMPARE(form->tag(), QString());
    QVERIFY(dialogs->shown.empty());
  }
};

QTEST_MAIN(TestSchwingkTag)
#include "test_schwingk_tag.moc"
