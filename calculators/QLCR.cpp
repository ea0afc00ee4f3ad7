#include "calculators/QLCR.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QStringList>
#include <QVBoxLayout>

#include "calculators/core/QLCRCalc.h"
#include "calculators/core/SchwingkCalc.h"
#include "shell/FormText.h"
#include "shell/DialogService.h"
#include "shell/FormRegistry.h"
#include "shell/core/Arith.h"
#include "shell/core/Module1.h"
#include "shell/core/NumberFormat.h"
#include "shell/frmAbout.h"

QUARZEL_REGISTER_FORM("QLCR", QLCR);

namespace {
const char* const kFrequencyPattern = "####0.0########";
const char* const kInductancePattern = "####0.0###";
const char* const kCapacitancePattern = "###0.0###";
const char* const kQualityPattern = "####0.0##";
const char* const kBandwidthPattern = "####0.0####";
const char* const kResistancePattern = "####0.0###";
}  // namespace

QLCR::QLCR() : CalcForm("QLCR", "Schwingkreis - Güte / Bandbreite / Rp") {
  text1_ = makeField("Text1");
  text2_ = makeField("Text2");
  text3_ = makeField("Text3");
  text4_ = makeField("Text4");
  text5_ = makeField("Text5");
  text6_ = makeField("Text6");
  text7_ = makeField("Text7");
  comboF_ = makeUnitCombo("ComboF", units::frequency(), 0);            // MHz
  comboL_ = makeUnitCombo("ComboL", units::inductance(), 1);           // µH
  comboC_ = makeUnitCombo("ComboC", units::capacitance(), 0);          // pF
  comboB_ = makeUnitCombo("ComboB", units::frequency(), 1);            // KHz
  comboRp_ = makeUnitCombo("ComboRp", units::resistance(), 1);         // KOhm
  comboRs_ = makeUnitCombo("ComboRs", qlcr::seriesResistanceUnits(), 1);  // Ohm

  auto frame = [this](const char* name, const QString& title) {
    auto* f = new QGroupBox(title, this);
    f->setObjectName(name);
    auto* g = new QGridLayout(f);
    g->setHorizontalSpacing(8);
    return std::pair{f, g};
  };
  auto row = [this](QGridLayout* g, const char* label, const QString& caption, QLineEdit* field, QComboBox* combo) {
    const int r = g->rowCount();
    g->addWidget(makeLabel(label, caption, field), r, 0);
    g->addWidget(field, r, 1);
    if (combo) g->addWidget(combo, r, 2);
  };
  auto [frame1, g1] = frame("Frame1", "Schwingkreis:");
  row(g1, "Label1", "&Resonanzfrequenz:", text1_, comboF_);
  row(g1, "Label2", QStringLiteral("&Induktivität:"), text2_, comboL_);
  row(g1, "Label3", QStringLiteral("&Kapazität:"), text3_, comboC_);
  auto [frame2, g2] = frame("Frame2", "Verluste:");
  row(g2, "Label4", QStringLiteral("&Güte Q:"), text4_, nullptr);
  row(g2, "Label5", "Bandbrei&te B:", text5_, comboB_);
  row(g2, "Label6", "Resonanzwiderstand R&p:", text6_, comboRp_);
  row(g2, "Label7", "&Verlustwiderstand Rs:", text7_, comboRs_);
  showStandardValues(text2_, comboL_, eseries::Part::Inductor);
  showStandardValues(text3_, comboC_, eseries::Part::Capacitor);
  // Rp as the damping resistor across the circuit.
  showStandardValues(text6_, comboRp_, eseries::Part::Resistor);
  // Both frames share their column widths.
  for (QGridLayout* g : {g1, g2}) g->setColumnMinimumWidth(0, 170);

  grid()->addWidget(frame1, 0, 0, 1, 3);
  grid()->addWidget(frame2, 1, 0, 1, 3);
  grid()->addWidget(makeLabel("Label8", QStringLiteral("Bedingung : Q >> 1 (Rp = Q² · Rs)")), 2, 0, 1, 3);
  label9_ = makeLabel("Label9", QString());
  formtext::markResult(label9_);
  grid()->addWidget(label9_, 3, 0, 1, 3);
  grid()->setRowStretch(4, 1);

  QPushButton* hint = makeButton("Command5", "&Hinweis");
  buttonColumn()->insertWidget(4, hint);
  connect(hint, &QPushButton::clicked, this, [this] { showHint(); });
}

