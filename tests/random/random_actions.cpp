// Random actions against the real program: drives `quarzel --script -` as a
// user would, over every form the menu opens and the heat-sink form with a
// random current transistor. The menu comes from `menutree`, a form's
// controls from `show`, so every form and control the program has is reached.
//
// A finding is a crash, a hang (no answer within the time limit), a sanitizer
// report, a script error (the driver only sends what `show` offers), or any
// text the program shows (field, label, caption, item, drawn text, message)
// holding "inf", "nan" or a number with a three-digit exponent. The driver
// then writes the script so far, which replays the finding with
// `quarzel --script FILE`, and ends with status 1.
//
//   random_actions --exe QUARZEL --seed N --actions K --work DIR [--timeout SECONDS]
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <cstdio>

namespace {

struct Control {
  QString name, kind;
  bool visible = false, enabled = false, readonly = false;
  int items = 0;
};

struct Finding {
  QString what;
};

// A shown text that no calculator may ever show. A field's text that the
// driver itself typed or pasted is only checked for the words: pasting
// "1e-99" and typing "5" behind it is the user's own three-digit exponent.
bool badWord(const QString& s) {
  static const QRegularExpression word(QStringLiteral("(?<![[:alpha:]])(inf|nan)(?![[:alpha:]])"),
                                       QRegularExpression::CaseInsensitiveOption);
  return word.match(s).hasMatch();
}
bool badText(const QString& s) {
  static const QRegularExpression exponent(QStringLiteral("[0-9][eE][+-]?[0-9]{3}"));
  return badWord(s) || exponent.match(s).hasMatch();
}

// Every string value of a JSON value (names of controls are keys and do not count).
void collectStrings(const QJsonValue& v, QStringList& out) {
  if (v.isString()) {
    out << v.toString();
  } else if (v.isArray()) {
    for (const QJsonValue& e : v.toArray()) collectStrings(e, out);
  } else if (v.isObject()) {
    const QJsonObject o = v.toObject();
    for (auto it = o.begin(); it != o.end(); ++it) collectStrings(it.value(), out);
  }
}

class Driver {
 public:
  Driver(QString exe, quint64 seed, QString work, int timeoutMs)
      : exe_(std::move(exe)), seed_(seed), work_(std::move(work)), timeoutMs_(timeoutMs), rng_(seed) {}

  // Runs `actions` actions; false on a finding.
  bool run(int actions) {
    try {
      int done = 0;
      while (done < actions) {
        startSession();
        // A fresh program now and then: other start states, other locale.
        const int sessionEnd = std::min(actions, done + 300 + int(rng_.bounded(400)));
        while (done < sessionEnd && alive_) {
          act();
          ++done;
        }
        endSession();
      }
      std::printf("%d actions, %d sessions, no finding\n", actions, sessions_);
      return true;
    } catch (const Finding& f) {
      const QString file = QDir(work_).filePath(QString("finding-%1.qzs").arg(seed_));
      QFile out(file);
      if (out.open(QIODevice::WriteOnly)) {
        out.write(QString("# seed %1, session %2: %3\n").arg(seed_).arg(sessions_).arg(f.what).toUtf8());
        out.write(transcript_.join('\n').toUtf8() + "\n");
      }
      std::printf("FINDING (seed %llu, session %d): %s\nscript: %s\nstderr: %s\n", (unsigned long long)seed_,
                  sessions_, qPrintable(f.what), qPrintable(file), qPrintable(stderrTail()));
      if (proc_) {
        proc_->kill();
        proc_->waitForFinished(timeoutMs_);
      }
      return false;
    }
  }

 private:
  // --- the program ---------------------------------------------------------

  void startSession() {
    ++sessions_;
    transcript_.clear();
    driverMade_.clear();
    proc_ = std::make_unique<QProcess>();
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("QT_QPA_PLATFORM", "offscreen");
    env.insert("LC_ALL", "C.UTF-8");
    env.insert("QUARZEL_INSTANCE", QString("random-%1-%2").arg(seed_).arg(QCoreApplication::applicationPid()));
    proc_->setProcessEnvironment(env);
    proc_->setWorkingDirectory(work_);
    proc_->start(exe_, {"--script", "-"});
    if (!proc_->waitForStarted(timeoutMs_)) throw Finding{"the program does not start: " + proc_->errorString()};
    alive_ = true;
    send(rng_.bounded(2) ? "locale de_DE" : "locale C");
    send(rng_.bounded(2) ? "printer pdf print.pdf" : "printer none");
    const QJsonObject tree = send("menutree").value("out").toObject();
    menuItems_.clear();
    collectMenu(tree.value("menutree").toArray());
    if (menuItems_.isEmpty()) throw Finding{"no menu items"};
  }

