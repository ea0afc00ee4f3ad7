#pragma once
// Heat-sink calculator " Kühlkörper - Berechnung" (object name frmKühlg2):
// the largest thermal resistance the heat sink of transistor T1 may have,
// and the square flat sheet that provides it; offers a stronger transistor
// from the catalogue when cooling fails or is hardly needed.
#include <QStringList>
#include <QWidget>

class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;

class frmKuehlg2 : public QWidget {
  Q_OBJECT
 public:
  frmKuehlg2();

  // Fills the form from the design and the current transistor, as the
  // amplifier designer does before it shows the form (also done on load).
  void oeffnen();

  // Handlers.
  void rechnen();       // Befehl1
  void abbrechen();     // Befehl2
  void drucken();       // Befehl3

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void tjVerlassen();
  void scheibeGewaehlt(int row);
  void innererWiderstandAusTj();
  void bezeichnungSetzen();
  void staerkererTyp(double p);
  void nichtAbfuehrbar();
  QStringList druckZeilen() const;
  int metall() const;

  QLineEdit *text1_, *text2_, *text3_, *text4_, *text5_, *text6_, *text7_;
  QLabel* bezeichnung8_;
  QListWidget* liste1_;
  QGroupBox* rahmen1_;
  QRadioButton* metalle_[6];
  QRadioButton *option7_, *option8_, *option9_, *option10_;
  bool text2Geaendert_ = false;
};
