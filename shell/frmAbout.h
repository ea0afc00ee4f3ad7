#pragma once
// The small text window of the program: the info box (version), the short
// help and the literature list, and the crossover form's hint text.
#include <QWidget>

class QLabel;
class QPlainTextEdit;
class QPushButton;

class frmAbout : public QWidget {
  Q_OBJECT
 public:
  static frmAbout* info();
  static frmAbout* help();
  static frmAbout* literature();
  // A text window with the given caption and text (lines joined with NL).
  static frmAbout* text(const QString& caption, const QString& text);
  // A new text window shown in the main window, as a form's hint button opens
  // it; nullptr without a main window.
  static frmAbout* showText(const QString& caption, const QString& text);

  static QString helpText();
  static QString literatureText();

 private:
  explicit frmAbout(const QString& caption);
  QLabel* version_;
  QPlainTextEdit* text_;
  QPushButton* ok_;
};
