#include "shell/DialogService.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include "shell/core/Module1.h"

namespace dialogs {

QString iconName(Icon icon) {
  switch (icon) {
    case Icon::None: return "none";
    case Icon::Information: return "information";
    case Icon::Question: return "question";
    case Icon::Exclamation: return "exclamation";
    case Icon::Critical: return "critical";
  }
  return "none";
}

QString buttonsName(Buttons b) {
  switch (b) {
    case Buttons::OK: return "OK";
    case Buttons::OKCancel: return "OKCancel";
    case Buttons::YesNo: return "YesNo";
    case Buttons::YesNoCancel: return "YesNoCancel";
    case Buttons::RetryCancel: return "RetryCancel";
  }
  return "OK";
}

QString answerName(Answer a) {
  switch (a) {
    case Answer::OK: return "OK";
    case Answer::Cancel: return "Cancel";
    case Answer::Yes: return "Yes";
    case Answer::No: return "No";
    case Answer::Retry: return "Retry";
  }
  return "OK";
}

bool answerFromName(const QString& name, Answer& out) {
  for (Answer a : {Answer::OK, Answer::Cancel, Answer::Yes, Answer::No, Answer::Retry}) {
    if (answerName(a) == name) {
      out = a;
      return true;
    }
  }
  return false;
}

bool offers(Buttons b, Answer a) {
  switch (b) {
    case Buttons::OK: return a == Answer::OK;
    case Buttons::OKCancel: return a == Answer::OK || a == Answer::Cancel;
    case Buttons::YesNo: return a == Answer::Yes || a == Answer::No;
    case Buttons::YesNoCancel: return a == Answer::Yes || a == Answer::No || a == Answer::Cancel;
    case Buttons::RetryCancel: return a == Answer::Retry || a == Answer::Cancel;
  }
  return false;
}

Answer escapeAnswer(Buttons b) {
  switch (b) {
    case Buttons::OK: return Answer::OK;
    case Buttons::YesNo: return Answer::No;
    default: return Answer::Cancel;
  }
}

namespace {

class RealService : public Service {
 public:
  Answer show(const Message& m) override {
    QMessageBox box(QApplication::activeWindow());
    box.setWindowTitle(m.title);
    box.setText(QString(m.text).replace(Module1::NL, "\n"));
    switch (m.icon) {
      case Icon::None: box.setIcon(QMessageBox::NoIcon); break;
      case Icon::Information: box.setIcon(QMessageBox::Information); break;
      case Icon::Question: box.setIcon(QMessageBox::Question); break;
      case Icon::Exclamation: box.setIcon(QMessageBox::Warning); break;
      case Icon::Critical: box.setIcon(QMessageBox::Critical); break;
    }
    struct B { Answer a; QMessageBox::StandardButton sb; const char* text; };
    const B all[] = {{Answer::OK, QMessageBox::Ok, "OK"},
                     {Answer::Yes, QMessageBox::Yes, "&Ja"},
                     {Answer::No, QMessageBox::No, "&Nein"},
                     {Answer::Retry, QMessageBox::Retry, "&Wiederholen"},
                     {Answer::Cancel, QMessageBox::Cancel, "Abbrechen"}};
    for (const B& b : all) {
      if (!offers(m.buttons, b.a)) continue;
      box.addButton(b.sb)->setText(QString::fromUtf8(b.text));
    }
    const Answer esc = escapeAnswer(m.buttons);
    for (const B& b : all) {
      if (b.a == esc && offers(m.buttons, esc)) box.setEscapeButton(b.sb);
    }
    const int r = box.exec();
    for (const B& b : all) {
      if (r == b.sb) return b.a;
    }
    return esc;
  }
};

std::shared_ptr<Service>& installed() {
  static std::shared_ptr<Service> s;
  return s;
}

}  // namespace

void install(std::shared_ptr<Service> service) { installed() = std::move(service); }

Service& current() {
  if (!installed()) installed() = std::make_shared<RealService>();
  return *installed();
}

Answer msgBox(const QString& text, Icon icon, Buttons buttons, const QString& title) {
  Message m{title.isNull() ? Module1::AppTitle : title, text, icon, buttons};
  return current().show(m);
}

Answer QueuedService::show(const Message& m) {
  Answer a = escapeAnswer(m.buttons);
  if (m.buttons != Buttons::OK && !queue_.empty()) {
    const Answer q = queue_.front();
    queue_.erase(queue_.begin());
    if (offers(m.buttons, q)) a = q;
  }
  shown.emplace_back(m, a);
  if (observer_) observer_(m, a);
  return a;
}

}  // namespace dialogs
