#include "calculators/XL.h"

#include "calculators/core/ReactanceCalc.h"
#include "shell/FormRegistry.h"

QUARZEL_REGISTER_FORM("XL", XL);

XL::XL() : CalcForm("XL", "Blindwiderstand XL-Berechnung ") {
  text1_ = makeField("Text1");
  text2_ = makeField("Text2");
  text3_ = makeField("Text3");
  comboF_ = makeUnitCombo("ComboF", units::frequency(), 0);      // MHz
  comboL_ = makeUnitCombo("ComboL", units::inductance(), 1);     // µH
  comboXL_ = makeUnitCombo("ComboXL", xl::reactanceUnits(), 0);  // Ohm
  addRow(makeLabel("Label1", "&Frequenz:", text1_), text1_, comboF_);
  addRow(makeLabel("Label2", "&Induktivität:", text2_), text2_, comboL_);
  addRow(makeLabel("Label3", "&XL:", text3_), text3_, comboXL_);
  showStandardValues(text2_, comboL_, eseries::Part::Inductor);
}

void XL::compute() {
  computeEmptyField(
      {{text1_, comboF_, reactance::frequencyPlacement(), "####0.0######"},
       {text2_, comboL_, xl::inductancePlacement(), "####0.0####"},
       {text3_, comboXL_, reactance::reactancePlacement(), "###0.0#######"}},
      [](int unknown, const std::vector<double>& v) {
        switch (unknown) {
          case 0: return xl::frequency(v[2], v[1]);
          case 1: return xl::inductance(v[0], v[2]);
          default: return xl::reactance(v[0], v[1]);
        }
      });
}
