#include "calculators/RC.h"

#include <QLabel>

#include "calculators/core/RCCalc.h"
#include "shell/ResponsePlot.h"
#include "shell/FormRegistry.h"
#include "shell/core/Arith.h"

QUARZEL_REGISTER_FORM("RC", RC);

RC::RC() : CalcForm("RC", "RC - Berechnung ") {
  text1_ = makeField("Text1");
  text2_ = makeField("Text2");
  text3_ = makeField("Text3");
  // The time constant is only shown: no typing, no tab stop.
  text4_ = makeField("Text4", false);
  text4_->setReadOnly(true);
  text4_->setFocusPolicy(Qt::NoFocus);
  QPalette locked = text4_->palette();
  locked.setColor(QPalette::Base, locked.color(QPalette::Window));
  text4_->setPalette(locked);
  comboF_ = makeUnitCombo("ComboF", units::frequency(), 1);    // KHz
  comboR_ = makeUnitCombo("ComboR", units::resistance(), 1);   // KOhm
  comboC_ = makeUnitCombo("ComboC", units::capacitance(), 1);  // nF
  comboT_ = makeUnitCombo("ComboT", rc::timeUnits(), 1);       // ms
  comboT_->setEnabled(false);
  addRow(makeLabel("Label1", "&Frequenz:", text1_), text1_, comboF_);
  addRow(makeLabel("Label2", "&Widerstand:", text2_), text2_, comboR_);
  addRow(makeLabel("Label3", QStringLiteral("&Kapazität:"), text3_), text3_, comboC_);
  addRow(makeLabel("Label5", QStringLiteral("Zeitkonstante R·C:")), text4_, comboT_);
  showStandardValues(text2_, comboR_, eseries::Part::Resistor);
  showStandardValues(text3_, comboC_, eseries::Part::Capacitor);
  grid()->addWidget(makeLabel("Label4", "Bedingung : R = XC"), grid()->rowCount(), 0, 1, 3);
  frequenzgang_ = new FrequencyResponse(this, buttonColumn());
}

void RC::clearFields() {
  CalcForm::clearFields();
  frequenzgang_->reset();
}

void RC::compute() {
  // The values as read, the unknown replaced by its result once computed.
  std::vector<double> values;
  bool solved = false;
  computeEmptyField(
      {{text1_, comboF_, rc::frequencyPlacement(), "####0.0########"},
       {text2_, comboR_, rc::resistancePlacement(), "####0.0####"},
       {text3_, comboC_, rc::capacitancePlacement(), "###0.0####"}},
      [&](int unknown, const std::vector<double>& v) {
        double result;
        switch (unknown) {
          case 0: result = rc::frequency(v[1], v[2]); break;
          case 1: result = rc::resistance(v[0], v[2]); break;
          default: result = rc::capacitance(v[0], v[1]); break;
        }
        values = v;
        arith::assign(values[size_t(unknown)], result);
        solved = true;
        return result;
      });
  if (!solved) return;
  writeResult(text4_, comboT_, rc::timePlacement(), rc::timeConstant(values[1], values[2]), "###0.0###");
  // Low- and high-pass of these R and C, the corner frequency marked.
  frequenzgang_->setPlot(bode::rcFilter(values[1], values[2]));
}
