#include "shell/ScriptRunner.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSocketNotifier>
#include <cerrno>
#include <cstdio>
#include <fstream>
#include <map>
#include <memory>
#include <unistd.h>

#include "shell/Addition.h"
#include "shell/CalcForm.h"
#include "shell/DialogService.h"
#include "shell/FormRegistry.h"
#include "shell/MDIForm1.h"
#include "shell/PictureBox.h"
#include "shell/PrintService.h"
#include "shell/core/Json.h"
#include "shell/core/Module1.h"

// Qt's own dispatch of a key to shortcuts and access keys, exported by Qt
// GUI for its key simulation; true when a shortcut took the key.
Q_GUI_EXPORT bool qt_sendShortcutOverrideEvent(QObject* o, ulong timestamp, int k, Qt::KeyboardModifiers mods,
                                               const QString& text, bool autorep, ushort count);

namespace script {
namespace {

std::shared_ptr<dialogs::QueuedService>& queuedService() {
  static std::shared_ptr<dialogs::QueuedService> s;
  return s;
}

std::map<QString, Command>& extraCommands() {
  static std::map<QString, Command> c;
  return c;
}

// A failure of the script itself: unknown command or control, wrong kind.
struct ScriptError {
  QString what;
};

void settle() {
  for (int i = 0; i < 3; ++i) {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
  }
}

QString shortcutText(const QAction* a) { return a->shortcut().toString(QKeySequence::PortableText); }

json::Object menuNode(QAction* a) {
  json::Object o;
  o.add("name", a->objectName())
      .add("caption", a->isSeparator() ? QString("-") : a->text())
      .add("shortcut", shortcutText(a))
      .add("enabled", a->isEnabled())
      .add("separator", a->isSeparator());
  std::vector<json::Object> children;
  if (QMenu* m = a->menu()) {
    for (QAction* c : m->actions()) children.push_back(menuNode(c));
  }
  o.raw("children", json::array(children));
  return o;
}

class Runner {
 public:
  explicit Runner(MDIForm1& main) : main_(main) {}

  // Returns false when the program has ended.
  bool execute(const QString& line) {
    QString rest = line;
    QString word = nextWord(rest);
    if (word == "locale") {
      QLocale::setDefault(QLocale(nextWord(rest)));
    } else if (word == "appdir") {
      Module1::setAppDir(textArgument(rest));
    } else if (word == "printer") {
      const QString kind = nextWord(rest);
      if (kind == "pdf")
        printing::setMode(printing::Mode::Pdf, textArgument(rest));
      else if (kind == "none")
        printing::setMode(printing::Mode::None);
      else
        throw ScriptError{"unknown printer " + kind};
    } else if (word == "menu") {
      menu(nextWord(rest));
    } else if (word == "form") {
      formCommand(nextWord(rest));
    } else if (word == "open") {
      const QString name = nextWord(rest);
      if (!forms::has(name)) throw ScriptError{"unknown form " + name};
      main_.showShared(name);
    } else if (word == "set" || word == "type") {
      QWidget* c = control(nextWord(rest));
      const QString text = textArgument(rest);
      if (word == "set")
        setText(c, text);
      else
        typeText(c, text);
    } else if (word == "key" || word == "select") {
      QWidget* c = control(nextWord(rest));
      const QString arg = nextWord(rest);
      if (word == "key")
        namedKey(c, arg);
      else
        select(c, arg);
    } else if (word == "click") {
      const QString name = nextWord(rest);
      if (QAction* a = formAction(name))
        a->trigger();
      else
        click(name, control(name));
    } else if (word == "clipboard") {
      emitLine(json::Object().add("clipboard", QGuiApplication::clipboard()->text()).str());
    } else if (word == "dblclick") {
      dblclick(control(nextWord(rest)));
    } else if (word == "leave") {
      leave(control(nextWord(rest)));
    } else if (word == "answer") {
      dialogs::Answer a;
      const QString name = nextWord(rest);
      if (!dialogs::answerFromName(name, a)) throw ScriptError{"unknown answer " + name};
      queuedService()->queue(a);
    } else if (word == "show") {
      QStringList only;
      for (QString w = nextWord(rest); !w.isEmpty(); w = nextWord(rest)) only << w;
      const bool all = only == QStringList{"*"};
      show(all ? QStringList() : only, all);
    } else if (word == "windows") {
      windows();
    } else if (word == "menustate") {
      const QString name = nextWord(rest);
      QAction* a = main_.menuAction(name);
      if (!a) throw ScriptError{"unknown menu item " + name};
      emitLine(json::Object()
                   .add("menu", name)
                   .add("caption", a->text())
                   .add("enabled", a->isEnabled())
                   .add("shortcut", shortcutText(a))
                   .str());
    } else if (word == "menutree") {
      std::vector<json::Object> top;
      for (QAction* a : main_.menus()->actions()) top.push_back(menuNode(a));
      emitLine(json::Object().raw("menutree", json::array(top)).str());
    } else if (word == "screenshot") {
      const QString file = textArgument(rest);
      if (!main_.grab().save(file, "PNG")) throw ScriptError{"cannot write " + file};
    } else if (word == "close") {
      main_.close();
    } else if (extraCommands().count(word)) {
      const QString err = extraCommands()[word](rest);
      if (!err.isEmpty()) throw ScriptError{err};
    } else {
      throw ScriptError{"unknown command " + word};
    }
    settle();
    return !main_.hasQuit();
  }

