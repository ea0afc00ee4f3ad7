#include "shell/OutputTarget.h"

#include <QFontMetricsF>
#include <QPolygonF>
#include <algorithm>
#include <cmath>

OutputTarget::OutputTarget(QPainter& painter, const QRectF& device, const QRectF& scale, Fit fit, double pixel)
    : p_(painter), device_(device), scale_(scale), pixel_(pixel > 0 ? pixel : 1.0) {
  const double uw = scale.width() != 0 ? scale.width() : 1.0;
  const double uh = scale.height() != 0 ? scale.height() : 1.0;
  sx_ = device.width() / uw;
  sy_ = device.height() / uh;
  ox_ = device.left();
  oy_ = device.top();
  if (fit == Fit::Keep) {
    const double s = std::min(std::fabs(sx_), std::fabs(sy_));
    sx_ = std::copysign(s, sx_);
    sy_ = std::copysign(s, sy_);
    ox_ = device.center().x() - uw * sx_ / 2;
    oy_ = device.center().y() - uh * sy_ / 2;
  }
  if (!std::isfinite(sx_) || sx_ == 0) sx_ = 1;
  if (!std::isfinite(sy_) || sy_ == 0) sy_ = 1;
  x_ = scale.left();
  y_ = scale.top();
  lineStart_ = scale.left();
  font_ = p_.font();
  setFont(9);
  setPen(Qt::black);
  p_.setRenderHint(QPainter::Antialiasing);
  p_.setRenderHint(QPainter::TextAntialiasing);
}

QPointF OutputTarget::map(QPointF u) const {
  return {ox_ + (u.x() - scale_.left()) * sx_, oy_ + (u.y() - scale_.top()) * sy_};
}

QRectF OutputTarget::map(const QRectF& u) const { return QRectF(map(u.topLeft()), map(u.bottomRight())).normalized(); }

void OutputTarget::setFont(double points, bool bold, bool italic) {
  // Pixel sizes keep the text the same on screen and on paper, whatever
  // resolution the device reports.
  font_.setPixelSize(std::max(1, int(std::lround(points * 96.0 / 72.0 * pixel_))));
  font_.setBold(bold);
  font_.setItalic(italic);
  applyFont();
}

void OutputTarget::applyFont() { p_.setFont(font_); }

void OutputTarget::setPen(const QColor& color, double width, Qt::PenStyle style) {
  QPen pen(color, width * pixel_, style, Qt::FlatCap, Qt::MiterJoin);
  if (style == Qt::DotLine) pen.setCapStyle(Qt::RoundCap);
  p_.setPen(pen);
}

double OutputTarget::TextWidth(const QString& text) const {
  return QFontMetricsF(font_).horizontalAdvance(text) / std::fabs(sx_);
}

double OutputTarget::TextHeight() const { return QFontMetricsF(font_).height() / std::fabs(sy_); }

void OutputTarget::drawTextAt(QPointF topLeft, const QString& text) {
  texts_ << text;
  const QPen pen = p_.pen();
  p_.setPen(textColor_);
  const QFontMetricsF fm(font_);
  p_.drawText(QPointF(topLeft.x(), topLeft.y() + fm.ascent()), text);
  p_.setPen(pen);
}

void OutputTarget::Print(const QString& text) {
  drawTextAt(map(QPointF(x_, y_)), text);
  x_ = lineStart_;
  y_ += TextHeight();
}

void OutputTarget::PrintRightAligned(const QString& text, double x) {
  SetOutputX(x - TextWidth(text));
  Print(text);
}

void OutputTarget::NewLine() {
  x_ = lineStart_;
  y_ += TextHeight();
}

void OutputTarget::text(QPointF anchor, const QString& text, int alignment) {
  const double w = TextWidth(text), h = TextHeight();
  double x = anchor.x(), y = anchor.y();
  if (alignment & Qt::AlignRight)
    x -= w;
  else if (alignment & Qt::AlignHCenter)
    x -= w / 2;
  if (alignment & Qt::AlignBottom)
    y -= h;
  else if (alignment & Qt::AlignVCenter)
    y -= h / 2;
  x_ = x;
  y_ = y;
  Print(text);
}

void OutputTarget::line(QPointF a, QPointF b) { p_.drawLine(map(a), map(b)); }

void OutputTarget::polyline(const std::vector<QPointF>& points) {
  QPolygonF poly;
  poly.reserve(qsizetype(points.size()));
  for (const QPointF& u : points) poly << map(u);
  p_.drawPolyline(poly);
}

void OutputTarget::rect(const QRectF& r, const QColor& fill) {
  const QBrush old = p_.brush();
  p_.setBrush(fill.alpha() ? QBrush(fill) : Qt::NoBrush);
  p_.drawRect(map(r));
  p_.setBrush(old);
}

void OutputTarget::circle(QPointF centre, double radius, const QColor& fill) {
  const QBrush old = p_.brush();
  p_.setBrush(fill.alpha() ? QBrush(fill) : Qt::NoBrush);
  const double r = std::fabs(radius * sx_);
  p_.drawEllipse(map(centre), r, r);
  p_.setBrush(old);
}

void OutputTarget::ellipse(const QRectF& r, const QColor& fill) {
  const QBrush old = p_.brush();
  p_.setBrush(fill.alpha() ? QBrush(fill) : Qt::NoBrush);
  p_.drawEllipse(map(r));
  p_.setBrush(old);
}

void OutputTarget::polygon(const std::vector<QPointF>& points, const QColor& fill) {
  const QBrush old = p_.brush();
  p_.setBrush(fill.alpha() ? QBrush(fill) : Qt::NoBrush);
  QPolygonF poly;
  for (const QPointF& u : points) poly << map(u);
  p_.drawPolygon(poly);
  p_.setBrush(old);
}

void OutputTarget::arc(const QRectF& r, double startDeg, double spanDeg) {
  p_.drawArc(map(r), int(std::lround(startDeg * 16)), int(std::lround(spanDeg * 16)));
}
