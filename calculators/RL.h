#pragma once
#include "shell/CalcForm.h"

class FrequencyResponse;
class QComboBox;
class QLineEdit;

// RL network: the frequency where R = XL, or R or L for a wanted frequency.
// Its frequency response shows the network as low-pass and high-pass.
class RL : public CalcForm {
  Q_OBJECT
 public:
  RL();
  void compute() override;
  void clearFields() override;

 private:
  QLineEdit *text1_, *text2_, *text3_;
  QComboBox *comboF_, *comboR_, *comboL_;
  FrequencyResponse* frequenzgang_;
};
