#include "shell/PrintService.h"

#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QWidget>

#include "shell/PictureBox.h"

namespace printing {
namespace {
Mode g_mode = Mode::System;
QString g_pdf;
std::function<void(const QString&, int)> g_observer;
}  // namespace

void setMode(Mode mode, const QString& pdfFile) {
  g_mode = mode;
  g_pdf = pdfFile;
}

std::unique_ptr<QPrinter> openDefault(QString* error) {
  switch (g_mode) {
    case Mode::None:
      *error = QStringLiteral("Es ist kein Drucker installiert.");
      return nullptr;
    case Mode::Pdf: {
      auto p = std::make_unique<QPrinter>(QPrinter::HighResolution);
      p->setOutputFormat(QPrinter::PdfFormat);
      p->setOutputFileName(g_pdf);
      return p;
    }
    case Mode::System: {
      const QPrinterInfo info = QPrinterInfo::defaultPrinter();
      if (info.isNull()) {
        *error = QStringLiteral("Es ist kein Standarddrucker eingerichtet.");
        return nullptr;
      }
      auto p = std::make_unique<QPrinter>(info, QPrinter::HighResolution);
      if (!p->isValid()) {
        *error = QStringLiteral("Der Drucker ist nicht bereit.");
        return nullptr;
      }
      return p;
    }
  }
  return nullptr;
}

std::unique_ptr<QPrinter> start(QPainter& painter, QString* error) {
  std::unique_ptr<QPrinter> printer = openDefault(error);
  if (printer && !painter.begin(printer.get())) {
    *error = QStringLiteral("Der Druckauftrag konnte nicht begonnen werden.");
    printer.reset();
  }
  return printer;
}

void jobDone(const QString& formName, int pages) {
  if (g_observer) g_observer(formName, pages);
}

void setObserver(std::function<void(const QString&, int)> observer) { g_observer = std::move(observer); }

bool printWidgetImage(QWidget* widget, QString* error) {
  const QPixmap image = widget->grab();
  QPainter painter;
  std::unique_ptr<QPrinter> printer = start(painter, error);
  if (!printer) return false;
  // The form keeps its proportions and is scaled to the page width at most
  // as large as it looks on a 96 dpi screen.
  const QRect page = painter.viewport();
  const double natural = printer->resolution() / 96.0;
  const double fit = std::min(double(page.width()) / image.width(), double(page.height()) / image.height());
  const double scale = std::min(natural, fit);
  painter.drawPixmap(QRectF(0, 0, image.width() * scale, image.height() * scale), image, image.rect());
  painter.end();
  jobDone(widget->objectName(), 1);
  return true;
}

bool printPicture(const PictureBox* picture, const QString& formName, QString* error) {
  QPainter painter;
  std::unique_ptr<QPrinter> printer = start(painter, error);
  if (!printer) return false;
  const QRectF page = painter.viewport();
  QSizeF size = picture->size();
  if (size.width() < 1 || size.height() < 1) size = picture->sizeHint();
  // The picture as it is laid out on screen, enlarged as a whole to the page
  // width (or height, for a tall picture), so text keeps its proportions.
  const double scale = std::min(page.width() / size.width(), page.height() / size.height());
  painter.scale(scale, scale);
  picture->paintSurface(painter, QRectF(QPointF(0, 0), size));
  painter.end();
  jobDone(formName, 1);
  return true;
}

}  // namespace printing
