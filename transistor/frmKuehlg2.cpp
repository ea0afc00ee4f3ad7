#include "transistor/frmKuehlg2.h"

#include <QApplication>
#include <QDate>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiSubWindow>
#include <QPainter>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <memory>

#include "shell/FormText.h"
#include "shell/DialogService.h"
#include "shell/FormRegistry.h"
#include "shell/MDIForm1.h"
#include "shell/PrintService.h"
#include "shell/core/Arith.h"
#include "shell/core/Module1.h"
#include "shell/core/NumberFormat.h"
#include "transistor/SucheDialog.h"
#include "transistor/core/Kuehlkoerper.h"
#include "transistor/core/TransistorState.h"
#include "transistor/frmTrans1.h"

QUARZEL_REGISTER_FORM("frmKühlg2", frmKuehlg2);

namespace {

const QString kLeererRahmen = QStringLiteral(" Kühlblech: ");
const QString kFalsch = QStringLiteral("Falsche Dimensionierung");

QLineEdit* feld(QWidget* parent, const char* name) {
  auto* e = new QLineEdit(parent);
  e->setObjectName(name);
  e->setFixedWidth(90);
  e->setAlignment(Qt::AlignRight);
  return e;
}

QLabel* beschriftung(QWidget* parent, const char* name, const QString& text, QWidget* buddy) {
  auto* l = new QLabel(text, parent);
  l->setObjectName(name);
  if (buddy) l->setBuddy(buddy);
  return l;
}

QRadioButton* option(QWidget* parent, const QString& name, const QString& text) {
  auto* o = new QRadioButton(text, parent);
  o->setObjectName(name);
  return o;
}

// A frame holding two option buttons one above the other.
QGroupBox* optionPair(QWidget* parent, const char* name, const QString& title,
                      const std::pair<QString, QString>& first, const std::pair<QString, QString>& second,
                      QRadioButton*& firstButton, QRadioButton*& secondButton) {
  auto* frame = new QGroupBox(title, parent);
  frame->setObjectName(name);
  auto* column = new QVBoxLayout(frame);
  firstButton = option(frame, first.first, first.second);
  secondButton = option(frame, second.first, second.second);
  column->addWidget(firstButton);
  column->addWidget(secondButton);
  column->addStretch(1);
  return frame;
}

}  // namespace

