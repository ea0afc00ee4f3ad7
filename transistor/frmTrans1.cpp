#include "transistor/frmTrans1.h"

#include <QApplication>
#include <QComboBox>
#include <QDate>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPainter>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <cmath>
#include <memory>

#include "shell/CalcForm.h"
#include "shell/DialogService.h"
#include "shell/FormRegistry.h"
#include "shell/MDIForm1.h"
#include "shell/OutputTarget.h"
#include "shell/PictureBox.h"
#include "shell/PrintService.h"
#include "shell/core/Module1.h"
#include "shell/core/NumberFormat.h"
#include "shell/frmAbout.h"
#include "transistor/SucheDialog.h"
#include "transistor/core/TransistorState.h"
#include "transistor/core/TransistorSuche.h"
#include "transistor/frmKuehlg2.h"

QUARZEL_REGISTER_FORM("frmTrans1", frmTrans1);

using namespace verstaerker;

namespace {

const QRectF kSkala(0, 0, 200, 150);
// Text heights in user units.
constexpr double kSchrift = 3.4;
constexpr double kTitel = 4.0;
constexpr double kKlein = 2.9;

// A font whose height is h user units, whatever size the surface has.
void schrift(OutputTarget& t, double h, bool fett = false) {
  t.setFont(t.mapLengthY(h) / (96.0 / 72.0 * t.pixel()), fett);
}

// Line widths follow the drawing's size too (w in user units).
void stift(OutputTarget& t, double w = 0.35, Qt::PenStyle stil = Qt::SolidLine) {
  t.setPen(Qt::black, std::max(0.6, t.mapLengthX(w) / t.pixel()), stil);
}

QString vorzeichenZahl(double v, const char* muster) {
  const QString z = numfmt::format(std::fabs(v), QString::fromLatin1(muster));
  if (z.isEmpty()) return z;
  return (v < 0 ? QStringLiteral("-") : QStringLiteral("+")) + z;
}

void punkt(OutputTarget& t, QPointF p) { t.circle(p, 0.9, Qt::black); }
void klemme(OutputTarget& t, QPointF p) { t.circle(p, 1.3, Qt::white); }

// A DIN resistor, vertical, centred on c; name and value beside it.
void widerstand(OutputTarget& t, QPointF c, const QString& name, double ohm, bool links) {
  const double l = 13, b = 4.6;
  t.rect(QRectF(c.x() - b / 2, c.y() - l / 2, b, l), Qt::white);
  const double x = links ? c.x() - b / 2 - 1.8 : c.x() + b / 2 + 1.8;
  const int a = (links ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignBottom;
  t.text(QPointF(x, c.y() + 0.2), name, a);
  t.text(QPointF(x, c.y() + 0.4), verstaerker::widerstand(ohm).text(), (a & ~Qt::AlignBottom) | Qt::AlignTop);
}

// The two plates of a capacitor across the line through c; `senkrecht`
// for a vertical line (plates lying). `plus`: +1 or -1 names the positive
// plate (the one towards larger x or y) of an electrolytic, 0 none.
void kondensator(OutputTarget& t, QPointF c, bool senkrecht, int plus) {
  const double abstand = 1.1, breite = 7, dicke = 1.0;
  for (int seite : {-1, 1}) {
    const double mitte = seite * (abstand + dicke / 2);
    QRectF platte = senkrecht ? QRectF(c.x() - breite / 2, c.y() + mitte - dicke / 2, breite, dicke)
                              : QRectF(c.x() + mitte - dicke / 2, c.y() - breite / 2, dicke, breite);
    // The positive plate of an electrolytic is hollow.
    t.rect(platte, plus == seite ? Qt::white : Qt::black);
  }
  if (plus != 0) {
    schrift(t, kKlein);
    const double d = abstand + dicke + 1.6;
    if (senkrecht)
      t.text(QPointF(c.x() - breite / 2 - 0.4, c.y() + plus * d), QStringLiteral("+"),
             Qt::AlignRight | Qt::AlignVCenter);
    else
      t.text(QPointF(c.x() + plus * (d + 1.2), c.y() - breite / 2 + 0.6), QStringLiteral("+"),
             Qt::AlignHCenter | Qt::AlignBottom);
    schrift(t, kSchrift);
  }
}

bool elko(double c) { return c >= Module1::TenPow(-6); }

// The pin sketch of a package, centred on (cx, cy).
void anschluss(OutputTarget& t, int code, double cx, double cy) {
  schrift(t, kKlein);
  auto marke = [&](double x, double y, const QString& s, int a = Qt::AlignHCenter | Qt::AlignTop) {
    t.text(QPointF(x, y), s, a);
  };
  auto bein = [&](double x, double y) { t.circle(QPointF(x, y), 0.7, Qt::black); };
  auto draht = [&](double x, double y0, double y1) { t.line(QPointF(x, y0), QPointF(x, y1)); };
  switch (code) {
    case 1:
    case 2: {  // from below, flat side down
      const double r = 6.5, yf = cy + 2.5;
      t.arc(QRectF(cx - r, yf - r, 2 * r, 2 * r), 0, 180);
      t.line(QPointF(cx - r, yf), QPointF(cx + r, yf));
      const QStringList n = code == 1 ? QStringList{"C", "B", "E"} : QStringList{"E", "B", "C"};
      for (int i = 0; i < 3; ++i) {
        const double x = cx + (i - 1) * 3.8;
        bein(x, i == 1 && code == 2 ? yf - 4.5 : yf - 1.8);
        marke(x, yf + 0.6, n[i]);
      }
      break;
    }
    case 3:
    case 4: {  // from below, tab at the emitter
      const double r = 6.0, pr = 3.0;
      t.circle(QPointF(cx, cy), r);
      const double a = 225 * M_PI / 180;
      t.polygon({QPointF(cx + r * std::cos(a + 0.12), cy - r * std::sin(a + 0.12)),
                 QPointF(cx + (r + 2) * std::cos(a + 0.1), cy - (r + 2) * std::sin(a + 0.1)),
                 QPointF(cx + (r + 2) * std::cos(a - 0.1), cy - (r + 2) * std::sin(a - 0.1)),
                 QPointF(cx + r * std::cos(a - 0.12), cy - r * std::sin(a - 0.12))},
                Qt::white);
      const int winkel[3] = {225, 135, 45};
      const char* n[3] = {"E", "B", "C"};
      for (int i = 0; i < 3; ++i) {
        const double w = winkel[i] * M_PI / 180;
        bein(cx + pr * std::cos(w), cy - pr * std::sin(w));
        const double lx = cx + (r + 4.5) * std::cos(w), ly = cy - (r + 3.5) * std::sin(w);
        marke(lx, ly, QString::fromLatin1(n[i]), Qt::AlignHCenter | Qt::AlignVCenter);
      }
      break;
    }
    case 5:
    case 6:
    case 7:
    case 8: {  // front view, leads down
      if (code == 6 || code == 7) {
        t.rect(QRectF(cx - 6, cy - 10, 12, 5), Qt::white);
        t.circle(QPointF(cx, cy - 7.5), 1.2);
      }
      t.rect(QRectF(cx - 6, cy - 5, 12, 7), Qt::white);
      if (code == 5) t.circle(QPointF(cx, cy - 2), 1.2);
      const QStringList n = code == 5   ? QStringList{"E", "C", "B"}
                            : code == 8 ? QStringList{"?", "?", "?"}
                                        : QStringList{"B", "C", "E"};
      for (int i = 0; i < 3; ++i) {
        const double x = cx + (i - 1) * 4;
        draht(x, cy + 2, cy + 7);
        marke(x, cy + 7.4, n[i]);
      }
      break;
    }
    case 9: {  // from below, two pins, the case is the collector
      t.ellipse(QRectF(cx - 11, cy - 6, 22, 12));
      t.circle(QPointF(cx - 8, cy), 1.0);
      t.circle(QPointF(cx + 8, cy), 1.0);
      bein(cx - 1.5, cy - 2.5);
      bein(cx - 1.5, cy + 2.5);
      marke(cx + 0.5, cy - 2.5, QStringLiteral("B"), Qt::AlignLeft | Qt::AlignVCenter);
      marke(cx + 0.5, cy + 2.5, QStringLiteral("E"), Qt::AlignLeft | Qt::AlignVCenter);
      marke(cx + 12.5, cy, QStringLiteral("C = Gehäuse"), Qt::AlignLeft | Qt::AlignVCenter);
      break;
    }
    case 10: {  // from above
      t.rect(QRectF(cx - 5, cy - 2.5, 10, 5), Qt::white);
      draht(cx - 3, cy + 2.5, cy + 5.5);
      draht(cx + 3, cy + 2.5, cy + 5.5);
      draht(cx, cy - 2.5, cy - 5.5);
      marke(cx - 3, cy + 5.8, QStringLiteral("B"));
      marke(cx + 3, cy + 5.8, QStringLiteral("E"));
      marke(cx + 1.2, cy - 5, QStringLiteral("C"), Qt::AlignLeft | Qt::AlignVCenter);
      break;
    }
    case 11:
    case 12: {  // from above, tab opposite the pins
      const double b = code == 11 ? 6 : 7;
      t.rect(QRectF(cx - b / 2 - 1, cy - 6.5, b + 2, 3.5), Qt::white);
      t.rect(QRectF(cx - b, cy - 3, 2 * b, 6), Qt::white);
      marke(cx, cy - 4.75, QStringLiteral("C"), Qt::AlignHCenter | Qt::AlignVCenter);
      const QStringList n = code == 11 ? QStringList{"E", "C", "B"} : QStringList{"B", "C", "E"};
      for (int i = 0; i < 3; ++i) {
        const double x = cx + (i - 1) * (b - 2);
        draht(x, cy + 3, cy + 6);
        marke(x, cy + 6.3, n[i]);
      }
      break;
    }
    default:
      break;
  }
  schrift(t, kSchrift);
}

}  // namespace

frmTrans1::frmTrans1() {
  setObjectName(QStringLiteral("frmTrans1"));
  setWindowTitle(QStringLiteral("Transistor - A - Kleinsignalverstärker"));
  setWindowIcon(QApplication::windowIcon());

  // Presets, and the current transistor as a design starts from.
  transistor::CurrentTransistor& t = transistor::current();
  t.typeName = QStringLiteral("SC 239d");
  t.packageCode = 1;
  t.polarity = QStringLiteral("npn");
  t.ubMagnitude = 12;
  transistor::design().tj = 0;
  transistor::design().sheetThickness = 2.0f;

  auto* rahmen1 = new QGroupBox(QStringLiteral("Vorgaben:"), this);
  rahmen1->setObjectName(QStringLiteral("Rahmen1"));
  auto* felder = new QGridLayout(rahmen1);
  const char* titel[5] = {"&UB Betriebsspannung [V]:", "&Ic Kollektorstrom [mA]:", "&Vu Spannungsverstärkung:",
                          "&fu untere Grenzfrequenz [Hz]:", "&RL Lastwiderstand [kOhm]:"};
  const char* vorgabe[5] = {"12", "1", "10", "20", "10"};
  for (int i = 0; i < 5; ++i) {
    text_[i] = new QLineEdit(QString::fromLatin1(vorgabe[i]), rahmen1);
    text_[i]->setObjectName(QStringLiteral("Text%1").arg(i + 1));
    text_[i]->setFixedWidth(70);
    text_[i]->setAlignment(Qt::AlignRight);
    text_[i]->installEventFilter(this);
    auto* l = new QLabel(QString::fromUtf8(titel[i]), rahmen1);
    l->setObjectName(QStringLiteral("Label%1").arg(i + 1));
    l->setBuddy(text_[i]);
    felder->addWidget(l, i, 0);
    felder->addWidget(text_[i], i, 1);
  }

  auto* rahmen2 = new QGroupBox(QStringLiteral("Transistor:"), this);
  rahmen2->setObjectName(QStringLiteral("Rahmen2"));
  auto* art = new QGridLayout(rahmen2);
  option_[0] = new QRadioButton(QStringLiteral("&Normal"), rahmen2);
  option_[1] = new QRadioButton(QStringLiteral("D&arlington"), rahmen2);
  for (int i = 0; i < 2; ++i) {
    option_[i]->setObjectName(QStringLiteral("Option1(%1)").arg(i));
    art->addWidget(option_[i], i, 0, 1, 2);
  }
  option_[0]->setChecked(true);
  combo1_ = new QComboBox(rahmen2);
  combo1_->setObjectName(QStringLiteral("Combo1"));
  combo1_->addItems({QStringLiteral("kein SMD"), QStringLiteral("gemischt"), QStringLiteral("nur SMD")});
  auto* smd = new QLabel(QStringLiteral("S&MD:"), rahmen2);
  smd->setObjectName(QStringLiteral("Label6"));
  smd->setBuddy(combo1_);
  art->addWidget(smd, 2, 0);
  art->addWidget(combo1_, 2, 1);

  picture1_ = new PictureBox(QStringLiteral("Picture1"), this);
  picture1_->setSurfacePicture(true);
  picture1_->setMinimumSize(480, 360);
  picture1_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);

