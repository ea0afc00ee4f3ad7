// Draws Quarzel's program icon: the circuit symbol of a quartz crystal over a
// sine wave on a blue tile. One list of shapes gives both the scalable SVG
// and the PNG sizes that the desktop's icon theme and the main window use:
//   quarzelicon <folder>
// writes <folder>/quarzel.svg and <folder>/quarzel-<N>.png for N in 16..256.
#include <QColor>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QString>
#include <QTextStream>
#include <cmath>
#include <vector>

namespace {

// All coordinates on a 256 x 256 grid.
constexpr double kGrid = 256;

const QColor kTileTop(0x2a, 0x6a, 0xa8);
const QColor kTileBottom(0x12, 0x36, 0x5e);
const QColor kMetal(0xf4, 0xf6, 0xf8);
const QColor kQuartz(0xbf, 0xe3, 0xff);
const QColor kWave(0xff, 0xc8, 0x3a);

struct Shape {
  enum Kind { Tile, Line, Box, Wave } kind;
  QPolygonF points;  // Line/Wave: the stroke; Tile/Box: top left and bottom right
  double width;      // stroke width
  QColor stroke;
  QColor fill;
};

QPolygonF sineWave() {
  QPolygonF wave;
  constexpr double x0 = 52, x1 = 204, y = 200, amplitude = 14;
  for (int i = 0; i <= 48; ++i) {
    const double t = i / 48.0;
    wave << QPointF(x0 + t * (x1 - x0), y - amplitude * std::sin(t * 2 * 6.28318530717958));
  }
  return wave;
}

std::vector<Shape> shapes() {
  return {
      {Shape::Tile, {{12, 12}, {244, 244}}, 0, {}, {}},
      // leads to the two electrodes
      {Shape::Line, {{40, 112}, {92, 112}}, 14, kMetal, {}},
      {Shape::Line, {{164, 112}, {216, 112}}, 14, kMetal, {}},
      // electrodes
      {Shape::Line, {{92, 58}, {92, 166}}, 16, kMetal, {}},
      {Shape::Line, {{164, 58}, {164, 166}}, 16, kMetal, {}},
      // the crystal between them
      {Shape::Box, {{110, 48}, {146, 176}}, 8, kMetal, kQuartz},
      {Shape::Wave, sineWave(), 12, kWave, {}},
  };
}

QString num(double v) { return QString::number(v, 'g', 6); }

QString svg() {
  QString s;
  QTextStream out(&s);
  out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"256\" height=\"256\" viewBox=\"0 0 256 256\">\n"
      << "  <defs>\n"
      << "    <linearGradient id=\"tile\" x1=\"0\" y1=\"0\" x2=\"0\" y2=\"1\">\n"
      << "      <stop offset=\"0\" stop-color=\"" << kTileTop.name() << "\"/>\n"
      << "      <stop offset=\"1\" stop-color=\"" << kTileBottom.name() << "\"/>\n"
      << "    </linearGradient>\n"
      << "  </defs>\n";
  for (const Shape& sh : shapes()) {
    const QPointF a = sh.points.first(), b = sh.points.last();
    switch (sh.kind) {
      case Shape::Tile:
        out << "  <rect x=\"" << num(a.x()) << "\" y=\"" << num(a.y()) << "\" width=\"" << num(b.x() - a.x())
            << "\" height=\"" << num(b.y() - a.y()) << "\" rx=\"44\" fill=\"url(#tile)\"/>\n";
        break;
      case Shape::Box:
        out << "  <rect x=\"" << num(a.x()) << "\" y=\"" << num(a.y()) << "\" width=\"" << num(b.x() - a.x())
            << "\" height=\"" << num(b.y() - a.y()) << "\" fill=\"" << sh.fill.name() << "\" stroke=\""
            << sh.stroke.name() << "\" stroke-width=\"" << num(sh.width) << "\" stroke-linejoin=\"round\"/>\n";
        break;
      case Shape::Line:
      case Shape::Wave: {
        out << "  <polyline fill=\"none\" stroke=\"" << sh.stroke.name() << "\" stroke-width=\"" << num(sh.width)
            << "\" stroke-linecap=\"round\" stroke-linejoin=\"round\" points=\"";
        for (int i = 0; i < sh.points.size(); ++i)
          out << (i ? " " : "") << num(sh.points[i].x()) << "," << num(sh.points[i].y());
        out << "\"/>\n";
        break;
      }
    }
  }
  out << "</svg>\n";
  return s;
}

QImage png(int size) {
  QImage img(size, size, QImage::Format_ARGB32_Premultiplied);
  img.fill(Qt::transparent);
  QPainter p(&img);
  p.setRenderHint(QPainter::Antialiasing);
  p.scale(size / kGrid, size / kGrid);
  for (const Shape& sh : shapes()) {
    const QPointF a = sh.points.first(), b = sh.points.last();
    switch (sh.kind) {
      case Shape::Tile: {
        QLinearGradient g(0, a.y(), 0, b.y());
        g.setColorAt(0, kTileTop);
        g.setColorAt(1, kTileBottom);
        p.setPen(Qt::NoPen);
        p.setBrush(g);
        p.drawRoundedRect(QRectF(a, b), 44, 44);
        break;
      }
      case Shape::Box:
        p.setPen(QPen(sh.stroke, sh.width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.setBrush(sh.fill);
        p.drawRect(QRectF(a, b));
        break;
      case Shape::Line:
      case Shape::Wave:
        p.setPen(QPen(sh.stroke, sh.width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.setBrush(Qt::NoBrush);
        p.drawPolyline(sh.points);
        break;
    }
  }
  p.end();
  return img;
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication app(argc, argv);
  QTextStream err(stderr);
  if (argc != 2) {
    err << "usage: quarzelicon <folder>\n";
    return 2;
  }
  const QString dir = QString::fromLocal8Bit(argv[1]);
  QFile f(dir + QStringLiteral("/quarzel.svg"));
  if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate) || f.write(svg().toUtf8()) < 0) {
    err << "cannot write " << f.fileName() << "\n";
    return 1;
  }
  f.close();
  for (int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
    const QString path = dir + QStringLiteral("/quarzel-%1.png").arg(size);
    if (!png(size).save(path, "PNG")) {
      err << "cannot write " << path << "\n";
      return 1;
    }
  }
  return 0;
}