 private:
  QWidget* target() const { return main_.activeForm(); }

  // An action of the active form (its context-menu entries), by object name.
  QAction* formAction(const QString& name) {
    QWidget* form = target();
    if (!form || name.isEmpty()) return nullptr;
    for (QAction* a : form->actions())
      if (a->objectName() == name) return a;
    return nullptr;
  }

  QWidget* control(const QString& name) {
    QWidget* form = target();
    if (!form) throw ScriptError{"no active form"};
    if (name.isEmpty()) throw ScriptError{"missing control name"};
    for (QWidget* w : form->findChildren<QWidget*>(name)) return w;
    throw ScriptError{"unknown control " + name};
  }

  void menu(const QString& name) {
    QAction* a = main_.menuAction(name);
    if (!a) throw ScriptError{"unknown menu item " + name};
    // An item counts as disabled when it or one of its menus is.
    bool enabled = a->isEnabled();
    for (QObject* p = a->parent(); p && enabled; p = p->parent()) {
      if (auto* m = qobject_cast<QMenu*>(p)) enabled = m->menuAction()->isEnabled();
    }
    if (!enabled) {
      emitLine(json::Object().add("menu", name).add("enabled", false).str());
      return;
    }
    a->trigger();
  }

  void formCommand(const QString& name) {
    const QList<QMdiSubWindow*> subs = main_.childWindows();
    for (auto it = subs.rbegin(); it != subs.rend(); ++it) {
      QWidget* w = (*it)->widget();
      if (w && w->objectName() == name) {
        main_.activate(w);
        return;
      }
    }
    throw ScriptError{"no open form " + name};
  }

  // A disabled control takes no input from the script, as it takes none
  // from a person; `show` reports it with "enabled":false.
  static void refuseDisabled(QWidget* c) {
    if (!c->isEnabled()) throw ScriptError{"control " + c->objectName() + " is disabled"};
  }

  // A read-only text control takes no text from the script, as it takes
  // none from a person; `show` reports it with "readonly":true.
  static void refuseReadOnly(QWidget* c) {
    refuseDisabled(c);
    auto* e = qobject_cast<QLineEdit*>(keyTarget(c));
    auto* t = qobject_cast<QPlainTextEdit*>(c);
    if ((e && e->isReadOnly()) || (t && t->isReadOnly()))
      throw ScriptError{"control " + c->objectName() + " is read-only"};
  }

  void setText(QWidget* c, const QString& text) {
    refuseReadOnly(c);
    if (auto* e = qobject_cast<QLineEdit*>(c)) {
      e->setText(text);
    } else if (auto* cb = qobject_cast<QComboBox*>(c); cb && cb->isEditable()) {
      cb->setEditText(text);
    } else {
      throw ScriptError{"control " + c->objectName() + " takes no text"};
    }
  }

  static QWidget* keyTarget(QWidget* c) {
    if (auto* cb = qobject_cast<QComboBox*>(c); cb && cb->isEditable()) return cb->lineEdit();
    return c;
  }

  // One key as a person presses it: shortcuts and access keys first, as Qt
  // dispatches them, then the press to the control; the release goes where
  // the focus is now (a Tab has moved it on, a shortcut may have moved it).
  void sendKey(QWidget* c, int key, Qt::KeyboardModifiers mods, const QString& text) {
    QWidget* t = keyTarget(c);
    if (!qt_sendShortcutOverrideEvent(t, 0, key, mods, text, false, 1)) {
      QKeyEvent press(QEvent::KeyPress, key, mods, text);
      QApplication::sendEvent(t, &press);
    }
    QWidget* now = QApplication::focusWidget();
    QWidget* form = target();
    QWidget* releaseTo = (now && form && form->isAncestorOf(now)) ? now : t;
    if (!releaseTo) return;
    QKeyEvent release(QEvent::KeyRelease, key, mods, text);
    QApplication::sendEvent(releaseTo, &release);
  }

