#pragma once
// Frequency-response plots: the window that draws a bode::Plot, and the
// button "Frequenz&gang" with which a form opens it.
//
// A form adds the plot in three places:
//   constructor:        frequenzgang_ = new FrequencyResponse(this, buttonColumn());
//   successful press:   frequenzgang_->setPlot(bode::rcFilter(r, c));   // or rlFilter, rlcImpedance, ...
//   "&Neu":             frequenzgang_->reset();
// The button is enabled from the first plot on; an open window follows
// every later plot and closes with the form.
#include <QObject>
#include <QPointer>

#include "shell/PlotWindow.h"
#include "shell/core/Bode.h"

class CalcForm;
class OutputTarget;
class QBoxLayout;
class QPushButton;

class ResponsePlot : public PlotWindow {
  Q_OBJECT
 public:
  // `phase`: the plot has a phase panel below the level and needs more height.
  ResponsePlot(const QString& name, const QString& title, bool phase);

  void setPlot(const bode::Plot& plot);

  // The plot in the user scale (0, 0)-(1000, 700).
  static void zeichne(OutputTarget& t, const bode::Plot& plot);
};

class FrequencyResponse : public QObject {
  Q_OBJECT
 public:
  // Puts the button (object name `cmdFrequenzgang`, an addition to the
  // form) into the form's button column, before the stretch that closes it.
  FrequencyResponse(CalcForm* form, QBoxLayout* column, const QString& caption = QStringLiteral("Frequenz&gang"));

  // The plot of the last successful press: enables the button and redraws
  // an open window. An empty plot (values that cannot be plotted) does what
  // reset() does.
  void setPlot(bode::Plot plot);
  // No valid computation: the button disabled, the window closed.
  void reset();

  QPushButton* button() const { return button_; }
  ResponsePlot* window() const { return window_; }
  const bode::Plot& plot() const { return plot_; }

  // Opens the window (the button's click).
  void open();

 private:
  QString title() const;

  CalcForm* form_;
  QPushButton* button_;
  QPointer<ResponsePlot> window_;
  bode::Plot plot_;
};