  const char* knopf[8] = {"&Berechnen", "S&chaltbild", "&Techn. Daten", "Stück&liste",
                          "&Kühlung",   "&Drucken",    "&Hilfe",        "&Schliessen"};
  auto* knoepfe = new QVBoxLayout;
  for (int i = 0; i < 8; ++i) {
    befehl_[i] = new QPushButton(QString::fromUtf8(knopf[i]), this);
    befehl_[i]->setObjectName(QStringLiteral("Befehl%1").arg(i + 1));
    befehl_[i]->setAutoDefault(false);
    knoepfe->addWidget(befehl_[i]);
    if (i == 5) knoepfe->addStretch(1);
  }
  befehl_[0]->setToolTip(QStringLiteral("Schaltung berechnen"));
  befehl_[4]->setToolTip(QStringLiteral("Kühlkörperberechnung"));
  for (int i = 1; i <= 5; ++i) befehl_[i]->setEnabled(false);
  connect(befehl_[0], &QPushButton::clicked, this, [this] { berechnen(); });
  connect(befehl_[1], &QPushButton::clicked, this, [this] { zeigeSeite(1); });
  connect(befehl_[2], &QPushButton::clicked, this, [this] { zeigeSeite(2); });
  connect(befehl_[3], &QPushButton::clicked, this, [this] { zeigeSeite(3); });
  connect(befehl_[4], &QPushButton::clicked, this, [this] { kuehlung(); });
  connect(befehl_[5], &QPushButton::clicked, this, [this] { drucken(); });
  connect(befehl_[6], &QPushButton::clicked, this, [this] { hilfe(); });
  connect(befehl_[7], &QPushButton::clicked, this, [this] {
    if (auto* sub = qobject_cast<QMdiSubWindow*>(parentWidget()))
      sub->close();
    else
      close();
  });

