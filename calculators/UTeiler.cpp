#include "calculators/UTeiler.h"

#include <QLabel>

#include "calculators/Schematics.h"
#include "calculators/core/UTeilerCalc.h"
#include "shell/Addition.h"
#include "shell/DialogService.h"
#include "shell/FormRegistry.h"
#include "shell/MDIForm1.h"
#include "shell/PictureBox.h"
#include "shell/core/Module1.h"
#include "shell/core/NumberFormat.h"
#include "shell/core/StandardValues.h"

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
  // Below the fields: the resistor pairs that come closest to the ratio.
  paarE24_ = makeLabel("PaarE24", QString());
  paarE96_ = makeLabel("PaarE96", QString());
  for (QLabel* l : {paarE24_, paarE96_}) {
    addition::mark(l);
    l->hide();
    grid()->addWidget(l, grid()->rowCount(), 0, 1, 6);
  }
  for (QLineEdit* e : {text1_, text2_, text3_})
    connect(e, &QLineEdit::textEdited, this, [this] {
      paarE24_->hide();
      paarE96_->hide();
    });

  // The schematic stands right of the combos and the standard values, the
  // fields centred beside it.
  image1_ = new PictureBox("Image1", this);
  image1_->setDrawing(schematics::drawVoltageDivider);
  image1_->setMinimumSize(170, 186);
  image1_->setToolTip(QString::fromUtf8("Doppelklick: Schaltbild vergrößert im Hintergrund zeigen"));
  const int rows = grid()->rowCount();
  grid()->addWidget(image1_, 0, 6, rows + 1, 1);
  grid()->setColumnMinimumWidth(6, 170);
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
  proposePairs();
}

void UTeiler::proposePairs() {
  const double ratio = read(text1_), r1 = read(text2_, comboR1_), r2 = read(text3_, comboR2_);
  const bool complete = ratio > 1 && r1 > 0 && r2 > 0;
  const std::pair<QLabel*, eseries::Series> rows[] = {{paarE24_, eseries::Series::E24},
                                                      {paarE96_, eseries::Series::E96}};
  for (const auto& [label, series] : rows) {
    const auto pair = complete ? eseries::bestDividerPair(series, r1, r2, ratio) : std::nullopt;
    if (!pair) {
      label->hide();
      continue;
    }
    label->setText(eseries::name(series) + QStringLiteral("-Paar: R1 = ") +
                   eseries::valueText(pair->r1, units::resistance()) + QStringLiteral(", R2 = ") +
                   eseries::valueText(pair->r2, units::resistance()) + QStringLiteral(", Ue/Ua = ") +
                   numfmt::format(pair->ratio, "##0.0###") + QStringLiteral(" (") +
                   eseries::deviationText(pair->error) + ')');
    label->show();
  }
  addition::makeRoom(this);
}

void UTeiler::enlargePicture() {
  MDIForm1* main = mainWindow();
  if (!main) return;
  main->setBackgroundPicture(nullptr);
  main->setBackgroundPicture(image1_);
}
