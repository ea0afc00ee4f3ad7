#pragma once
#include "calculators/DividerForm.h"

class QRadioButton;

// Inductive voltage divider used for impedance matching, with two separate
// coils or one tapped coil; "Kondensator &C1" hands the total inductance to
// the resonant circuit, where the user computes the tuning capacitor.
class L2Teiler : public DividerForm {
  Q_OBJECT
 public:
  L2Teiler();
  void handOver() override;

 protected:
  divider::Run run(const divider::Values& values, const divider::Empty& empty) override;
  void keyReleased(QLineEdit* field, int key) override;

 private:
  QRadioButton *option1_, *option2_;
};
