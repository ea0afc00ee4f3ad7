#pragma once
#include <QPointer>
#include <array>

#include "shell/CalcForm.h"

class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class FrequencyResponse;
class PictureBox;
class QWidget;

// Loudspeaker crossover: two-way boxes of 6, 12 and 18 dB/octave and a
// three-way box of 12 dB/octave in one form. The main window hands the mode
// over in the Tag ("2W6", "2W12", "2W18", "3W12") and sets the caption; the
// form lays itself out for its mode each time it becomes active.
class LP_Box : public CalcForm {
  Q_OBJECT
 public:
  LP_Box();

  void activated() override;
  void compute() override;
  void clearFields() override;  // keeps R_TT

 private:
  void showHint();
  void enlargePicture();
  void updatePlot();
  QLineEdit* field(int n) const { return text_[size_t(n)]; }
  QComboBox* ownCombo(int n) const;

  std::array<QLineEdit*, 14> text_{};  // text_[n] is TextN
  // The eight component slots, in the order of lpbox::slotTable().
  std::array<QLabel*, 8> slotLabel_{};
  std::array<QComboBox*, 8> slotCombo_{};
  QComboBox *comboC1_, *comboC2_, *comboL1_, *comboL2_;
  QLabel *label4_, *label7_, *label10_;
  PictureBox* image1_;
  FrequencyResponse* frequenzgang_;
  QPointer<QWidget> hint_;
  QPointer<QWidget> enlarged_;
};
