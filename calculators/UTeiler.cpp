#include "calculators/UTeiler.h"

#include <QLabel>

#include "calculators/Schematics.h"
#include "calculators/core/UTeilerCalc.h"
#include "shell/DialogService.h"
#include "shell/FormRegistry.h"
#include "shell/MDIForm1.h"
#include "shell/PictureBox.h"
#include "shell/core/Module1.h"

QUARZEL_REGISTER_FORM("UTeiler", UTeiler);

UTeiler::UTeiler() : CalcForm("UTeiler", "Ohmscher Spannungsteiler") {
  text1_ = makeField("Text1");
  text2_ = makeField("Text2");
  text3_ = makeField("Text3");
  comboR1_ = makeUnitCombo("ComboR1", units::resistance(), uteiler::kResistanceStart);
  comboR2_ = makeUnitCombo("ComboR2", units::resistance(), uteiler::kResistanceStart);
  addRow(makeLabel("Label1", "&Verhältnis Ue/Ua :", text1_), text1_);
  addRow(makeLabel("Label2", "R&1 :", text2_), text2_, comboR1_);
  addRow(makeLabel("Label3", "R&2 :", text3_), text3_, comboR2_);
  showStandardValues(text2_, comboR1_, eseries::Part::Resistor);
  showStandardValues(text3_, comboR2_, eseries::Part::Resistor);

  // The schematic stands right of the combos, the fields centred beside it.
  image1_ = new PictureBox("Image1", this);
  image1_->setDrawing(schematics::drawVoltageDivider);
  image1_->setMinimumSize(170, 186);
  image1_->setToolTip(QString::fromUtf8("Doppelklick: Schaltbild vergrößert im Hintergrund zeigen"));
  const int rows = grid()->rowCount();
  grid()->addWidget(image1_, 0, 3, rows + 1, 1);
  grid()->setColumnMinimumWidth(3, 170);
  grid()->setRowStretch(0, 1);
  grid()->setRowStretch(rows, 1);
  connect(image1_, &PictureBox::doubleClicked, this, &UTeiler::enlargePicture);
}

void UTeiler::compute() {
  if (uteiler::ratioRefused(read(text1_))) {
    dialogs::msgBox(uteiler::kRatioMessage, dialogs::Icon::Exclamation, dialogs::Buttons::OK, uteiler::kRatioTitle);
    return;
  }
  computeEmptyField(
      {{text1_, nullptr, {}, "####0.0#####"},
       {text2_, comboR1_, uteiler::resistancePlacement(), "####0.0###"},
       {text3_, comboR2_, uteiler::resistancePlacement(), "###0.0###"}},
      [](int unknown, const std::vector<double>& v) {
        switch (unknown) {
          case 0: return uteiler::ratio(v[1], v[2]);
          case 1: return uteiler::upper(v[0], v[2]);
          default: return uteiler::lower(v[0], v[1]);
        }
      });
}

void UTeiler::enlargePicture() {
  MDIForm1* main = mainWindow();
  if (!main) return;
  main->setBackgroundPicture(nullptr);
  main->setBackgroundPicture(image1_);
}
