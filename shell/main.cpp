// Start of Quarzel: the main window with its menu, or script mode
// (`quarzel --script FILE`) that drives the same windows headless.
#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QPainter>
#include <QPixmap>
#include <QTranslator>
#include <cstring>

#include "Version.h"
#include "shell/MDIForm1.h"
#include "shell/ScriptRunner.h"
#include "shell/core/Module1.h"

namespace {

// The program's icon in every size the build drew (the same files the
// desktop's icon theme gets).
QIcon programIcon() {
  QIcon icon;
  for (int size : {16, 22, 24, 32, 48, 64, 128, 256})
    icon.addFile(QStringLiteral(":/icons/quarzel-%1.png").arg(size), QSize(size, size));
  return icon;
}

}  // namespace

int main(int argc, char* argv[]) {
  QString scriptPath;
  for (int i = 1; i < argc; ++i) {
    if (std::strcmp(argv[i], "--script") == 0 && i + 1 < argc) scriptPath = QString::fromLocal8Bit(argv[i + 1]);
  }
  const bool scripted = !scriptPath.isEmpty();
  if (scripted && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");

  QApplication app(argc, argv);
  QApplication::setApplicationName(Module1::AppTitle);
  QApplication::setApplicationVersion(Module1::versionString());
  QApplication::setWindowIcon(programIcon());
  QGuiApplication::setDesktopFileName(QStringLiteral(QUARZEL_APP_ID));
  // Qt's own texts (a field's context menu, a child window's system menu)
  // in German when the user's language is German.
  QTranslator qtTexts;
  if (QLocale::system().language() == QLocale::German &&
      qtTexts.load(QLocale::system(), "qtbase", "_", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QApplication::installTranslator(&qtTexts);
  if (scripted) script::installSeams();

  MDIForm1 window;
  if (!window.load()) {
    if (scripted) script::emitLine("{\"exit\":1}");
    return 1;
  }
  window.show();
  if (scripted) {
    window.activateWindow();
    return script::run(window, scriptPath);
  }
  return app.exec();
}
