#pragma once
#include "calculators/DividerForm.h"

// Capacitive voltage divider used for impedance matching; "Spule &L1"
// hands the series capacitance to the resonant circuit, which then
// computes the inductance of the tuned circuit at once.
class CTeiler : public DividerForm {
  Q_OBJECT
 public:
  CTeiler();
  void handOver() override;

 protected:
  divider::Run run(const divider::Values& values, const divider::Empty& empty) override;
};
