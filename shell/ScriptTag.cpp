// Script command `tag TEXT`: sets the Tag of the active form, as a calculator
// does before it hands values over to another one.
#include "shell/CalcForm.h"
#include "shell/MDIForm1.h"
#include "shell/ScriptRunner.h"

namespace {

const bool registered = script::registerCommand("tag", [](const QString& rest) -> QString {
  MDIForm1* main = mainWindow();
  auto* form = main ? qobject_cast<CalcForm*>(main->activeForm()) : nullptr;
  if (!form) return "no active form";
  form->setTag(script::textArgument(rest));
  return QString();
});

}  // namespace
