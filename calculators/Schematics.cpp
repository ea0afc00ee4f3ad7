#include "calculators/Schematics.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <algorithm>
#include <cmath>

namespace schematics {
namespace {

const QColor kLine(0, 0, 0);
const QColor kArrow(0x1f, 0x4e, 0x9c);
constexpr double kLineWidth = 2.0;
constexpr double kFontSize = 17.0;

// Body sizes in design units: length along the part's line, width across it.
constexpr double kResistorLength = 56, kResistorWidth = 22;
constexpr double kPlateGap = 10, kPlateWidth = 40;
constexpr double kCoilTurns = 4, kCoilTurnLength = 13;

double bodyLength(Element e) {
  switch (e) {
    case Element::Resistor: return kResistorLength;
    case Element::Capacitor: return kPlateGap;
    case Element::Coil: return kCoilTurns * kCoilTurnLength;
  }
  return 0;
}

double bodyWidth(Element e) {
  switch (e) {
    case Element::Resistor: return kResistorWidth;
    case Element::Capacitor: return kPlateWidth;
    case Element::Coil: return kCoilTurnLength;
  }
  return 0;
}

QFont labelFont() {
  QFont f(QStringLiteral("Sans Serif"));
  f.setStyleHint(QFont::SansSerif);
  f.setPixelSize(int(kFontSize));
  return f;
}

QFont indexFont() {
  QFont f = labelFont();
  f.setPixelSize(int(kFontSize * 0.72));
  return f;
}

}  // namespace

Sketch::Sketch(QPainter& painter, const QRectF& target, const QSizeF& design) : p_(painter) {
  p_.save();
  p_.setRenderHint(QPainter::Antialiasing);
  p_.setRenderHint(QPainter::TextAntialiasing);
  const double scale = std::min(target.width() / design.width(), target.height() / design.height());
  p_.translate(target.center().x() - design.width() * scale / 2, target.center().y() - design.height() * scale / 2);
  p_.scale(scale, scale);
  p_.setPen(QPen(kLine, kLineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  p_.setBrush(Qt::NoBrush);
  p_.setFont(labelFont());
}

Sketch::~Sketch() { p_.restore(); }

void Sketch::wire(std::initializer_list<QPointF> points) {
  if (points.size() < 2) return;
  p_.drawPolyline(std::data(points), int(points.size()));
}

void Sketch::part(Element element, QPointF a, QPointF b, const QString& name, Side side) {
  const QLineF axis(a, b);
  const double length = axis.length();
  if (length <= 0) return;
  const double body = std::min(bodyLength(element), length);
  const QPointF mid = axis.center();
  const QPointF along = (b - a) / length;  // unit vector a -> b
  const QPointF across(-along.y(), along.x());
  const bool vertical = std::abs(along.y()) >= std::abs(along.x());
  // Unit vector towards the name: right or left of a vertical part, above
  // (Side::Left) or below a horizontal one.
  const QPointF towardsName = vertical ? QPointF(side == Side::Right ? 1 : -1, 0)
                                       : QPointF(0, side == Side::Left ? -1 : 1);
  const QPointF bodyStart = mid - along * (body / 2);
  const QPointF bodyEnd = mid + along * (body / 2);
  const double halfWidth = bodyWidth(element) / 2;

  wire({a, bodyStart});
  wire({bodyEnd, b});
  switch (element) {
    case Element::Resistor: {
      const QPolygonF box{bodyStart + across * halfWidth, bodyEnd + across * halfWidth, bodyEnd - across * halfWidth,
                          bodyStart - across * halfWidth, bodyStart + across * halfWidth};
      p_.setBrush(Qt::white);
      p_.drawPolygon(box);
      p_.setBrush(Qt::NoBrush);
      break;
    }
    case Element::Capacitor: {
      QPen plate = p_.pen();
      plate.setWidthF(kLineWidth * 2);
      plate.setCapStyle(Qt::FlatCap);
      p_.save();
      p_.setPen(plate);
      const QPointF o1 = bodyStart - along * (kLineWidth / 2), o2 = bodyEnd + along * (kLineWidth / 2);
      p_.drawLine(o1 - across * halfWidth, o1 + across * halfWidth);
      p_.drawLine(o2 - across * halfWidth, o2 + across * halfWidth);
      p_.restore();
      break;
    }
    case Element::Coil: {
      // Turns as arcs bulging towards the name.
      QPainterPath path(bodyStart);
      const int turns = int(kCoilTurns);
      const double step = body / turns;
      for (int i = 0; i < turns; ++i) {
        const QPointF s = bodyStart + along * (step * i);
        const QPointF e = s + along * step;
        const QPointF bulge = towardsName * (step * 0.66);
        path.cubicTo(s + bulge, e + bulge, e);
      }
      p_.drawPath(path);
      break;
    }
  }

  // The name beside the body; for a horizontal part above (left) or below.
  const double gap = halfWidth + 8;
  nameBeside(mid, gap, vertical, name, side);
}

void Sketch::nameBeside(QPointF mid, double gap, bool vertical, const QString& name, Side side) {
  if (vertical) {
    const double x = side == Side::Right ? mid.x() + gap : mid.x() - gap;
    symbolText(QPointF(x, mid.y()), name, (side == Side::Right ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
  } else {
    const double y = side == Side::Left ? mid.y() - gap : mid.y() + gap;
    symbolText(QPointF(mid.x(), y), name, Qt::AlignHCenter | (side == Side::Left ? Qt::AlignBottom : Qt::AlignTop));
  }
}

void Sketch::terminal(QPointF at) {
  p_.save();
  p_.setBrush(Qt::white);
  p_.drawEllipse(at, 4.5, 4.5);
  p_.restore();
}

void Sketch::node(QPointF at) {
  p_.save();
  p_.setBrush(kLine);
  p_.drawEllipse(at, 3.5, 3.5);
  p_.restore();
}

void Sketch::voltage(QPointF from, QPointF to, const QString& name, Side side) {
  const QLineF line(from, to);
  const double length = line.length();
  if (length <= 0) return;
  const QPointF along = (to - from) / length;
  const QPointF across(-along.y(), along.x());
  const double head = 11, halfHead = 4.5;
  p_.save();
  QPen pen = p_.pen();
  pen.setColor(kArrow);
  pen.setWidthF(kLineWidth * 0.8);
  p_.setPen(pen);
  p_.drawLine(from, to - along * head);
  p_.setBrush(kArrow);
  p_.drawPolygon(QPolygonF{to, to - along * head + across * halfHead, to - along * head - across * halfHead});
  p_.restore();

  const QPointF mid = line.center();
  const double gap = 8;
  const bool vertical = std::abs(along.y()) >= std::abs(along.x());
  p_.save();
  p_.setPen(kArrow);
  nameBeside(mid, gap, vertical, name, side);
  p_.restore();
}

void Sketch::label(QPointF anchor, const QString& text, int alignment) {
  const QFontMetricsF fm(labelFont());
  const QSizeF size(fm.horizontalAdvance(text), fm.ascent() + fm.descent());
  double x = anchor.x();
  if (alignment & Qt::AlignRight) x -= size.width();
  else if (alignment & Qt::AlignHCenter) x -= size.width() / 2;
  double top = anchor.y();
  if (alignment & Qt::AlignBottom) top -= size.height();
  else if (alignment & Qt::AlignVCenter) top -= size.height() / 2;
  p_.save();
  p_.setFont(labelFont());
  p_.drawText(QPointF(x, top + fm.ascent()), text);
  p_.restore();
}

void Sketch::symbolText(QPointF anchor, const QString& text, int alignment) {
  const QString symbol = text.left(1);
  const QString index = text.size() > 1 && text.at(0).isLetter() ? text.mid(1) : QString();
  const QString main = index.isEmpty() ? text : symbol;
  const QFont mainFont = labelFont(), subFont = indexFont();
  const QFontMetricsF fm(mainFont), fs(subFont);
  const double width = fm.horizontalAdvance(main) + (index.isEmpty() ? 0 : fs.horizontalAdvance(index));
  const double height = fm.ascent() + fm.descent();

  double x = anchor.x();
  if (alignment & Qt::AlignRight) x -= width;
  else if (alignment & Qt::AlignHCenter) x -= width / 2;
  double top = anchor.y();
  if (alignment & Qt::AlignBottom) top -= height;
  else if (alignment & Qt::AlignVCenter) top -= height / 2;
  const double baseline = top + fm.ascent();

  p_.save();
  p_.setFont(mainFont);
  p_.drawText(QPointF(x, baseline), main);
  if (!index.isEmpty()) {
    p_.setFont(subFont);
    p_.drawText(QPointF(x + fm.horizontalAdvance(main), baseline + fs.ascent() * 0.35), index);
  }
  p_.restore();
}

void drawDivider(QPainter& painter, const QRectF& target, const Divider& divider) {
  Sketch s(painter, target, QSizeF(240, 262));
  const double inX = 50, column = 130, outX = 205;
  const double top = 30, tap = 131, bottom = 236;
  const QPointF inTop(inX, top), inBottom(inX, bottom), outTop(outX, tap), outBottom(outX, bottom);

  s.wire({inTop, QPointF(column, top)});
  s.part(divider.upper, QPointF(column, top), QPointF(column, tap), divider.upperName);
  s.part(divider.lower, QPointF(column, tap), QPointF(column, bottom), divider.lowerName);
  s.wire({QPointF(column, tap), outTop});
  s.wire({inBottom, outBottom});
  s.node(QPointF(column, tap));
  s.node(QPointF(column, bottom));
  for (QPointF t : {inTop, inBottom, outTop, outBottom}) s.terminal(t);

  s.voltage(QPointF(inX, top + 14), QPointF(inX, bottom - 14), divider.input, Side::Left);
  s.voltage(QPointF(outX, tap + 14), QPointF(outX, bottom - 14), divider.output, Side::Right);
}

void drawVoltageDivider(QPainter& painter, const QRectF& target) { drawDivider(painter, target, Divider{}); }

}  // namespace schematics
