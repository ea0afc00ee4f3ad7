#include "calculators/XC.h"

#include "calculators/core/ReactanceCalc.h"
#include "shell/FormRegistry.h"

QUARZEL_REGISTER_FORM("XC", XC);

XC::XC() : CalcForm("XC", "Blindwiderstand Xc-Berechnung ") {
  text1_ = makeField("Text1");
  text2_ = makeField("Text2");
  text3_ = makeField("Text3");
  comboF_ = makeUnitCombo("ComboF", units::frequency(), 0);    // MHz
  comboXC_ = makeUnitCombo("ComboXC", xc::reactanceUnits(), 1);  // kOhm
  comboC_ = makeUnitCombo("ComboC", units::capacitance(), 0);  // pF
  addRow(makeLabel("Label1", "&Frequenz:", text1_), text1_, comboF_);
  addRow(makeLabel("Label2", "&XC:", text2_), text2_, comboXC_);
  addRow(makeLabel("Label3", "&Kapazität:", text3_), text3_, comboC_);
  showStandardValues(text3_, comboC_, eseries::Part::Capacitor);
}

void XC::compute() {
  computeEmptyField(
      {{text1_, comboF_, reactance::frequencyPlacement(), "####0.0######"},
       {text2_, comboXC_, reactance::reactancePlacement(), "####0.0######"},
       {text3_, comboC_, xc::capacitancePlacement(), "###0.0####"}},
      [](int unknown, const std::vector<double>& v) {
        switch (unknown) {
          case 0: return xc::frequency(v[1], v[2]);
          case 1: return xc::reactance(v[0], v[2]);
          default: return xc::capacitance(v[0], v[1]);
        }
      });
}
