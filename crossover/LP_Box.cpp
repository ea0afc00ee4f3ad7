#include "crossover/LP_Box.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "crossover/core/Crossover.h"
#include "crossover/core/CrossoverResponse.h"
#include "shell/DialogService.h"
#include "shell/FormRegistry.h"
#include "shell/MDIForm1.h"
#include "shell/PictureBox.h"
#include "shell/ResponsePlot.h"
#include "shell/core/Module1.h"
#include "shell/frmAbout.h"

QUARZEL_REGISTER_FORM("LP_Box", LP_Box);

namespace {

// Captions the slot labels are created with: those of the three-way box.
const char* const kCreatedCaptions[8] = {
    "C1T (Kapazität) :", "L1T (Induktivität):", "C1M :", "C2M :", "C2H :", "L1M :", "L2M :", "L2H :",
};

// Row of each slot in the circuit frame: every capacitor above its matching
// inductor, so the slots a mode shows are always the top rows.
const int kSlotRow[8] = {0, 1, 2, 4, 6, 3, 5, 7};

QString hintText() {
  using Module1::NL;
  return QStringLiteral("Lautsprecher - Frequenzweichen - Berechnung") + NL + NL +
         QStringLiteral("Dieses Programmteil dient der Berechnung der elektrischen Parameter von Frequenzweichen für "
                        "Lausprecherkombinationen in Lautsprecher-Boxen. ") +
         NL + NL + QStringLiteral("Bedingungen:") + NL +
         QStringLiteral("1. Die verwendeten Lautsprecher sollten möglichst die gleiche Anschlussimpedanz (R) "
                        "aufweisen. ") +
         NL +
         QStringLiteral("2. Die Frequenzbereiche der einzelnen Lautsprecher müssen sich überschneiden. Sonst tretten "
                        "'Löcher' im Frequenzgang der Box auf.") +
         NL + NL +
         QStringLiteral("Bei den Berechnungen werden Schutzschaltungen gegen Überlastung der Lautsprecher und "
                        "Schaltungen zur Phasenkorrektur nicht berücksichtigt. Solche Zusatzschaltungen für "
                        "hochwertige Boxen müssen separat dimensioniert werden. ");
}

// Keeps a control's place in the layout while it is hidden, so the form
// looks the same in every mode.
void keepPlace(QWidget* w) {
  QSizePolicy p = w->sizePolicy();
  p.setRetainSizeWhenHidden(true);
  w->setSizePolicy(p);
}

}  // namespace

