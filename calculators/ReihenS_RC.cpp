#include "calculators/ReihenS_RC.h"

#include <QEvent>
#include <cmath>
#include <QLabel>

#include "calculators/core/ReihenSCalc.h"
#include "shell/DialogService.h"
#include "shell/FormRegistry.h"

QUARZEL_REGISTER_FORM("ReihenS_RC", ReihenS_RC);

ReihenS_RC::ReihenS_RC() : CalcForm("ReihenS_RC", "Reihen- und Parallelschaltung") {
  text1_ = makeField("Text1");
  text2_ = makeField("Text2");
  text3_ = makeField("Text3");
  text3_->setToolTip(QStringLiteral("Doppelklick: Ergebnis als Wert 1 übernehmen"));
  // The units are known only once the mode is.
  combo1_ = makeUnitCombo("Combo1", {}, -1);
  combo2_ = makeUnitCombo("Combo2", {}, -1);
  combo3_ = makeUnitCombo("Combo3", {}, -1);
  label1_ = makeLabel("Label1", "X&1:", text1_);
  label2_ = makeLabel("Label2", "X&2:", text2_);
  label3_ = makeLabel("Label3", "X &gesamt:", text3_);
  addRow(label1_, text1_, combo1_);
  addRow(label2_, text2_, combo2_);
  addRow(label3_, text3_, combo3_);
  label4_ = makeLabel("Label4", "1/X = 1/X1 + 1/X2");
  grid()->addWidget(label4_, grid()->rowCount(), 0, 1, 3);
}

void ReihenS_RC::activated() {
  setUpMode();
  CalcForm::activated();
}

void ReihenS_RC::setUpMode() {
  // Once per window: later activations leave fields and combos alone.
  if (!modus_.isEmpty()) return;
  const auto mode = reihen::modeFor(tag());
  if (!mode) return;
  modus_ = mode->tag;
  title_ = mode->title;
  placement_ = mode->placement;
  setCaption(mode->caption);
  label1_->setText(mode->labels[0]);
  label2_->setText(mode->labels[1]);
  label3_->setText(mode->labels[2]);
  label4_->setText(mode->formula);
  for (QComboBox* c : {combo1_, combo2_, combo3_}) fillUnitCombo(c, *mode->units, mode->start);
  // Each of the three values may be the computed one.
  const eseries::Part part = modus_ == "ParR"     ? eseries::Part::Resistor
                             : modus_ == "ReiheC" ? eseries::Part::Capacitor
                                                  : eseries::Part::Inductor;
  showStandardValues(text1_, combo1_, part);
  showStandardValues(text2_, combo2_, part);
  showStandardValues(text3_, combo3_, part);
}

void ReihenS_RC::compute() {
  if (modus_.isEmpty()) return;
  // A total not below the given component has no partner: message, and no
  // result for the frame to write. The check comes before the division, so
  // the divisor is always above 0.
  auto other = [this](double x, double given) {
    if (reihen::totalTooLarge(x, given)) {
      dialogs::msgBox(reihen::kRangeMessage, dialogs::Icon::Exclamation, dialogs::Buttons::OK, title_);
      return std::nan("");
    }
    return reihen::otherPart(x, given);
  };
  const QString pattern = "####0.0###";
  computeEmptyField({{text1_, combo1_, placement_, pattern},
                     {text2_, combo2_, placement_, pattern},
                     {text3_, combo3_, placement_, pattern}},
                    [&](int unknown, const std::vector<double>& v) {
                      switch (unknown) {
                        case 2: return reihen::total(v[0], v[1]);
                        case 0: return other(v[2], v[1]);
                        default: return other(v[2], v[0]);
                      }
                    });
}

void ReihenS_RC::carryOver() {
  if (text3_->text().isEmpty()) return;
  text1_->setText(text3_->text());
  combo1_->setCurrentIndex(combo3_->currentIndex());
  text2_->clear();
  text3_->clear();
  text2_->setFocus(Qt::OtherFocusReason);
}

bool ReihenS_RC::eventFilter(QObject* watched, QEvent* event) {
  if (watched == text3_ && event->type() == QEvent::MouseButtonDblClick) {
    carryOver();
    return true;
  }
  return CalcForm::eventFilter(watched, event);
}
