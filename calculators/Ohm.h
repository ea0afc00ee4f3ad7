#pragma once
#include "shell/CalcForm.h"

class QComboBox;
class QLineEdit;

// Ohm's law: the missing one of voltage, resistance and current.
class Ohm : public CalcForm {
  Q_OBJECT
 public:
  Ohm();
  void compute() override;

 private:
  QLineEdit *text1_, *text2_, *text3_;
  QComboBox *comboU_, *comboR_, *comboI_;
};
