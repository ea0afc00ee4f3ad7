#pragma once
// A plot in a child window of the main window: a picture drawn on the
// drawing surface, "&Drucken" (one page) and "&Schliessen". The picture is
// redrawn at every size the window takes. The form that opens the window
// fills the picture and closes the window when it goes.
#include <QSize>
#include <QWidget>

class PictureBox;

class PlotWindow : public QWidget {
  Q_OBJECT
 public:
  // `least` is the smallest picture in which the plot's labels still stand
  // apart.
  PlotWindow(const QString& name, const QString& title, QSize least);

  PictureBox* picture() const { return picture1_; }

  // Shows the window in the main window, report-sized as far as there is
  // room, below `form` when it fits there, so both stay readable. Shown
  // before, it is only brought to the front.
  void zeigenUnter(QWidget* form, QSize wunsch = QSize(760, 600));

  void drucken();     // Command1
  void schliessen();  // Command2

 signals:
  void unloaded();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  PictureBox* picture1_;
  bool platziert_ = false;
  bool entladen_ = false;
};
