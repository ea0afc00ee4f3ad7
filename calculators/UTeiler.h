#pragma once
#include "shell/CalcForm.h"

class QComboBox;
class QLineEdit;
class PictureBox;

// Unloaded resistive voltage divider: the missing one of ratio, R1 and R2,
// beside a schematic that shows which resistor is which.
class UTeiler : public CalcForm {
  Q_OBJECT
 public:
  UTeiler();
  void compute() override;

 private:
  void enlargePicture();

  QLineEdit *text1_, *text2_, *text3_;
  QComboBox *comboR1_, *comboR2_;
  PictureBox* image1_;
};
