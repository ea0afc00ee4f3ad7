#include "calculators/L2Teiler.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

#include "calculators/Schematics.h"
#include "calculators/core/L2TeilerCalc.h"
#include "shell/FormRegistry.h"
#include "shell/MDIForm1.h"
#include "shell/PictureBox.h"
#include "shell/core/Module1.h"
#include "shell/core/NumberFormat.h"

QUARZEL_REGISTER_FORM("L2Teiler", L2Teiler);

namespace {

// The coil combos offer microhenry and millihenry only.
const units::UnitList& coilUnits() {
  static const units::UnitList l{{QStringLiteral("µH"), -6}, {"mH", -3}};
  return l;
}

DividerForm::Parts coils() {
  return {QStringLiteral("&L1 (Induktivität):"), QStringLiteral("L2 (&Induktivität):"), "ComboL1", "ComboL2",
          coilUnits(), l2teiler::inductancePlacement(), eseries::Part::Inductor};
}

}  // namespace

L2Teiler::L2Teiler()
    : DividerForm("L2Teiler", "Induktiver Spannungsteiler/Anpassung", coils(), "Kondensator &C1", "C1 berechnen") {
  // L2 over L1, R1 at the tap, R2 and the capacitor C1 of the tuned circuit across both.
  picture()->setDrawing([](QPainter& p, const QRectF& r) {
    drawMatchingDivider(p, r, {schematics::Element::Coil, "L2", schematics::Element::Coil, "L1",
                               schematics::Element::Capacitor, "C1"});
  });

  auto* frame = new QGroupBox("Spulen L1 L2:", this);
  frame->setObjectName("Frame3");
  auto* box = new QVBoxLayout(frame);
  option1_ = new QRadioButton("zwei einzelne Spulen", frame);
  option1_->setObjectName("Option1");
  option2_ = new QRadioButton("eine Spule mit Anzapfung", frame);
  option2_->setObjectName("Option2");
  option1_->setChecked(true);
  box->addWidget(option1_);
  box->addWidget(option2_);
  box->addStretch(1);
  addFrame(frame);
  for (QRadioButton* o : {option1_, option2_}) {
    connect(o, &QRadioButton::clicked, this, [this] {
      field(divider::Part1)->clear();
      field(divider::Part2)->clear();
    });
  }
}

divider::Run L2Teiler::run(const divider::Values& values, const divider::Empty& empty) {
  return l2teiler::compute(values, empty, option2_->isChecked());
}

void L2Teiler::keyReleased(QLineEdit* e, int key) {
  DividerForm::keyReleased(e, key);
  // A typed L2 asks for L1 to be computed anew.
  if (e == field(divider::Part2) && !e->text().isEmpty()) field(divider::Part1)->clear();
}

void L2Teiler::handOver() {
  const double f = Module1::ParseNumber(field(divider::Freq)->text());
  const double l1 = read(field(divider::Part1), combo(divider::Part1));
  const double l2 = read(field(divider::Part2), combo(divider::Part2));
  if (l1 == 0 || l2 == 0) return;
  CalcForm* form = loadResonantCircuit();
  if (!form) return;
  setComboIndex(form, "ComboF", combo(divider::Freq)->currentIndex());
  setFieldText(form, "Text1", numfmt::plain(f));
  writePlaced(form, "Text2", "ComboL", units::inductance(), l2teiler::handOverPlacement(),
              l2teiler::totalInductance(l1, l2, option2_->isChecked()), l2teiler::kHandOverPattern);
  setFieldText(form, "Text3", QString());
  form->setTag("C1");
  mainWindow()->showChild(form);
}