void QLCR::showHint() {
  frmAbout::showText(
      " Info ",
      QStringList{QStringLiteral("Schwingkreis - Güte / Bandbreite / Resonanzwiderstand"),
                  QStringLiteral("Kennwiderstand:  Z0 = Wurzel(L / C) = 2 · Pi · f0 · L"),
                  QStringLiteral("Güte:  Q = Rp / Z0 = Z0 / Rs"), QStringLiteral("Bandbreite (-3 dB):  B = f0 / Q"),
                  QStringLiteral("Rp: Resonanzwiderstand des Parallelkreises (Verluste als Parallelwiderstand)."),
                  QStringLiteral("Rs: Verlustwiderstand in Reihe mit der Spule (Verluste als Reihenwiderstand)."),
                  QStringLiteral("Die Umrechnung Rp = Q² · Rs gilt für Q >> 1; bei Q = 10 beträgt der Fehler 1 %.")}
          .join(Module1::NL));
}

void QLCR::clearFields() {
  CalcForm::clearFields();
  label9_->clear();
}

void QLCR::keyReleased(QLineEdit* field, int key) {
  // A value typed into one loss field empties the other three, so that an
  // earlier result cannot win over it. Only keys the key filter passes count;
  // pasted text and keys without a character leave the others alone.
  QLineEdit* const losses[] = {text4_, text5_, text6_, text7_};
  if (std::find(std::begin(losses), std::end(losses), field) == std::end(losses)) return;
  if (key != Qt::Key_Backspace && !(key < 0x80 && keyPasses(QChar(key)))) return;
  for (QLineEdit* other : losses) {
    if (other != field) other->clear();
  }
}

void QLCR::compute() {
  qlcr::Input in;
  in.f = read(text1_, comboF_);
  in.l = read(text2_, comboL_);
  in.c = read(text3_, comboC_);
  in.q = read(text4_);
  in.b = read(text5_, comboB_);
  in.rp = read(text6_, comboRp_);
  in.rs = read(text7_, comboRs_);
  const qlcr::Result r = qlcr::compute(in);
  if (r.stop == qlcr::Stop::TooFewCircuitValues) {
    dialogs::msgBox(QString::fromUtf8(qlcr::kTooFewCircuitValues));
    return;
  }
  switch (r.circuitField) {
    case 0:
      writeResult(text1_, comboF_, schwingk::frequencyPlacement(), r.circuitValue, kFrequencyPattern);
      break;
    case 1:
      writeResult(text2_, comboL_, schwingk::inductancePlacement(), r.circuitValue, kInductancePattern);
      break;
    case 2:
      writeResult(text3_, comboC_, schwingk::capacitancePlacement(), r.circuitValue, kCapacitancePattern);
      break;
    default:
      break;
  }
  if (r.z0) {
    const auto placed = units::place(units::resistance(), qlcr::resistancePlacement(), *r.z0);
    if (placed && arith::ok(placed->scaled)) {
      label9_->setText("Kennwiderstand Z0: " + numfmt::format(placed->scaled, kResistancePattern) + " " +
                       units::resistance()[size_t(placed->index)].name);
    }
  }
  if (r.stop == qlcr::Stop::NoLossValue) {
    dialogs::msgBox(QString::fromUtf8(qlcr::kNoLossValue));
    return;
  }
  if (r.stop == qlcr::Stop::QualityTooLow) {
    dialogs::msgBox(QString::fromUtf8(qlcr::kQualityTooLow), dialogs::Icon::Exclamation, dialogs::Buttons::OK,
                    QStringLiteral("Güte"));
    return;
  }
  writeNumber(text4_, r.q, kQualityPattern);
  writeResult(text5_, comboB_, schwingk::frequencyPlacement(), r.b, kBandwidthPattern);
  writeResult(text6_, comboRp_, qlcr::resistancePlacement(), r.rp, kResistancePattern);
  writeResult(text7_, comboRs_, qlcr::seriesResistancePlacement(), r.rs, kResistancePattern);
}
