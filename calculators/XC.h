#pragma once
#include "shell/CalcForm.h"

class QComboBox;
class QLineEdit;

// Reactance of a capacitor: frequency, reactance or capacitance.
class XC : public CalcForm {
  Q_OBJECT
 public:
  XC();
  void compute() override;

 private:
  QLineEdit *text1_, *text2_, *text3_;
  QComboBox *comboF_, *comboXC_, *comboC_;
};
