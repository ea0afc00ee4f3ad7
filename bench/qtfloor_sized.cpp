// The bare Qt program (a QMainWindow with a QMdiArea and a menu bar, nothing
// else) with Quarzel's main window size and place: screen width less 2400
// twips, screen height less 400 twips, centred at the top. Started beside
// Quarzel under guibench, it shows what the window's size alone costs in
// start-up time and memory (the backing store grows with the window).
#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>
#include <QMenuBar>
#include <QScreen>

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QMainWindow w;
  w.setWindowTitle(QStringLiteral("qtfloor"));
  w.setCentralWidget(new QMdiArea(&w));
  QMenu* file = w.menuBar()->addMenu(QStringLiteral("&File"));
  file->addAction(QStringLiteral("&Quit"), &app, &QApplication::quit);
  if (QScreen* screen = QGuiApplication::primaryScreen()) {
    const QRect s = screen->geometry();
    const int height = s.height() - int(400 * screen->logicalDotsPerInchY() / 1440.0);
    const int width = s.width() - int(4800 * screen->logicalDotsPerInchX() / 1440.0 / 2);
    w.resize(width, height);
    w.move(s.x() + (s.width() - width) / 2, s.y());
  }
  w.show();
  return app.exec();
}
