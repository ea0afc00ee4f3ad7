#pragma once
// Controls that this program adds beside a calculator's own controls
// (standard values, plot buttons). Script mode's plain `show` lists a form's
// own controls; an addition is listed when it is named (`show E12_Text2`)
// or with `show *`. Buttons among them are hidden on paper like the form's.
#include <QLayout>
#include <QMdiSubWindow>
#include <QVariant>
#include <QWidget>

namespace addition {

inline void mark(QWidget* w) { w->setProperty("quarzelAddition", true); }
inline bool is(const QWidget* w) { return w->property("quarzelAddition").toBool(); }

// A calculator grows its window when additions first need room, so that
// nothing is squeezed or cut; it never shrinks the window.
inline void makeRoom(QWidget* w) {
  for (QWidget* p = w; p; p = p->parentWidget()) {
    if (auto* sub = qobject_cast<QMdiSubWindow*>(p)) {
      if (sub->widget() && sub->widget()->layout()) sub->widget()->layout()->activate();
      const QSize want = sub->sizeHint().expandedTo(sub->size());
      if (want != sub->size()) sub->resize(want);
      return;
    }
  }
}

}  // namespace addition