  void collectMenu(const QJsonArray& items) {
    for (const QJsonValue& v : items) {
      const QJsonObject o = v.toObject();
      const QJsonArray children = o.value("children").toArray();
      const QString name = o.value("name").toString();
      if (!children.isEmpty())
        collectMenu(children);
      else if (!o.value("separator").toBool() && o.value("enabled").toBool() &&
               name != "mnuTaschenrechner")  // starts another program
        menuItems_ << name;
    }
  }

  void endSession() {
    if (alive_) {
      proc_->closeWriteChannel();
      QElapsedTimer t;
      t.start();
      while (proc_->state() != QProcess::NotRunning && t.elapsed() < timeoutMs_) {
        proc_->waitForFinished(100);
        drainLines(nullptr);
      }
      drainLines(nullptr);
      if (proc_->state() != QProcess::NotRunning) throw Finding{"hang at the end of the script"};
    }
    checkExit();
    alive_ = false;
    if (qEnvironmentVariableIsSet("QUARZEL_RANDOM_KEEP")) {
      QFile out(QDir(work_).filePath(QString("session-%1-%2.qzs").arg(seed_).arg(sessions_)));
      if (out.open(QIODevice::WriteOnly)) out.write(transcript_.join('\n').toUtf8() + "\n");
    }
  }

  void checkExit() {
    stderr_ += proc_->readAllStandardError();
    if (proc_->exitStatus() != QProcess::NormalExit || proc_->exitCode() != 0)
      throw Finding{QString("the program ended with status %1%2")
                        .arg(proc_->exitCode())
                        .arg(proc_->exitStatus() == QProcess::CrashExit ? " (crash)" : "")};
    for (const char* report : {"AddressSanitizer", "LeakSanitizer", "runtime error:", "UndefinedBehaviorSanitizer"})
      if (stderr_.contains(report)) throw Finding{QString("sanitizer report: ") + report};
    stderr_.clear();
  }

  QString stderrTail() {
    if (proc_) stderr_ += proc_->readAllStandardError();
    return QString::fromUtf8(stderr_.right(3000));
  }

  // Checks one line of output; returns it parsed.
  QJsonObject checkLine(const QByteArray& raw) {
    QJsonParseError err;
    const QJsonDocument doc = QJsonDocument::fromJson(raw, &err);
    if (err.error != QJsonParseError::NoError || !doc.isObject())
      throw Finding{"output is no JSON object: " + QString::fromUtf8(raw.left(300))};
    const QJsonObject o = doc.object();
    if (o.contains("error")) throw Finding{"script error: " + QString::fromUtf8(raw)};
    QJsonObject rest = o;
    QStringList ownTexts;
    if (o.contains("controls")) {
      // A field still holding what the driver put there.
      const QString form = o.value("form").toString();
      QJsonObject cs = o.value("controls").toObject();
      for (auto it = cs.begin(); it != cs.end(); ++it) {
        QJsonObject c = it.value().toObject();
        if (it.key() == ownField_) driverMade_[form + "/" + it.key()] = c.value("text").toString();
        if (c.value("kind") == "text" && driverMade_.value(form + "/" + it.key()) == c.value("text").toString()) {
          ownTexts << c.value("text").toString();
          c.remove("text");
          it.value() = c;
        }
      }
      rest.insert("controls", cs);
    }
    QStringList texts;
    collectStrings(rest, texts);
    for (const QString& s : texts)
      if (badText(s)) throw Finding{"shown text \"" + s.left(200) + "\" in " + QString::fromUtf8(raw.left(500))};
    for (const QString& s : ownTexts)
      if (badWord(s)) throw Finding{"shown text \"" + s.left(200) + "\" in " + QString::fromUtf8(raw.left(500))};
    return o;
  }

  // Reads complete lines that are there; each is checked. Sets `exited`.
  void drainLines(std::vector<QJsonObject>* into) {
    while (proc_->canReadLine()) {
      const QByteArray raw = proc_->readLine().trimmed();
      if (raw.isEmpty()) continue;
      const QJsonObject o = checkLine(raw);
      if (o.contains("exit")) exited_ = true;
      if (into) into->push_back(o);
    }
  }

