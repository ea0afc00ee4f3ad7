#pragma once
// The one drawing path of the program's plots, schematics and pages: a
// surface with a user scale that draws on a picture box or a printer page.
// Positions are given in the user scale of the drawing (for example
// (0, 0)-(1000, 700), x to the right, y downwards); line widths and font
// sizes are in screen pixels and points, so text keeps its size whatever
// the scale. Every text drawn is also recorded, in drawing order, so that
// script mode can report what a picture shows.
#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <vector>

class OutputTarget {
 public:
  // How the user scale fills the device rectangle.
  enum class Fit {
    Stretch,  // x and y scaled independently to fill the rectangle
    Keep,     // one scale for both, centred (shapes keep their proportions)
  };

  // `device` is the rectangle on the painter (its logical coordinates) that
  // the user scale `scale` maps to. `pixel` is the size of one screen pixel
  // in device units: 1 on screen, resolution / 96 on a printer page drawn
  // in printer units.
  OutputTarget(QPainter& painter, const QRectF& device, const QRectF& scale, Fit fit = Fit::Stretch,
               double pixel = 1.0);

  // Output position, in user units; Print and PrintRightAligned draw there.
  void SetOutputX(double x) { x_ = x; }
  void SetOutputY(double y) { y_ = y; }
  double CurrentX() const { return x_; }
  double CurrentY() const { return y_; }

  // Draws the text with its top left corner at the output position; the
  // position then moves to the start of the next line (y + text height,
  // x back to `lineStart`).
  void Print(const QString& text);
  // Measures the text, sets the output x to x minus its width and prints it.
  void PrintRightAligned(const QString& text, double x);
  // An empty line.
  void NewLine();
  // Left edge that Print returns to after a line (0 unless set).
  void setLineStart(double x) { lineStart_ = x; }

  // Text placed by an anchor point and an alignment: Qt::AlignLeft,
  // AlignRight or AlignHCenter with AlignTop, AlignBottom or AlignVCenter.
  // The output position is left after the text, as after Print.
  void text(QPointF anchor, const QString& text, int alignment);

  double TextWidth(const QString& text) const;   // user units
  double TextHeight() const;                     // user units, one line

  // Font: family default, size in points, bold or not.
  void setFont(double points, bool bold = false, bool italic = false);
  // Pen for lines and outlines: colour, width in screen pixels, style.
  void setPen(const QColor& color, double width = 1.0, Qt::PenStyle style = Qt::SolidLine);
  void setTextColor(const QColor& color) { textColor_ = color; }

  void line(QPointF a, QPointF b);
  void polyline(const std::vector<QPointF>& points);
  void rect(const QRectF& r, const QColor& fill = Qt::transparent);
  // A circle whose radius is given in user x units (round on screen even
  // when the scale stretches).
  void circle(QPointF centre, double radius, const QColor& fill = Qt::transparent);
  void ellipse(const QRectF& r, const QColor& fill = Qt::transparent);
  void polygon(const std::vector<QPointF>& points, const QColor& fill = Qt::transparent);
  // An arc of the ellipse in r, angles in degrees, counter-clockwise from 3 o'clock.
  void arc(const QRectF& r, double startDeg, double spanDeg);

  // User point to device point and back; user length in x to device units.
  QPointF map(QPointF user) const;
  QRectF map(const QRectF& user) const;
  double mapLengthX(double user) const { return user * sx_; }
  double mapLengthY(double user) const { return user * sy_; }
  const QRectF& scale() const { return scale_; }

  QPainter& painter() { return p_; }
  double pixel() const { return pixel_; }

  // The texts drawn so far, in drawing order.
  const QStringList& texts() const { return texts_; }

 private:
  void applyFont();
  void drawTextAt(QPointF deviceTopLeft, const QString& text);

  QPainter& p_;
  QRectF device_;
  QRectF scale_;
  double sx_ = 1, sy_ = 1;  // device units per user unit
  double ox_ = 0, oy_ = 0;  // device position of the user origin
  double pixel_ = 1;
  double x_ = 0, y_ = 0;
  double lineStart_ = 0;
  QFont font_;
  QColor textColor_ = Qt::black;
  QStringList texts_;
};
