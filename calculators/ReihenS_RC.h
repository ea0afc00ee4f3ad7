#pragma once
#include "shell/CalcForm.h"

class QComboBox;
class QLabel;
class QLineEdit;

// Two resistors in parallel, two capacitors in series or two coils in
// parallel: any one of X1, X2 and the total from the other two. Each menu
// choice opens a window of its own; its mode comes from its Tag and is set
// up when the window is first activated. A double click on the total
// carries it over as X1 for the next component.
class ReihenS_RC : public CalcForm {
  Q_OBJECT
 public:
  ReihenS_RC();
  void activated() override;
  void compute() override;

  QString modus() const { return modus_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void setUpMode();
  void carryOver();

  QString modus_;
  QString title_;
  units::Placement placement_;
  QLineEdit *text1_, *text2_, *text3_;
  QComboBox *combo1_, *combo2_, *combo3_;
  QLabel *label1_, *label2_, *label3_, *label4_;
};
