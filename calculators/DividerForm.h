#pragma once
// What the capacitive and the inductive divider forms share: the frames
// "Vorgaben:" and "Schaltung:" with the seven fields and the schematic, the
// fifth button that hands values to the resonant circuit, reading and
// checking, playing back a computed run, and the live coupling of the
// ratio and resistance fields while typing.
#include <QString>

#include "calculators/Schematics.h"
#include "calculators/core/CTeilerCalc.h"
#include "shell/CalcForm.h"

class QGroupBox;
class QPushButton;
class PictureBox;

// The matching divider as its picture shows it: the upper part over the
// lower one, R1 from the tap to ground, R2 and the third part of the tuned
// circuit across the whole divider, with U1 across R1 and U2 across R2.
struct MatchingSchematic {
  schematics::Element upper;
  QString upperName;
  schematics::Element lower;
  QString lowerName;
  schematics::Element tuning;
  QString tuningName;
};
void drawMatchingDivider(QPainter& painter, const QRectF& target, const MatchingSchematic& parts);

class DividerForm : public CalcForm {
  Q_OBJECT
 public:
  // The rows of the two parts (capacitors or coils) in the frame "Schaltung:".
  struct Parts {
    QString label5, label6;      // captions of Label5 and Label6
    QString combo1, combo2;      // names of their unit combos
    units::UnitList list;        // unit list of both combos
    units::Placement placement;  // unit of a shown part
    eseries::Part kind;          // capacitors or coils
  };
  DividerForm(const QString& name, const QString& caption, const Parts& parts, const QString& command5,
              const QString& command5Tip);

  void compute() override;
  // Command5: hands values over to the resonant-circuit form.
  virtual void handOver() = 0;

 protected:
  virtual divider::Run run(const divider::Values& values, const divider::Empty& empty) = 0;
  void keyReleased(QLineEdit* field, int key) override;

  divider::Values readValues() const;
  QLineEdit* field(divider::Field f) const { return fields_[f]; }
  QComboBox* combo(divider::Field f) const { return combos_[f]; }
  PictureBox* picture() const { return image1_; }
  QPushButton* command5() const { return command5_; }
  // Adds a frame beside "Vorgaben:".
  void addFrame(QGroupBox* frame);

  // The shared resonant-circuit form, loaded (not yet shown), and its
  // controls by name; a control it lacks is skipped.
  static CalcForm* loadResonantCircuit();
  static void setFieldText(QWidget* form, const char* name, const QString& text);
  static void setComboIndex(QWidget* form, const char* name, int index);
  // A value placed into a combo's unit of another form, written with a pattern.
  static void writePlaced(QWidget* form, const char* fieldName, const char* comboName, const units::UnitList& list,
                          const units::Placement& rule, double value, const QString& pattern);

 private:
  void play(const divider::Run& run);
  void showResult(divider::Field f, double value);

  QLineEdit* fields_[divider::FieldCount] = {};
  QComboBox* combos_[divider::FieldCount] = {};
  units::Placement partPlacement_;
  PictureBox* image1_;
  QPushButton* command5_;
};
