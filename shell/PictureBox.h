#pragma once
// A picture control: shows either a loaded image or a drawing the program
// makes itself (painted at whatever size the control has, so it stays crisp).
// A drawing on an OutputTarget surface also tells which texts it shows.
#include <QPixmap>
#include <QStringList>
#include <QWidget>
#include <functional>

#include "shell/OutputTarget.h"

class PictureBox : public QWidget {
  Q_OBJECT
 public:
  using Drawing = std::function<void(QPainter&, const QRectF&)>;
  explicit PictureBox(const QString& name, QWidget* parent = nullptr);

  void setPixmap(const QPixmap& pixmap);  // a null pixmap empties the box
  void setDrawing(Drawing drawing);
  // A drawing in the user scale `scale` (see OutputTarget), redrawn at every
  // size the box takes.
  using SurfaceDrawing = std::function<void(OutputTarget&)>;
  void setSurface(const QRectF& scale, SurfaceDrawing drawing, OutputTarget::Fit fit = OutputTarget::Fit::Stretch);
  bool hasSurface() const { return bool(surface_); }
  // A box that shows surface drawings reports its texts even while empty.
  void setSurfacePicture(bool on) { surfacePicture_ = on; }
  bool isSurfacePicture() const { return surfacePicture_ || surface_; }
  // Draws the surface drawing into `device` on the painter; returns its texts.
  QStringList paintSurface(QPainter& painter, const QRectF& device, double pixel = 1.0) const;
  // The texts of the current surface drawing, in drawing order.
  QStringList texts() const;
  void clear();
  bool isEmpty() const { return pixmap_.isNull() && !drawing_ && !surface_; }
  const QPixmap& pixmap() const { return pixmap_; }
  const Drawing& drawing() const { return drawing_; }

  // The picture rendered at the given size (for enlarging it elsewhere).
  QPixmap render(const QSize& size) const;
  QSize sizeHint() const override;

 signals:
  void doubleClicked();

 protected:
  void paintEvent(QPaintEvent*) override;
  void mouseDoubleClickEvent(QMouseEvent*) override;

 private:
  QPixmap pixmap_;
  Drawing drawing_;
  SurfaceDrawing surface_;
  QRectF scale_;
  OutputTarget::Fit fit_ = OutputTarget::Fit::Stretch;
  bool surfacePicture_ = false;
};
