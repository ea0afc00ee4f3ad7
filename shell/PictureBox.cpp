#include "shell/PictureBox.h"

#include <QImage>
#include <QMouseEvent>
#include <QPainter>

PictureBox::PictureBox(const QString& name, QWidget* parent) : QWidget(parent) {
  setObjectName(name);
  setMinimumSize(120, 90);
}

void PictureBox::setPixmap(const QPixmap& pixmap) {
  pixmap_ = pixmap;
  surface_ = nullptr;
  update();
  updateGeometry();
}

void PictureBox::setDrawing(Drawing drawing) {
  drawing_ = std::move(drawing);
  surface_ = nullptr;
  update();
}

void PictureBox::setSurface(const QRectF& scale, SurfaceDrawing drawing, OutputTarget::Fit fit) {
  pixmap_ = QPixmap();
  drawing_ = nullptr;
  surface_ = std::move(drawing);
  scale_ = scale;
  fit_ = fit;
  update();
}

QStringList PictureBox::paintSurface(QPainter& painter, const QRectF& device, double pixel) const {
  if (!surface_) return {};
  painter.save();
  OutputTarget target(painter, device, scale_, fit_, pixel);
  surface_(target);
  painter.restore();
  return target.texts();
}

QStringList PictureBox::texts() const {
  if (!surface_) return {};
  // The texts do not depend on the size; a small image is enough to measure.
  const QSize size = width() > 0 && height() > 0 ? this->size() : sizeHint();
  QImage scratch(size, QImage::Format_ARGB32_Premultiplied);
  QPainter p(&scratch);
  return paintSurface(p, QRectF(QPointF(0, 0), QSizeF(size)));
}

void PictureBox::clear() {
  pixmap_ = QPixmap();
  drawing_ = nullptr;
  surface_ = nullptr;
  update();
}

QSize PictureBox::sizeHint() const {
  if (!pixmap_.isNull()) return pixmap_.size().boundedTo(QSize(480, 360));
  return QSize(200, 160);
}

static void paintInto(QPainter& p, const QRectF& r, const QPixmap& pixmap, const PictureBox::Drawing& drawing,
                      const PictureBox* box) {
  p.setRenderHint(QPainter::Antialiasing);
  p.setRenderHint(QPainter::SmoothPixmapTransform);
  if (!pixmap.isNull()) {
    QSizeF s = pixmap.size();
    s.scale(r.size(), Qt::KeepAspectRatio);
    const QRectF target(r.center().x() - s.width() / 2, r.center().y() - s.height() / 2, s.width(), s.height());
    p.drawPixmap(target, pixmap, pixmap.rect());
  } else if (drawing) {
    drawing(p, r);
  } else if (box->hasSurface()) {
    box->paintSurface(p, r);
  }
}

void PictureBox::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.fillRect(rect(), Qt::white);
  paintInto(p, QRectF(rect()), pixmap_, drawing_, this);
}

QPixmap PictureBox::render(const QSize& size) const {
  QPixmap out(size);
  out.fill(Qt::white);
  QPainter p(&out);
  paintInto(p, QRectF(QPointF(0, 0), QSizeF(size)), pixmap_, drawing_, this);
  return out;
}

void PictureBox::mouseDoubleClickEvent(QMouseEvent* e) {
  e->accept();
  emit doubleClicked();
}
