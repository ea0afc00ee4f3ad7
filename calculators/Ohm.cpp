#include "calculators/Ohm.h"

#include "calculators/core/OhmCalc.h"
#include "shell/FormRegistry.h"

QUARZEL_REGISTER_FORM("Ohm", Ohm);

Ohm::Ohm() : CalcForm("Ohm", "Ohmsches Gesetz R=U/I") {
  text1_ = makeField("Text1");
  text2_ = makeField("Text2");
  text3_ = makeField("Text3");
  comboU_ = makeUnitCombo("ComboU", units::voltage(), 1);
  comboR_ = makeUnitCombo("ComboR", units::resistance(), 1);
  comboI_ = makeUnitCombo("ComboI", units::current(), 1);
  addRow(makeLabel("Label1", "&U (Spannung):", text1_), text1_, comboU_);
  addRow(makeLabel("Label2", "&R(Widerstand):", text2_), text2_, comboR_);
  addRow(makeLabel("Label3", "&I (Strom):", text3_), text3_, comboI_);
  showStandardValues(text2_, comboR_, eseries::Part::Resistor);
}

void Ohm::compute() {
  computeEmptyField(
      {{text1_, comboU_, ohm::voltagePlacement(), "####0.0########"},
       {text2_, comboR_, ohm::resistancePlacement(), "####0.0###"},
       {text3_, comboI_, ohm::currentPlacement(), "###0.0###"}},
      [](int unknown, const std::vector<double>& v) {
        switch (unknown) {
          case 0: return ohm::voltage(v[1], v[2]);
          case 1: return ohm::resistance(v[0], v[2]);
          default: return ohm::current(v[0], v[1]);
        }
      });
}
