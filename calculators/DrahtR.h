#pragma once
#include <QSet>

#include "shell/CalcForm.h"

class QComboBox;
class QLineEdit;

// Resistance of a wire from its length, its thickness (diameter or
// cross-section) and its material; fills every empty quantity in one press.
class DrahtR : public CalcForm {
  Q_OBJECT
 public:
  DrahtR();
  void compute() override;

 protected:
  void keyReleased(QLineEdit* field, int key) override;

 private:
  QLineEdit *text1_, *text7_, *text2_, *text3_;
  QComboBox *comboLg_, *comboR_, *comboMat_;
  // Thickness fields whose text the user changed since their last coupling.
  QSet<QLineEdit*> edited_;
};
