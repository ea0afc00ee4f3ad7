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

#include "shell/MDIForm1.h"
#include "shell/ScriptRunner.h"
#include "shell/core/Module1.h"

namespace {

QIcon programIcon() {
  QPixmap pm(64, 64);
  pm.fill(Qt::transparent);
  QPainter p(&pm);
  p.setRenderHint(QPainter::Antialiasing);
  p.setBrush(QColor(0x1f, 0x4e, 0x79));
  p.setPen(Qt::NoPen);
  p.drawRoundedRect(2, 2, 60, 60, 10, 10);
  QPen pen(QColor(0xff, 0xd2, 0x4a), 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  p.setPen(pen);
  const QPointF zigzag[] = {{6, 32}, {16, 32}, {20, 20}, {28, 44}, {36, 20}, {44, 44}, {48, 32}, {58, 32}};
  p.drawPolyline(zigzag, 8);
  return QIcon(pm);
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
