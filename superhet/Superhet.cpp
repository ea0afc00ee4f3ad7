#include "superhet/Superhet.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "shell/DialogService.h"
#include "shell/FormRegistry.h"
#include "shell/core/Module1.h"
#include "shell/core/NumberFormat.h"
#include "superhet/SuperhetKurve.h"

QUARZEL_REGISTER_FORM("Superhet", Superhet);

namespace {

// Inputs at load and after "&Neu": the medium-wave band with a 455 kHz IF
// and a common 12..500 pF gang.
const char* const kVorgaben[5] = {"520", "1620", "455", "12", "500"};

const QString kFreq = QStringLiteral("####0.0#");
const QString kPunkt = QStringLiteral("####0.0");

}  // namespace

Superhet::Superhet() : CalcForm("Superhet", "Superhet - Gleichlauf Oszillator / Eingangskreis") {
  struct Zeile {
    int feld;
    const char* label;
    const char* caption;
  };
  auto rahmen = [this](const char* name, const char* titel, std::initializer_list<Zeile> zeilen, bool eingabe) {
    auto* box = new QGroupBox(QString::fromUtf8(titel), this);
    box->setObjectName(name);
    auto* g = new QGridLayout(box);
    g->setHorizontalSpacing(8);
    g->setVerticalSpacing(6);
    g->setColumnStretch(0, 1);
    int r = 0;
    for (const Zeile& z : zeilen) {
      QLineEdit* e = makeField(QStringLiteral("Text%1").arg(z.feld), eingabe);
      e->setAlignment(Qt::AlignRight);
      if (eingabe) {
        e->setFixedWidth(90);
      } else {
        e->setReadOnly(true);
        e->setFocusPolicy(Qt::ClickFocus);
      }
      text_[z.feld] = e;
      g->addWidget(makeLabel(z.label, QString::fromUtf8(z.caption), e), r, 0);
      g->addWidget(e, r, 1);
      ++r;
    }
    g->setRowStretch(r, 1);
    return box;
  };

  QGroupBox* frame1 = rahmen("Frame1", "Vorgaben:",
                             {{1, "Label1", "&untere Empfangsfrequenz [kHz]:"},
                              {2, "Label2", "&obere Empfangsfrequenz [kHz]:"},
                              {3, "Label3", "&Zwischenfrequenz [kHz]:"},
                              {4, "Label4", "Drehko C&min [pF]:"},
                              {5, "Label5", "Drehko Cm&ax [pF]:"}},
                             true);
  QGroupBox* frame2 = rahmen("Frame2", "Eingangskreis:",
                             {{6, "Label6", "Le [µH]:"}, {7, "Label7", "Parallel-C Cte [pF]:"}}, false);
  QGroupBox* frame3 = rahmen("Frame3", "Oszillatorkreis:",
                             {{8, "Label8", "Lo [µH]:"},
                              {9, "Label9", "Padding Cp [pF]:"},
                              {10, "Label10", "Trimmer Cto [pF]:"},
                              {11, "Label11", "Oszillatorbereich [kHz]:"}},
                             false);
  QGroupBox* frame4 = rahmen("Frame4", "Gleichlauf:",
                             {{12, "Label12", "Abgleichpunkte [kHz]:"}, {13, "Label13", "max. Gleichlauffehler [kHz]:"}},
                             false);
  for (int i = 6; i <= 13; ++i) text_[i]->setFixedWidth(i == 11 || i == 12 ? 220 : 110);

  grid()->setHorizontalSpacing(12);
  grid()->addWidget(frame1, 0, 0);
  grid()->addWidget(frame2, 1, 0);
  grid()->addWidget(frame3, 0, 1);
  grid()->addWidget(frame4, 1, 1);

  command5_ = makeButton("Command5", "&Kurve");
  command5_->setToolTip(QStringLiteral("Gleichlauffehler anzeigen"));
  command5_->setEnabled(false);
  // Below "&Berechnung", before the stretch that closes the button column.
  buttonColumn()->insertWidget(buttonColumn()->count() - 1, command5_);
  connect(command5_, &QPushButton::clicked, this, [this] { kurveZeigen(); });

  labelText()->setText(caption() + " " + Module1::AppIdentification);
  vorgabenSetzen();
  // Closing the form takes its curve along.
  connect(this, &CalcForm::unloaded, this, [this] { kurveSchliessen(); });
}