frmKuehlg2::frmKuehlg2() {
  setObjectName(QStringLiteral("frmKühlg2"));
  setWindowTitle(QStringLiteral(" Kühlkörper - Berechnung"));
  setWindowIcon(QApplication::windowIcon());

  text1_ = feld(this, "Text1");
  text2_ = feld(this, "Text2");
  text3_ = feld(this, "Text3");
  text4_ = feld(this, "Text4");
  text5_ = feld(this, "Text5");
  text6_ = feld(this, "Text6");
  text6_->setReadOnly(true);
  text7_ = feld(this, "Text7");

  liste1_ = new QListWidget(this);
  liste1_->setObjectName("Liste1");
  liste1_->addItems(kuehlung::isolierscheiben());
  liste1_->setToolTip(QStringLiteral("Isolierung zwischen dem Halbleiter und dem Kühlkörper"));
  liste1_->setMinimumWidth(liste1_->sizeHintForColumn(0) + 30);
  liste1_->setFixedHeight(liste1_->sizeHintForRow(0) * 5 + 2 * liste1_->frameWidth());

  bezeichnung8_ = new QLabel(this);
  bezeichnung8_->setObjectName("Bezeichnung8");

  auto* oben = new QGridLayout;
  oben->setHorizontalSpacing(12);
  oben->setVerticalSpacing(6);
  oben->setColumnStretch(0, 1);
  int zeile = 0;
  auto paar = [&](QLabel* l, QWidget* w) {
    oben->addWidget(l, zeile, 0);
    oben->addWidget(w, zeile, 1, Qt::AlignRight | Qt::AlignVCenter);
    ++zeile;
  };
  {
    auto* links = new QVBoxLayout;
    links->setSpacing(0);
    links->addWidget(beschriftung(this, "Bezeichnung1", QStringLiteral("max &Verlustleistung von T1"), text1_));
    links->addWidget(bezeichnung8_);
    oben->addLayout(links, zeile, 0);
    oben->addWidget(text1_, zeile, 1, Qt::AlignRight | Qt::AlignVCenter);
    ++zeile;
  }
  paar(beschriftung(this, "Bezeichnung2", QStringLiteral("max &Sperrschicht- Temp.     [°C] :"), text2_), text2_);
  paar(beschriftung(this, "Bezeichnung3", QStringLiteral("max &Umgebungs-  Temp.   [°C] :"), text3_), text3_);
  paar(beschriftung(this, "Bezeichnung4",
                    QStringLiteral("Innerer &Wärmewiderstand des Halbleiters                        [K / W]:"), text4_),
       text4_);
  {
    QLabel* l = beschriftung(this, "Bezeichnung5", QStringLiteral("&Isolierscheibe:"), liste1_);
    l->setToolTip(liste1_->toolTip());
    oben->addWidget(l, zeile++, 0, 1, 2);
    oben->addWidget(liste1_, zeile++, 0, 1, 2);
  }
  paar(beschriftung(this, "Bezeichnung6",
                    QStringLiteral("&Wärmeübergangswiderstand Halbleiter/Kühlkörper    [K / W]:"), text5_),
       text5_);
  paar(beschriftung(this, "Bezeichnung7", QStringLiteral("Benötigter  Kühlkörper  [K / W] <="), text6_), text6_);

  // The sheet: thickness, metal, surface and position; its caption shows
  // the size found.
  rahmen1_ = new QGroupBox(QStringLiteral("Kühlblech: "), this);
  formtext::markResult(rahmen1_);
  rahmen1_->setObjectName("Rahmen1");
  {
    QFont f = rahmen1_->font();
    f.setBold(true);
    rahmen1_->setFont(f);
  }
  auto* blech = new QGridLayout(rahmen1_);
  blech->setHorizontalSpacing(12);
  auto* dicke = new QHBoxLayout;
  QLabel* dickeText = beschriftung(rahmen1_, "Bezeichnung9", QStringLiteral("&Kühlblechdicke    [mm]:"), text7_);
  text7_->setParent(rahmen1_);
  dicke->addWidget(dickeText);
  dicke->addWidget(text7_);
  dicke->addStretch(1);
  blech->addLayout(dicke, 0, 0, 1, 3);

  auto* rahmen2 = new QGroupBox(QStringLiteral("&Metall:"), rahmen1_);
  rahmen2->setObjectName("Rahmen2");
  auto* metallSpalten = new QGridLayout(rahmen2);
  for (int i = 0; i < kuehlung::MetallAnzahl; ++i) {
    metalle_[i] = option(rahmen2, QStringLiteral("Option%1").arg(i + 1), kuehlung::metallName(i));
    metallSpalten->addWidget(metalle_[i], i % 3, i / 3);
  }
  QGroupBox* rahmen3 = optionPair(rahmen1_, "Rahmen3", QStringLiteral("&Oberfläche:"), {"Option7", "blank"},
                                  {"Option8", QStringLiteral("geschwärzt")}, option7_, option8_);
  QGroupBox* rahmen4 = optionPair(rahmen1_, "Rahmen4", QStringLiteral("&Lage:"), {"Option9", "senkrecht"},
                                  {"Option10", "waagerecht"}, option9_, option10_);
  // Only the caption of the sheet frame is bold.
  for (QWidget* w : std::initializer_list<QWidget*>{dickeText, text7_, rahmen2, rahmen3, rahmen4}) {
    QFont f = w->font();
    f.setBold(false);
    w->setFont(f);
  }
  blech->addWidget(rahmen2, 1, 0);
  blech->addWidget(rahmen3, 1, 1);
  blech->addWidget(rahmen4, 1, 2);
  metalle_[kuehlung::Aluminium]->setChecked(true);
  option7_->setChecked(true);
  option9_->setChecked(true);

  auto* befehl1 = new QPushButton(QStringLiteral("&Rechnen"), this);
  befehl1->setObjectName("Befehl1");
  befehl1->setToolTip(QStringLiteral("Kühlkörper berechnen"));
  befehl1->setDefault(true);
  auto* befehl2 = new QPushButton(QStringLiteral("&Abbrechen"), this);
  befehl2->setObjectName("Befehl2");
  befehl2->setToolTip(QStringLiteral("zurück zum Schaltbild"));
  auto* befehl3 = new QPushButton(QStringLiteral("&Drucken"), this);
  befehl3->setObjectName("Befehl3");
  for (QPushButton* b : {befehl1, befehl2, befehl3}) b->setAutoDefault(false);
  connect(befehl1, &QPushButton::clicked, this, [this] { rechnen(); });
  connect(befehl2, &QPushButton::clicked, this, [this] { abbrechen(); });
  connect(befehl3, &QPushButton::clicked, this, [this] { drucken(); });

  auto* knoepfe = new QVBoxLayout;
  knoepfe->addWidget(befehl1);
  knoepfe->addWidget(befehl2);
  knoepfe->addWidget(befehl3);
  knoepfe->addStretch(1);

  auto* links = new QVBoxLayout;
  links->addLayout(oben);
  links->addSpacing(6);
  links->addWidget(rahmen1_);
  links->addStretch(1);
  auto* aussen = new QHBoxLayout(this);
  aussen->addLayout(links, 1);
  aussen->addSpacing(8);
  aussen->addLayout(knoepfe);

  connect(liste1_, &QListWidget::currentRowChanged, this, &frmKuehlg2::scheibeGewaehlt);
  connect(liste1_, &QListWidget::itemClicked, this,
          [this](QListWidgetItem* item) { scheibeGewaehlt(liste1_->row(item)); });
  connect(text2_, &QLineEdit::textChanged, this, [this] { text2Geaendert_ = true; });
  text2_->installEventFilter(this);

  liste1_->setCurrentRow(0);
  oeffnen();
}

