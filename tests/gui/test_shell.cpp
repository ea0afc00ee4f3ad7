// The main window: menu tree, shared and new instances, the quit question,
// printing a form, and the second start of the program.
#include <QAction>
#include <QFile>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QProcess>
#include <QPushButton>
#include <QLabel>
#include <QTemporaryDir>
#include <QtTest>

#include "shell/CalcForm.h"
#include "shell/MDIForm1.h"
#include "shell/PrintService.h"
#include "shell/core/InstanceLock.h"
#include "support/GuiFixture.h"

using dialogs::Answer;

class ShellTest : public QObject {
  Q_OBJECT

  MDIForm1* w = nullptr;
  std::shared_ptr<dialogs::QueuedService> boxes;

  void closeAllChildren() {
    for (QMdiSubWindow* s : w->childWindows()) s->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  int count(const QString& form) {
    int n = 0;
    for (QMdiSubWindow* s : w->childWindows())
      if (s->widget() && s->widget()->objectName() == form) ++n;
    return n;
  }

 private slots:
  void init() {
    boxes = guitest::installDialogs();
    w = guitest::mainWindow();
    closeAllChildren();
  }

  void menuItemsCarryCaptionsShortcutsAndState() {
    struct Item { const char* name; const char* caption; const char* shortcut; bool enabled; };
    const Item items[] = {{"mnuEnd", "&Beenden", "Ctrl+B", true},
                          {"mnuOhm", "&Ohmsches Gesetz", "Ctrl+O", true},
                          {"mnudB", "&db Rechner", "Ctrl+D", true},
                          {"LP_3Weg_12dB", "12db/Oktave", "", true},
                          {"mnuSchwingkreisGüte", "Güte / Bandbreite / Rp berechnen", "", true},
                          {"mnuTaschenrechner", "Taschenrechner", "Ctrl+R", true},
                          {"mnuHelp", "&Hilfe", "F1", true},
                          {"mnuInfo", "&Info", "F2", true},
                          {"mnuLiteratur", "&Literaturquellen", "F3", true}};
    for (const Item& i : items) {
      QAction* a = w->menuAction(QString::fromUtf8(i.name));
      QVERIFY2(a, i.name);
      QCOMPARE(a->text(), QString::fromUtf8(i.caption));
      QCOMPARE(a->shortcut().toString(QKeySequence::PortableText), QString(i.shortcut));
      if (QString(i.name) != "LP_3Weg_12dB") QCOMPARE(a->isEnabled(), i.enabled);
    }
    QVERIFY(w->menuAction("mnuTrenn9")->isSeparator());
    QVERIFY(w->menuAction("mnuTransistor")->isEnabled());  // the amplifier designer is built
  }

  void calculatorsAreSharedTextWindowsAreNew() {
    w->menuAction("mnuOhm")->trigger();
    w->menuAction("mnuOhm")->trigger();
    QCOMPARE(count("Ohm"), 1);
    w->menuAction("mnuHelp")->trigger();
    w->menuAction("mnuLiteratur")->trigger();
    w->menuAction("mnuInfo")->trigger();
    w->menuAction("mnuInfo")->trigger();
    QCOMPARE(count("frmAbout"), 3);
    // Closing the shared form and choosing it again gives a fresh, empty one.
    auto* ohm = w->findChild<CalcForm*>("Ohm");
    guitest::child<QLineEdit>(ohm, "Text1")->setText("12");
    w->activate(ohm);
    ohm->closeForm();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(count("Ohm"), 0);
    w->menuAction("mnuOhm")->trigger();
    QCOMPARE(guitest::child<QLineEdit>(w->activeForm(), "Text1")->text(), QString());
  }

  void quitQuestionCancelKeepsEverythingOkUnloadsLastFirst() {
    w->menuAction("mnuOhm")->trigger();
    w->menuAction("mnuHelp")->trigger();
    guitest::child<QLineEdit>(w->findChild<CalcForm*>("Ohm"), "Text1")->setText("5");
    boxes->queue(Answer::Cancel);
    QVERIFY(!w->close());
    QCOMPARE(boxes->shown.size(), size_t(1));
    const dialogs::Message& m = boxes->shown[0].first;
    QCOMPARE(m.title, QString(" Wirklich beenden ?"));
    QCOMPARE(m.text, QString("Quarzel V 1.0.0\r\n          Programm für Praktiker"));
    QCOMPARE(m.icon, dialogs::Icon::Question);
    QCOMPARE(m.buttons, dialogs::Buttons::OKCancel);
    QCOMPARE(w->childWindows().size(), 2);
    QCOMPARE(guitest::child<QLineEdit>(w->findChild<CalcForm*>("Ohm"), "Text1")->text(), QString("5"));

    QStringList order;
    for (QMdiSubWindow* s : w->childWindows())
      connect(s, &QObject::destroyed, this, [&order, name = s->widget()->objectName()] { order << name; });
    boxes->queue(Answer::OK);
    QVERIFY(w->close());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(order, (QStringList{"frmAbout", "Ohm"}));
    // Bring the window back for the remaining tests.
    w->show();
  }

  void printingIntoPdfHidesButtonsOnlyWhilePrinting() {
    QTemporaryDir dir;
    const QString pdf = dir.filePath("ohm.pdf");
    printing::setMode(printing::Mode::Pdf, pdf);
    QStringList jobs;
    printing::setObserver([&](const QString& f, int pages) { jobs << f + ":" + QString::number(pages); });
    w->menuAction("mnuOhm")->trigger();
    auto* ohm = qobject_cast<CalcForm*>(w->activeForm());
    ohm->printForm();
    QCOMPARE(jobs, QStringList{"Ohm:1"});
    QVERIFY(QFile(pdf).size() > 1000);
    QVERIFY(!guitest::child<QLabel>(ohm, "Label_Text")->isVisibleTo(ohm));
    for (const char* b : {"Command1", "Command2", "Command3", "Command4"})
      QVERIFY(guitest::child<QPushButton>(ohm, b)->isVisibleTo(ohm));
    printing::setObserver({});
  }

  void printFailureShowsMessageAndRestoresButtons() {
    printing::setMode(printing::Mode::None);
    w->menuAction("mnuOhm")->trigger();
    auto* ohm = qobject_cast<CalcForm*>(w->activeForm());
    bool hiddenDuringMessage = false;
    auto observed = std::make_shared<dialogs::QueuedService>([&](const dialogs::Message&, Answer) {
      hiddenDuringMessage = !guitest::child<QPushButton>(ohm, "Command1")->isVisibleTo(ohm) &&
                            guitest::child<QLabel>(ohm, "Label_Text")->isVisibleTo(ohm);
    });
    dialogs::install(observed);
    ohm->printForm();
    QCOMPARE(observed->shown.size(), size_t(1));
    QCOMPARE(observed->shown[0].first.text,
             QString("Es ist kein Drucker installiert.\r\nDas Formular kann nicht gedruckt werden."));
    QCOMPARE(observed->shown[0].first.icon, dialogs::Icon::None);
    QVERIFY(hiddenDuringMessage);
    QVERIFY(!guitest::child<QLabel>(ohm, "Label_Text")->isVisibleTo(ohm));
    for (const char* b : {"Command1", "Command2", "Command3", "Command4"})
      QVERIFY(guitest::child<QPushButton>(ohm, b)->isVisibleTo(ohm));
    printing::setMode(printing::Mode::System);
  }

  void secondStartShowsMessageAndEnds() {
    const QString exe = qEnvironmentVariable("QUARZEL_EXE");
    QVERIFY(!exe.isEmpty());
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("QUARZEL_INSTANCE", "second-start-" + QString::number(QCoreApplication::applicationPid()));
    QProcess first, second;
    first.setProcessEnvironment(env);
    second.setProcessEnvironment(env);
    first.start(exe, {"--script", "-"});
    QVERIFY(first.waitForStarted());
    first.write("windows\n");
    QVERIFY(first.waitForReadyRead(20000));  // the first one is up and holds the key
    second.start(exe, {"--script", "-"});
    second.closeWriteChannel();
    QVERIFY(second.waitForFinished(20000));
    const QString out = QString::fromUtf8(second.readAllStandardOutput());
    QVERIFY2(out.contains("\"title\":\"Quarzel läuft bereits \""), qPrintable(out));
    QVERIFY(out.contains("Das Programm zweimal zu aktivieren ist nicht ratsam."));
    QVERIFY(out.contains("\"icon\":\"exclamation\""));
    QVERIFY(out.endsWith("{\"exit\":1}\n"));
    QCOMPARE(second.exitCode(), 1);
    first.closeWriteChannel();
    QVERIFY(first.waitForFinished(20000));
    QCOMPARE(first.exitCode(), 0);
  }

  void killedFirstInstanceDoesNotBlockTheNext() {
    // A first instance killed outright, and one killed while it was still
    // writing its lock file (which then stays empty): the next start runs.
    const QString exe = qEnvironmentVariable("QUARZEL_EXE");
    QVERIFY(!exe.isEmpty());
    const QString key = "killed-" + QString::number(QCoreApplication::applicationPid());
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("QUARZEL_INSTANCE", key);
    for (const bool emptied : {false, true}) {
      QProcess first;
      first.setProcessEnvironment(env);
      first.start(exe, {"--script", "-"});
      QVERIFY(first.waitForStarted());
      first.write("windows\n");
      QVERIFY(first.waitForReadyRead(20000));
      first.kill();
      QVERIFY(first.waitForFinished(20000));
      QCOMPARE(first.exitStatus(), QProcess::CrashExit);
      if (emptied) QFile(instance::lockPath(key)).resize(0);

      QProcess next;
      next.setProcessEnvironment(env);
      next.start(exe, {"--script", "-"});
      next.write("windows\n");
      next.closeWriteChannel();
      QVERIFY(next.waitForFinished(20000));
      const QString out = QString::fromUtf8(next.readAllStandardOutput());
      QVERIFY2(out.startsWith("{\"windows\":[]}"), qPrintable(out));
      QCOMPARE(next.exitCode(), 0);
    }
    QFile::remove(instance::lockPath(key));
  }
};

QTEST_MAIN(ShellTest)
#include "test_shell.moc"
