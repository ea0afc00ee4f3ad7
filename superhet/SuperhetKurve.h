#pragma once
// "Superhet - Gleichlauffehler": the tracking error of the last computation
// of `Superhet`, plotted over the receiving band. A child window of the main
// window, one at a time; it redraws at every size and prints as one page.
#include <QPointer>
#include <QWidget>

#include "superhet/core/Gleichlauf.h"

class OutputTarget;
class PictureBox;
class Superhet;

class SuperhetKurve : public QWidget {
  Q_OBJECT
 public:
  explicit SuperhetKurve(Superhet* quelle);

  // Draws from the tracking form's state; without a valid computation the
  // picture is only cleared.
  void zeichnen();
  void drucken();     // Command1
  void schliessen();  // Command2

  // The plot in the user scale (0, 0)-(1000, 700).
  static void zeichne(OutputTarget& t, const superhet::Gleichlauf& g);

 signals:
  void unloaded();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  QPointer<Superhet> quelle_;
  PictureBox* picture1_;
  bool entladen_ = false;
};
