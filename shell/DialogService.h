#pragma once
// The one way the program shows a message box. The running program shows
// real boxes; script mode and the tests install a service that answers from
// a queue and records what was shown, so nothing ever waits for a person.
#include <QString>
#include <functional>
#include <memory>

class QWidget;

namespace dialogs {

enum class Icon { None, Information, Question, Exclamation, Critical };
enum class Buttons { OK, OKCancel, YesNo, YesNoCancel, RetryCancel };
enum class Answer { OK, Cancel, Yes, No, Retry };

struct Message {
  QString title;
  QString text;
  Icon icon = Icon::None;
  Buttons buttons = Buttons::OK;
};

QString iconName(Icon icon);
QString buttonsName(Buttons buttons);
QString answerName(Answer answer);
bool answerFromName(const QString& name, Answer& out);
bool offers(Buttons buttons, Answer answer);
Answer escapeAnswer(Buttons buttons);  // Cancel or No; OK for a lone OK button

class Service {
 public:
  virtual ~Service() = default;
  virtual Answer show(const Message& message) = 0;
};

// Installs the service used from now on (nullptr restores the real boxes).
void install(std::shared_ptr<Service> service);
Service& current();

// Shows a box; the title defaults to the application title.
Answer msgBox(const QString& text, Icon icon = Icon::None, Buttons buttons = Buttons::OK,
              const QString& title = QString());

// Answers boxes from a queue, as script mode and the tests do: a box with OK
// alone is answered OK; otherwise the next queued answer if the box offers
// it (an answer it does not offer is used up and the escape answer given).
class QueuedService : public Service {
 public:
  using Observer = std::function<void(const Message&, Answer)>;
  explicit QueuedService(Observer observer = {}) : observer_(std::move(observer)) {}
  void queue(Answer a) { queue_.push_back(a); }
  Answer show(const Message& message) override;
  std::vector<std::pair<Message, Answer>> shown;

 private:
  Observer observer_;
  std::vector<Answer> queue_;
};

}  // namespace dialogs