  void typeText(QWidget* c, const QString& text) {
    refuseReadOnly(c);
    QWidget* t = keyTarget(c);
    if (!qobject_cast<QLineEdit*>(t)) throw ScriptError{"control " + c->objectName() + " takes no typing"};
    t->setFocus(Qt::OtherFocusReason);
    static_cast<QLineEdit*>(t)->end(false);
    for (QChar ch : text) {
      int key = ch.toUpper().unicode();
      if (ch == ' ') key = Qt::Key_Space;
      sendKey(c, key, Qt::NoModifier, QString(ch));
    }
  }

  // A named key or key combination in Qt's portable notation: Backspace,
  // Delete, Tab, Shift+Tab, Return, Enter, Esc, F10, Alt+B, Ctrl+F4, ...
  void namedKey(QWidget* c, const QString& name) {
    refuseDisabled(c);
    const QKeySequence seq = QKeySequence::fromString(name, QKeySequence::PortableText);
    if (name.isEmpty() || seq.count() != 1 || seq[0].key() == Qt::Key_unknown)
      throw ScriptError{"unknown key " + name};
    int key = seq[0].key();
    Qt::KeyboardModifiers mods = seq[0].keyboardModifiers();
    if (key == Qt::Key_Tab && (mods & Qt::ShiftModifier)) key = Qt::Key_Backtab;
    if (key == Qt::Key_Enter) mods |= Qt::KeypadModifier;
    QString text;
    switch (key) {
      case Qt::Key_Backspace: text = QString(QChar(8)); break;
      case Qt::Key_Tab: text = "\t"; break;
      case Qt::Key_Return:
      case Qt::Key_Enter: text = "\r"; break;
      case Qt::Key_Escape: text = QString(QChar(27)); break;
      default:
        if (key < 0x80 && QChar(key).isPrint()) {
          const QChar ch = QChar(key);
          text = (mods & Qt::ShiftModifier) ? QString(ch.toUpper()) : QString(ch.toLower());
        }
        break;
    }
    if (mods & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) text.clear();
    // As a person's key press: the control has the focus first, so that
    // press and release both reach it.
    keyTarget(c)->setFocus(Qt::OtherFocusReason);
    sendKey(c, key, mods, text);
  }

  void select(QWidget* c, const QString& indexText) {
    refuseDisabled(c);
    bool ok = false;
    const int i = indexText.toInt(&ok);
    if (auto* cb = qobject_cast<QComboBox*>(c)) {
      if (!ok || i < 0 || i >= cb->count()) throw ScriptError{"index out of range: " + indexText};
      const bool same = cb->currentIndex() == i;
      cb->setCurrentIndex(i);
      if (same) emit cb->currentIndexChanged(i);
      emit cb->activated(i);
    } else if (auto* lw = qobject_cast<QListWidget*>(c)) {
      if (!ok || i < 0 || i >= lw->count()) throw ScriptError{"index out of range: " + indexText};
      const bool same = lw->currentRow() == i;
      lw->setCurrentRow(i);
      if (same) emit lw->currentRowChanged(i);
      emit lw->itemClicked(lw->item(i));
    } else {
      throw ScriptError{"control " + c->objectName() + " is no list"};
    }
  }

  void click(const QString& name, QWidget* c) {
    auto* b = qobject_cast<QAbstractButton*>(c);
    if (!b) throw ScriptError{"control " + name + " is no button"};
    if (!b->isVisibleTo(target())) {
      emitLine(json::Object().add("click", name).add("visible", false).str());
      return;
    }
    if (!b->isEnabled()) {
      emitLine(json::Object().add("click", name).add("enabled", false).str());
      return;
    }
    b->click();
  }

  void dblclick(QWidget* c) {
    const QPointF at(c->width() / 2.0, c->height() / 2.0);
    QMouseEvent e(QEvent::MouseButtonDblClick, at, c->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton,
                  Qt::NoModifier);
    QApplication::sendEvent(c, &e);
  }

  void leave(QWidget* c) {
    QWidget* t = keyTarget(c);
    QFocusEvent e(QEvent::FocusOut, Qt::TabFocusReason);
    QApplication::sendEvent(t, &e);
  }

