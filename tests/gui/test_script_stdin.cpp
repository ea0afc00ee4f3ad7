// Script mode waiting for standard input keeps the event loop running, and
// runs a line as soon as it arrives.
#include <QTimer>
#include <QtTest>
#include <unistd.h>

#include "shell/MDIForm1.h"
#include "shell/ScriptRunner.h"
#include "support/GuiFixture.h"

class ScriptStdinTest : public QObject {
  Q_OBJECT

 private slots:
  void eventLoopRunsWhileWaitingForInput() {
    int fds[2];
    QCOMPARE(pipe(fds), 0);
    QCOMPARE(dup2(fds[0], 0), 0);
    MDIForm1* w = guitest::mainWindow();
    QString shown = "nothing";
    QTimer::singleShot(100, [&] {  // fires only if the loop runs while nothing is written
      QCOMPARE(::write(fds[1], "menu mnuOhm\n", 12), ssize_t(12));
      QTimer::singleShot(100, [&] {
        shown = w->activeForm() ? w->activeForm()->objectName() : QString();
        ::close(fds[1]);
      });
    });
    QCOMPARE(script::run(*w, "-"), 0);
    QCOMPARE(shown, QString("Ohm"));
  }
};

QTEST_MAIN(ScriptStdinTest)
#include "test_script_stdin.moc"
