#pragma once
#include "shell/CalcForm.h"

class QComboBox;
class QLineEdit;

// RL network: the frequency where R = XL, or R or L for a wanted frequency.
class RL : public CalcForm {
  Q_OBJECT
 public:
  RL();
  void compute() override;

 private:
  QLineEdit *text1_, *text2_, *text3_;
  QComboBox *comboF_, *comboR_, *comboL_;
};
