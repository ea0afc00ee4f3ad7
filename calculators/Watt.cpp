#include "calculators/Watt.h"

#include <QLabel>

#include "calculators/core/WattCalc.h"
#include "shell/DialogService.h"
#include "shell/FormRegistry.h"

QUARZEL_REGISTER_FORM("Watt", Watt);

Watt::Watt() : CalcForm("Watt", "Leistungs - Berechnung ") {
  text1_ = makeField("Text1");
  text2_ = makeField("Text2");
  text3_ = makeField("Text3");
  text4_ = makeField("Text4");
  comboU_ = makeUnitCombo("ComboU", units::voltage(), 1);     // V
  comboR_ = makeUnitCombo("ComboR", units::resistance(), 1);  // KOhm
  comboI_ = makeUnitCombo("ComboI", units::current(), 1);     // mA
  comboP_ = makeUnitCombo("ComboP", watt::powerUnits(), 2);   // W
  addRow(makeLabel("Label1", "&Spannung:", text1_), text1_, comboU_);
  addRow(makeLabel("Label2", "&Widerstand:", text2_), text2_, comboR_);
  QLabel* oder = makeLabel("Label6", "oder");
  grid()->addWidget(oder, grid()->rowCount(), 1, Qt::AlignHCenter);
  addRow(makeLabel("Label3", "Stro&m:", text3_), text3_, comboI_);
  addRow(makeLabel("Label5", "&Leistung:", text4_), text4_, comboP_);
  QLabel* conditions = makeLabel(
      "Label4",
      QStringLiteral("Bedingungen : Gleichstrom oder sinusförmiger Wechselstrom mit Effektivwerten bei Strom und "
                     "Spannung (dann W = VA)"));
  conditions->setWordWrap(true);
  grid()->addWidget(conditions, grid()->rowCount(), 0, 1, 3);
  showStandardValues(text2_, comboR_, eseries::Part::Resistor);
}

void Watt::compute() {
  QLineEdit* const fields[4] = {text1_, text2_, text3_, text4_};
  QComboBox* const combos[4] = {comboU_, comboR_, comboI_, comboP_};
  double v[4];
  int known = 0;
  for (int k = 0; k < 4; ++k) {
    v[k] = read(fields[k], combos[k]);
    if (v[k] > 0) ++known;
  }
  if (known < 2) {
    dialogs::msgBox(frame::kTwoValues);
    return;
  }
  const double u = v[0], r = v[1], i = v[2], p = v[3];
  for (int k : watt::kSearchOrder) {
    if (!fields[k]->text().isEmpty()) continue;
    // A result that failed or lies below the smallest unit is not written.
    switch (k) {
      case 0:
        writeResult(text1_, comboU_, watt::voltagePlacement(), watt::voltage(r, i, p), "####0.0########");
        break;
      case 2:
        writeResult(text3_, comboI_, watt::currentPlacement(), watt::current(u, r, p), "###0.0####");
        break;
      case 3:
        writeResult(text4_, comboP_, watt::powerPlacement(), watt::power(u, r, i), "###0.0####");
        break;
      default:
        writeResult(text2_, comboR_, watt::resistancePlacement(), watt::resistance(u, i, p), "####0.0####");
        break;
    }
    return;
  }
  dialogs::msgBox(frame::kMustBeEmpty);
}

void Watt::keyReleased(QLineEdit* field, int key) {
  // Delete keeps the other fields.
  if (key == Qt::Key_Delete) return;
  if (field == text1_) {
    text3_->clear();
    text4_->clear();
  } else if (field == text2_) {
    text3_->clear();
    if (!text1_->text().isEmpty()) text4_->clear();
  } else if (field == text3_) {
    text2_->clear();
    if (!text1_->text().isEmpty()) text4_->clear();
  } else if (field == text4_) {
    text3_->clear();
    text2_->clear();
  }
}