  auto* links = new QVBoxLayout;
  links->addWidget(rahmen1);
  links->addWidget(rahmen2);
  links->addStretch(1);
  auto* aussen = new QHBoxLayout(this);
  aussen->addLayout(links);
  aussen->addWidget(picture1_, 1);
  aussen->addLayout(knoepfe);

  picture1_->setSurface(
      kSkala,
      [](OutputTarget& o) {
        schrift(o, kSchrift);
        o.SetOutputX(5);
        o.SetOutputY(5);
        o.Print(QStringLiteral("Bitte Werte eingeben und 'Berechnen' wählen."));
      },
      OutputTarget::Fit::Keep);
  text_[0]->setFocus();
}

bool frmTrans1::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    for (int i = 0; i < 5; ++i) {
      if (watched != text_[i]) continue;
      auto* k = static_cast<QKeyEvent*>(event);
      if (k->text().isEmpty() || (k->modifiers() & Qt::ControlModifier)) break;
      const QChar c = k->text().at(0);
      if (c.unicode() < 32 && c.unicode() != 8) break;
      // The supply voltage takes a minus sign for a pnp stage.
      if (!(CalcForm::keyPasses(c) || (i == 0 && c == QLatin1Char('-')))) return true;
    }
  }
  return QWidget::eventFilter(watched, event);
}

