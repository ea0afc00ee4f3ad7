#include "calculators/DividerForm.h"

#include <QApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <cmath>

#include "shell/DialogService.h"
#include "shell/MDIForm1.h"
#include "shell/PictureBox.h"
#include "shell/core/Arith.h"
#include "shell/core/Module1.h"
#include "shell/core/NumberFormat.h"

using divider::Field;

DividerForm::DividerForm(const QString& name, const QString& caption, const Parts& parts, const QString& command5,
                         const QString& command5Tip)
    : CalcForm(name, caption), partPlacement_(parts.placement) {
  static const char* const kFieldNames[divider::FieldCount] = {"Text7", "Text1", "Text6", "Text2",
                                                               "Text3", "Text4", "Text5"};
  for (int f = 0; f < divider::FieldCount; ++f) fields_[f] = makeField(kFieldNames[f]);
  combos_[Field::Freq] = makeUnitCombo("ComboF", units::frequency(), 0);
  combos_[Field::Res1] = makeUnitCombo("ComboR1", units::resistance(), 0);
  combos_[Field::Res2] = makeUnitCombo("ComboR2", units::resistance(), 1);
  combos_[Field::Part1] = makeUnitCombo(parts.combo1, parts.list, 0);
  combos_[Field::Part2] = makeUnitCombo(parts.combo2, parts.list, 0);

  // Given values: the two ratios (either one) and the frequency.
  auto* given = new QGroupBox("Vorgaben:", this);
  given->setObjectName("Frame1");
  auto* g = new QGridLayout(given);
  g->addWidget(makeLabel("Label8", "Spannungs&verhältnis (U2/U1) :", field(Field::Ratio)), 0, 0);
  g->addWidget(field(Field::Ratio), 0, 1);
  QLabel* oder = makeLabel("Label4", "oder");
  g->addWidget(oder, 1, 1, Qt::AlignHCenter);
  g->addWidget(makeLabel("Label1", "&Anpassungsverhältnis(R2/R1) :", field(Field::Matching)), 2, 0);
  g->addWidget(field(Field::Matching), 2, 1);
  g->addWidget(makeLabel("Label7", "&Frequenz :", field(Field::Freq)), 3, 0);
  g->addWidget(field(Field::Freq), 3, 1);
  g->addWidget(combo(Field::Freq), 3, 2);
  g->setColumnStretch(3, 1);

  // The circuit: schematic beside the four component values.
  auto* circuit = new QGroupBox("Schaltung:", this);
  circuit->setObjectName("Frame2");
  auto* row = new QHBoxLayout(circuit);
  image1_ = new PictureBox("Image1", this);
  image1_->setMinimumSize(250, 180);
  image1_->setToolTip(QString::fromUtf8("Doppelklick: Schaltbild vergrößert im Hintergrund zeigen"));
  row->addWidget(image1_, 1);
  auto* c = new QGridLayout;
  row->addLayout(c);
  const struct {
    const char* label;
    QString caption;
    Field field;
  } rows[] = {{"Label2", "R&1 (Impedanz) :", Field::Res1},
              {"Label3", "R&2 (Impedanz) :", Field::Res2},
              {"Label5", parts.label5, Field::Part1},
              {"Label6", parts.label6, Field::Part2}};
  int r = 0;
  for (const auto& rw : rows) {
    c->addWidget(makeLabel(rw.label, rw.caption, field(rw.field)), r, 0);
    c->addWidget(field(rw.field), r, 1);
    c->addWidget(combo(rw.field), r, 2);
    ++r;
  }
  c->setRowStretch(r, 1);
  showStandardValues(field(Field::Part1), combo(Field::Part1), parts.kind);
  showStandardValues(field(Field::Part2), combo(Field::Part2), parts.kind);

  grid()->addWidget(given, 0, 0);
  grid()->addWidget(circuit, 1, 0, 1, 2);

  command5_ = makeButton("Command5", command5);
  command5_->setToolTip(command5Tip);
  command5_->setEnabled(false);
  buttonColumn()->insertWidget(4, command5_);
  connect(command5_, &QPushButton::clicked, this, [this] { handOver(); });

  connect(image1_, &PictureBox::doubleClicked, this, [this] {
    if (MDIForm1* main = mainWindow()) {
      main->setBackgroundPicture(nullptr);
      main->setBackgroundPicture(image1_);
    }
  });
}

void DividerForm::addFrame(QGroupBox* frame) { grid()->addWidget(frame, 0, 1); }

divider::Values DividerForm::readValues() const {
  divider::Values v;
  v.u = read(field(Field::Ratio));
  v.a = read(field(Field::Matching));
  v.f = read(field(Field::Freq), combo(Field::Freq));
  v.r1 = read(field(Field::Res1), combo(Field::Res1));
  v.r2 = read(field(Field::Res2), combo(Field::Res2));
  v.x1 = read(field(Field::Part1), combo(Field::Part1));
  v.x2 = read(field(Field::Part2), combo(Field::Part2));
  return v;
}

void DividerForm::compute() {
  const divider::Values v = readValues();
  if (const auto note = divider::check(v)) {
    if (note->warning)
      dialogs::msgBox(note->text, dialogs::Icon::Exclamation, dialogs::Buttons::OK, divider::kTitle);
    else
      dialogs::msgBox(note->text);
    return;
  }
  divider::Empty empty{};
  for (int f = 0; f < divider::FieldCount; ++f) empty[size_t(f)] = field(Field(f))->text().isEmpty();
  play(run(v, empty));
}