LP_Box::LP_Box() : CalcForm("LP_Box", "Lautsprecher - Box") {
  // Given values ("Vorgaben"): impedances and crossover frequencies, plain numbers.
  for (int n : {1, 6, 8, 9, 7}) {
    text_[size_t(n)] = makeField(QStringLiteral("Text%1").arg(n));
    field(n)->setMinimumWidth(0);
    field(n)->setFixedWidth(64);
  }
  auto* frame3 = new QGroupBox(QStringLiteral("Lautspr.-Impedanzen [Ohm]:"), this);
  frame3->setObjectName("Frame3");
  auto* g3 = new QGridLayout(frame3);
  g3->addWidget(makeLabel("Label8", "&Tiefton R-TT:", field(1)), 0, 0);
  g3->addWidget(field(1), 0, 1);
  label10_ = makeLabel("Label10", "&Mittelton R-MT:", field(6));
  g3->addWidget(label10_, 1, 0);
  g3->addWidget(field(6), 1, 1);
  g3->addWidget(makeLabel("Label1", "&Hochton R-HT:", field(8)), 2, 0);
  g3->addWidget(field(8), 2, 1);

  auto* frame4 = new QGroupBox(QStringLiteral("Trennfrequenz [Hz]:"), this);
  frame4->setObjectName("Frame4");
  auto* g4 = new QGridLayout(frame4);
  label4_ = makeLabel("Label4", "&obere:", field(9));
  label7_ = makeLabel("Label7", "&untere:", field(7));
  g4->addWidget(label4_, 0, 0);
  g4->addWidget(field(9), 0, 1);
  g4->addWidget(label7_, 1, 0);
  g4->addWidget(field(7), 1, 1);
  g4->setRowStretch(2, 1);

  auto* frame2 = new QGroupBox(QStringLiteral("Vorgaben:"), this);
  frame2->setObjectName("Frame2");
  auto* g2 = new QVBoxLayout(frame2);
  g2->addWidget(frame3);
  g2->addWidget(frame4);

  // The circuit: eight component slots, each a field, a caption and a combo.
  auto* frame1 = new QGroupBox(QStringLiteral("Schaltung:"), this);
  frame1->setObjectName("Frame1");
  auto* g1 = new QGridLayout(frame1);
  g1->setHorizontalSpacing(6);
  const auto& table = lpbox::slotTable();
  for (size_t i = 0; i < table.size(); ++i) {
    const lpbox::Slot& s = table[i];
    QLineEdit* e = makeField(QStringLiteral("Text%1").arg(s.field), s.field <= 9);
    e->setMinimumWidth(0);
    e->setFixedWidth(72);
    text_[size_t(s.field)] = e;
    const bool cap = s.kind == lpbox::Kind::Capacitor;
    slotCombo_[i] = makeUnitCombo(s.combo, cap ? lpbox::capacitorUnits() : lpbox::inductorUnits(), cap ? 2 : 1);
    slotLabel_[i] = makeLabel(s.label, QString::fromUtf8(kCreatedCaptions[i]), e);
    slotCombo_[i]->setMinimumContentsLength(3);
    g1->addWidget(slotLabel_[i], kSlotRow[i], 0);
    g1->addWidget(e, kSlotRow[i], 1);
    g1->addWidget(slotCombo_[i], kSlotRow[i], 2);
    for (QWidget* w : {static_cast<QWidget*>(slotLabel_[i]), static_cast<QWidget*>(e),
                       static_cast<QWidget*>(slotCombo_[i])})
      keepPlace(w);
    showStandardValues(e, slotCombo_[i], cap ? eseries::Part::Capacitor : eseries::Part::Inductor);
  }
  comboC1_ = findChild<QComboBox*>("ComboC1");
  comboC2_ = findChild<QComboBox*>("ComboC2");
  comboL1_ = findChild<QComboBox*>("ComboL1");
  comboL2_ = findChild<QComboBox*>("ComboL2");
  for (QWidget* w : {static_cast<QWidget*>(label4_), static_cast<QWidget*>(label7_),
                     static_cast<QWidget*>(label10_), static_cast<QWidget*>(field(6)),
                     static_cast<QWidget*>(field(7))})
    keepPlace(w);

  image1_ = new PictureBox("Image1", this);
  image1_->setToolTip(QStringLiteral("vergrössern: Doppelklick"));
  image1_->setFixedSize(500, 236);
  connect(image1_, &PictureBox::doubleClicked, this, &LP_Box::enlargePicture);

  grid()->addWidget(frame2, 0, 0, Qt::AlignTop);
  grid()->addWidget(frame1, 0, 1);
  grid()->addWidget(image1_, 1, 0, 1, 2, Qt::AlignCenter);

  QPushButton* hint = makeButton("Command5", "Hin&weis");
  buttonColumn()->insertWidget(4, hint);
  connect(hint, &QPushButton::clicked, this, &LP_Box::showHint);
  frequenzgang_ = new FrequencyResponse(this, buttonColumn());

  // Defaults of a newly loaded form.
  field(1)->setText("4");
  field(6)->setText("4");
  field(8)->setText("4");
  field(7)->setText("598.6");
  field(9)->setText("2800");
}

QComboBox* LP_Box::ownCombo(int n) const {
  const auto& table = lpbox::slotTable();
  for (size_t i = 0; i < table.size(); ++i)
    if (table[i].field == n) return slotCombo_[i];
  return nullptr;
}

void LP_Box::activated() {
  labelText()->setText(caption().trimmed() + " " + Module1::AppIdentification);
  const auto mode = lpbox::modeFromTag(tag());
  if (!mode) return;
  const lpbox::ModeLayout& lay = lpbox::layout(*mode);

  // A missing picture file leaves the picture empty, without a word.
  image1_->setPixmap(QPixmap(Module1::appDir() + "/" + lay.picture));

  for (size_t i = 0; i < slotLabel_.size(); ++i) {
    if (lay.captions[i]) slotLabel_[i]->setText(*lay.captions[i]);
  }
  // Replaced on every activation, also when the user comes back from
  // another window after typing a frequency.
  field(9)->setText(lay.defaultFrequency);

  for (QWidget* w : {static_cast<QWidget*>(label4_), static_cast<QWidget*>(label7_),
                     static_cast<QWidget*>(label10_), static_cast<QWidget*>(field(6)),
                     static_cast<QWidget*>(field(7))})
    w->setVisible(lay.threeWay);
  const auto& table = lpbox::slotTable();
  for (size_t i = 0; i < table.size(); ++i) {
    const bool v = lay.visible[i];
    slotLabel_[i]->setVisible(v);
    field(table[i].field)->setVisible(v);
    slotCombo_[i]->setVisible(v);
  }
}