void frmTrans1::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (verbunden_) return;
  if (MDIForm1* m = mainWindow()) {
    verbunden_ = true;
    connect(m->mdiArea(), &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* sub) {
      if (sub && sub->widget() == this) aktiviert();
    });
  }
}

void frmTrans1::closeEvent(QCloseEvent* event) {
  // The heat-sink calculator belongs to the design and goes with it.
  if (MDIForm1* m = mainWindow()) {
    for (QMdiSubWindow* s : m->childWindows()) {
      if (s->widget() && s->widget()->objectName() == QStringLiteral("frmKühlg2")) s->close();
    }
  }
  QWidget::closeEvent(event);
}

void frmTrans1::aktiviert() {
  // A stronger type taken meanwhile in the heat-sink calculator shows.
  if (entwurfDa_) zeichnen();
}

void frmTrans1::berechnen() {
  Vorgaben v = lesen(text_[0]->text(), text_[1]->text(), text_[2]->text(), text_[3]->text(), text_[4]->text());
  v.darlington = option_[1]->isChecked();
  v.smdWahl = combo1_->currentIndex();
  if (const auto p = pruefen(v)) {
    dialogs::msgBox(p->text, p->warnung ? dialogs::Icon::Exclamation : dialogs::Icon::None, dialogs::Buttons::OK,
                    p->titel);
    return;
  }
  const Entwurf e = entwerfen(v);
  if (e.hinweis != Hinweis::Keiner)
    dialogs::msgBox(hinweisText(e.hinweis), dialogs::Icon::Exclamation, dialogs::Buttons::OK,
                    QStringLiteral("Verstärkung"));

  // The example transistor: every catalogue type may be taken, so the same
  // inputs always give the same type.
  transistor::CurrentTransistor& t = transistor::current();
  t.polarity = v.s < 0 ? QStringLiteral("pnp") : QStringLiteral("npn");
  t.ubMagnitude = float(v.u);
  t.typeName.clear();
  transistor::Suchauftrag a;
  a.ic = float(e.icA);
  a.pmin = float(e.pmin);
  a.smdWahl = qint16(v.smdWahl);
  a.ube = float(verstaerker::art(v.darlington).ube);
  a.uceMax = uceMax_;
  a.icMax = icMax_;
  a.klasse = klasse_;
  transistor::TransistorSuche(a, t, transistor::dialogFrage());
  pmin_ = a.pmin;
  uceMax_ = a.uceMax;
  icMax_ = a.icMax;
  klasse_ = a.klasse;
  suchName_ = t.typeName;

  entwurf_ = e;
  entwurfDa_ = true;
  for (int i = 1; i <= 5; ++i) befehl_[i]->setEnabled(true);
  seite_ = 1;
  zeichnen();
}