void frmKuehlg2::oeffnen() {
  const transistor::CurrentTransistor& t = transistor::current();
  transistor::DesignState& d = transistor::design();
  double p = 0;
  if (arith::assign(p, double(t.ubMagnitude) * double(d.ic))) text1_->setText(numfmt::format(p, "###0.000#"));
  if (d.tj == 0.0f) d.tj = 150.0f;
  text2_->setText(numfmt::format(d.tj, "##0"));
  text3_->setText(numfmt::format(40, "##0"));
  double rthI = 0;
  if (arith::assign(rthI, (double(d.tj) - 25.0) / double(t.ptot))) text4_->setText(numfmt::format(rthI, "###0.00"));
  text5_->setText(QStringLiteral("0,5"));
  text7_->setText(numfmt::format(d.sheetThickness, "##0.0"));
  text6_->setText(QString());
  bezeichnungSetzen();
  text2Geaendert_ = false;
}

void frmKuehlg2::innererWiderstandAusTj() {
  const double tj = Module1::ParseNumber(text2_->text());
  double rthI = 0;
  if (arith::assign(rthI, (tj - 25.0) / double(transistor::current().ptot)))
    text4_->setText(numfmt::format(rthI, "###0.00"));
}

void frmKuehlg2::bezeichnungSetzen() { bezeichnung8_->setText(kuehlung::bezeichnung(transistor::current().typeName)); }

bool frmKuehlg2::eventFilter(QObject* watched, QEvent* event) {
  if (watched == text2_ && event->type() == QEvent::FocusOut) tjVerlassen();
  return QWidget::eventFilter(watched, event);
}

void frmKuehlg2::tjVerlassen() {
  if (!text2Geaendert_) return;
  text2Geaendert_ = false;
  innererWiderstandAusTj();
}

void frmKuehlg2::scheibeGewaehlt(int row) {
  if (row < 0 || row >= liste1_->count()) return;
  text5_->setText(kuehlung::widerstandsText(liste1_->item(row)->text()));
}

int frmKuehlg2::metall() const {
  for (int i = 0; i < kuehlung::MetallAnzahl; ++i) {
    if (metalle_[i]->isChecked()) return i;
  }
  return -1;
}