void DividerForm::play(const divider::Run& run) {
  for (const divider::Step& s : run.steps) {
    switch (s.kind) {
      case divider::Step::Message: dialogs::msgBox(s.text); break;
      case divider::Step::Clear: field(s.field)->clear(); break;
      case divider::Step::Show: showResult(s.field, s.value); break;
    }
  }
  if (run.enableHandOver) command5_->setEnabled(true);
}

void DividerForm::showResult(Field f, double value) {
  QLineEdit* e = field(f);
  QComboBox* cb = combo(f);
  const QString pattern = divider::patternOf(f);
  if (!cb) {
    writeNumber(e, value, pattern);
    return;
  }
  units::Placement rule;
  switch (f) {
    case Field::Freq: rule = divider::frequencyPlacement(); break;
    case Field::Res1:
    case Field::Res2: rule = divider::resistancePlacement(); break;
    default: rule = partPlacement_; break;
  }
  const auto placed = units::place(unitsOf(cb), rule, value);
  if (!placed) return;
  // A position the list does not offer leaves the combo as it is.
  if (placed->index < cb->count()) cb->setCurrentIndex(placed->index);
  writeNumber(e, placed->scaled, pattern);
}

void DividerForm::keyReleased(QLineEdit* e, int) {
  QLineEdit* ratio = field(Field::Ratio);
  QLineEdit* matching = field(Field::Matching);
  const QString pattern = QString::fromLatin1(divider::kRatioPattern);
  if (e == matching) {
    // The two ratios mirror each other: ü = √a.
    if (!matching->text().isEmpty()) writeNumber(ratio, std::sqrt(read(matching)), pattern);
  } else if (e == ratio) {
    if (!ratio->text().isEmpty()) {
      const double u = read(ratio);
      writeNumber(matching, u * u, pattern);
    }
  } else if (e == field(Field::Res1) || e == field(Field::Res2)) {
    // A new resistance beside a ratio: what depends on it is computed anew.
    if (ratio->text().isEmpty() || e->text().isEmpty()) return;
    const Field other = e == field(Field::Res1) ? Field::Res2 : Field::Res1;
    field(other)->clear();
    field(Field::Part1)->clear();
    field(Field::Part2)->clear();
  }
}

CalcForm* DividerForm::loadResonantCircuit() {
  MDIForm1* main = mainWindow();
  if (!main) return nullptr;
  return qobject_cast<CalcForm*>(main->loadShared("Schwingk"));
}

void DividerForm::setFieldText(QWidget* form, const char* name, const QString& text) {
  if (auto* e = form->findChild<QLineEdit*>(QString::fromLatin1(name))) e->setText(text);
}

void DividerForm::setComboIndex(QWidget* form, const char* name, int index) {
  auto* cb = form->findChild<QComboBox*>(QString::fromLatin1(name));
  if (cb && index >= 0 && index < cb->count()) cb->setCurrentIndex(index);
}

void DividerForm::writePlaced(QWidget* form, const char* fieldName, const char* comboName,
                              const units::UnitList& list, const units::Placement& rule, double value,
                              const QString& pattern) {
  const auto placed = units::place(list, rule, value);
  if (!placed) return;
  setComboIndex(form, comboName, placed->index);
  if (arith::ok(placed->scaled)) setFieldText(form, fieldName, numfmt::format(placed->scaled, pattern));
}

void drawMatchingDivider(QPainter& painter, const QRectF& target, const MatchingSchematic& parts) {
  using schematics::Side;
  schematics::Sketch s(painter, target, QSizeF(400, 290));
  const double top = 36, tap = 136, bottom = 236;
  const double xU1 = 24, xR1 = 70, xDiv = 160, xTune = 238, xR2 = 318, xU2 = 364;

  // Rails: the top of the divider, the tap towards R1, ground below.
  s.wire({QPointF(xDiv, top), QPointF(xR2, top)});
  s.wire({QPointF(xDiv, tap), QPointF(xR1, tap)});
  s.wire({QPointF(xR1, bottom), QPointF(xR2, bottom)});
  s.part(parts.upper, QPointF(xDiv, top), QPointF(xDiv, tap), parts.upperName);
  s.part(parts.lower, QPointF(xDiv, tap), QPointF(xDiv, bottom), parts.lowerName);
  s.resistor(QPointF(xR1, tap), QPointF(xR1, bottom), "R1");
  s.part(parts.tuning, QPointF(xTune, top), QPointF(xTune, bottom), parts.tuningName);
  s.resistor(QPointF(xR2, top), QPointF(xR2, bottom), "R2");
  for (QPointF n : {QPointF(xDiv, tap), QPointF(xTune, top), QPointF(xDiv, bottom), QPointF(xTune, bottom)})
    s.node(n);

  // Ground below the middle of the bottom rail.
  const double xg = xDiv;
  s.wire({QPointF(xg, bottom), QPointF(xg, bottom + 16)});
  for (int i = 0; i < 3; ++i) {
    const double half = 16 - 5.5 * i, y = bottom + 16 + 6 * i;
    s.wire({QPointF(xg - half, y), QPointF(xg + half, y)});
  }

  s.voltage(QPointF(xU1, tap + 8), QPointF(xU1, bottom - 8), "U1", Side::Right);
  s.voltage(QPointF(xU2, top + 8), QPointF(xU2, bottom - 8), "U2", Side::Right);
}
