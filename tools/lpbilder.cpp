// Draws the schematics of the four crossover networks that the crossover
// form shows, and writes them as JPEG files into the folder given on the
// command line:
//   lpbilder <folder>
// Each network is drawn as rows, one per loudspeaker: the amplifier feeds the
// rows from a bus on the left, series parts sit in the signal line, shunt
// parts between signal and return line, and the returns meet on the right.
#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QString>
#include <QTextStream>
#include <vector>

namespace {

enum class Part { Capacitor, Inductor };
enum class Place { Series, Shunt };

struct Element {
  Part part;
  Place place;
  QString name;
};

struct Row {
  QString speaker;  // TT, MT, HT
  QString role;     // Tiefton, Mittelton, Hochton
  std::vector<Element> elements;
};

struct Network {
  QString file;
  std::vector<Row> rows;  // top to bottom
};

const QColor kWire(20, 20, 20);
const QColor kName(0, 40, 150);
const QColor kSpeaker(150, 20, 20);

constexpr double kWidth = 860;
constexpr double kBusX = 120;      // signal bus fed from the input
constexpr double kSpeakerX = 640;  // all speakers stand in one column
constexpr double kReturnX = 810;   // return bus
constexpr double kPitch = 116;     // distance of the parts in a row
constexpr double kHalf = 30;       // half length of a part's body in the line

class Drawer {
 public:
  explicit Drawer(QPainter& p) : p_(p) {}

  void line(double x1, double y1, double x2, double y2) {
    p_.setPen(wirePen());
    p_.drawLine(QPointF(x1, y1), QPointF(x2, y2));
  }

  void dot(double x, double y) {
    p_.setPen(Qt::NoPen);
    p_.setBrush(kWire);
    p_.drawEllipse(QPointF(x, y), 4.5, 4.5);
    p_.setBrush(Qt::NoBrush);
  }

  void terminal(double x, double y) {
    p_.setPen(wirePen());
    p_.setBrush(Qt::white);
    p_.drawEllipse(QPointF(x, y), 6.5, 6.5);
    p_.setBrush(Qt::NoBrush);
  }

  void text(const QString& s, double x, double y, int px, bool bold, const QColor& c, Qt::Alignment align) {
    QFont f(QStringLiteral("DejaVu Sans"));
    f.setPixelSize(px);
    f.setBold(bold);
    p_.setFont(f);
    p_.setPen(c);
    const QFontMetricsF fm(f);
    const double w = fm.horizontalAdvance(s);
    double left = x;
    if (align & Qt::AlignHCenter) left = x - w / 2;
    if (align & Qt::AlignRight) left = x - w;
    double base = y + (fm.ascent() - fm.descent()) / 2;  // vertically centred on y
    if (align & Qt::AlignBottom) base = y - fm.descent();
    if (align & Qt::AlignTop) base = y + fm.ascent();
    p_.drawText(QPointF(left, base), s);
  }

  // Capacitor lying in a horizontal line, centred on x.
  void seriesCapacitor(double x, double y, const QString& name) {
    line(x - kHalf, y, x - 6, y);
    line(x + 6, y, x + kHalf, y);
    plate(x - 6, y - 19, x - 6, y + 19);
    plate(x + 6, y - 19, x + 6, y + 19);
    text(name, x, y - 25, 26, true, kName, Qt::AlignHCenter | Qt::AlignBottom);
  }

  // Coil lying in a horizontal line: four turns arched upwards.
  void seriesInductor(double x, double y, const QString& name) {
    QPainterPath path(QPointF(x - kHalf, y));
    const double d = 2 * kHalf / 4;
    for (int i = 0; i < 4; ++i) path.arcTo(QRectF(x - kHalf + i * d, y - d / 2 - 1, d, d + 2), 180, -180);
    p_.setPen(wirePen());
    p_.drawPath(path);
    text(name, x, y - 17, 26, true, kName, Qt::AlignHCenter | Qt::AlignBottom);
  }

  // Capacitor standing between the signal line (yTop) and the return line.
  void shuntCapacitor(double x, double yTop, double yBottom, const QString& name) {
    const double m = (yTop + yBottom) / 2;
    line(x, yTop, x, m - 6);
    line(x, m + 6, x, yBottom);
    plate(x - 19, m - 6, x + 19, m - 6);
    plate(x - 19, m + 6, x + 19, m + 6);
    dot(x, yTop);
    text(name, x + 26, m, 26, true, kName, Qt::AlignLeft);
  }

