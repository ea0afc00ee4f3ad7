#pragma once
#include "shell/CalcForm.h"

class QComboBox;
class QLineEdit;

// Reactance of a coil: frequency, inductance or reactance.
class XL : public CalcForm {
  Q_OBJECT
 public:
  XL();
  void compute() override;

 private:
  QLineEdit *text1_, *text2_, *text3_;
  QComboBox *comboF_, *comboL_, *comboXL_;
};