  static json::Object describe(QWidget* form, QWidget* w) {
    json::Object o;
    if (auto* e = qobject_cast<QLineEdit*>(w)) {
      o.add("kind", "text").add("text", e->text());
      if (e->isReadOnly()) o.add("readonly", true);
    } else if (auto* t = qobject_cast<QPlainTextEdit*>(w)) {
      o.add("kind", "text").add("text", t->toPlainText().replace("\n", Module1::NL));
      if (t->isReadOnly()) o.add("readonly", true);
    } else if (auto* cb = qobject_cast<QComboBox*>(w)) {
      QStringList items;
      for (int i = 0; i < cb->count(); ++i) items << cb->itemText(i);
      o.add("kind", "combo")
          .add("index", cb->currentIndex())
          .add("text", cb->currentText())
          .addStrings("items", items)
          .add("editable", cb->isEditable());
    } else if (auto* lw = qobject_cast<QListWidget*>(w)) {
      QStringList items;
      for (int i = 0; i < lw->count(); ++i) items << lw->item(i)->text();
      o.add("kind", "list")
          .add("index", lw->currentRow())
          .add("text", lw->currentItem() ? lw->currentItem()->text() : QString())
          .addStrings("items", items)
          .add("editable", false);
    } else if (auto* rb = qobject_cast<QRadioButton*>(w)) {
      o.add("kind", "option").add("caption", rb->text()).add("checked", rb->isChecked());
    } else if (auto* cbx = qobject_cast<QCheckBox*>(w)) {
      o.add("kind", "option").add("caption", cbx->text()).add("checked", cbx->isChecked());
    } else if (auto* b = qobject_cast<QPushButton*>(w)) {
      o.add("kind", "button").add("caption", b->text());
    } else if (auto* l = qobject_cast<QLabel*>(w)) {
      o.add("kind", "label").add("caption", l->text());
    } else if (auto* g = qobject_cast<QGroupBox*>(w)) {
      o.add("kind", "label").add("caption", g->title());
    } else if (auto* p = qobject_cast<PictureBox*>(w)) {
      o.add("kind", "picture").add("empty", p->isEmpty());
      // A drawing the program makes on a surface lists the texts it shows.
      if (p->isSurfacePicture()) o.addStrings("texts", p->texts());
    } else {
      return o;
    }
    o.add("visible", w->isVisibleTo(form)).add("enabled", w->isEnabled());
    if (!w->toolTip().isEmpty()) o.add("tip", w->toolTip());
    return o;
  }

  // `show` lists every named control of the form; `show Text1 ComboR` only
  // those named; `show *` also the controls the program adds beside the
  // form's own (standard values, plot buttons).
  void show(const QStringList& only, bool withAdditions = false) {
    QWidget* form = target();
    if (!form) throw ScriptError{"no active form"};
    for (const QString& n : only) control(n);
    json::Object controls;
    for (QWidget* w : form->findChildren<QWidget*>()) {
      const QString n = w->objectName();
      if (n.isEmpty() || n.startsWith("qt_")) continue;
      if (!only.isEmpty() && !only.contains(n)) continue;
      if (only.isEmpty() && !withAdditions && addition::is(w)) continue;
      json::Object d = describe(form, w);
      if (d.str() == "{}") continue;
      controls.add(n, d);
    }
    auto* calc = qobject_cast<CalcForm*>(form);
    emitLine(json::Object()
                 .add("form", form->objectName())
                 .add("caption", form->windowTitle())
                 .add("tag", calc ? calc->tag() : QString())
                 .add("controls", controls)
                 .str());
  }

  void windows() {
    std::vector<json::Object> list;
    QWidget* active = target();
    for (QMdiSubWindow* s : main_.childWindows()) {
      QWidget* w = s->widget();
      if (!w) continue;
      list.push_back(json::Object()
                         .add("form", w->objectName())
                         .add("caption", w->windowTitle())
                         .add("active", w == active));
    }
    emitLine(json::Object().raw("windows", json::array(list)).str());
  }

