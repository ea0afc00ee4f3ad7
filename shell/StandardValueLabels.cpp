#include "shell/StandardValueLabels.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>

#include "shell/Addition.h"
#include "shell/core/Module1.h"

namespace {

// The grid layout (at any depth) that holds the widget.
QGridLayout* gridOf(QLayout* layout, QWidget* w) {
  if (!layout) return nullptr;
  if (auto* g = qobject_cast<QGridLayout*>(layout); g && g->indexOf(w) >= 0) return g;
  for (int i = 0; i < layout->count(); ++i) {
    if (QGridLayout* g = gridOf(layout->itemAt(i)->layout(), w)) return g;
  }
  return nullptr;
}

}  // namespace

StandardValueLabels::StandardValueLabels(QLineEdit* field, QComboBox* combo, units::UnitList list, eseries::Part part)
    : QObject(field), field_(field), combo_(combo), list_(std::move(list)), part_(part) {
  QWidget* owner = field->parentWidget();
  QGridLayout* grid = owner ? gridOf(owner->layout(), field) : nullptr;
  int row = 0, col = 0, rs = 0, cs = 0, last = 0;
  if (grid) {
    grid->getItemPosition(grid->indexOf(field), &row, &col, &rs, &cs);
    last = col + cs - 1;
    if (combo && grid->indexOf(combo) >= 0) {
      grid->getItemPosition(grid->indexOf(combo), &row, &col, &rs, &cs);
      last = std::max(last, col + cs - 1);
    }
  }
  const std::vector<eseries::Series> series = eseries::seriesFor(part);
  for (size_t k = 0; k < labels_.size() && k < series.size(); ++k) {
    auto* l = new QLabel(owner);
    l->setObjectName(eseries::name(series[k]) + '_' + field->objectName());
    l->setToolTip(QStringLiteral("Nächster Normwert der Reihe ") + eseries::name(series[k]));
    QPalette pal = l->palette();
    pal.setColor(QPalette::WindowText, QColor(0x30, 0x50, 0x80));
    l->setPalette(pal);
    addition::mark(l);
    l->hide();
    if (grid) grid->addWidget(l, row, last + 1 + int(k));
    labels_[k] = l;
  }
  connect(field, &QLineEdit::textChanged, this, &StandardValueLabels::update);
  if (combo) connect(combo, &QComboBox::currentIndexChanged, this, &StandardValueLabels::update);
}

double StandardValueLabels::value() const {
  // A text the user typed or changed is no result of the program.
  if (field_->isModified() || field_->text().isEmpty()) return 0;
  const int index = combo_ ? combo_->currentIndex() : 0;
  return Module1::ParseNumber(field_->text()) * units::factorAt(list_, index);
}

void StandardValueLabels::update() {
  const double v = value();
  const std::vector<eseries::Series> series = eseries::seriesFor(part_);
  bool grew = false;
  for (size_t k = 0; k < labels_.size(); ++k) {
    QLabel* l = labels_[k];
    if (!l) continue;
    const QString text = v > 0 ? eseries::describe(series[k], v, list_) : QString();
    l->setText(text);
    if (text.isEmpty() == l->isHidden()) continue;
    l->setVisible(!text.isEmpty());
    grew = grew || !text.isEmpty();
  }
  if (grew) addition::makeRoom(field_);
  emit changed();
}
