#include "shell/CalcForm.h"

#include <QApplication>
#include <algorithm>
#include <cmath>
#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

#include "shell/Addition.h"
#include "shell/DialogService.h"
#include "shell/StandardValueLabels.h"
#include "shell/PrintService.h"
#include "shell/core/Arith.h"
#include "shell/core/Module1.h"
#include "shell/core/NumberFormat.h"

CalcForm::CalcForm(const QString& name, const QString& caption, QWidget* parent) : QWidget(parent) {
  setObjectName(name);
  setCaption(caption);
  setWindowIcon(QApplication::windowIcon());

  auto* outer = new QVBoxLayout(this);
  labelText_ = new QLabel(this);
  labelText_->setObjectName("Label_Text");
  QFont f = labelText_->font();
  f.setBold(true);
  labelText_->setFont(f);
  labelText_->hide();
  outer->addWidget(labelText_);

  auto* row = new QHBoxLayout;
  outer->addLayout(row);
  grid_ = new QGridLayout;
  grid_->setHorizontalSpacing(8);
  grid_->setVerticalSpacing(6);
  row->addLayout(grid_);
  buttons_ = new QVBoxLayout;
  row->addSpacing(12);
  row->addLayout(buttons_);
  // A window made larger (maximized) keeps its contents as designed, at the
  // top left corner; the room beyond stays empty.
  row->addStretch(1);
  outer->addStretch(1);

  QPushButton* b1 = makeButton("Command1", "&Berechnung");
  QPushButton* b2 = makeButton("Command2", "&Neu");
  QPushButton* b3 = makeButton("Command3", "&Drucken");
  QPushButton* b4 = makeButton("Command4", "&Schliessen");
  b1->setDefault(true);
  for (QPushButton* b : {b1, b2, b3, b4}) buttons_->addWidget(b);
  buttons_->addStretch(1);
  connect(b1, &QPushButton::clicked, this, [this] { compute(); });
  connect(b2, &QPushButton::clicked, this, [this] {
    clearFields();
    // The next values are typed at once, not into the button.
    if (QWidget* first = firstInput(this)) first->setFocus(Qt::OtherFocusReason);
  });
  connect(b3, &QPushButton::clicked, this, [this] { printForm(); });
  connect(b4, &QPushButton::clicked, this, [this] { closeForm(); });
}

QWidget* CalcForm::firstInput(QWidget* form) {
  QWidget* w = form;
  do {
    w = w->nextInFocusChain();
    if (w != form && form->isAncestorOf(w) && (w->focusPolicy() & Qt::TabFocus) && w->isVisible() &&
        w->isEnabled() && !qobject_cast<QPushButton*>(w))
      return w;
  } while (w != form);
  return nullptr;
}

