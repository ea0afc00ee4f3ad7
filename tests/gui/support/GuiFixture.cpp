#include "support/GuiFixture.h"

#include <QLocale>

#include "shell/MDIForm1.h"
#include "shell/core/Module1.h"

namespace guitest {

std::shared_ptr<dialogs::QueuedService> installDialogs() {
  auto s = std::make_shared<dialogs::QueuedService>();
  dialogs::install(s);
  return s;
}

MDIForm1* mainWindow() {
  static MDIForm1* w = nullptr;
  if (!w) {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    const QString dir = qEnvironmentVariable("QUARZEL_APPDIR");
    if (!dir.isEmpty()) Module1::setAppDir(dir);
    w = new MDIForm1;
    if (!w->load()) qFatal("another test holds the instance key");
    w->show();
    w->activateWindow();
  }
  return w;
}

}  // namespace guitest
