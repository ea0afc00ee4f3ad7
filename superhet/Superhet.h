#pragma once
// "Superhet - Gleichlauf Oszillator / Eingangskreis": the input circuit and
// the three-point tracked oscillator circuit of a superheterodyne tuned by a
// two-section gang, with the tracking points and the largest tracking error.
// Units are fixed (kHz, pF, µH) and named in the captions; no unit combos.
#include <QPointer>

#include "shell/CalcForm.h"
#include "superhet/core/Gleichlauf.h"

class QLineEdit;
class QPushButton;
class SuperhetKurve;

class Superhet : public CalcForm {
  Q_OBJECT
 public:
  Superhet();

  // The form has no activate handler: its identification line is set once
  // when it loads.
  void activated() override {}
  void compute() override;      // Command1
  void clearFields() override;  // Command2: presets back, results emptied
  void kurveZeigen();           // Command5

  // What the curve window draws: the last successful computation.
  bool gueltig() const { return gueltig_; }
  const superhet::Gleichlauf& zustand() const { return zustand_; }

 private:
  void vorgabenSetzen();
  void kurveSchliessen();

  QLineEdit* text_[14] = {};  // Text1..Text13 at their numbers
  QPushButton* command5_;
  superhet::Gleichlauf zustand_;
  bool gueltig_ = false;
  QPointer<SuperhetKurve> kurve_;
};
