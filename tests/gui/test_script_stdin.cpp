// Script mode reading standard input lets the event loop run while it waits
// for the next line: timers fire, and a command that arrives later is run
// at once, before the input ends.
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
    QVERIFY(dup2(fds[0], 0) == 0);
    ::close(fds[0]);
    MDIForm1* w = guitest::mainWindow();

    bool waited = false;
    QString shownBeforeEnd;
    QTimer::singleShot(100, [&] {
      waited = true;  // nothing has been written yet: the loop ran by itself
      const char line[] = "menu mnuOhm\n";
      QVERIFY(::write(fds[1], line, sizeof line - 1) == qint64(sizeof line - 1));
      QTimer::singleShot(100, [&] {
        shownBeforeEnd = w->activeForm() ? w->activeForm()->objectName() : QString();
        ::close(fds[1]);
      });
    });
    QCOMPARE(script::run(*w, "-"), 0);
    QVERIFY(waited);
    QCOMPARE(shownBeforeEnd, QString("Ohm"));
  }
};

QTEST_MAIN(ScriptStdinTest)
#include "test_script_stdin.moc"
