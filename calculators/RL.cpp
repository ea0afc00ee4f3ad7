#include "calculators/RL.h"

#include <QLabel>

#include "calculators/core/RLCalc.h"
#include "shell/FormRegistry.h"
#include "shell/ResponsePlot.h"

QUARZEL_REGISTER_FORM("RL", RL);

RL::RL() : CalcForm("RL", "RL - Berechnung ") {
  text1_ = makeField("Text1");
  text2_ = makeField("Text2");
  text3_ = makeField("Text3");
  comboF_ = makeUnitCombo("ComboF", units::frequency(), 1);    // KHz
  comboR_ = makeUnitCombo("ComboR", units::resistance(), 1);   // KOhm
  comboL_ = makeUnitCombo("ComboL", rl::inductanceUnits(), 1);  // mH
  addRow(makeLabel("Label1", "&Frequenz:", text1_), text1_, comboF_);
  addRow(makeLabel("Label2", "&Widerstand:", text2_), text2_, comboR_);
  addRow(makeLabel("Label3", "&Induktivität:", text3_), text3_, comboL_);
  showStandardValues(text2_, comboR_, eseries::Part::Resistor);
  showStandardValues(text3_, comboL_, eseries::Part::Inductor);
  grid()->addWidget(makeLabel("Label4", "Bedingung : R = XL"), grid()->rowCount(), 0, 1, 3);
  frequenzgang_ = new FrequencyResponse(this, buttonColumn());
}

void RL::compute() {
  const bool computed = computeEmptyField(
      {{text1_, comboF_, rl::frequencyPlacement(), "####0.0########"},
       {text2_, comboR_, rl::resistancePlacement(), "####0.0####"},
       {text3_, comboL_, rl::inductancePlacement(), "###0.0####"}},
      [](int unknown, const std::vector<double>& v) {
        switch (unknown) {
          case 0: return rl::frequency(v[1], v[2]);
          case 1: return rl::resistance(v[0], v[2]);
          default: return rl::inductance(v[0], v[1]);
        }
      });
  if (computed) frequenzgang_->setPlot(bode::rlFilter(read(text2_, comboR_), read(text3_, comboL_)));
}

void RL::clearFields() {
  CalcForm::clearFields();
  frequenzgang_->reset();
}
