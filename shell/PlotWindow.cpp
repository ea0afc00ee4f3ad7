#include "shell/PlotWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "shell/DialogService.h"
#include "shell/MDIForm1.h"
#include "shell/PictureBox.h"
#include "shell/PrintService.h"
#include "shell/core/Module1.h"

PlotWindow::PlotWindow(const QString& name, const QString& title, QSize least) {
  setObjectName(name);
  setWindowTitle(title);
  setWindowIcon(QApplication::windowIcon());

  picture1_ = new PictureBox("Picture1", this);
  picture1_->setSurfacePicture(true);
  picture1_->setMinimumSize(least);

  auto* command1 = new QPushButton(QStringLiteral("&Drucken"), this);
  command1->setObjectName("Command1");
  auto* command2 = new QPushButton(QStringLiteral("&Schliessen"), this);
  command2->setObjectName("Command2");
  for (QPushButton* b : {command1, command2}) b->setAutoDefault(false);
  connect(command1, &QPushButton::clicked, this, [this] { drucken(); });
  connect(command2, &QPushButton::clicked, this, [this] { schliessen(); });

  auto* knoepfe = new QHBoxLayout;
  knoepfe->addStretch(1);
  knoepfe->addWidget(command1);
  knoepfe->addWidget(command2);
  auto* spalte = new QVBoxLayout(this);
  spalte->addWidget(picture1_, 1);
  spalte->addLayout(knoepfe);
}

void PlotWindow::zeigenUnter(QWidget* form, QSize wunsch) {
  MDIForm1* main = mainWindow();
  if (!main) {
    show();
    return;
  }
  main->showChild(this);
  if (platziert_) return;
  platziert_ = true;
  QWidget* sub = parentWidget();
  const QSize room = main->mdiArea()->viewport()->size();
  const QSize frame = sub->size() - size();
  const QSize least = minimumSizeHint();
  QSize want = wunsch.boundedTo(room - frame).expandedTo(least);
  if (auto* own = form ? qobject_cast<QMdiSubWindow*>(form->parentWidget()) : nullptr) {
    const int below = room.height() - own->geometry().bottom() - 1 - frame.height();
    if (below >= least.height()) {
      want.setHeight(std::min(want.height(), below));
      sub->move(own->x(), own->geometry().bottom() + 1);
    }
  }
  sub->resize(want + frame);
  // Wherever the main window put it, all of it in view.
  const int x = std::max(0, std::min(sub->x(), room.width() - sub->width()));
  const int y = std::max(0, std::min(sub->y(), room.height() - sub->height()));
  sub->move(x, y);
}

void PlotWindow::drucken() {
  QString fehler;
  if (!printing::printPicture(picture1_, objectName(), &fehler))
    dialogs::msgBox(fehler + Module1::NL + QStringLiteral("Das Formular kann nicht gedruckt werden."));
  QApplication::processEvents();
}

void PlotWindow::schliessen() {
  if (auto* sub = qobject_cast<QMdiSubWindow*>(parentWidget()))
    sub->close();
  else
    close();
}

void PlotWindow::closeEvent(QCloseEvent* event) {
  event->accept();
  if (!entladen_) {
    entladen_ = true;
    emit unloaded();
  }
}
