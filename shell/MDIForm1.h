#pragma once
// The main window: the multi-document area with the menu that opens the
// calculators, the single-instance check, and the quit question.
#include <QMainWindow>
#include <QPointer>
#include <map>

#include "shell/PictureBox.h"

class QAction;
class QMdiArea;
class QMdiSubWindow;
class QMenu;
class CalcForm;

class MDIForm1 : public QMainWindow {
  Q_OBJECT
 public:
  explicit MDIForm1(QWidget* parent = nullptr);
  ~MDIForm1() override;

  // Load: refuses a second running instance (message, then false: the
  // program ends) and otherwise places the window.
  bool load();

  QMdiArea* mdiArea() const { return mdi_; }
  // The shared instance of a form: shown (created on first use) and brought
  // to the front. nullptr when the form is not built into this program.
  QWidget* showShared(const QString& name);
  // The shared instance without showing it (created if needed).
  QWidget* loadShared(const QString& name);
  void showChild(QWidget* form);
  // Moves (and if need be shrinks) a child window so that it lies wholly in
  // the visible part of the window.
  void keepInside(QWidget* subWindow);
  QWidget* activeForm() const;
  QList<QMdiSubWindow*> childWindows() const;
  void activate(QWidget* form);

  // The enlarged schematic behind the child windows.
  void setBackgroundPicture(const PictureBox* picture);

  QAction* menuAction(const QString& name) const;
  QMenuBar* menus() const;

  // Closing without the quit question (end of a script).
  void closeQuietly();
  bool hasQuit() const { return quit_; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void buildMenu();
  void openCrossover(const QString& caption, const QString& mode);
  void openCombination(const QString& mode);
  void showHelp();
  void showLiterature();
  void showInfo();
  void startCalculator();
  void onSubWindowActivated(QMdiSubWindow* sub);
  void placeWindow();
  void placeWithFrame();
  bool accessKey(const QKeySequence& key);
  void updateBackground();

  QMdiArea* mdi_;
  std::map<QString, QPointer<QWidget>> shared_;
  std::map<QString, QAction*> actions_;
  QPointer<QWidget> lastActivated_;
  PictureBox::Drawing backgroundDrawing_;
  QPixmap backgroundPixmap_;
  bool quiet_ = false;
  bool quit_ = false;
  bool placed_ = false;
  bool framePlaced_ = false;
};

// The one main window of the running program.
MDIForm1* mainWindow();