void frmTrans1::zeigeSeite(int s) {
  seite_ = s;
  zeichnen();
}

void frmTrans1::ZeigeSchaltbild() {
  seite_ = 1;
  zeichnen();
  if (MDIForm1* m = mainWindow()) m->activate(this);
}

Typ frmTrans1::typ() const {
  const transistor::CurrentTransistor& t = transistor::current();
  Typ y;
  y.name = t.typeName;
  y.gehaeuse = transistor::packageName(t.packageCode);
  y.ptot = t.ptot;
  y.pmin = pmin_;
  y.uceMax = uceMax_;
  y.icMax = icMax_;
  y.klasse = klasse_;
  y.eigeneSuche = suchName_ == t.typeName;
  return y;
}

void frmTrans1::zeichnen() {
  if (!entwurfDa_) return;
  typ_ = typ();
  gehaeusecode_ = transistor::current().packageCode;
  picture1_->setSurface(
      kSkala,
      [this](OutputTarget& o) {
        if (seite_ == 1) {
          schaltbild(o);
          return;
        }
        o.SetOutputY(2);
        if (seite_ == 2)
          daten(o);
        else
          stueckliste(o);
      },
      OutputTarget::Fit::Keep);
}

void frmTrans1::schaltbild(OutputTarget& t) const {
  const Entwurf& e = entwurf_;
  const bool pnp = e.v.s < 0;
  schrift(t, kTitel, true);
  t.SetOutputX(5);
  t.SetOutputY(2);
  t.Print(QStringLiteral("Transistor - A - Verstärker  (") + (pnp ? "pnp" : "npn") + ", " +
          (e.v.darlington ? "Darlington" : "Normal") + ")");
  schrift(t, kSchrift);
  stift(t);

  // Columns and rows of the drawing.
  const double xT = 30, xR = 62, xC = 108, xCE = 134, xA = 183, xRL = 193;
  const double yUB = 17, yB = 58, yK = 46, yGnd = 118;
  const double yE = yB + 10;

  // Rails and terminals.
  t.line(QPointF(xT, yUB), QPointF(xC, yUB));
  t.line(QPointF(xT, yGnd), QPointF(xA, yGnd));
  klemme(t, QPointF(xT, yUB));
  klemme(t, QPointF(xT, yGnd));
  t.text(QPointF(xT - 3, yUB), QStringLiteral("UB = ") + vorzeichenZahl(e.v.s * e.v.u, "##0.0#") + " V",
         Qt::AlignRight | Qt::AlignVCenter);
  t.text(QPointF(xT - 3, yGnd), QStringLiteral("0 V"), Qt::AlignRight | Qt::AlignVCenter);

  // Base divider and input.
  t.line(QPointF(xR, yUB), QPointF(xR, yGnd));
  widerstand(t, QPointF(xR, (yUB + yB) / 2 + 2), QStringLiteral("R1"), e.r1, true);
  widerstand(t, QPointF(xR, (yB + yGnd) / 2), QStringLiteral("R2"), e.r2, true);
  punkt(t, QPointF(xR, yUB));
  punkt(t, QPointF(xR, yB));
  punkt(t, QPointF(xR, yGnd));
  const double xC1 = (xT + xR) / 2;
  t.line(QPointF(xT, yB), QPointF(xC1 - 1.6, yB));
  t.line(QPointF(xC1 + 1.6, yB), QPointF(xR, yB));
  klemme(t, QPointF(xT, yB));
  t.text(QPointF(xT - 3, yB), QStringLiteral("Ue"), Qt::AlignRight | Qt::AlignVCenter);
  // The positive plate of C1 lies at the base of an npn stage.
  kondensator(t, QPointF(xC1, yB), false, elko(e.c1) ? (pnp ? -1 : 1) : 0);
  t.text(QPointF(xC1, yB - 5), QStringLiteral("C1"), Qt::AlignHCenter | Qt::AlignBottom);
  t.text(QPointF(xC1, yB + 4.5), kondensator(e.c1).text(), Qt::AlignHCenter | Qt::AlignTop);

  // Transistor: circle, base bar, collector and emitter.
  const QPointF mitte(xC - 5.5, yB);
  const double xBar = xC - 10;
  t.circle(mitte, 8);
  t.line(QPointF(xR, yB), QPointF(xBar, yB));
  stift(t, 0.9);
  t.line(QPointF(xBar, yB - 4.5), QPointF(xBar, yB + 4.5));
  stift(t);
  const QPointF kol(xC, yB - 7), emi(xC, yB + 7);
  t.line(QPointF(xBar, yB - 2.2), kol);
  t.line(QPointF(xBar, yB + 2.2), emi);
  t.line(kol, QPointF(xC, yK));
  t.line(emi, QPointF(xC, yE));
  {
    // Emitter arrow: outwards (npn) or inwards (pnp) along the emitter lead.
    const QPointF a(xBar, yB + 2.2);
    const double dx = emi.x() - a.x(), dy = emi.y() - a.y(), len = std::hypot(dx, dy);
    const QPointF u(dx / len, dy / len), n(-u.y(), u.x());
    const QPointF spitze = pnp ? a + u * 2.2 : a + u * (len - 0.6);
    const QPointF basis = pnp ? spitze + u * 3.2 : spitze - u * 3.2;
    t.polygon({spitze, basis + n * 1.3, basis - n * 1.3}, Qt::black);
  }
  t.text(QPointF(xC + 4, yB - 1.5), QStringLiteral("T1"), Qt::AlignLeft | Qt::AlignBottom);
  t.text(QPointF(xC + 4, yB - 1.0), typ_.name, Qt::AlignLeft | Qt::AlignTop);

  // Collector resistor and output.
  t.line(QPointF(xC, yUB), QPointF(xC, yK));
  widerstand(t, QPointF(xC, (yUB + yK) / 2), QStringLiteral("RC"), e.rc, false);
  punkt(t, QPointF(xC, yK));
  const double xC2 = (xC + xA) / 2 - 4;
  t.line(QPointF(xC, yK), QPointF(xC2 - 1.6, yK));
  t.line(QPointF(xC2 + 1.6, yK), QPointF(xA, yK));
  kondensator(t, QPointF(xC2, yK), false, elko(e.c2) ? (pnp ? 1 : -1) : 0);
  t.text(QPointF(xC2, yK - 5), QStringLiteral("C2"), Qt::AlignHCenter | Qt::AlignBottom);
  t.text(QPointF(xC2, yK + 4.5), kondensator(e.c2).text(), Qt::AlignHCenter | Qt::AlignTop);
  klemme(t, QPointF(xA, yK));
  klemme(t, QPointF(xA, yGnd));
  t.text(QPointF(xA, yK - 2), QStringLiteral("Ua"), Qt::AlignHCenter | Qt::AlignBottom);

  // The load: the next stage's input, dashed.
  stift(t, 0.3, Qt::DashLine);
  t.line(QPointF(xA + 1.3, yK), QPointF(xRL, yK));
  t.line(QPointF(xA + 1.3, yGnd), QPointF(xRL, yGnd));
  const double yRL = (yK + yGnd) / 2;
  t.line(QPointF(xRL, yK), QPointF(xRL, yRL - 6.5));
  t.line(QPointF(xRL, yRL + 6.5), QPointF(xRL, yGnd));
  t.rect(QRectF(xRL - 2.3, yRL - 6.5, 4.6, 13));
  stift(t);
  t.text(QPointF(xRL - 4, yRL - 1.6), QStringLiteral("RL"), Qt::AlignRight | Qt::AlignBottom);
  t.text(QPointF(xRL - 4, yRL - 1.6), verstaerker::widerstand(e.v.rl).text(), Qt::AlignRight | Qt::AlignTop);
  t.text(QPointF(xRL - 4, yRL + 2.2), QStringLiteral("(nächste Stufe)"), Qt::AlignRight | Qt::AlignTop);

  // Emitter branch: RE1 unbypassed, then RE2 with CE across it.
  t.line(QPointF(xC, yE), QPointF(xC, yGnd));
  punkt(t, QPointF(xC, yGnd));
  if (e.re2 > 0) {
    const double yN = e.re1 > 0 ? yE + 21 : yE + 5;
    if (e.re1 > 0) widerstand(t, QPointF(xC, (yE + yN) / 2), QStringLiteral("RE1"), e.re1, true);
    widerstand(t, QPointF(xC, (yN + yGnd) / 2), QStringLiteral("RE2"), e.re2, true);
    punkt(t, QPointF(xC, yN));
    const double yCE = (yN + yGnd) / 2;
    t.line(QPointF(xC, yN), QPointF(xCE, yN));
    t.line(QPointF(xCE, yN), QPointF(xCE, yCE - 1.6));
    t.line(QPointF(xCE, yCE + 1.6), QPointF(xCE, yGnd));
    punkt(t, QPointF(xCE, yGnd));
    // The positive plate towards the emitter of an npn stage.
    kondensator(t, QPointF(xCE, yCE), true, elko(e.ce) ? (pnp ? 1 : -1) : 0);
    t.text(QPointF(xCE + 5, yCE - 0.5), QStringLiteral("CE"), Qt::AlignLeft | Qt::AlignBottom);
    t.text(QPointF(xCE + 5, yCE - 0.3), kondensator(e.ce).text(), Qt::AlignLeft | Qt::AlignTop);
  } else if (e.re1 > 0) {
    widerstand(t, QPointF(xC, (yE + yGnd) / 2), QStringLiteral("RE1"), e.re1, true);
  }

  // Pin sketch of the package.
  schrift(t, kKlein);
  t.text(QPointF(197, 123), QStringLiteral("Anschlußskizze T1: (Gehäuseform ") + typ_.gehaeuse + ")",
         Qt::AlignRight | Qt::AlignTop);
  stift(t, 0.25);
  if (gehaeusecode_ >= 1 && gehaeusecode_ <= 12) anschluss(t, gehaeusecode_, 168, 138);
  schrift(t, kSchrift);
}

