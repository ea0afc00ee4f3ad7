#include "shell/PictureBox.h"

#include <QMouseEvent>
#include <QPainter>

PictureBox::PictureBox(const QString& name, QWidget* parent) : QWidget(parent) {
  setObjectName(name);
  setMinimumSize(120, 90);
}

void PictureBox::setPixmap(const QPixmap& pixmap) {
  pixmap_ = pixmap;
  update();
  updateGeometry();
}

void PictureBox::setDrawing(Drawing drawing) {
  drawing_ = std::move(drawing);
  update();
}

void PictureBox::clear() {
  pixmap_ = QPixmap();
  drawing_ = nullptr;
  update();
}

QSize PictureBox::sizeHint() const {
  if (!pixmap_.isNull()) return pixmap_.size().boundedTo(QSize(480, 360));
  return QSize(200, 160);
}

static void paintInto(QPainter& p, const QRectF& r, const QPixmap& pixmap, const PictureBox::Drawing& drawing) {
  p.setRenderHint(QPainter::Antialiasing);
  p.setRenderHint(QPainter::SmoothPixmapTransform);
  if (!pixmap.isNull()) {
    QSizeF s = pixmap.size();
    s.scale(r.size(), Qt::KeepAspectRatio);
    const QRectF target(r.center().x() - s.width() / 2, r.center().y() - s.height() / 2, s.width(), s.height());
    p.drawPixmap(target, pixmap, pixmap.rect());
  } else if (drawing) {
    drawing(p, r);
  }
}

void PictureBox::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.fillRect(rect(), Qt::white);
  paintInto(p, QRectF(rect()), pixmap_, drawing_);
}

QPixmap PictureBox::render(const QSize& size) const {
  QPixmap out(size);
  out.fill(Qt::white);
  QPainter p(&out);
  paintInto(p, QRectF(QPointF(0, 0), QSizeF(size)), pixmap_, drawing_);
  return out;
}

void PictureBox::mouseDoubleClickEvent(QMouseEvent* e) {
  e->accept();
  emit doubleClicked();
}
