#include "shell/frmAbout.h"

#include <algorithm>

#include <QApplication>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "shell/MDIForm1.h"
#include "shell/core/Module1.h"

using Module1::NL;

frmAbout::frmAbout(const QString& caption) {
  setObjectName("frmAbout");
  setWindowTitle(caption);
  setWindowIcon(QApplication::windowIcon());
  auto* layout = new QVBoxLayout(this);
  version_ = new QLabel(this);
  version_->setObjectName("lblVersion");
  version_->setAlignment(Qt::AlignCenter);
  text_ = new QPlainTextEdit(this);
  text_->setObjectName("txtText");
  text_->setReadOnly(true);
  ok_ = new QPushButton("OK", this);
  ok_->setObjectName("cmdOK");
  layout->addWidget(version_);
  layout->addWidget(text_, 1);
  layout->addWidget(ok_, 0, Qt::AlignRight);
  connect(ok_, &QPushButton::clicked, this, [this] {
    if (auto* sub = qobject_cast<QMdiSubWindow*>(parentWidget()))
      sub->close();
    else
      close();
  });
}

frmAbout* frmAbout::info() {
  auto* f = new frmAbout("Info");
  QLabel* title = new QLabel(Module1::AppTitle, f);
  title->setObjectName("lblTitle");
  QFont font = title->font();
  font.setPointSizeF(font.pointSizeF() * 1.8);
  font.setBold(true);
  title->setFont(font);
  title->setAlignment(Qt::AlignCenter);
  static_cast<QVBoxLayout*>(f->layout())->insertWidget(0, title);
  f->version_->setText("Version " + Module1::versionString());
  f->text_->hide();
  f->resize(280, 150);
  return f;
}

QString frmAbout::helpText() {
  const QStringList sections[] = {
      {"Verwendungszweck:",
       "Das  Programm  wird  zur  Berechnung  der  gängigsten  elektronischen  Größen  verwendet ."},
      {"Programmablauf:",
       "Im Menü 'Berechnungen' wird die benötigte Berechnung ausgewählt (es können auch mehrere sein). Die "
       "bekannten Größen werden in die dafür vorgesehenen Felder eingegeben und das Feld mit der unbekannten "
       "Größe freigelassen. Danach bitte auf  'Berechnung'  klicken. Das Ergebnis wird dann in dem freigelassenen "
       "Feld angezeigt. Die Berechnungsroutine für Transistor - A - Kleinsignalverstärker weicht davon ab und "
       "verfügt über seinen eigenen Hilfetext."},
      {"Hardware / Software - Voraussetzungen:",
       "PC  mit  Taktfrequenz  > 66 MHz , VGA - Monitor  u.  Grafikkarte  mit  min  640 x 480  Bildpunkten ( "
       "besser  800 x 600  Bildpunkte o. größer ) , WINDOWS 9x , NT, XP und höher ."},
      {"Garantie- und Haftungsausschluss:",
       "Das Programm wird so bereitgestellt, wie es ist. Für die Richtigkeit der Ergebnisse und die Eignung für "
       "einen bestimmten Zweck wird keine Gewähr übernommen; jede Haftung für Schäden, die aus der Nutzung "
       "entstehen, ist ausgeschlossen. Bitte prüfen Sie wichtige Ergebnisse nach.",
       "Hinweise auf Fehler sowie Anregungen und Verbesserungsvorschläge sind jederzeit willkommen."},
  };
  QStringList parts;
  for (const QStringList& s : sections) parts << s.join(NL);
  return parts.join(NL + NL);
}

QString frmAbout::literatureText() {
  return QStringList{"Die in diesem Programm verwendeten Formeln sind folgender Literatur entnommen:",
                     "    [1] Fachkunde für Funkmechaniker, Teil 1 bis Teil 3, 1963 ,",
                     "          VEB Verlag Technik, Berlin",
                     "    [2] Lehrbuch der Funkempfangstechnik, Band 1 und Band 2, Leipzig 1964 ,",
                     "          Fachbuchverlag Leipzig"}
      .join(NL);
}

frmAbout* frmAbout::text(const QString& caption, const QString& text) {
  auto* f = new frmAbout(caption);
  f->version_->hide();
  f->text_->setPlainText(QString(text).replace(NL, "\n"));
  return f;
}

frmAbout* frmAbout::showText(const QString& caption, const QString& text) {
  MDIForm1* main = mainWindow();
  if (!main) return nullptr;
  frmAbout* w = frmAbout::text(caption, text);
  main->showChild(w);
  const QSize room = main->mdiArea()->viewport()->size();
  w->parentWidget()->resize(std::max(room.width() * 2 / 3, std::min(room.width(), 640)),
                            std::max(room.height() / 2, std::min(room.height(), 260)));
  return w;
}

frmAbout* frmAbout::help() { return text(" Kurzhilfe", helpText()); }

frmAbout* frmAbout::literature() { return text(" Literaturquellen", literatureText()); }