void frmTrans1::daten(OutputTarget& t) const {
  schrift(t, kTitel, true);
  t.SetOutputX(5);
  t.Print(QStringLiteral("Technische Daten  Transistor - A - Verstärker"));
  schrift(t, kSchrift);
  t.NewLine();
  for (const Datenzeile& z : datenzeilen(entwurf_, typ_)) {
    const double y = t.CurrentY();
    t.SetOutputX(5);
    t.Print(z.titel);
    t.SetOutputY(y);
    if (z.zahl.isEmpty() && z.einheit.isEmpty()) {
      t.SetOutputX(60);
      t.Print(z.text);
    } else {
      t.PrintRightAligned(z.zahl, 120);
      if (!z.einheit.isEmpty()) {
        t.SetOutputY(y);
        t.SetOutputX(122);
        t.Print(z.einheit);
      }
    }
  }
}

void frmTrans1::stueckliste(OutputTarget& t) const {
  schrift(t, kTitel, true);
  t.SetOutputX(5);
  t.Print(QStringLiteral("Stückliste  Transistor - A - Verstärker"));
  schrift(t, kSchrift);
  t.NewLine();
  auto zeile = [&](const QString& a, const QString& b, const QString& c) {
    const double y = t.CurrentY();
    t.SetOutputX(5);
    t.Print(a);
    t.SetOutputY(y);
    t.SetOutputX(25);
    t.Print(b);
    t.SetOutputY(y);
    t.SetOutputX(60);
    t.Print(c);
  };
  schrift(t, kSchrift, true);
  zeile(QStringLiteral("Pos."), QStringLiteral("Wert"), QStringLiteral("Ausführung"));
  schrift(t, kSchrift);
  for (const Stueckzeile& z : verstaerker::stueckliste(entwurf_, typ_)) zeile(z.pos, z.wert, z.ausfuehrung);
}

