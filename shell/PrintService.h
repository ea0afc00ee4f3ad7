#pragma once
// Where print jobs go: the system's default printer, a PDF file (script mode
// and tests), or nowhere (no printer, so printing fails as it would on a
// machine without one).
#include <QString>
#include <functional>
#include <memory>

class QPainter;
class QPrinter;
class QWidget;
class PictureBox;

namespace printing {

enum class Mode { System, Pdf, None };
void setMode(Mode mode, const QString& pdfFile = QString());

// Opens the default printer for one job. On failure returns nullptr and a
// description of the error.
std::unique_ptr<QPrinter> openDefault(QString* error);

// Opens the default printer and begins painting on it. On failure the
// painter is not active and the error text says why.
std::unique_ptr<QPrinter> start(QPainter& painter, QString* error);

// Reports a finished job (script mode prints it).
void jobDone(const QString& formName, int pages);
void setObserver(std::function<void(const QString& form, int pages)> observer);

// Prints the widget's image as one page. Returns false with an error text.
bool printWidgetImage(QWidget* widget, QString* error);

// Prints a picture box's surface drawing as one page, drawn afresh (not as a
// bitmap) at the box's proportions and scaled to the printable page width.
// `formName` names the job. Returns false with an error text.
bool printPicture(const PictureBox* picture, const QString& formName, QString* error);

}  // namespace printing