void Superhet::vorgabenSetzen() {
  for (int i = 1; i <= 5; ++i) text_[i]->setText(QString::fromLatin1(kVorgaben[i - 1]));
}

void Superhet::compute() {
  // Everything is checked before anything is written.
  const double kilo = 1000, piko = Module1::TenPow(-12);
  superhet::Vorgaben v;
  v.fmin = Module1::ParseNumber(text_[1]->text()) * kilo;
  v.fmax = Module1::ParseNumber(text_[2]->text()) * kilo;
  v.fzf = Module1::ParseNumber(text_[3]->text()) * kilo;
  v.cmin = Module1::ParseNumber(text_[4]->text()) * piko;
  v.cmax = Module1::ParseNumber(text_[5]->text()) * piko;
  const superhet::Ergebnis r = superhet::berechne(v);
  using dialogs::Icon;
  using dialogs::Buttons;
  switch (r.pruefung) {
    case superhet::Pruefung::Ok:
      break;
    case superhet::Pruefung::Unvollstaendig:
      dialogs::msgBox(QStringLiteral("Bitte alle fünf Werte eingeben!"));
      return;
    case superhet::Pruefung::Frequenzbereich:
      dialogs::msgBox(QStringLiteral("Die obere Empfangsfrequenz muß größer als die untere sein!"),
                      Icon::Exclamation, Buttons::OK, QStringLiteral("Frequenzbereich"));
      return;
    case superhet::Pruefung::Drehko:
      dialogs::msgBox(QStringLiteral("Cmax muß größer als Cmin sein!"), Icon::Exclamation, Buttons::OK,
                      QStringLiteral("Drehkondensator"));
      return;
    case superhet::Pruefung::DrehkoReichtNicht:
      dialogs::msgBox(QStringLiteral("Der Drehkondensator reicht für diesen Frequenzbereich nicht aus!") +
                          Module1::NL + QStringLiteral("Das Kapazitätsverhältnis Cmax / Cmin muß mindestens ") +
                          numfmt::format(r.k2, QStringLiteral("##0.0#")) + QStringLiteral(" betragen."),
                      Icon::Exclamation, Buttons::OK, QStringLiteral("Drehkondensator"));
      return;
    case superhet::Pruefung::KeinGleichlauf:
      dialogs::msgBox(QStringLiteral("Mit Padding- und Trimmerkondensator ist kein Gleichlauf möglich!"),
                      Icon::Exclamation, Buttons::OK, QStringLiteral("Gleichlauf"));
      return;
  }

  const superhet::Gleichlauf& g = r.werte;
  const double mikro = Module1::TenPow(6), pF = Module1::TenPow(12);
  writeNumber(text_[6], g.le * mikro, QStringLiteral("####0.0##"));
  writeNumber(text_[7], g.cte * pF, QStringLiteral("####0.0#"));
  writeNumber(text_[8], g.lo * mikro, QStringLiteral("####0.0##"));
  writeNumber(text_[9], g.cp * pF, QStringLiteral("####0.0#"));
  writeNumber(text_[10], g.cto * pF, QStringLiteral("####0.0#"));
  text_[11]->setText(numfmt::format((g.fmin + g.fzf) / kilo, kFreq) + " - " +
                     numfmt::format((g.fmax + g.fzf) / kilo, kFreq));
  text_[12]->setText(numfmt::format(g.f1 / kilo, kPunkt) + " / " + numfmt::format(g.f2 / kilo, kPunkt) + " / " +
                     numfmt::format(g.f3 / kilo, kPunkt));
  writeNumber(text_[13], g.fehlerMax / kilo, QStringLiteral("##0.0##"));

  zustand_ = g;
  gueltig_ = true;
  command5_->setEnabled(true);
  if (kurve_) kurve_->zeichnen();
}

void Superhet::clearFields() {
  vorgabenSetzen();
  for (int i = 6; i <= 13; ++i) text_[i]->clear();
  gueltig_ = false;
  command5_->setEnabled(false);
  kurveSchliessen();
}

void Superhet::kurveZeigen() {
  if (!kurve_) {
    kurve_ = new SuperhetKurve(this);
    connect(kurve_, &SuperhetKurve::unloaded, this, [this] { kurve_ = nullptr; });
  }
  kurve_->zeigenUnter(this);
  kurve_->zeichnen();
}

void Superhet::kurveSchliessen() {
  if (!kurve_) return;
  SuperhetKurve* k = kurve_;
  kurve_ = nullptr;
  k->schliessen();
}
