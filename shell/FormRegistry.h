#pragma once
// The forms the program can show, by object name. A form's source file
// registers it; the main window enables a menu item only when its form is
// registered, so an item whose form is not built stays disabled.
#include <QString>
#include <QStringList>
#include <functional>

class QWidget;

namespace forms {

using Factory = std::function<QWidget*()>;

bool registerForm(const QString& name, Factory factory);
bool has(const QString& name);
QWidget* create(const QString& name);  // nullptr if the form is not known
QStringList names();

}  // namespace forms

#define QUARZEL_REGISTER_FORM(Name, Class) \
  static const bool quarzelRegistered_##Class = forms::registerForm(Name, [] { return new Class; })
