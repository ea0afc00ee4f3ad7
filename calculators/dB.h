#pragma once
#include "shell/CalcForm.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QRadioButton;

// Decibels: from two of input, output and dB value the third, for voltages
// (currents) or powers, with a free or a fixed reference input.
class dB : public CalcForm {
  Q_OBJECT
 public:
  dB();
  void compute() override;
  void clearFields() override;

 private:
  void quantityChosen(bool power);
  void referenceChosen(int index);

  QLineEdit *text1_, *text2_, *text3_;
  QComboBox *comboE_, *comboA_, *comboBezug_;
  QRadioButton *option1_, *option2_, *option3_, *option4_;
  QLabel* label6_;
};
