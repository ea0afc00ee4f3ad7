#pragma once
// A picture control: shows either a loaded image or a drawing the program
// makes itself (painted at whatever size the control has, so it stays crisp).
#include <QPixmap>
#include <QWidget>
#include <functional>

class PictureBox : public QWidget {
  Q_OBJECT
 public:
  using Drawing = std::function<void(QPainter&, const QRectF&)>;
  explicit PictureBox(const QString& name, QWidget* parent = nullptr);

  void setPixmap(const QPixmap& pixmap);  // a null pixmap empties the box
  void setDrawing(Drawing drawing);
  void clear();
  bool isEmpty() const { return pixmap_.isNull() && !drawing_; }
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
};