  // Sends one command and waits for the `windows` line that follows it.
  // Returns the command's own first line of output under "out" and the
  // open windows under "windows".
  QJsonObject send(const QString& command, bool mayEnd = false) {
    transcript_ << command << "windows";
    proc_->write((command + "\nwindows\n").toUtf8());
    std::vector<QJsonObject> lines;
    exited_ = false;
    QElapsedTimer t;
    t.start();
    for (;;) {
      drainLines(&lines);
      if (!lines.empty() && lines.back().contains("windows")) break;
      if (exited_) {
        if (!mayEnd) throw Finding{"the program ended after: " + command};
        proc_->waitForFinished(timeoutMs_);
        checkExit();
        alive_ = false;
        return {};
      }
      if (proc_->state() == QProcess::NotRunning && !proc_->canReadLine()) {
        checkExit();
        throw Finding{"the program ended after: " + command};
      }
      if (t.elapsed() > timeoutMs_) throw Finding{"no answer within the time limit (hang) after: " + command};
      proc_->waitForReadyRead(50);
    }
    windows_ = lines.back().value("windows").toArray();
    QJsonObject result;
    result.insert("windows", windows_);
    for (const QJsonObject& o : lines) {
      if (!o.contains("windows") && !o.isEmpty()) {
        result.insert("out", o);
        break;
      }
    }
    return result;
  }

  // --- random input --------------------------------------------------------

  QString pick(const QStringList& l) { return l.at(int(rng_.bounded(quint32(l.size())))); }

  QString digits(int n) {
    QString s;
    for (int i = 0; i < n; ++i) s += QChar('0' + int(rng_.bounded(10)));
    return s;
  }

  // What a person might type or paste: digits, commas, points, signs,
  // letters, blanks, very long digit strings, huge and tiny numbers.
  QString randomText() {
    for (;;) {
      QString s;
      const int tokens = 1 + int(rng_.bounded(4));
      for (int i = 0; i < tokens; ++i) {
        switch (rng_.bounded(14)) {
          case 0: case 1: case 2: s += digits(1 + int(rng_.bounded(4))); break;
          case 3: s += digits(1 + int(rng_.bounded(3))) + "," + digits(1 + int(rng_.bounded(4))); break;
          case 4: s += digits(1 + int(rng_.bounded(3))) + "." + digits(1 + int(rng_.bounded(4))); break;
          case 5: s += pick({",", ".", "-", "+", " ", "/"}); break;
          case 6: s += pick({"a", "b", "x", "K", "m", "M", "µ", "Ohm", "e", "E", "d"}); break;
          case 7: s += digits(40 + int(rng_.bounded(360))); break;
          case 8: s += pick({"9,99e99", "1E99", "1e-99", "1,5E-90", "0,000000000000000001"}); break;
          case 9: s += pick({"0", "0,0", "00", "-0"}); break;
          case 10: s += "-" + digits(1 + int(rng_.bounded(3))); break;
          case 11: s += digits(1) + pick({"e", "E"}) + pick({"", "-", "+"}) + digits(1 + int(rng_.bounded(2))); break;
          default: s += pick({"1", "2", "5", "10", "12", "100", "1000", "0,1", "0,001", "4,7", "2,2"}); break;
        }
      }
      // The driver's own text never holds what a finding looks for.
      if (!badText(s) && !s.contains('"')) return s;
    }
  }

  QString randomAnswer() { return pick({"OK", "Cancel", "Yes", "No", "Retry"}); }

  // --- actions -------------------------------------------------------------

  std::vector<Control> controls() {
    std::vector<Control> out;
    const QJsonObject shown = send("show").value("out").toObject();
    const QJsonObject cs = shown.value("controls").toObject();
    for (auto it = cs.begin(); it != cs.end(); ++it) {
      const QJsonObject c = it.value().toObject();
      out.push_back({it.key(), c.value("kind").toString(), c.value("visible").toBool(), c.value("enabled").toBool(),
                     c.value("readonly").toBool(), int(c.value("items").toArray().size())});
    }
    return out;
  }

  bool hasActiveForm() const {
    for (const QJsonValue& w : windows_)
      if (w.toObject().value("active").toBool()) return true;
    return false;
  }

