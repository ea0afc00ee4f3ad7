#pragma once
#include "shell/CalcForm.h"

class QComboBox;
class QLineEdit;
class PictureBox;
class QLabel;

// Unloaded resistive voltage divider: the missing one of ratio, R1 and R2,
// beside a schematic that shows which resistor is which.
class UTeiler : public CalcForm {
  Q_OBJECT
 public:
  UTeiler();
  void compute() override;

 private:
  void enlargePicture();
  // The best E24 and E96 pairs for the ratio, below the fields.
  void proposePairs();

  QLabel *paarE24_, *paarE96_;
  QLineEdit *text1_, *text2_, *text3_;
  QComboBox *comboR1_, *comboR2_;
  PictureBox* image1_;
};
