#pragma once
#include "shell/CalcForm.h"

class QComboBox;
class QLabel;
class QLineEdit;

// Quality of a resonant circuit: completes f0, L, C and gives Q, bandwidth,
// parallel resonance resistance and series loss resistance from any one.
class QLCR : public CalcForm {
  Q_OBJECT
 public:
  QLCR();
  void compute() override;
  void clearFields() override;

 protected:
  void keyReleased(QLineEdit* field, int key) override;

 private:
  void showHint();

  QLineEdit *text1_, *text2_, *text3_, *text4_, *text5_, *text6_, *text7_;
  QComboBox *comboF_, *comboL_, *comboC_, *comboB_, *comboRp_, *comboRs_;
  QLabel* label9_;
};