  void act() {
    const quint32 r = rng_.bounded(1000);
    if (!hasActiveForm() || r < 70) {
      send("menu " + pick(menuItems_), true);
    } else if (r < 85) {
      // The heat-sink form with a random current transistor.
      send(QString("transistor \"%1\" %2 %3 %4 %5")
               .arg(pick({"BD139", "SC 239d", "0,5 W-Typ", "2N3055", ""}))
               .arg(int(rng_.bounded(15)) - 1)
               .arg(pick({"0", "0.1", "0.5", "1", "12.5", "40", "115", "1000", "1e-30", "3e38"}))
               .arg(pick({"npn", "pnp"}))
               .arg(pick({"0", "5", "12", "30", "60", "400", "1e-20", "1e30"})));
      send("open frmKühlg2");
    } else if (r < 115 && !windows_.isEmpty()) {
      send("form " + windows_.at(int(rng_.bounded(quint32(windows_.size())))).toObject().value("form").toString());
    } else if (r < 125) {
      send(rng_.bounded(3) ? "printer pdf print.pdf" : "printer none");
    } else if (r < 132) {
      send(rng_.bounded(2) ? "locale de_DE" : "locale C");
    } else if (r < 134) {
      send("answer " + randomAnswer());
      send("close", true);
    } else {
      actOnControl();
    }
  }

  void actOnControl() {
    std::vector<Control> all = controls();
    if (!alive_) return;
    std::vector<Control> usable;
    for (const Control& c : all)
      if (c.visible && c.enabled && c.kind != "label") usable.push_back(c);
    if (usable.empty()) {
      send("menu " + pick(menuItems_), true);
      return;
    }
    // Fields most, then buttons and options, then lists, pictures least.
    const auto weight = [](const Control& c) {
      if (c.kind == "text") return c.readonly ? 1u : 12u;
      if (c.kind == "button" || c.kind == "option") return 6u;
      if (c.kind == "combo" || c.kind == "list") return 3u;
      return 1u;
    };
    quint32 total = 0;
    for (const Control& u : usable) total += weight(u);
    quint32 at = rng_.bounded(total);
    size_t k = 0;
    while (at >= weight(usable[k])) at -= weight(usable[k++]);
    const Control& c = usable[k];
    if (c.kind == "text" && !c.readonly) {
      const quint32 r = rng_.bounded(10);
      if (r < 4)
        send("set " + c.name + " " + textArg(randomText()));
      else if (r < 7)
        send("type " + c.name + " " + textArg(randomText()));
      else if (r < 9)
        send("key " + c.name + " " + pick({"Backspace", "Delete", "Tab"}));
      else
        send("leave " + c.name);
      if (!alive_) return;
      // What the field holds now is the driver's own input.
      ownField_ = c.name;
      send("show " + c.name);
      ownField_.clear();
    } else if ((c.kind == "combo" || c.kind == "list") && c.items > 0) {
      send(QString("select %1 %2").arg(c.name).arg(rng_.bounded(quint32(c.items))));
    } else if (c.kind == "button" || c.kind == "option") {
      if (rng_.bounded(2)) send("answer " + randomAnswer());
      if (rng_.bounded(2)) send("answer " + randomAnswer());
      send("click " + c.name, true);
    } else if (c.kind == "picture") {
      send("dblclick " + c.name);
    } else {
      send("menu " + pick(menuItems_), true);
    }
  }

  static QString textArg(const QString& t) { return t.isEmpty() || t.startsWith(' ') ? "\"" + t + "\"" : t; }

  QString exe_;
  quint64 seed_;
  QString work_;
  int timeoutMs_;
  QRandomGenerator64 rng_;
  std::unique_ptr<QProcess> proc_;
  bool alive_ = false;
  bool exited_ = false;
  int sessions_ = 0;
  QStringList transcript_;
  QStringList menuItems_;
  QJsonArray windows_;
  QByteArray stderr_;
  QHash<QString, QString> driverMade_;  // "form/control": text the driver put there
  QString ownField_;                    // the field just typed into
};

}  // namespace

int main(int argc, char* argv[]) {
  QCoreApplication app(argc, argv);
  QString exe, work = QDir::currentPath();
  quint64 seed = 1;
  int actions = 1000, timeout = 60;
  const QStringList args = app.arguments();
  for (int i = 1; i + 1 < args.size(); i += 2) {
    if (args[i] == "--exe") exe = QFileInfo(args[i + 1]).absoluteFilePath();
    else if (args[i] == "--seed") seed = args[i + 1].toULongLong();
    else if (args[i] == "--actions") actions = args[i + 1].toInt();
    else if (args[i] == "--work") work = args[i + 1];
    else if (args[i] == "--timeout") timeout = args[i + 1].toInt();
  }
  if (exe.isEmpty()) {
    std::fprintf(stderr, "usage: random_actions --exe QUARZEL --seed N --actions K --work DIR [--timeout S]\n");
    return 2;
  }
  QDir().mkpath(work);
  return Driver(exe, seed, work, timeout * 1000).run(actions) ? 0 : 1;
}
