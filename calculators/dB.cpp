#include "calculators/dB.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include "calculators/core/dBCalc.h"
#include "shell/FormText.h"
#include "shell/DialogService.h"
#include "shell/FormRegistry.h"
#include "shell/core/Arith.h"
#include "shell/core/NumberFormat.h"

QUARZEL_REGISTER_FORM("dB", dB);

namespace {
const char* const kValuePattern = "####0.0#####";
const char* const kLevelPattern = "###0.0###";

QRadioButton* option(QWidget* parent, const char* name, const QString& caption) {
  auto* o = new QRadioButton(caption, parent);
  o->setObjectName(name);
  return o;
}

QGroupBox* optionFrame(QWidget* parent, const char* name, const QString& title, QRadioButton* a,
                       QRadioButton* b) {
  auto* frame = new QGroupBox(title, parent);
  frame->setObjectName(name);
  auto* column = new QVBoxLayout(frame);
  a->setParent(frame);
  b->setParent(frame);
  column->addWidget(a);
  column->addWidget(b);
  return frame;
}
}  // namespace

dB::dB() : CalcForm("dB", "dB - Rechner") {
  text1_ = makeField("Text1");
  text2_ = makeField("Text2");
  text3_ = makeField("Text3");
  comboE_ = makeUnitCombo("ComboE", db::voltageUnits(), db::kUnitStart);
  comboA_ = makeUnitCombo("ComboA", db::voltageUnits(), db::kUnitStart);

  option1_ = option(this, "Option1", "Spannung / St&rom");
  option2_ = option(this, "Option2", "&Leistung");
  option3_ = option(this, "Option3", "&Verstärkung");
  option4_ = option(this, "Option4", QStringLiteral("Dä&mpfung"));
  QGroupBox* frame1 = optionFrame(this, "Frame1", QStringLiteral("Größe:"), option1_, option2_);
  QGroupBox* frame2 = optionFrame(this, "Frame2", "Richtung:", option3_, option4_);
  option1_->setChecked(true);
  option3_->setChecked(true);

  comboBezug_ = new QComboBox(this);
  comboBezug_->setObjectName("ComboBezug");
  for (const db::Reference& r : db::references()) comboBezug_->addItem(r.item);
  comboBezug_->setCurrentIndex(0);

  auto* frames = new QHBoxLayout;
  frames->addWidget(frame1);
  frames->addWidget(frame2);
  grid()->addLayout(frames, 0, 0, 1, 3);
  const int r = grid()->rowCount();
  grid()->addWidget(makeLabel("Label5", "Be&zug:", comboBezug_), r, 0);
  grid()->addWidget(comboBezug_, r, 1, 1, 2);
  addRow(makeLabel("Label1", "&Eingang:", text1_), text1_, comboE_);
  addRow(makeLabel("Label2", "&Ausgang:", text2_), text2_, comboA_);
  addRow(makeLabel("Label3", "dB-&Wert:", text3_), text3_);
  grid()->addWidget(makeLabel("Label4", "dB"), grid()->rowCount() - 1, 2);
  label6_ = makeLabel("Label6", QString());
  formtext::markResult(label6_);
  // Room for the ratio line with a ratio of several digits on both sides.
  label6_->setMinimumWidth(label6_->fontMetrics().horizontalAdvance(
      QStringLiteral("Verhältnis Ausgang / Eingang: 0000000,00000")));
  grid()->addWidget(label6_, grid()->rowCount(), 0, 1, 3);
  grid()->setRowStretch(grid()->rowCount(), 1);

  connect(option1_, &QRadioButton::clicked, this, [this] { quantityChosen(false); });
  connect(option2_, &QRadioButton::clicked, this, [this] { quantityChosen(true); });
  for (QRadioButton* o : {option3_, option4_}) connect(o, &QRadioButton::clicked, label6_, &QLabel::clear);
  connect(comboBezug_, &QComboBox::activated, this, [this](int i) { referenceChosen(i); });
}

void dB::quantityChosen(bool power) {
  (power ? option2_ : option1_)->setChecked(true);
  const units::UnitList& list = power ? db::powerUnits() : db::voltageUnits();
  for (QComboBox* c : {comboE_, comboA_}) {
    for (int i = 0; i < c->count(); ++i) c->setItemText(i, list[size_t(i)].name);
  }
  // A fixed reference of the other quantity no longer fits.
  const int ref = comboBezug_->currentIndex();
  if (ref > 0 && db::references()[size_t(ref)].power != power) {
    comboBezug_->setCurrentIndex(0);
    referenceChosen(0);
  }
  label6_->clear();
}

void dB::referenceChosen(int index) {
  if (index <= 0) {
    text1_->setEnabled(true);
    comboE_->setEnabled(true);
  } else {
    const db::Reference& r = db::references()[size_t(index)];
    quantityChosen(r.power);
    text1_->setText(numfmt::format(r.value, kValuePattern));
    comboE_->setCurrentIndex(r.unit);
    text1_->setEnabled(false);
    comboE_->setEnabled(false);
  }
  label6_->clear();
}

void dB::clearFields() {
  // A fixed reference stays in the input field.
  if (comboBezug_->currentIndex() == 0) text1_->clear();
  text2_->clear();
  text3_->clear();
  label6_->clear();
}

void dB::compute() {
  const double n = option1_->isChecked() ? db::kVoltageFactor : db::kPowerFactor;
  const double s = option3_->isChecked() ? 1.0 : -1.0;
  double x1 = read(text1_, comboE_);
  double x2 = read(text2_, comboA_);
  const double g = read(text3_);
  if ((x1 > 0) + (x2 > 0) + (g > 0) < 2) {
    dialogs::msgBox(frame::kTwoValues);
    return;
  }
  if (text1_->text().isEmpty()) {
    if (arith::assign(x1, db::input(x2, g, n, s))) writeResult(text1_, comboE_, db::placement(), x1, kValuePattern);
  } else if (text2_->text().isEmpty()) {
    if (arith::assign(x2, db::output(x1, g, n, s))) writeResult(text2_, comboA_, db::placement(), x2, kValuePattern);
  } else if (text3_->text().isEmpty()) {
    const double level = db::level(x1, x2, n);
    if (arith::ok(level)) {
      // Set without a click: the ratio written below belongs to this result.
      (level >= 0 ? option3_ : option4_)->setChecked(true);
      writeNumber(text3_, level >= 0 ? level : -level, kLevelPattern);
    }
  } else {
    dialogs::msgBox(frame::kMustBeEmpty);
    return;
  }
  label6_->setText(db::ratioLine(x2 / x1));
}
