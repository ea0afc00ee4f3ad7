// One press of each calculator's compute button, formatting of the results
// included, in-process on Qt's offscreen platform. Every registered form is
// covered: a form with an entry below gets its typical inputs, any other one
// gets 1 in every open field but the last. Before each press the form's
// fields and combos are put back as they were before the first press
// (outside the timing). The counter "boxes" says how many message boxes a
// press showed (0 for a press that computed without a question).
//   bench_formulare [--smoke] [Google Benchmark options]
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <map>
#include <memory>
#include <vector>

#include "bench/Smoke.h"
#include "shell/DialogService.h"
#include "shell/FormRegistry.h"
#include "shell/MDIForm1.h"
#include "transistor/core/TransistorState.h"

namespace {

// Typical inputs: "Text1=12" sets a field, "#ComboI=2" selects a combo item.
struct Eingaben {
  const char* form;
  const char* menu;  // opened through this menu item, else as a shared form
  std::vector<const char*> werte;
};

const Eingaben kTypisch[] = {
    {"Ohm", nullptr, {"Text1=12", "Text3=1,5"}},
    {"Watt", nullptr, {"Text1=12", "Text3=2", "#ComboI=2"}},
    {"XC", nullptr, {"Text1=1", "#ComboF=1", "Text3=1", "#ComboC=2"}},
    {"XL", nullptr, {"Text1=100", "#ComboF=1", "Text2=10"}},
    {"Schwingk", nullptr, {"Text1=455", "#ComboF=1", "Text2=1", "#ComboL=2"}},
    {"RL", nullptr, {"Text2=1", "Text3=10"}},
    {"DrahtR", nullptr, {"Text1=0,5", "Text2=10"}},
    {"UTeiler", nullptr, {"Text2=9", "Text3=1"}},
    {"CTeiler", nullptr, {"Text2=50", "Text3=1", "Text6=10"}},
    {"L2Teiler", nullptr, {"Text2=50", "Text3=1", "Text6=1"}},
    {"SpuleKern", nullptr, {"Text1=250", "Text3=20"}},
    {"LP_Box", "LP_2Weg_12dB", {"Text8=8", "Text10=10", "#Combo1=1", "Text4=5"}},
    {"frmKühlg2", nullptr, {"Text1=1", "Text4=5"}},
};

class Zaehler : public dialogs::Service {
 public:
  dialogs::Answer show(const dialogs::Message& m) override {
    ++anzahl;
    return dialogs::escapeAnswer(m.buttons);
  }
  int anzahl = 0;
};

std::shared_ptr<Zaehler> g_boxen;
MDIForm1* g_fenster = nullptr;

QPushButton* rechenKnopf(QWidget* form) {
  for (const char* name : {"Command1", "Befehl1"})
    if (auto* b = form->findChild<QPushButton*>(QString::fromLatin1(name))) return b;
  return nullptr;
}

// The state of a form's fields and combos, to put back before each press.
struct Zustand {
  std::vector<std::pair<QLineEdit*, QString>> felder;
  std::vector<std::pair<QComboBox*, int>> combos;
  void merken(QWidget* form) {
    for (auto* f : form->findChildren<QLineEdit*>())
      if (!qobject_cast<QComboBox*>(f->parentWidget())) felder.emplace_back(f, f->text());
    for (auto* c : form->findChildren<QComboBox*>()) combos.emplace_back(c, c->currentIndex());
  }
  void herstellen() const {
    for (const auto& [c, i] : combos) c->setCurrentIndex(i);
    for (const auto& [f, t] : felder) f->setText(t);
  }
};

void fuellen(QWidget* form, const Eingaben* e) {
  if (e) {
    for (const char* w : e->werte) {
      const QString s = QString::fromUtf8(w);
      const qsizetype gleich = s.indexOf('=');
      if (s.startsWith('#')) {
        if (auto* c = form->findChild<QComboBox*>(s.mid(1, gleich - 1))) c->setCurrentIndex(s.mid(gleich + 1).toInt());
      } else if (auto* f = form->findChild<QLineEdit*>(s.left(gleich))) {
        f->setText(s.mid(gleich + 1));
      }
    }
    return;
  }
  std::vector<QLineEdit*> offen;
  for (auto* f : form->findChildren<QLineEdit*>())
    if (f->isVisible() && f->isEnabled() && !f->isReadOnly() && !qobject_cast<QComboBox*>(f->parentWidget()))
      offen.push_back(f);
  for (size_t i = 0; i + 1 < offen.size(); ++i) offen[i]->setText(QStringLiteral("1"));
  if (!offen.empty()) offen.back()->clear();
}

// Each form is opened once and stays open; every run starts from the state
// it had when it was opened.
struct Offen {
  QWidget* form = nullptr;
  Zustand anfang;
};

Offen& oeffnen(const QString& name, const Eingaben* e) {
  static std::map<QString, Offen> offen;
  Offen& o = offen[name];
  if (o.form) return o;
  transistor::current() = {.typeName = "BD139", .packageCode = 5, .ptot = 12.5f, .polarity = "npn",
                           .ubMagnitude = 24.0f};
  if (e && e->menu) {
    if (QAction* a = g_fenster->menuAction(QString::fromLatin1(e->menu))) a->trigger();
    o.form = g_fenster->activeForm();
  } else {
    o.form = g_fenster->showShared(name);
  }
  if (o.form) o.anfang.merken(o.form);
  return o;
}

void druecken(benchmark::State& state, QString name, const Eingaben* e) {
  Offen& o = oeffnen(name, e);
  QPushButton* knopf = o.form ? rechenKnopf(o.form) : nullptr;
  if (!knopf) {
    state.SkipWithError("form or compute button missing");
    return;
  }
  o.anfang.herstellen();
  fuellen(o.form, e);
  Zustand vorher;
  vorher.merken(o.form);
  g_boxen->anzahl = 0;
  for (auto _ : state) {
    state.PauseTiming();
    vorher.herstellen();
    state.ResumeTiming();
    knopf->click();
  }
  state.counters["boxes"] = benchmark::Counter(double(g_boxen->anzahl) / double(state.iterations()));
}

}  // namespace

int main(int argc, char** argv) {
  bench::Arguments args = bench::arguments(argc, argv);
  const bool smoke = args.smoke;
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  if (qEnvironmentVariableIsEmpty("QUARZEL_INSTANCE"))
    qputenv("QUARZEL_INSTANCE", "bench-" + QByteArray::number(QCoreApplication::applicationPid()));
  int qargc = 1;
  QApplication app(qargc, argv);
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  g_boxen = std::make_shared<Zaehler>();
  dialogs::install(g_boxen);
  MDIForm1 fenster;
  g_fenster = &fenster;
  if (!fenster.load()) return 1;
  fenster.show();

  for (const QString& name : forms::names()) {
    const Eingaben* e = nullptr;
    for (const Eingaben& t : kTypisch)
      if (name == QString::fromUtf8(t.form)) e = &t;
    auto* b = benchmark::RegisterBenchmark(("Berechnung/" + name).toUtf8().constData(),
                                           [name, e](benchmark::State& s) { druecken(s, name, e); });
    b->Unit(benchmark::kMicrosecond);
    if (smoke) b->Iterations(1);
  }
  int n = args.count();
  benchmark::Initialize(&n, args.rest.data());
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  fenster.closeQuietly();
  dialogs::install(nullptr);
  return 0;
}
