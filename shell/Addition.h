#pragma once
// Controls that this program adds beside a calculator's own controls
// (standard values, plot buttons). Script mode's plain `show` lists a form's
// own controls; an addition is listed when it is named (`show E12_Text2`)
// or with `show *`. Buttons among them are hidden on paper like the form's.
#include <QVariant>
#include <QWidget>

namespace addition {

inline void mark(QWidget* w) { w->setProperty("quarzelAddition", true); }
inline bool is(const QWidget* w) { return w->property("quarzelAddition").toBool(); }

}  // namespace addition