QStringList frmTrans1::resultLines() const {
  if (!entwurfDa_) return {};
  QStringList lines{QStringLiteral("Technische Daten  Transistor - A - Verstärker")};
  for (const Datenzeile& z : datenzeilen(entwurf_, typ_)) {
    QString line = z.titel;
    for (const QString& part : {z.zahl, z.einheit, z.text})
      if (!part.isEmpty()) line += ' ' + part;
    lines << line;
  }
  lines << QString() << QStringLiteral("Stückliste  Transistor - A - Verstärker");
  for (const Stueckzeile& z : verstaerker::stueckliste(entwurf_, typ_))
    lines << z.pos + '\t' + z.wert + '\t' + z.ausfuehrung;
  return lines;
}

void frmTrans1::kuehlung() {
  MDIForm1* m = mainWindow();
  if (!m || !entwurfDa_) return;
  // The design's power UB * IC, with the analysed collector current.
  transistor::design().ic = float(entwurf_.icA);
  transistor::current().ubMagnitude = float(entwurf_.v.u);
  auto* k = qobject_cast<frmKuehlg2*>(m->loadShared(QStringLiteral("frmKühlg2")));
  if (!k) return;
  k->oeffnen();
  m->showChild(k);
}

void frmTrans1::drucken() {
  QString fehler;
  QPainter p;
  std::unique_ptr<QPrinter> drucker = printing::start(p, &fehler);
  if (!drucker) {
    dialogs::msgBox(fehler + Module1::NL + QStringLiteral("Das Formular kann nicht gedruckt werden."));
    zeichnen();
    return;
  }
  typ_ = typ();
  gehaeusecode_ = transistor::current().packageCode;
  const double pixel = drucker->resolution() / 96.0;
  const QRectF seite = p.viewport();
  const double rand = 15.0 / 25.4 * drucker->resolution();
  const double breite = seite.width() - 2 * rand;
  {
    // The schematic across the printable width.
    OutputTarget t(p, QRectF(rand, rand, breite, breite * kSkala.height() / kSkala.width()), kSkala,
                   OutputTarget::Fit::Keep, pixel);
    schaltbild(t);
  }
  drucker->newPage();
  {
    // Data and parts list one below the other, in the same scale.
    const double hoehe = kSkala.width() * (seite.height() - 2 * rand) / breite;
    OutputTarget t(p, QRectF(rand, rand, breite, seite.height() - 2 * rand), QRectF(0, 0, kSkala.width(), hoehe),
                   OutputTarget::Fit::Keep, pixel);
    t.SetOutputY(2);
    daten(t);
    t.NewLine();
    stueckliste(t);
    t.NewLine();
    t.SetOutputX(5);
    t.Print(QLocale().toString(QDate::currentDate(), QLocale::ShortFormat));
  }
  p.end();
  printing::jobDone(objectName(), 2);
  QApplication::processEvents();
  zeichnen();
}