void LP_Box::compute() {
  const auto mode = lpbox::modeFromTag(tag());
  if (!mode) return;
  lpbox::Input in;
  for (int n = 1; n <= 13; ++n) in.text[size_t(n)] = field(n)->text();
  in.comboC1 = comboC1_->currentIndex();
  in.comboC2 = comboC2_->currentIndex();
  in.comboL1 = comboL1_->currentIndex();
  in.comboL2 = comboL2_->currentIndex();

  const lpbox::Outcome out = lpbox::compute(*mode, in);
  for (const lpbox::Write& w : out.writes) {
    if (w.unit >= 0) ownCombo(w.field)->setCurrentIndex(w.unit);
    field(w.field)->setText(w.text);
  }
  if (out.message) {
    const auto icon = out.message->icon == lpbox::Icon::Exclamation ? dialogs::Icon::Exclamation : dialogs::Icon::None;
    dialogs::msgBox(out.message->text, icon, dialogs::Buttons::OK, out.message->title);
    return;
  }
  if (out.displayed > 0) updatePlot();
}

void LP_Box::updatePlot() {
  // The network as the form now shows it: each component in the unit of
  // its own combo, the loudspeakers as their impedances.
  const auto mode = lpbox::modeFromTag(tag());
  if (!mode) return;
  lpbox::NetworkValues v;
  v.rTT = Module1::ParseNumber(field(1)->text());
  v.rMT = Module1::ParseNumber(field(6)->text());
  v.rHT = Module1::ParseNumber(field(8)->text());
  const auto& table = lpbox::slotTable();
  for (size_t i = 0; i < table.size(); ++i) {
    const bool cap = table[i].kind == lpbox::Kind::Capacitor;
    const double factor =
        units::factorAt(cap ? lpbox::capacitorUnits() : lpbox::inductorUnits(), slotCombo_[i]->currentIndex());
    v.part[size_t(table[i].field)] = Module1::ParseNumber(field(table[i].field)->text()) * factor;
  }
  const bool threeWay = lpbox::layout(*mode).threeWay;
  const double fo = Module1::ParseNumber(field(9)->text());
  const double fu = threeWay ? Module1::ParseNumber(field(7)->text()) : 0;
  frequenzgang_->setPlot(lpbox::responsePlot(*mode, v, fo, fu));
}

void LP_Box::clearFields() {
  // R_TT stays: the woofer usually remains the same between designs.
  for (int n = 2; n <= 13; ++n) field(n)->clear();
  frequenzgang_->reset();
}

void LP_Box::showHint() {
  MDIForm1* main = mainWindow();
  if (!main) return;
  if (!hint_) {
    frmAbout* w = frmAbout::text(QStringLiteral(" Info "), hintText());
    hint_ = w;
    main->showChild(w);
    w->parentWidget()->resize(main->mdiArea()->width() * 2 / 3, main->mdiArea()->height() / 2);
    main->keepInside(w->parentWidget());
  } else {
    main->showChild(hint_);
  }
}

void LP_Box::enlargePicture() {
  if (image1_->pixmap().isNull()) return;
  MDIForm1* main = mainWindow();
  PictureBox* big = nullptr;
  // One picture window, also when an earlier crossover form opened it.
  if (!enlarged_ && main) {
    for (QMdiSubWindow* sub : main->childWindows())
      if (sub->widget() && sub->widget()->objectName() == QLatin1String("LP_Bild")) enlarged_ = sub->widget();
  }
  if (enlarged_) {
    big = enlarged_->findChild<PictureBox*>("Image1");
  } else {
    auto* w = new QWidget;
    w->setObjectName("LP_Bild");
    auto* layout = new QVBoxLayout(w);
    layout->setContentsMargins(0, 0, 0, 0);
    big = new PictureBox("Image1", w);
    layout->addWidget(big);
    enlarged_ = w;
  }
  enlarged_->setWindowTitle(caption());
  big->setPixmap(image1_->pixmap());
  if (!main) {
    enlarged_->show();
    return;
  }
  main->showChild(enlarged_);
  // As large as the picture was drawn, as far as the main window has room.
  const QSize room = main->mdiArea()->viewport()->size();
  QWidget* sub = enlarged_->parentWidget();
  const QSize frame = sub->size() - enlarged_->size();
  QSize size = image1_->pixmap().size();
  const QSize inner = room - frame;
  if (size.width() > inner.width() || size.height() > inner.height()) size.scale(inner, Qt::KeepAspectRatio);
  sub->resize(size + frame);
  main->keepInside(sub);
}
