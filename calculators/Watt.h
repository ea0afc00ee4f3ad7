#pragma once
#include "shell/CalcForm.h"

class QComboBox;
class QLineEdit;

// Power: voltage, resistance, current and power; the missing one from two
// others. Typing into a field empties the fields that would contradict it.
class Watt : public CalcForm {
  Q_OBJECT
 public:
  Watt();
  void compute() override;

 protected:
  void keyReleased(QLineEdit* field, int key) override;

 private:
  QLineEdit *text1_, *text2_, *text3_, *text4_;
  QComboBox *comboU_, *comboR_, *comboI_, *comboP_;
};
