#pragma once
// "Superhet - Gleichlauffehler": the tracking error of the last computation
// of `Superhet`, plotted over the receiving band. A child window of the main
// window, one at a time; it redraws at every size and prints as one page.
#include <QPointer>

#include "shell/PlotWindow.h"
#include "superhet/core/Gleichlauf.h"

class OutputTarget;
class Superhet;

class SuperhetKurve : public PlotWindow {
  Q_OBJECT
 public:
  explicit SuperhetKurve(Superhet* quelle);

  // Draws from the tracking form's state; without a valid computation the
  // picture is only cleared.
  void zeichnen();

  // The plot in the user scale (0, 0)-(1000, 700).
  static void zeichne(OutputTarget& t, const superhet::Gleichlauf& g);

 private:
  QPointer<Superhet> quelle_;
};