bool CalcForm::editsText(const QKeyEvent* k) {
  // Backspace and Delete, a typed character (whether the key filter lets it
  // through or not), and the editing shortcuts (paste, cut, undo, redo).
  // Modifiers, Tab, arrows, Home, End, page keys, Escape and function keys
  // only move or do nothing to the text.
  if (k->key() == Qt::Key_Backspace || k->key() == Qt::Key_Delete) return true;
  if (k->matches(QKeySequence::Paste) || k->matches(QKeySequence::Cut) || k->matches(QKeySequence::Undo) ||
      k->matches(QKeySequence::Redo))
    return true;
  if (k->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
  const QString t = k->text();
  return !t.isEmpty() && t.at(0).isPrint();
}

bool CalcForm::keyPasses(QChar c) {
  const ushort code = c.unicode();
  if (code == 8) return true;
  return code >= 44 && code <= 57 && code != 45 && code != 47;
}

QLineEdit* CalcForm::makeField(const QString& name, bool keyFilter) {
  auto* e = new QLineEdit(this);
  e->setObjectName(name);
  e->setMinimumWidth(110);
  e->installEventFilter(this);
  if (keyFilter) filtered_.push_back(e);
  return e;
}

QComboBox* CalcForm::makeUnitCombo(const QString& name, const units::UnitList& list, int start) {
  auto* c = new QComboBox(this);
  c->setObjectName(name);
  c->setMinimumContentsLength(5);
  fillUnitCombo(c, list, start);
  return c;
}

void CalcForm::fillUnitCombo(QComboBox* combo, const units::UnitList& list, int start) {
  combo->clear();
  combo->addItems(units::names(list));
  combo->setCurrentIndex(start);
  units_[combo] = list;
}

QLabel* CalcForm::makeLabel(const QString& name, const QString& caption, QWidget* buddy) {
  auto* l = new QLabel(caption, this);
  l->setObjectName(name);
  if (buddy) l->setBuddy(buddy);
  return l;
}

QPushButton* CalcForm::makeButton(const QString& name, const QString& caption) {
  auto* b = new QPushButton(caption, this);
  b->setObjectName(name);
  b->setAutoDefault(false);
  return b;
}

void CalcForm::showStandardValues(QLineEdit* field, QComboBox* combo, eseries::Part part) {
  new StandardValueLabels(field, combo, combo ? unitsOf(combo) : units::UnitList{}, part);
}

void CalcForm::addRow(QLabel* label, QLineEdit* field, QComboBox* combo) {
  const int r = grid_->rowCount();
  grid_->addWidget(label, r, 0);
  grid_->addWidget(field, r, 1);
  if (combo) grid_->addWidget(combo, r, 2);
}

const units::UnitList& CalcForm::unitsOf(const QComboBox* combo) const {
  static const units::UnitList none;
  auto it = units_.find(combo);
  return it == units_.end() ? none : it->second;
}

double CalcForm::read(const QLineEdit* field, const QComboBox* combo) const {
  const double v = Module1::ParseNumber(field->text());
  if (!combo) return v;
  return v * units::factorAt(unitsOf(combo), combo->currentIndex());
}

bool CalcForm::writeResult(QLineEdit* field, QComboBox* combo, const units::Placement& rule, double value,
                           const QString& pattern) {
  if (!arith::ok(value)) return false;
  if (!combo) return writeNumber(field, value, pattern);
  const auto placed = units::place(unitsOf(combo), rule, value);
  if (!placed || !arith::ok(placed->scaled)) return false;
  combo->setCurrentIndex(placed->index);
  field->setText(numfmt::format(placed->scaled, pattern));
  return true;
}

bool CalcForm::writeNumber(QLineEdit* field, double value, const QString& pattern) {
  if (!arith::ok(value)) return false;
  field->setText(numfmt::format(value, pattern));
  return true;
}

bool CalcForm::computeEmptyField(const std::vector<Slot>& fieldSlots, const Solver& solve, int needed) {
  std::vector<double> values;
  int known = 0;
  for (const Slot& s : fieldSlots) {
    values.push_back(read(s.field, s.combo));
    if (values.back() > 0) ++known;
  }
  if (known < needed) {
    dialogs::msgBox(frame::kTwoValues);
    return false;
  }
  for (size_t i = 0; i < fieldSlots.size(); ++i) {
    if (!fieldSlots[i].field->text().isEmpty()) continue;
    const double result = solve(int(i), values);
    return writeResult(fieldSlots[i].field, fieldSlots[i].combo, fieldSlots[i].rule, result, fieldSlots[i].pattern);
  }
  dialogs::msgBox(frame::kMustBeEmpty);
  return false;
}

void CalcForm::activated() {
  labelText_->setText(caption() + " " + Module1::AppIdentification);
}

void CalcForm::clearFields() {
  for (QLineEdit* e : findChildren<QLineEdit*>()) {
    // Editable combos carry a line edit of their own; only fields count.
    if (qobject_cast<QComboBox*>(e->parentWidget())) continue;
    e->clear();
  }
}

QList<QWidget*> CalcForm::hiddenWhilePrinting() const {
  QList<QWidget*> r;
  for (QPushButton* b : findChildren<QPushButton*>()) {
    if (b->objectName().startsWith("Command") || addition::is(b)) r << b;
  }
  return r;
}

void CalcForm::printForm() {
  // Buttons hidden and the identification line shown while the image is
  // taken; restored whatever happens.
  const QList<QWidget*> hidden = hiddenWhilePrinting();
  QList<QWidget*> wasVisible;
  for (QWidget* w : hidden) {
    if (!w->isHidden()) wasVisible << w;
  }
  // On paper there is no focus frame, no cursor and no selection: the focus
  // leaves the form while the image is taken and comes back afterwards.
  printing_ = true;
  QPointer<QWidget> hadFocus = focusWidget();
  struct Selection {
    QPointer<QLineEdit> field;
    int start, length;
  };
  std::vector<Selection> selections;
  for (QLineEdit* e : findChildren<QLineEdit*>()) {
    if (e->hasSelectedText()) selections.push_back({e, e->selectionStart(), int(e->selectedText().size())});
  }
  if (hadFocus) hadFocus->clearFocus();
  for (const Selection& s : selections) s.field->deselect();

  labelText_->show();
  for (QWidget* w : hidden) w->hide();
  if (layout()) layout()->activate();
  // The identification line needs room of its own: the form grows for the
  // printout so that nothing below it is squeezed or cut.
  const QSize onScreen = size();
  QSize needed = onScreen.expandedTo(sizeHint());
  if (hasHeightForWidth()) needed.setHeight(std::max(needed.height(), heightForWidth(needed.width())));
  if (needed != onScreen) resize(needed);
  QString error;
  const bool ok = printing::printWidgetImage(this, &error);
  QApplication::processEvents();
  if (!ok) dialogs::msgBox(error + Module1::NL + "Das Formular kann nicht gedruckt werden.");
  labelText_->hide();
  for (QWidget* w : wasVisible) w->show();
  if (size() != onScreen) resize(onScreen);
  for (const Selection& s : selections) {
    if (s.field) s.field->setSelection(s.start, s.length);
  }
  if (hadFocus) hadFocus->setFocus(Qt::OtherFocusReason);
  printing_ = false;
}

QMdiSubWindow* CalcForm::subWindow() const { return qobject_cast<QMdiSubWindow*>(parentWidget()); }

void CalcForm::closeForm() {
  if (QMdiSubWindow* sub = subWindow())
    sub->close();
  else
    close();
}

void CalcForm::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (tabOrderSet_) return;
  tabOrderSet_ = true;
  // Tab runs through the fields in reading order, row by row, and then
  // through the buttons.
  // Controls hidden or disabled now take their place as well; Tab passes
  // over them while they are.
  QList<QWidget*> inputs, buttons;
  for (QWidget* w : findChildren<QWidget*>()) {
    if (!(w->focusPolicy() & Qt::TabFocus) || w->window() != window()) continue;  // not a combo's popup
    if (qobject_cast<QComboBox*>(w->parentWidget())) continue;  // an editable combo's own line edit
    (qobject_cast<QPushButton*>(w) ? buttons : inputs) << w;
  }
  auto position = [this](QWidget* w) { return w->mapTo(this, QPoint(0, 0)); };
  auto readingOrder = [&](QWidget* a, QWidget* b) {
    const QPoint pa = position(a), pb = position(b);
    if (std::abs(pa.y() - pb.y()) > 8) return pa.y() < pb.y();
    return pa.x() < pb.x();
  };
  std::stable_sort(inputs.begin(), inputs.end(), readingOrder);
  std::stable_sort(buttons.begin(), buttons.end(), readingOrder);
  const QList<QWidget*> chain = inputs + buttons;
  for (qsizetype i = 1; i < chain.size(); ++i) QWidget::setTabOrder(chain[i - 1], chain[i]);
}

