#pragma once
// Amplifier designer "Transistor - A - Kleinsignalverstärker" (frmTrans1):
// designs a class-A common-emitter stage with standard values, takes an
// example transistor from the catalogue, and shows the schematic, the
// technical data and the parts list; prints them, opens the heat-sink
// calculator and has its own help.
#include <QString>
#include <QStringList>
#include <QWidget>

#include "transistor/core/Verstaerker.h"

class QComboBox;
class QLineEdit;
class QPushButton;
class QRadioButton;
class PictureBox;
class OutputTarget;

class frmTrans1 : public QWidget {
  Q_OBJECT
 public:
  frmTrans1();

  // Handlers.
  void berechnen();        // Befehl1
  void zeigeSeite(int s);  // Befehl2 to Befehl4
  void kuehlung();         // Befehl5
  void drucken();          // Befehl6
  void hilfe();            // Befehl7
  // Page 1 on the screen and the form in front (the heat-sink calculator
  // comes back here).
  void ZeigeSchaltbild();
  // The technical data and the parts list of the last design as text lines
  // (for the form's text on the clipboard).
  Q_INVOKABLE QStringList resultLines() const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void aktiviert();
  void zeichnen();
  verstaerker::Typ typ() const;
  // The pages, drawn in the user scale 200 wide; the data page and the
  // parts list start at the output position and leave it after their last line.
  void schaltbild(OutputTarget& t) const;
  void daten(OutputTarget& t) const;
  void stueckliste(OutputTarget& t) const;

  QLineEdit* text_[5];
  QRadioButton* option_[2];
  QComboBox* combo1_;
  PictureBox* picture1_;
  QPushButton* befehl_[8];
  bool verbunden_ = false;

  // The last design and what its search found.
  bool entwurfDa_ = false;
  verstaerker::Entwurf entwurf_;
  int seite_ = 1;
  float pmin_ = 0, icMax_ = 0;
  qint16 uceMax_ = 0;
  QString klasse_, suchName_;
  // The current transistor as the page was last drawn.
  verstaerker::Typ typ_;
  int gehaeusecode_ = 0;
};
