#pragma once
#include "shell/CalcForm.h"

class QComboBox;
class QLineEdit;

// Resonant circuit: frequency, inductance or capacitance of an LC circuit.
// Another calculator may fill the fields, set the Tag "L1" and show the
// form; it then computes at once and clears the Tag.
class Schwingk : public CalcForm {
  Q_OBJECT
 public:
  Schwingk();
  void activated() override;
  void compute() override;

 private:
  QLineEdit *text1_, *text2_, *text3_;
  QComboBox *comboF_, *comboL_, *comboC_;
};