  // Coil standing between the signal line and the return line, turns to the right.
  void shuntInductor(double x, double yTop, double yBottom, const QString& name) {
    const double m = (yTop + yBottom) / 2;
    line(x, yTop, x, m - kHalf);
    line(x, m + kHalf, x, yBottom);
    QPainterPath path(QPointF(x, m - kHalf));
    const double d = 2 * kHalf / 4;
    for (int i = 0; i < 4; ++i) path.arcTo(QRectF(x - d / 2 - 1, m - kHalf + i * d, d + 2, d), 90, -180);
    p_.setPen(wirePen());
    p_.drawPath(path);
    dot(x, yTop);
    text(name, x + 17, m, 26, true, kName, Qt::AlignLeft);
  }

  // Loudspeaker between signal and return line: magnet block and cone.
  void speaker(double x, double yTop, double yBottom, const QString& name, const QString& role) {
    const double m = (yTop + yBottom) / 2;
    line(x, yTop, x, m - 20);
    line(x, m + 20, x, yBottom);
    p_.setPen(QPen(kWire, 2.5, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    p_.setBrush(QColor(235, 235, 235));
    p_.drawRect(QRectF(x - 9, m - 20, 18, 40));
    const QPointF cone[] = {{x + 9, m - 20}, {x + 36, m - 42}, {x + 36, m + 42}, {x + 9, m + 20}};
    p_.setBrush(Qt::white);
    p_.drawPolygon(cone, 4);
    p_.setBrush(Qt::NoBrush);
    text(name, x + 46, m - 13, 30, true, kSpeaker, Qt::AlignLeft);
    text(role, x + 46, m + 17, 18, false, kSpeaker, Qt::AlignLeft);
  }

 private:
  static QPen wirePen() { return QPen(kWire, 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin); }
  void plate(double x1, double y1, double x2, double y2) {
    p_.setPen(QPen(kWire, 5, Qt::SolidLine, Qt::FlatCap));
    p_.drawLine(QPointF(x1, y1), QPointF(x2, y2));
  }
  QPainter& p_;
};

QImage draw(const Network& net) {
  const int rows = int(net.rows.size());
  const double rowHeight = rows == 3 ? 160 : 185;
  const double gapTop = 62;  // room for the first row's part names
  const double signalToReturn = rows == 3 ? 100 : 118;
  const double height = gapTop + (rows - 1) * rowHeight + signalToReturn + 50;

  QImage img(int(kWidth), int(height), QImage::Format_RGB32);
  img.fill(Qt::white);
  QPainter p(&img);
  p.setRenderHint(QPainter::Antialiasing);
  p.setRenderHint(QPainter::TextAntialiasing);
  Drawer d(p);

  size_t most = 0;
  for (const Row& r : net.rows) most = std::max(most, r.elements.size());
  // The parts of all rows start in one column, the longest row centred
  // between the signal bus and the speakers.
  const double first = (kBusX + kSpeakerX - 60) / 2 - (double(most) - 1) * kPitch / 2;

  std::vector<double> signalY, returnY;
  for (int i = 0; i < rows; ++i) {
    signalY.push_back(gapTop + i * rowHeight);
    returnY.push_back(gapTop + i * rowHeight + signalToReturn);
  }
  const double inX = 46;

  // Input terminals and the two buses.
  d.line(inX + 6.5, signalY.front(), kBusX, signalY.front());
  d.line(kBusX, signalY.front(), kBusX, signalY.back());
  d.line(kReturnX, returnY.front(), kReturnX, returnY.back());
  d.line(inX + 6.5, returnY.back(), kReturnX, returnY.back());
  d.terminal(inX, signalY.front());
  d.terminal(inX, returnY.back());
  d.text(QStringLiteral("+"), inX, signalY.front() - 12, 20, true, kWire, Qt::AlignHCenter | Qt::AlignBottom);
  d.text(QString(QChar(0x2212)), inX, returnY.back() + 12, 20, true, kWire, Qt::AlignHCenter | Qt::AlignTop);
  d.text(QStringLiteral("Eingang"), inX - 30, (signalY.front() + returnY.back()) / 2, 18, false, kWire,
         Qt::AlignLeft);

  for (int i = 0; i < rows; ++i) {
    const Row& r = net.rows[size_t(i)];
    const double ys = signalY[size_t(i)];
    const double yr = returnY[size_t(i)];
    const bool last = i == rows - 1;

    // Signal line from the bus to the speaker, broken where series parts sit.
    double from = kBusX;
    double firstShunt = kSpeakerX;
    for (size_t k = 0; k < r.elements.size(); ++k) {
      const double x = first + double(k) * kPitch;
      if (r.elements[k].place == Place::Series) {
        d.line(from, ys, x - kHalf, ys);
        from = x + kHalf;
      } else {
        firstShunt = std::min(firstShunt, x);
      }
    }
    d.line(from, ys, kSpeakerX, ys);
    if (i > 0 && !last) d.dot(kBusX, ys);
    if (i == 0 && rows > 1) d.dot(kBusX, ys);

    // Return line to the return bus (the last row's runs from the input).
    if (!last) {
      d.line(firstShunt, yr, kReturnX, yr);
      if (i > 0) d.dot(kReturnX, yr);
    }

    for (size_t k = 0; k < r.elements.size(); ++k) {
      const Element& e = r.elements[k];
      const double x = first + double(k) * kPitch;
      if (e.place == Place::Series) {
        if (e.part == Part::Capacitor)
          d.seriesCapacitor(x, ys, e.name);
        else
          d.seriesInductor(x, ys, e.name);
      } else {
        if (e.part == Part::Capacitor)
          d.shuntCapacitor(x, ys, yr, e.name);
        else
          d.shuntInductor(x, ys, yr, e.name);
        if (last || x > firstShunt) d.dot(x, yr);
      }
    }
    d.speaker(kSpeakerX, ys, yr, r.speaker, r.role);
    if (last || firstShunt < kSpeakerX) d.dot(kSpeakerX, yr);
  }
  p.end();
  return img;
}

std::vector<Network> networks() {
  const auto C = Part::Capacitor;
  const auto L = Part::Inductor;
  const auto S = Place::Series;
  const auto P = Place::Shunt;
  const Row ht6{"HT", "Hochton", {{C, S, "C"}}};
  const Row tt6{"TT", "Tiefton", {{L, S, "L"}}};
  const Row ht12{"HT", "Hochton", {{C, S, "CH"}, {L, P, "LH"}}};
  const Row tt12{"TT", "Tiefton", {{L, S, "LT"}, {C, P, "CT"}}};
  const Row ht18{"HT", "Hochton", {{C, S, "C1H"}, {L, P, "LH"}, {C, S, "C2H"}}};
  const Row tt18{"TT", "Tiefton", {{L, S, "L1T"}, {C, P, "CT"}, {L, S, "L2T"}}};
  // Three-way: the lower crossover (index 1) between woofer and midrange,
  // the upper one (index 2) between midrange and tweeter.
  const Row ht3{"HT", "Hochton", {{C, S, "C2H"}, {L, P, "L2H"}}};
  const Row mt3{"MT", "Mittelton", {{C, S, "C1M"}, {L, P, "L1M"}, {L, S, "L2M"}, {C, P, "C2M"}}};
  const Row tt3{"TT", "Tiefton", {{L, S, "L1T"}, {C, P, "C1T"}}};
  return {
      {"LP_2Weg_6dB.jpg", {ht6, tt6}},
      {"LP_2Weg_12dB.jpg", {ht12, tt12}},
      {"LP_2Weg_18dB.jpg", {ht18, tt18}},
      {"LP_3Weg_12dB.jpg", {ht3, mt3, tt3}},
  };
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication app(argc, argv);
  QTextStream err(stderr);
  if (argc != 2) {
    err << "usage: lpbilder <folder>\n";
    return 2;
  }
  const QString dir = QString::fromLocal8Bit(argv[1]);
  for (const Network& n : networks()) {
    const QString path = dir + QLatin1Char('/') + n.file;
    if (!draw(n).save(path, "JPG", 92)) {
      err << "cannot write " << path << "\n";
      return 1;
    }
  }
  return 0;
}
