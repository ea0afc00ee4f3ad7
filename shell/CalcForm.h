#pragma once
// The frame every calculator form shares: labelled number fields with
// unit-prefix combos, the buttons "&Berechnung", "&Neu", "&Drucken" and
// "&Schliessen", the identification line that shows only on the printout,
// the key filter of the fields, and the empty-field rule of the simple
// calculators. A form states its controls, patterns and formulas and
// overrides what it does differently.
#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QString>
#include <QWidget>
#include <functional>
#include <map>
#include <utility>
#include <vector>

#include "shell/core/StandardValues.h"
#include "shell/core/UnitPrefix.h"

class QKeyEvent;
class QLabel;
class QPushButton;
class QVBoxLayout;
class QMdiSubWindow;

class CalcForm : public QWidget {
  Q_OBJECT
 public:
  CalcForm(const QString& name, const QString& caption, QWidget* parent = nullptr);

  QString caption() const { return windowTitle(); }
  void setCaption(const QString& caption) { setWindowTitle(caption); }
  QString tag() const { return tag_; }
  void setTag(const QString& tag) { tag_ = tag; }

  // Handlers, as the main window and script mode invoke them.
  virtual void activated();      // the form became the active child window
  virtual void compute() = 0;    // Command1
  virtual void clearFields();    // Command2: every text field emptied
  virtual void printForm();      // Command3
  void closeForm();              // Command4

  // The first control in the form's Tab order that takes input (not a push
  // button), or nullptr: it has the focus when the form opens and after "&Neu".
  static QWidget* firstInput(QWidget* form);

  // Text fields whose keys pass the frame's key filter.
  static bool keyPasses(QChar c);
  // A key that changes a field's text, as opposed to one that moves the
  // focus or the cursor.
  static bool editsText(const QKeyEvent* key);

 signals:
  void unloaded();

 protected:
  // Building blocks, each control named from the program's vocabulary.
  QLineEdit* makeField(const QString& name, bool keyFilter = true);
  QComboBox* makeUnitCombo(const QString& name, const units::UnitList& list, int start);
  // Fills a unit combo anew with a list (a form that learns its units late).
  void fillUnitCombo(QComboBox* combo, const units::UnitList& list, int start);
  QLabel* makeLabel(const QString& name, const QString& caption, QWidget* buddy = nullptr);
  QPushButton* makeButton(const QString& name, const QString& caption);
  // The nearest standard values shown beside a field that the form fills
  // with a resistance, capacitance or inductance (call once the field and
  // its combo stand in their grid row).
  void showStandardValues(QLineEdit* field, QComboBox* combo, eseries::Part part);
  // One row of the standard grid: label, field and (optionally) combo.
  void addRow(QLabel* label, QLineEdit* field, QComboBox* combo = nullptr);
  QGridLayout* grid() const { return grid_; }
  QVBoxLayout* buttonColumn() const { return buttons_; }
  QLabel* labelText() const { return labelText_; }

  // Field value: the text through ParseNumber times the factor of its combo.
  double read(const QLineEdit* field, const QComboBox* combo = nullptr) const;
  const units::UnitList& unitsOf(const QComboBox* combo) const;

  // Places a value in its unit, selects the unit in the combo and writes the
  // scaled value with the pattern. A value whose arithmetic failed, or that
  // no unit takes, leaves field and combo as they are; returns false then.
  bool writeResult(QLineEdit* field, QComboBox* combo, const units::Placement& rule, double value,
                   const QString& pattern);
  // Writes a plain number (no unit) with a pattern; skipped if not finite.
  bool writeNumber(QLineEdit* field, double value, const QString& pattern);

  // The empty-field rule of the simple calculators: at least `needed` fields
  // above 0, the first exactly empty field in slot order is the unknown.
  // True when the unknown was computed and written.
  struct Slot {
    QLineEdit* field;
    QComboBox* combo;  // may be null: a plain number
    units::Placement rule;
    QString pattern;
  };
  using Solver = std::function<double(int unknown, const std::vector<double>& values)>;
  bool computeEmptyField(const std::vector<Slot>& fieldSlots, const Solver& solve, int needed = 2);

  // Controls hidden while the form is printed (the buttons by default).
  virtual QList<QWidget*> hiddenWhilePrinting() const;

  // Key released in a field whose press went to the same field and that
  // edits text (characters, Backspace, Delete, paste); focus leaving a field.
  virtual void keyReleased(QLineEdit*, int /*key*/) {}
  virtual void focusLeft(QWidget*) {}

  // The MDI sub-window holding this form, if any.
  QMdiSubWindow* subWindow() const;

  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  QString tag_;
  QLabel* labelText_;
  QGridLayout* grid_;
  QVBoxLayout* buttons_;
  std::map<const QComboBox*, units::UnitList> units_;
  std::vector<QLineEdit*> filtered_;
  // Editing keys pressed in a field and not yet released there.
  std::vector<std::pair<const QLineEdit*, int>> editKeys_;
  bool printing_ = false;
  bool unloadedOnce_ = false;
  bool tabOrderSet_ = false;
};

// Messages of the empty-field rule, shared by every calculator.
namespace frame {
inline const char* const kTwoValues = "Bitte zwei Werte eingeben!";
inline const char* const kThreeValues = "Bitte min. drei Werte eingeben!";
inline const char* const kMustBeEmpty = "Das zu berechnende Feld muß leer sein!";
}  // namespace frame