void frmKuehlg2::rechnen() {
  using dialogs::Answer;
  using dialogs::Buttons;
  using dialogs::Icon;
  const QString& NL = Module1::NL;

  if (transistor::current().packageCode < 1) {
    dialogs::msgBox(QStringLiteral("Transistortyp nicht bekannt") + NL + QStringLiteral("Bitte Schaltung neu berechnen."),
                    Icon::Critical, Buttons::OK, QStringLiteral("Kühlkörperberechnung nicht möglich"));
    return;
  }

  kuehlung::Eingaben e;
  e.p = Module1::ParseNumber(text1_->text());
  e.tj = Module1::ParseNumber(text2_->text());
  if (!kuehlung::tjPlausibel(e.tj) &&
      dialogs::msgBox(QStringLiteral("Ist diese Temperaturangabe korrekt?"), Icon::Question, Buttons::YesNo,
                      QStringLiteral("max Sperrsch.-t°")) == Answer::No) {
    text2_->setFocus();
    return;
  }
  e.ta = Module1::ParseNumber(text3_->text());
  if (!kuehlung::taPlausibel(e.ta) &&
      dialogs::msgBox(QStringLiteral("Ist diese Temperaturangabe korrekt?"), Icon::Question, Buttons::YesNo,
                      QStringLiteral("max Umgeb.-t°")) == Answer::No) {
    text3_->setFocus();
    return;
  }
  e.rthI = Module1::ParseNumber(text4_->text());
  e.rthW = Module1::ParseNumber(text5_->text());
  e.dicke = Module1::ParseNumber(text7_->text());
  e.metall = metall();
  e.waagerecht = option10_->isChecked();
  e.geschwaerzt = option8_->isChecked();

  const kuehlung::Ergebnis r = kuehlung::rechnen(e);
  if (r.fall == kuehlung::Fall::NichtAbfuehrbar) {
    nichtAbfuehrbar();
    if (dialogs::msgBox(QStringLiteral("Nächst stärkeren Transistor heraussuchen ?"), Icon::Question, Buttons::YesNo,
                        QStringLiteral("Bitte bestätigen")) == Answer::Yes)
      staerkererTyp(e.p);
    return;
  }

  if (r.ohneKuehlungMoeglich) {
    QString text = QStringLiteral("Die Temperatur des Bauelements ohne Kühlung") + NL + QStringLiteral("liegt bei ") +
                   numfmt::format(r.deltaT, "##0") + QStringLiteral(" °C") + NL +
                   QStringLiteral("über der Umgebungstemperatur.");
    const QString titel = QStringLiteral(" Kein Kühlkörper nötig");
    if (r.deltaT <= 20.0) {
      dialogs::msgBox(text, Icon::Information, Buttons::OK, titel);
    } else {
      text += NL + QStringLiteral("Soll für noch günstigere Bedingungen der") + NL +
              QStringLiteral("nächst stärkere Transistor herausgesucht werden ?");
      if (dialogs::msgBox(text, Icon::Question, Buttons::YesNo, titel) == Answer::Yes) staerkererTyp(e.p);
    }
  }

  text6_->setText(numfmt::format(r.rthK, "###0.0"));
  if (r.fall == kuehlung::Fall::BlechZuGross) {
    rahmen1_->setTitle(kLeererRahmen);
    dialogs::msgBox(QStringLiteral("Der Kühlkörper wird zu groß. Bitte dickeres,") + NL +
                        QStringLiteral("geschwärztes Kupfer- oder Alu-Blech verwenden"),
                    Icon::Exclamation, Buttons::OK, kFalsch);
    return;
  }
  rahmen1_->setTitle(kuehlung::blechText(r.flaeche, r.seite));
}

void frmKuehlg2::nichtAbfuehrbar() {
  rahmen1_->setTitle(kLeererRahmen);
  const QStringList zeilen = {
      QStringLiteral("Die Verlustleistung ist mit einem normalen Kühlkörper nicht abführbar."),
      QStringLiteral("Folgende Maßnahmen sind möglich:"),
      QString(),
      QStringLiteral("- wählen Sie einen leistungsstärkeren Halbleitertyp"),
      QStringLiteral("- verwenden Sie einen Kühlkörper <= 0,4 K/W mit Zwangslüftung"),
      QStringLiteral("- montieren Sie den Halbleiter direkt auf den Kühlkörper"),
      QStringLiteral("- lassen Sie keine hohe Umgebungstemperatur zu"),
      QStringLiteral("- verringern sie die Verlustleistung (Betriebsspannung verkleinern ?)"),
  };
  dialogs::msgBox(zeilen.join(Module1::NL), dialogs::Icon::Information, dialogs::Buttons::OK, kFalsch);
}

