#include "calculators/RLC.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include "calculators/core/RLCCalc.h"
#include "shell/ResponsePlot.h"
#include "shell/FormText.h"
#include "shell/DialogService.h"
#include "shell/FormRegistry.h"

QUARZEL_REGISTER_FORM("RLC", RLC);

namespace {

// A result field: written only by the computation, no typing, no tab stop.
void lock(QLineEdit* field) {
  field->setReadOnly(true);
  field->setFocusPolicy(Qt::NoFocus);
  QPalette p = field->palette();
  p.setColor(QPalette::Base, p.color(QPalette::Window));
  field->setPalette(p);
}

}  // namespace

RLC::RLC() : CalcForm("RLC", "RLC - Berechnung ") {
  auto* frame1 = new QGroupBox("Schaltung:", this);
  frame1->setObjectName("Frame1");
  auto* options = new QVBoxLayout(frame1);
  option1_ = new QRadioButton("&Reihenschaltung", frame1);
  option1_->setObjectName("Option1");
  option2_ = new QRadioButton("&Parallelschaltung", frame1);
  option2_->setObjectName("Option2");
  option1_->setChecked(true);
  options->addWidget(option1_);
  options->addWidget(option2_);
  for (QRadioButton* o : {option1_, option2_}) connect(o, &QRadioButton::clicked, this, [this] { clearResults(); });

  text1_ = makeField("Text1");
  text2_ = makeField("Text2");
  text3_ = makeField("Text3");
  text4_ = makeField("Text4");
  comboF_ = makeUnitCombo("ComboF", units::frequency(), 1);    // KHz
  comboR_ = makeUnitCombo("ComboR", units::resistance(), 0);   // Ohm
  comboL_ = makeUnitCombo("ComboL", units::inductance(), 2);   // mH
  comboC_ = makeUnitCombo("ComboC", units::capacitance(), 2);  // µF
  auto* frame2 = new QGroupBox("Vorgaben:", this);
  frame2->setObjectName("Frame2");
  auto* given = new QGridLayout(frame2);
  const struct {
    const char* label;
    QString caption;
    QLineEdit* field;
    QComboBox* combo;
  } inputs[] = {{"Label1", "&Frequenz:", text1_, comboF_},
                {"Label2", "&Widerstand:", text2_, comboR_},
                {"Label3", QStringLiteral("&Induktivität:"), text3_, comboL_},
                {"Label4", QStringLiteral("&Kapazität:"), text4_, comboC_}};
  int row = 0;
  for (const auto& in : inputs) {
    given->addWidget(makeLabel(in.label, in.caption, in.field), row, 0);
    given->addWidget(in.field, row, 1);
    given->addWidget(in.combo, row, 2);
    ++row;
  }

  text5_ = makeField("Text5", false);
  text6_ = makeField("Text6", false);
  text7_ = makeField("Text7", false);
  text8_ = makeField("Text8", false);
  text9_ = makeField("Text9", false);
  for (QLineEdit* e : {text5_, text6_, text7_, text8_, text9_}) lock(e);
  comboXL_ = makeUnitCombo("ComboXL", units::resistance(), 0);
  comboXC_ = makeUnitCombo("ComboXC", units::resistance(), 0);
  comboZ_ = makeUnitCombo("ComboZ", units::resistance(), 0);
  comboF0_ = makeUnitCombo("ComboF0", units::frequency(), 1);
  for (QComboBox* c : {comboXL_, comboXC_, comboZ_, comboF0_}) c->setEnabled(false);
  auto* frame3 = new QGroupBox("Ergebnisse:", this);
  frame3->setObjectName("Frame3");
  auto* results = new QGridLayout(frame3);
  const struct {
    const char* label;
    const char* caption;
    QLineEdit* field;
    QComboBox* combo;
  } outputs[] = {{"Label5", "XL:", text5_, comboXL_},
                 {"Label6", "XC:", text6_, comboXC_},
                 {"Label7", "Z (Scheinwiderstand):", text7_, comboZ_},
                 {"Label8", "Phasenwinkel:", text8_, nullptr},
                 {"Label9", "Resonanzfrequenz f0:", text9_, comboF0_}};
  row = 0;
  for (const auto& out : outputs) {
    results->addWidget(makeLabel(out.label, out.caption), row, 0);
    results->addWidget(out.field, row, 1);
    if (out.combo) results->addWidget(out.combo, row, 2);
    ++row;
  }
  results->addWidget(makeLabel("Label11", QStringLiteral("°")), 3, 2);
  label10_ = makeLabel("Label10", QString());
  formtext::markResult(label10_);
  results->addWidget(label10_, row, 0, 1, 3);

  grid()->addWidget(frame1, 0, 0);
  grid()->addWidget(frame2, 1, 0);
  grid()->addWidget(frame3, 2, 0);
  frequenzgang_ = new FrequencyResponse(this, buttonColumn());
}

void RLC::clearResults() {
  for (QLineEdit* e : {text5_, text6_, text7_, text8_, text9_}) e->clear();
  label10_->clear();
  frequenzgang_->reset();
}

void RLC::clearFields() {
  CalcForm::clearFields();
  label10_->clear();
  frequenzgang_->reset();
}

void RLC::compute() {
  const double f = read(text1_, comboF_);
  const double r = read(text2_, comboR_);
  const double l = read(text3_, comboL_);
  const double c = read(text4_, comboC_);
  if (!(f > 0) || !(l > 0) || !(c > 0)) {
    dialogs::msgBox(QStringLiteral("Bitte Frequenz, Induktivität und Kapazität eingeben!"));
    return;
  }
  const rlc::Result res = rlc::analyse(f, r, l, c, option2_->isChecked());
  const QString ohm = "####0.0###";
  writeResult(text5_, comboXL_, rlc::resistancePlacement(), res.xl, ohm);
  writeResult(text6_, comboXC_, rlc::resistancePlacement(), res.xc, ohm);
  if (res.zEmpty)
    text7_->clear();
  else
    writeResult(text7_, comboZ_, rlc::resistancePlacement(), res.z, ohm);
  if (writeNumber(text8_, res.phi, "##0.0#")) label10_->setText(rlc::behaviour(res.phi));
  writeResult(text9_, comboF0_, rlc::frequencyPlacement(), res.f0, "####0.0#####");
  // |Z| and phase of this circuit over frequency, f0 marked.
  frequenzgang_->setPlot(bode::rlcImpedance(r > 0 ? r : 0.0, l, c, option2_->isChecked()));
}