void frmTrans1::hilfe() {
  const QStringList zeilen = {
      QStringLiteral("Transistor - A - Kleinsignalverstärker"),
      QStringLiteral("Berechnung einer Verstärkerstufe in Emitterschaltung mit Stromgegenkopplung und "
                     "Basisspannungsteiler. Widerstände nach E24 gerundet, Kondensatoren auf den nächst größeren "
                     "E12-Wert."),
      QStringLiteral("UB: Betriebsspannung in V (Minuszeichen: pnp-Transistor). Ic: Kollektorstrom in mA. Vu: "
                     "gewünschte Verstärkung (leer: größte Verstärkung). fu: untere Grenzfrequenz in Hz. RL: "
                     "Eingangswiderstand der folgenden Stufe in kOhm."),
      QStringLiteral("Ergebnisse: Schaltbild, technische Daten, Stückliste; der Transistor wird aus Transist.dat "
                     "gewählt; 'Kühlung' berechnet den Kühlkörper."),
      QStringLiteral("Annahmen: kleine Aussteuerung, Stromverstärkung B = 100 (Darlington: 1000)."),
  };
  frmAbout* w = frmAbout::text(QStringLiteral(" Hilfe Transistor-A-Verstärker"), zeilen.join(Module1::NL));
  if (MDIForm1* m = mainWindow()) {
    m->showChild(w);
    w->parentWidget()->resize(520, 380);
  } else {
    w->show();
  }
}
