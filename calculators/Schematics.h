#pragma once
// Schematic drawings that the program paints itself, so they stay crisp at
// any size: a picture box calls them with its own rectangle, the main window
// with its whole background. A drawing is laid out in a design space of its
// own (units of about a pixel at natural size) and scaled uniformly into the
// target, centred, keeping its proportions.
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <initializer_list>

class QPainter;

namespace schematics {

enum class Element { Resistor, Capacitor, Coil };

// Which side of a vertical part or arrow its name is written on.
enum class Side { Left, Right };

// A painter set up for one drawing: design coordinates, line pen and label
// font. The painter's state is restored when the sketch ends.
class Sketch {
 public:
  Sketch(QPainter& painter, const QRectF& target, const QSizeF& design);
  ~Sketch();
  Sketch(const Sketch&) = delete;
  Sketch& operator=(const Sketch&) = delete;

  // A connection through the given corners.
  void wire(std::initializer_list<QPointF> points);
  // A part between a and b (a vertical or horizontal line): leads to a body
  // centred between them, its name beside it (right of / above the body).
  void part(Element element, QPointF a, QPointF b, const QString& name, Side side = Side::Right);
  void resistor(QPointF a, QPointF b, const QString& name, Side side = Side::Right) {
    part(Element::Resistor, a, b, name, side);
  }
  void capacitor(QPointF a, QPointF b, const QString& name, Side side = Side::Right) {
    part(Element::Capacitor, a, b, name, side);
  }
  void coil(QPointF a, QPointF b, const QString& name, Side side = Side::Right) {
    part(Element::Coil, a, b, name, side);
  }
  void terminal(QPointF at);  // open connection circle
  void node(QPointF at);      // joint of wires
  // A voltage arrow from `from` to `to` (the arrow head at `to`) with its
  // name beside its middle.
  void voltage(QPointF from, QPointF to, const QString& name, Side side);
  // Plain text with its anchor point at the given alignment (e.g.
  // Qt::AlignLeft | Qt::AlignVCenter: the anchor is the middle of the text's
  // left edge).
  void label(QPointF anchor, const QString& text, int alignment);
  // A symbol name, placed like a label: a letter followed by more characters
  // is written with an index, "R1" as R with a lowered 1, "Ue" as U with a
  // lowered e.
  void symbolText(QPointF anchor, const QString& text, int alignment);

 private:
  // A name beside the middle of a vertical or horizontal element, `gap` away.
  void nameBeside(QPointF mid, double gap, bool vertical, const QString& name, Side side);
  QPainter& p_;
};

// A two-part divider, upper part over lower part: input voltage across both,
// output voltage across the lower one, taken at the tap on the right.
struct Divider {
  Element upper = Element::Resistor;
  QString upperName = "R1";
  Element lower = Element::Resistor;
  QString lowerName = "R2";
  QString input = "Ue";
  QString output = "Ua";
};
void drawDivider(QPainter& painter, const QRectF& target, const Divider& divider);

// The resistive voltage divider: R1 over R2, Ue across both, Ua across R2.
void drawVoltageDivider(QPainter& painter, const QRectF& target);

}  // namespace schematics
