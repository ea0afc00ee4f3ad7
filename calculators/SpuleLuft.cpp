#include "calculators/SpuleLuft.h"

#include <QLabel>
#include <QPushButton>
#include <QStringList>
#include <QVBoxLayout>

#include "calculators/core/SpuleLuftCalc.h"
#include "shell/FormText.h"
#include "shell/DialogService.h"
#include "shell/FormRegistry.h"
#include "shell/core/Module1.h"
#include "shell/core/NumberFormat.h"
#include "shell/frmAbout.h"

QUARZEL_REGISTER_FORM("SpuleLuft", SpuleLuft);

namespace {
const QString kTitle = QStringLiteral("Luftspule");
}  // namespace

SpuleLuft::SpuleLuft() : CalcForm("SpuleLuft", "Luftspule (einlagig)") {
  text1_ = makeField("Text1");
  text2_ = makeField("Text2");
  text3_ = makeField("Text3");
  text4_ = makeField("Text4");
  text5_ = makeField("Text5");
  comboL_ = makeUnitCombo("ComboL", spuleluft::inductanceUnits(), spuleluft::kInductanceStart);
  addRow(makeLabel("Label1", QStringLiteral("&Induktivität:"), text1_), text1_, comboL_);
  addRow(makeLabel("Label2", "&Windungen:", text2_), text2_);
  addRow(makeLabel("Label3", "D&urchmesser [mm]:", text3_), text3_);
  addRow(makeLabel("Label4", QStringLiteral("Wickel&länge [mm]:"), text4_), text4_);
  addRow(makeLabel("Label5", "D&rahtdurchmesser [mm]:", text5_), text5_);
  showStandardValues(text1_, comboL_, eseries::Part::Inductor);
  grid()->addWidget(makeLabel("Label7", QStringLiteral("Bedingung : einlagig, l > 0,4 · D")), grid()->rowCount(), 0,
                    1, 3);
  label8_ = makeLabel("Label8", QString());
  formtext::markResult(label8_);
  grid()->addWidget(label8_, grid()->rowCount(), 0, 1, 3);
  grid()->setRowStretch(grid()->rowCount(), 1);

  QPushButton* hint = makeButton("Command5", "&Hinweis");
  buttonColumn()->insertWidget(4, hint);
  connect(hint, &QPushButton::clicked, this, [this] { showHint(); });
}

void SpuleLuft::showHint() {
  frmAbout::showText(
      " Info ",
      QStringList{QStringLiteral("Luftspule (einlagige Zylinderspule)"),
                  QStringLiteral("Formel nach Wheeler:  L = D² · N² / (457,2 · D + 1016 · l)"),
                  QStringLiteral("L in µH, D (Spulendurchmesser von Drahtmitte zu Drahtmitte) und l (Wickellänge) in mm."),
                  QStringLiteral("Genauigkeit etwa 1 % für l > 0,4 · D."),
                  QStringLiteral("Bei enger Wicklung ist l = N · d (d = Drahtdurchmesser mit Isolation).")}
          .join(Module1::NL));
}

void SpuleLuft::clearFields() {
  CalcForm::clearFields();
  label8_->clear();
}

void SpuleLuft::compute() {
  spuleluft::Input in;
  in.l = read(text1_, comboL_);
  in.n = read(text2_);
  in.d = read(text3_);
  in.length = read(text4_);
  in.wire = read(text5_);
  in.lEmpty = text1_->text().isEmpty();
  in.nEmpty = text2_->text().isEmpty();
  in.lengthEmpty = text4_->text().isEmpty();
  const spuleluft::Result r = spuleluft::compute(in);
  switch (r.stop) {
    case spuleluft::Stop::DiameterMissing:
      dialogs::msgBox("Bitte den Spulendurchmesser eingeben!");
      return;
    case spuleluft::Stop::TooFewValues:
      dialogs::msgBox(frame::kTwoValues);
      return;
    case spuleluft::Stop::NoEmptyField:
      dialogs::msgBox(frame::kMustBeEmpty);
      return;
    case spuleluft::Stop::Unreachable:
      dialogs::msgBox(QStringLiteral("Mit dieser Windungszahl und diesem Durchmesser ist die Induktivität nicht "
                                     "erreichbar!"),
                      dialogs::Icon::Exclamation, dialogs::Buttons::OK, kTitle);
      return;
    case spuleluft::Stop::None:
      break;
  }
  if (r.inductance) writeResult(text1_, comboL_, spuleluft::inductancePlacement(), *r.inductance, "####0.0###");
  if (r.turns) writeNumber(text2_, *r.turns, "###0.0##");
  if (r.length) writeNumber(text4_, *r.length, "####0.0##");
  if (r.wireLength)
    label8_->setText(QStringLiteral("Drahtlänge (ohne Anschlüsse): ") + numfmt::format(*r.wireLength, "##0.00") +
                     " m");
  if (r.tooShort) {
    dialogs::msgBox("Die Wickellänge ist kleiner als 0,4 x Durchmesser." + Module1::NL +
                        QStringLiteral("Das Ergebnis ist ungenauer als 1 %."),
                    dialogs::Icon::Exclamation, dialogs::Buttons::OK, kTitle);
  }
}
