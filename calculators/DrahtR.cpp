#include "calculators/DrahtR.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

#include "calculators/core/DrahtRCalc.h"
#include "shell/DialogService.h"
#include "shell/FormRegistry.h"
#include "shell/core/Arith.h"
#include "shell/core/Module1.h"
#include "shell/core/NumberFormat.h"

QUARZEL_REGISTER_FORM("DrahtR", DrahtR);

namespace {
const char* const kThicknessPattern = "####0.0#####";
const char* const kPattern = "####0.0###";
const char* const kMaterialPattern = "#0.0######";
}  // namespace

DrahtR::DrahtR() : CalcForm("DrahtR", QString::fromUtf8(" Leiter - Widerstand bei 20°C")) {
  text1_ = makeField("Text1");
  text7_ = makeField("Text7");
  text2_ = makeField("Text2");
  text3_ = makeField("Text3");
  comboLg_ = makeUnitCombo("ComboLg", drahtr::lengthUnits(), drahtr::kLengthStart);
  comboR_ = makeUnitCombo("ComboR", drahtr::resistanceUnits(), drahtr::kResistanceStart);

  comboMat_ = new QComboBox(this);
  comboMat_->setObjectName("ComboMat");
  comboMat_->setEditable(true);
  comboMat_->setInsertPolicy(QComboBox::NoInsert);
  comboMat_->addItems(drahtr::materials());
  comboMat_->setCurrentIndex(0);
  comboMat_->setMinimumContentsLength(24);
  comboMat_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);

  // Diameter or cross-section, in the frame "Leiter:".
  auto* frame = new QGroupBox("Leiter:", this);
  frame->setObjectName("Frame1");
  auto* fg = new QGridLayout(frame);
  fg->setHorizontalSpacing(8);
  fg->addWidget(makeLabel("Label1", "&Durchmesser :", text1_), 0, 0);
  fg->addWidget(text1_, 0, 1);
  fg->addWidget(makeLabel("Label8", "mm"), 0, 2);
  auto* oder = makeLabel("Label6", "oder");
  fg->addWidget(oder, 1, 1, Qt::AlignHCenter);
  fg->addWidget(makeLabel("Label7", "&Querschnitt :", text7_), 2, 0);
  fg->addWidget(text7_, 2, 1);
  fg->addWidget(makeLabel("Label9", QString::fromUtf8("mm²")), 2, 2);
  fg->setColumnStretch(3, 1);
  grid()->addWidget(frame, 0, 0, 1, 3);

  addRow(makeLabel("Label2", QString::fromUtf8("&Länge :"), text2_), text2_, comboLg_);
  addRow(makeLabel("Label3", "&Widerstand :", text3_), text3_, comboR_);

  const int r = grid()->rowCount();
  grid()->addWidget(makeLabel("Label5", "Spezifischer Widerstand"), r, 0, 1, 3);
  grid()->addWidget(makeLabel("Label4", "( &Material ) :", comboMat_), r + 1, 0);
  grid()->addWidget(comboMat_, r + 1, 1, 1, 2);
  grid()->addWidget(makeLabel("Label10", QString::fromUtf8("Ohm·mm²/m")), r + 2, 1, 1, 2);
  grid()->setRowStretch(r + 3, 1);

  for (QLineEdit* e : {text1_, text7_}) {
    connect(e, &QLineEdit::textEdited, this, [this, e] { edited_.insert(e); });
  }
}

void DrahtR::keyReleased(QLineEdit* field, int /*key*/) {
  // Diameter and cross-section describe the same wire: the one typed in
  // gives the other. Only a key that changed the text counts, so a swallowed
  // character or a Backspace in an empty field does not turn the rounded
  // value back into the one the user typed.
  if (field != text1_ && field != text7_) return;
  if (!edited_.remove(field)) return;
  QLineEdit* other = field == text1_ ? text7_ : text1_;
  edited_.remove(other);
  if (field->text().isEmpty()) {
    other->clear();
    return;
  }
  const double v = Module1::ParseNumber(field->text());
  writeNumber(other, field == text1_ ? drahtr::crossSectionOf(v) : drahtr::diameterOf(v), kThicknessPattern);
}

void DrahtR::compute() {
  drahtr::Input in;
  in.d = read(text1_);
  in.a = read(text7_);
  in.l = read(text2_, comboLg_);
  in.r = read(text3_, comboR_);
  in.rho = Module1::ParseNumber(comboMat_->currentText());
  in.dEmpty = text1_->text().isEmpty();
  in.aEmpty = text7_->text().isEmpty();
  in.lEmpty = text2_->text().isEmpty();
  in.rEmpty = text3_->text().isEmpty();

  for (const drahtr::Event& e : drahtr::compute(in)) {
    if (e.kind == drahtr::Event::Kind::Message) {
      dialogs::msgBox(e.text);
      continue;
    }
    switch (e.field) {
      case drahtr::Field::Diameter: writeNumber(text1_, e.value, kThicknessPattern); break;
      case drahtr::Field::CrossSection: writeNumber(text7_, e.value, kThicknessPattern); break;
      case drahtr::Field::Length:
        writeResult(text2_, comboLg_, drahtr::lengthPlacement(), e.value, kPattern);
        break;
      case drahtr::Field::Resistance:
        writeResult(text3_, comboR_, drahtr::resistancePlacement(), e.value, kPattern);
        break;
      case drahtr::Field::Material:
        if (arith::ok(e.value)) comboMat_->setEditText(numfmt::format(e.value, kMaterialPattern));
        break;
    }
  }
}