void frmKuehlg2::staerkererTyp(double p) {
  double rthI = 0;
  if (kuehlung::staerkererTyp(p, transistor::current(), transistor::dialogFrage(), rthI))
    text4_->setText(numfmt::format(rthI, "###0.00"));
  bezeichnungSetzen();
}

void frmKuehlg2::abbrechen() {
  // Closes, and brings the designer back on its schematic when it is open.
  if (auto* sub = qobject_cast<QMdiSubWindow*>(parentWidget()))
    sub->close();
  else
    close();
  if (MDIForm1* main = mainWindow()) {
    for (QMdiSubWindow* s : main->childWindows()) {
      if (auto* designer = qobject_cast<frmTrans1*>(s->widget())) designer->ZeigeSchaltbild();
    }
  }
}

QStringList frmKuehlg2::druckZeilen() const {
  const QString metallName = kuehlung::metallName(metall());
  const QString scheibe = liste1_->currentItem() ? liste1_->currentItem()->text() : QString();
  return {
      QStringLiteral("Verlustleistung des Halbleiters in der Schaltung (") + transistor::current().typeName +
          QStringLiteral("): ") + text1_->text() + QStringLiteral(" W"),
      QStringLiteral("Innerer Wärmewiderstand des Halbleiters: ") + text4_->text() + QStringLiteral(" K/W"),
      QStringLiteral("max Sperrschicht-Temperatur: ") + text2_->text() + QStringLiteral(" °C"),
      QStringLiteral("max Umgebungs-Temperatur: ") + text3_->text() + QStringLiteral(" °C"),
      QStringLiteral("Wärmeübergangswiderstand Halbleiter/Kühlkörper: ") + text5_->text() + QStringLiteral(" K/W"),
      QStringLiteral("durch Isolierscheibe: ") + scheibe,
      QString(),
      QStringLiteral("Benötigter Kühlkörper <= ") + text6_->text() + QStringLiteral(" K/W"),
      QStringLiteral("oder ") + rahmen1_->title(),
      QString(),
      QStringLiteral("Kühlblechdicke: ") + text7_->text() + QStringLiteral(" mm"),
      QStringLiteral("Metall: ") + metallName,
      QStringLiteral("Oberfläche: ") + (option8_->isChecked() ? QStringLiteral("geschwärzt") : QStringLiteral("blank")),
      QStringLiteral("Lage: ") + (option10_->isChecked() ? QStringLiteral("waagerecht") : QStringLiteral("senkrecht")),
      QString(),
      QLocale().toString(QDate::currentDate(), QLocale::ShortFormat),
  };
}

void frmKuehlg2::drucken() {
  QString fehler;
  QPainter p;
  std::unique_ptr<QPrinter> drucker = printing::start(p, &fehler);
  if (!drucker) {
    dialogs::msgBox(fehler + Module1::NL + QStringLiteral("Das Formular kann nicht gedruckt werden."));
    return;
  }

  // One text line after the other from a 2 cm margin; a full page moves on
  // to the next.
  const double dpi = drucker->resolution();
  const QRect seite = p.viewport();
  const int rand = int(dpi * 2.0 / 2.54);
  const int unten = seite.height() - rand;
  int seiten = 1;
  int y = rand;
  QFont normal(QStringLiteral("Sans Serif"));
  normal.setPointSizeF(11);
  QFont fett = normal;
  fett.setBold(true);
  QFont kopf = fett;
  kopf.setPointSizeF(14);
  auto zeile = [&](const QString& text, const QFont& font) {
    p.setFont(font);
    const QFontMetrics m(font, drucker.get());
    if (y + m.height() > unten) {
      drucker->newPage();
      ++seiten;
      y = rand;
    }
    p.drawText(rand, y + m.ascent(), text);
    y += m.lineSpacing();
  };
  zeile(QStringLiteral("  Kühlkörperberechnung   "), kopf);
  zeile(QString(), normal);
  zeile(QStringLiteral("Kühlkörper:"), fett);
  for (const QString& z : druckZeilen()) zeile(z, normal);
  p.end();
  printing::jobDone(objectName(), seiten);
  QApplication::processEvents();
}
