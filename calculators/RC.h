#pragma once
#include "shell/CalcForm.h"

class QComboBox;
class QLineEdit;
class FrequencyResponse;

// RC network: the frequency where R = XC, or R or C for a wanted frequency,
// with the time constant R · C beside it.
class RC : public CalcForm {
  Q_OBJECT
 public:
  RC();
  void compute() override;
  void clearFields() override;

 private:
  FrequencyResponse* frequenzgang_;
  QLineEdit *text1_, *text2_, *text3_, *text4_;
  QComboBox *comboF_, *comboR_, *comboC_, *comboT_;
};
