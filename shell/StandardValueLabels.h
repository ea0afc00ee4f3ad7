#pragma once
// Beside a field that holds a resistance, capacitance or inductance: the
// nearest standard values of three series with their deviation, shown
// whenever the program has written the field (a computation, a hand-over
// from another calculator) and hidden again as soon as the user edits it or
// the field is emptied. The labels are named after series and field
// ("E12_Text2") and stand in the field's grid row after its unit combo.
#include <QObject>
#include <QString>
#include <array>

#include "shell/core/StandardValues.h"
#include "shell/core/UnitPrefix.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QWidget;

class StandardValueLabels : public QObject {
  Q_OBJECT
 public:
  // `combo` may be null for a field in a fixed unit, given by `list`'s first item.
  StandardValueLabels(QLineEdit* field, QComboBox* combo, units::UnitList list, eseries::Part part);

  // The field's value in base units, as the program wrote it; 0 when the
  // field is empty or was edited by the user.
  double value() const;

 signals:
  void changed();

 private:
  void update();

  QLineEdit* field_;
  QComboBox* combo_;
  units::UnitList list_;
  eseries::Part part_;
  std::array<QLabel*, 3> labels_{};
};
