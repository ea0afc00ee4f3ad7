#pragma once
// Shared set-up of the GUI tests: a queued dialog service that answers from
// a queue and fails the test on a box nobody expected, a fixed locale, and
// helpers to reach forms and controls by name.
#include <QLineEdit>
#include <QString>
#include <memory>

#include "shell/DialogService.h"

class MDIForm1;

namespace guitest {

std::shared_ptr<dialogs::QueuedService> installDialogs();
MDIForm1* mainWindow();  // created and loaded once per test program

template <class T>
T* child(QWidget* form, const QString& name) {
  return form ? form->findChild<T*>(name) : nullptr;
}

}  // namespace guitest
