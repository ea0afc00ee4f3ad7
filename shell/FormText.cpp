#include "shell/FormText.h"

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QWidget>
#include <algorithm>
#include <map>

#include "shell/Addition.h"
#include "shell/core/Module1.h"

namespace formtext {
namespace {

bool shown(QWidget* form, QWidget* w) { return w->isVisibleTo(form); }

QString plain(QString caption) {
  // "&&" stands for a literal "&"; a single "&" marks the access key.
  caption.replace("&&", QChar(0xE000));
  caption.remove('&');
  caption.replace(QChar(0xE000), '&');
  return caption.simplified();
}

// Row neighbours in the grid that holds w: the widgets of the same row.
QList<QWidget*> rowOf(QWidget* w) {
  QWidget* owner = w->parentWidget();
  if (!owner) return {};
  std::function<QGridLayout*(QLayout*)> find = [&](QLayout* l) -> QGridLayout* {
    if (!l) return nullptr;
    if (auto* g = qobject_cast<QGridLayout*>(l); g && g->indexOf(w) >= 0) return g;
    for (int i = 0; i < l->count(); ++i)
      if (QGridLayout* g = find(l->itemAt(i)->layout())) return g;
    return nullptr;
  };
  QGridLayout* g = find(owner->layout());
  if (!g) return {};
  int row = 0, col = 0, rs = 0, cs = 0;
  g->getItemPosition(g->indexOf(w), &row, &col, &rs, &cs);
  QList<QWidget*> r;
  for (int c = 0; c < g->columnCount(); ++c) {
    if (QLayoutItem* it = g->itemAtPosition(row, c); it && it->widget() && !r.contains(it->widget()))
      r << it->widget();
  }
  return r;
}

QPoint positionIn(QWidget* form, QWidget* w) { return w->mapTo(form, QPoint(0, 0)); }

}  // namespace

QString text(QWidget* form) {
  QStringList lines;
  lines << form->windowTitle().trimmed();

  std::map<const QWidget*, QLabel*> buddyLabel;
  for (QLabel* l : form->findChildren<QLabel*>())
    if (l->buddy()) buddyLabel[l->buddy()] = l;

  // Fields, lists and options in reading order.
  QList<QWidget*> items;
  for (QWidget* w : form->findChildren<QWidget*>()) {
    if (!shown(form, w) || addition::is(w)) continue;
    if (qobject_cast<QComboBox*>(w->parentWidget())) continue;  // a combo's own line edit
    if (qobject_cast<QLineEdit*>(w) || qobject_cast<QRadioButton*>(w) || qobject_cast<QComboBox*>(w)) items << w;
  }
  std::stable_sort(items.begin(), items.end(), [form](QWidget* a, QWidget* b) {
    const QPoint pa = positionIn(form, a), pb = positionIn(form, b);
    if (std::abs(pa.y() - pb.y()) > 8) return pa.y() < pb.y();
    return pa.x() < pb.x();
  });

  QList<QWidget*> unitCombos;  // combos that belong to a field's row
  for (QWidget* w : items) {
    auto* field = qobject_cast<QLineEdit*>(w);
    if (!field) continue;
    for (QWidget* n : rowOf(field))
      if (auto* c = qobject_cast<QComboBox*>(n)) unitCombos << c;
  }

  for (QWidget* w : items) {
    if (auto* field = qobject_cast<QLineEdit*>(w)) {
      QString label;
      QString unit;
      QStringList standards;
      if (auto it = buddyLabel.find(field); it != buddyLabel.end()) label = plain(it->second->text());
      for (QWidget* n : rowOf(field)) {
        if (auto* c = qobject_cast<QComboBox*>(n); c && unit.isEmpty()) unit = c->currentText();
        if (auto* l = qobject_cast<QLabel*>(n); l && label.isEmpty() && n != field && !addition::is(l) &&
                                                  positionIn(form, l).x() < positionIn(form, field).x())
          label = plain(l->text());
        if (auto* l = qobject_cast<QLabel*>(n);
            l && positionIn(form, l).x() > positionIn(form, field).x() && shown(form, l) && !l->text().isEmpty()) {
          if (addition::is(l))
            standards << l->text();
          else if (unit.isEmpty())
            unit = l->text();  // a unit written as a label ("°")
        }
      }
      QString line = label.isEmpty() ? field->objectName() + ':' : label;
      if (!field->text().isEmpty()) line += ' ' + field->text();
      if (!unit.isEmpty() && !field->text().isEmpty()) line += ' ' + unit;
      lines << line;
      for (const QString& s : standards) lines << "    " + s;
    } else if (auto* option = qobject_cast<QRadioButton*>(w)) {
      if (!option->isChecked()) continue;
      QString group;
      if (auto* box = qobject_cast<QGroupBox*>(option->parentWidget())) group = plain(box->title());
      lines << (group.isEmpty() ? QString() : group + ' ') + plain(option->text());
    } else if (auto* combo = qobject_cast<QComboBox*>(w)) {
      if (unitCombos.contains(combo)) continue;
      QString label;
      if (auto it = buddyLabel.find(combo); it != buddyLabel.end()) label = plain(it->second->text());
      lines << (label.isEmpty() ? combo->objectName() + ':' : label) + ' ' + combo->currentText();
    }
  }

  // Proposals and other lines the program adds below the fields.
  QList<QLabel*> extra;
  for (QLabel* l : form->findChildren<QLabel*>()) {
    if (!addition::is(l) || !shown(form, l) || l->text().isEmpty()) continue;
    bool besideField = false;
    for (QWidget* n : rowOf(l)) besideField = besideField || qobject_cast<QLineEdit*>(n);
    if (!besideField) extra << l;
  }
  for (QLabel* l : extra) lines << l->text();

  QList<QWidget*> results;
  for (QWidget* w : form->findChildren<QWidget*>())
    if (w->property("quarzelResult").toBool() && shown(form, w)) results << w;
  std::stable_sort(results.begin(), results.end(), [form](QWidget* a, QWidget* b) {
    return positionIn(form, a).y() < positionIn(form, b).y();
  });
  for (QWidget* w : results) {
    QString t;
    if (auto* l = qobject_cast<QLabel*>(w)) t = l->text();
    if (auto* g = qobject_cast<QGroupBox*>(w)) t = plain(g->title());
    if (!t.trimmed().isEmpty()) lines << t.trimmed();
  }

  QStringList own;
  if (form->metaObject()->indexOfMethod("resultLines()") >= 0)
    QMetaObject::invokeMethod(form, "resultLines", Qt::DirectConnection, Q_RETURN_ARG(QStringList, own));
  for (const QString& l : own) lines << l;
  return lines.join(Module1::NL) + Module1::NL;
}

void markResult(QWidget* w) { w->setProperty("quarzelResult", true); }

void install(QWidget* form) {
  if (form->findChild<QAction*>("actFormularKopieren", Qt::FindDirectChildrenOnly)) return;
  auto* copy = new QAction(QStringLiteral("Formular &kopieren"), form);
  copy->setObjectName("actFormularKopieren");
  copy->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C));
  copy->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  QObject::connect(copy, &QAction::triggered, form,
                   [form] { QGuiApplication::clipboard()->setText(text(form)); });
  form->addAction(copy);
  form->setContextMenuPolicy(Qt::ActionsContextMenu);
}

}  // namespace formtext
