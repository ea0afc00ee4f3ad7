#pragma once
#include "shell/CalcForm.h"

class QComboBox;
class QLabel;
class FrequencyResponse;
class QLineEdit;
class QRadioButton;

// RLC network: R, L and C in series or in parallel at one frequency;
// reactances, impedance, phase angle, behaviour and resonant frequency.
// Every press writes all results; there is no unknown among the inputs.
class RLC : public CalcForm {
  Q_OBJECT
 public:
  RLC();
  void compute() override;
  void clearFields() override;

 private:
  void clearResults();

  QRadioButton *option1_, *option2_;
  QLineEdit *text1_, *text2_, *text3_, *text4_;
  QComboBox *comboF_, *comboR_, *comboL_, *comboC_;
  QLineEdit *text5_, *text6_, *text7_, *text8_, *text9_;
  QComboBox *comboXL_, *comboXC_, *comboZ_, *comboF0_;
  QLabel* label10_;
  FrequencyResponse* frequenzgang_;
};