  MDIForm1& main_;
};

}  // namespace

void emitLine(const QString& line) {
  const QByteArray utf8 = line.toUtf8();
  std::fwrite(utf8.constData(), 1, size_t(utf8.size()), stdout);
  std::fputc('\n', stdout);
  std::fflush(stdout);
}

bool registerCommand(const QString& word, Command command) {
  extraCommands()[word] = std::move(command);
  return true;
}

QString nextWord(QString& rest) {
  int i = 0;
  while (i < rest.size() && rest[i].isSpace()) ++i;
  QString word;
  if (i < rest.size() && rest[i] == '"') {
    ++i;
    while (i < rest.size() && rest[i] != '"') {
      if (rest[i] == '\\' && i + 1 < rest.size()) {
        const QChar e = rest[++i];
        word += e == 'n' ? QChar('\n') : e == 'r' ? QChar('\r') : e == 't' ? QChar('\t') : e;
      } else {
        word += rest[i];
      }
      ++i;
    }
    ++i;  // closing quote
  } else {
    while (i < rest.size() && !rest[i].isSpace()) word += rest[i++];
  }
  rest = rest.mid(i);
  return word;
}

QString textArgument(const QString& rest) {
  // The rest of the line after the one blank that separates it.
  QString t = rest.startsWith(' ') ? rest.mid(1) : rest;
  if (t.startsWith('"')) {
    QString r = t;
    return nextWord(r);
  }
  return t;
}

void installSeams() {
  queuedService() = std::make_shared<dialogs::QueuedService>([](const dialogs::Message& m, dialogs::Answer a) {
    emitLine(json::Object()
                 .add("message", json::Object()
                                     .add("title", m.title)
                                     .add("text", m.text)
                                     .add("icon", dialogs::iconName(m.icon))
                                     .add("buttons", dialogs::buttonsName(m.buttons))
                                     .add("answer", dialogs::answerName(a)))
                 .str());
  });
  dialogs::install(queuedService());
  printing::setObserver([](const QString& form, int pages) {
    emitLine(json::Object().add("printed", json::Object().add("form", form).add("pages", pages)).str());
  });
}

namespace {

// What became of one line: the script goes on, or the program ends with a
// status.
constexpr int kGoOn = -1;

int handleLine(Runner& runner, const QByteArray& raw, int lineNo) {
  QString line = QString::fromUtf8(raw);
  if (line.endsWith('\r')) line.chop(1);
  const QString trimmed = line.trimmed();
  if (trimmed.isEmpty() || trimmed.startsWith('#')) return kGoOn;
  // Leading blanks before the command word are not part of any argument.
  while (!line.isEmpty() && line[0].isSpace()) line.remove(0, 1);
  try {
    if (!runner.execute(line)) {
      emitLine("{\"exit\":0}");
      return 0;
    }
  } catch (const ScriptError& e) {
    emitLine(json::Object().add("error", e.what).add("line", lineNo).str());
    return 2;
  }
  return kGoOn;
}

int finish(MDIForm1& main) {
  main.closeQuietly();
  settle();
  emitLine("{\"exit\":0}");
  return 0;
}

// Standard input is read as it arrives, while the event loop runs: between
// two commands the windows repaint and take a person's keys.
class StdinReader : public QObject {
 public:
  StdinReader(MDIForm1& main, Runner& runner) : main_(main), runner_(runner), notifier_(0, QSocketNotifier::Read) {
    connect(&notifier_, &QSocketNotifier::activated, this, &StdinReader::readable);
  }

 private:
  void readable() {
    // Commands run one after the other: no further input is taken while
    // one of them lets events run.
    notifier_.setEnabled(false);
    char chunk[4096];
    const ssize_t n = ::read(0, chunk, sizeof chunk);
    if (n < 0 && (errno == EINTR || errno == EAGAIN)) {
      notifier_.setEnabled(true);
      return;
    }
    if (n > 0) buffer_.append(chunk, n);
    for (qsizetype end = buffer_.indexOf('\n'); end >= 0; end = buffer_.indexOf('\n')) {
      const QByteArray line = buffer_.left(end);
      buffer_.remove(0, end + 1);
      const int status = handleLine(runner_, line, ++lineNo_);
      if (status != kGoOn) {
        QCoreApplication::exit(status);
        return;
      }
    }
    if (n <= 0) {  // end of input; a last line without line break counts
      int status = buffer_.isEmpty() ? kGoOn : handleLine(runner_, buffer_, ++lineNo_);
      if (status == kGoOn) status = finish(main_);
      QCoreApplication::exit(status);
      return;
    }
    notifier_.setEnabled(true);
  }

  MDIForm1& main_;
  Runner& runner_;
  QSocketNotifier notifier_;
  QByteArray buffer_;
  int lineNo_ = 0;
};

}  // namespace

int run(MDIForm1& main, const QString& path) {
  Runner runner(main);
  settle();
  if (path == "-") {
    // Only the end of the script ends the program, not its last window.
    QApplication::setQuitOnLastWindowClosed(false);
    StdinReader reader(main, runner);
    return QApplication::exec();
  }
  std::ifstream file(path.toLocal8Bit().constData());
  if (!file) {
    emitLine(json::Object().add("error", "cannot open script " + path).add("line", 0).str());
    return 2;
  }
  std::string raw;
  int lineNo = 0;
  while (std::getline(file, raw)) {
    const int status = handleLine(runner, QByteArray(raw.data(), qsizetype(raw.size())), ++lineNo);
    if (status != kGoOn) return status;
  }
  return finish(main);
}

}  // namespace script
