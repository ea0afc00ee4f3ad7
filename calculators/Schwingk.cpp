#include "calculators/Schwingk.h"

#include "calculators/core/SchwingkCalc.h"
#include "shell/FormRegistry.h"

QUARZEL_REGISTER_FORM("Schwingk", Schwingk);

Schwingk::Schwingk() : CalcForm("Schwingk", "Schwingkreisberechnung ") {
  text1_ = makeField("Text1");
  text2_ = makeField("Text2");
  text3_ = makeField("Text3");
  comboF_ = makeUnitCombo("ComboF", units::frequency(), 0);    // MHz
  comboL_ = makeUnitCombo("ComboL", units::inductance(), 1);   // µH
  comboC_ = makeUnitCombo("ComboC", units::capacitance(), 0);  // pF
  addRow(makeLabel("Label1", "&Frequenz:", text1_), text1_, comboF_);
  addRow(makeLabel("Label2", "&Induktivität:", text2_), text2_, comboL_);
  addRow(makeLabel("Label3", "&Kapazität:", text3_), text3_, comboC_);
  showStandardValues(text2_, comboL_, eseries::Part::Inductor);
  showStandardValues(text3_, comboC_, eseries::Part::Capacitor);
}

void Schwingk::activated() {
  CalcForm::activated();
  if (tag() == "L1") {
    compute();
    setTag(QString());
  }
}

void Schwingk::compute() {
  computeEmptyField(
      {{text1_, comboF_, schwingk::frequencyPlacement(), "####0.0########"},
       {text2_, comboL_, schwingk::inductancePlacement(), "####0.0###"},
       {text3_, comboC_, schwingk::capacitancePlacement(), "###0.0###"}},
      [](int unknown, const std::vector<double>& v) {
        switch (unknown) {
          case 0: return schwingk::frequency(v[1], v[2]);
          case 1: return schwingk::inductance(v[0], v[2]);
          default: return schwingk::capacitance(v[0], v[1]);
        }
      });
}
