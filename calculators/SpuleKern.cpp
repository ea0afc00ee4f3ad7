#include "calculators/SpuleKern.h"

#include "calculators/core/SpuleKernCalc.h"
#include "shell/FormRegistry.h"

QUARZEL_REGISTER_FORM("SpuleKern", SpuleKern);

SpuleKern::SpuleKern() : CalcForm("SpuleKern", "Spule mit Kern ") {
  text1_ = makeField("Text1");
  text2_ = makeField("Text2");
  text3_ = makeField("Text3");
  comboAl_ = makeUnitCombo("ComboAl", spulekern::alUnits(), spulekern::kAlStart);
  comboL_ = makeUnitCombo("ComboL", spulekern::inductanceUnits(), spulekern::kInductanceStart);
  addRow(makeLabel("Label1", "&AL-Wert:", text1_), text1_, comboAl_);
  addRow(makeLabel("Label2", "&Induktivität:", text2_), text2_, comboL_);
  addRow(makeLabel("Label3", "&Windungen:", text3_), text3_);
  showStandardValues(text2_, comboL_, eseries::Part::Inductor);
}

void SpuleKern::compute() {
  computeEmptyField(
      {{text1_, comboAl_, spulekern::alPlacement(), "####0.0########"},
       {text2_, comboL_, spulekern::inductancePlacement(), "####0.0###"},
       {text3_, nullptr, {}, "###0.0###"}},
      [](int unknown, const std::vector<double>& v) {
        switch (unknown) {
          case 0: return spulekern::alValue(v[1], v[2]);
          case 1: return spulekern::inductance(v[0], v[2]);
          default: return spulekern::turns(v[1], v[0]);
        }
      });
}
