#pragma once
#include "shell/CalcForm.h"

class QComboBox;
class QLabel;
class QLineEdit;

// Single-layer air-core coil: the missing one of inductance, turns and
// winding length, with the wire length.
class SpuleLuft : public CalcForm {
  Q_OBJECT
 public:
  SpuleLuft();
  void compute() override;
  void clearFields() override;

 private:
  void showHint();

  QLineEdit *text1_, *text2_, *text3_, *text4_, *text5_;
  QComboBox* comboL_;
  QLabel* label8_;
};