void CalcForm::closeEvent(QCloseEvent* event) {
  event->accept();
  if (!unloadedOnce_) {
    unloadedOnce_ = true;
    emit unloaded();
  }
}

bool CalcForm::eventFilter(QObject* watched, QEvent* event) {
  auto* field = qobject_cast<QLineEdit*>(watched);
  if (!field) return QWidget::eventFilter(watched, event);
  switch (event->type()) {
    case QEvent::KeyPress: {
      auto* k = static_cast<QKeyEvent*>(event);
      if (editsText(k) && std::find(editKeys_.begin(), editKeys_.end(), std::make_pair(static_cast<const QLineEdit*>(field), k->key())) ==
                              editKeys_.end())
        editKeys_.emplace_back(field, k->key());
      const bool filtered = std::find(filtered_.begin(), filtered_.end(), field) != filtered_.end();
      // Characters are filtered; editing keys and shortcuts (copy, paste)
      // have no character of their own and pass.
      if (filtered && !k->text().isEmpty() && !(k->modifiers() & Qt::ControlModifier)) {
        const QChar c = k->text().at(0);
        if (c.unicode() >= 32 || c.unicode() == 8) {
          if (!keyPasses(c)) return true;
        }
      }
      break;
    }
    case QEvent::KeyRelease: {
      auto* k = static_cast<QKeyEvent*>(event);
      if (k->isAutoRepeat()) break;
      // Only the release of a key whose press went to this same field and
      // that edits text counts; a Tab, Shift or Alt pressed elsewhere and
      // released here leaves the coupled fields alone.
      const auto it = std::find(editKeys_.begin(), editKeys_.end(), std::make_pair(static_cast<const QLineEdit*>(field), k->key()));
      if (it == editKeys_.end()) break;
      editKeys_.erase(it);
      keyReleased(field, k->key());
      break;
    }
    case QEvent::FocusOut:
      // A key still held when the focus leaves is released elsewhere.
      std::erase_if(editKeys_, [field](const auto& p) { return p.first == field; });
      if (!printing_) focusLeft(field);
      break;
    default:
      break;
  }
  return QWidget::eventFilter(watched, event);
}
