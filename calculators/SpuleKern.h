#pragma once
#include "shell/CalcForm.h"

class QComboBox;
class QLineEdit;

// Coil on a core: the missing one of AL value, inductance and turns.
class SpuleKern : public CalcForm {
  Q_OBJECT
 public:
  SpuleKern();
  void compute() override;

 private:
  QLineEdit *text1_, *text2_, *text3_;
  QComboBox *comboAl_, *comboL_;
};
