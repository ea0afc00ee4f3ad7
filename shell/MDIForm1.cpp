#include "shell/MDIForm1.h"

#include <algorithm>

#include <QAction>
#include <QApplication>
#include <QAbstractButton>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPainter>
#include <QProxyStyle>
#include <QProcess>
#include <QScreen>
#include <QStandardPaths>

#include "shell/CalcForm.h"
#include "shell/DialogService.h"
#include "shell/FormRegistry.h"
#include "shell/FormText.h"
#include "shell/frmAbout.h"
#include "shell/core/InstanceLock.h"
#include "shell/core/Module1.h"

namespace {

MDIForm1* g_main = nullptr;

// Design size of the main window in twips (1/1440 inch).
constexpr int kDesignWidthTwips = 4800;
constexpr int kHeightMarginTwips = 400;

// One line of the menu table: the item's name, caption, shortcut and the
// form it shows (empty for sub-menus, separators and own handlers).
struct MenuItem {
  int depth;
  const char* name;
  const char* caption;  // "-" for a separator
  const char* shortcut;
  const char* form;
};

const MenuItem kMenu[] = {
    {0, "mnuDat", "&Datei", "", ""},
    {1, "mnuEnd", "&Beenden", "Ctrl+B", ""},
    {0, "mnuBer", "&Berechnungen", "", ""},
    {1, "mnuOhm", "&Ohmsches Gesetz", "Ctrl+O", "Ohm"},
    {1, "mnuDrahtR", "&Leiter-Widerstand", "", "DrahtR"},
    {1, "mnuLeistung", "L&eistung", "Ctrl+L", "Watt"},
    {1, "mnuTrenn1", "-", "", ""},
    {1, "mnuTeiler", "&Spannungsteiler", "", ""},
    {2, "mnuUTeiler", "&Ohmscher", "", "UTeiler"},
    {2, "mnuCTeiler", "&Kapazitiver", "", "CTeiler"},
    {2, "mnuL2Teiler", "&Induktiver", "", "L2Teiler"},
    {1, "mnuTrenn2", "-", "", ""},
    {1, "mnuBlind", "&Blindwiderstand", "", ""},
    {2, "mnuBlindXC", "&Kondensator", "", "XC"},
    {2, "mnuBlindXL", "&Spule", "", "XL"},
    {1, "mnuTrenn7", "-", "", ""},
    {1, "mnuParR", "&Parallelschaltung von R", "", "ReihenS_RC"},
    {1, "mnuReihC", "&Reihenschaltung von C", "", "ReihenS_RC"},
    {1, "mnuParL", "Parallelschaltung von L", "", "ReihenS_RC"},
    {1, "mnuTrenn3", "-", "", ""},
    {1, "mnuRC", "R&C-Glied", "", "RC"},
    {1, "mnuRL", "RL-&Glied", "", "RL"},
    {1, "mnuRLC", "RLC-Gli&ed", "", "RLC"},
    {1, "mnuTrenn4", "-", "", ""},
    {1, "mnuSchwKr", "Schwing&kreis", "", ""},
    {2, "mnuSchwingkreis", "F / L / C berechnen", "Ctrl+S", "Schwingk"},
    {2, "mnuSchwingkreisGüte", "Güte / Bandbreite / Rp berechnen", "", "QLCR"},
    {1, "mnuSp", "Sp&ule", "", ""},
    {2, "mnuKernSpule", "&mit Kern", "", "SpuleKern"},
    {2, "mnuLuftSpule", "&Luftspule", "", "SpuleLuft"},
    {1, "mnuSuperhet", "Superhet Schwingkreise", "", "Superhet"},
    {1, "mnuTrenn5", "-", "", ""},
    {1, "mnudB", "&db Rechner", "Ctrl+D", "dB"},
    {1, "mnuTrenn6", "-", "", ""},
    {1, "mnuTransistor", "&Transistor-A-Verstärker", "Ctrl+T", "frmTrans1"},
    {1, "mnuTrenn8", "-", "", ""},
    {1, "LPBox", "Lautsprecher-Boxen", "", ""},
    {2, "LPFrequenzw", "Frequenzweichen", "", ""},
    {3, "LP_2Weg", "Zwei-Wegebox", "", ""},
    {4, "LP_2Weg_6dB", "6 dB/Oktave", "", "LP_Box"},
    {4, "LP_2Weg_12dB", "12 dB/Oktave", "", "LP_Box"},
    {4, "LP_2Weg_18dB", "18 dB/Oktave", "", "LP_Box"},
    {3, "LP_3Weg", "Drei-Wegebox", "", ""},
    {4, "LP_3Weg_12dB", "12db/Oktave", "", "LP_Box"},
    {1, "mnuTrenn9", "-", "", ""},
    {1, "mnuTaschenrechner", "Taschenrechner", "Ctrl+R", ""},
    {0, "mnuFrageZ", "&?", "", ""},
    {1, "mnuInfo", "&Info", "F2", ""},
    {1, "mnuHelp", "&Hilfe", "F1", ""},
    {1, "mnuLiteratur", "&Literaturquellen", "F3", ""},
};

struct Crossover {
  const char* item;
  const char* caption;
  const char* mode;
};
const Crossover kCrossovers[] = {
    {"LP_2Weg_6dB", "Frequenzweiche Zwei-Wegebox 6dB/Oktave", "2W6"},
    {"LP_2Weg_12dB", "Frequenzweiche Zwei-Wegebox 12dB/Oktave", "2W12"},
    {"LP_2Weg_18dB", "Frequenzweiche Zwei-Wegebox 18dB/Oktave", "2W18"},
    {"LP_3Weg_12dB", "Frequenzweiche Drei-Wegebox 12dB/Oktave", "3W12"},
};

// Series and parallel combinations: a new window per choice, its mode in Tag.
struct Combination {
  const char* item;
  const char* mode;
};
const Combination kCombinations[] = {
    {"mnuParR", "ParR"},
    {"mnuReihC", "ReiheC"},
    {"mnuParL", "ParL"},
};

// The access key of a caption ("&Berechnung" gives B), or a null character.
QChar accessKeyOf(const QString& caption) {
  for (qsizetype i = 0; i + 1 < caption.size(); ++i) {
    if (caption[i] != '&') continue;
    if (caption[i + 1] == '&') {
      ++i;
      continue;
    }
    return caption[i + 1].toUpper();
  }
  return QChar();
}

// What an access key of a form reaches: a button or option itself, or the
// field a label stands for.
QWidget* accessTarget(QWidget* w) {
  if (auto* l = qobject_cast<QLabel*>(w)) return l->buddy();
  return w;
}


// Alt pressed and released alone selects the menu bar, whatever the style
// does by default.
class MenuBarStyle : public QProxyStyle {
 public:
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    if (hint == SH_MenuBar_AltKeyNavigation) return 1;
    return QProxyStyle::styleHint(hint, option, widget, data);
  }
};

bool isSubMenu(size_t i) {
  const size_t n = sizeof kMenu / sizeof kMenu[0];
  return i + 1 < n && kMenu[i + 1].depth > kMenu[i].depth;
}

}  // namespace

MDIForm1* mainWindow() { return g_main; }

MDIForm1::MDIForm1(QWidget* parent) : QMainWindow(parent) {
  g_main = this;
  setObjectName("MDIForm1");
  setWindowTitle(Module1::AppTitle);
  mdi_ = new QMdiArea(this);
  mdi_->setObjectName("MDIArea");
  mdi_->setBackground(QColor(0x80, 0x80, 0x80));
  mdi_->viewport()->installEventFilter(this);
  // A calculator larger than the window can still be reached.
  mdi_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  mdi_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setCentralWidget(mdi_);
  connect(mdi_, &QMdiArea::subWindowActivated, this, &MDIForm1::onSubWindowActivated);
  buildMenu();

  // Ctrl+F4 closes the active child window, as Ctrl+W does; a key the
  // child windows bring along themselves is not taken twice.
  auto* closeChild = new QAction(this);
  closeChild->setObjectName("CloseChild");
  QList<QKeySequence> keys;
  const QList<QKeySequence> own = QKeySequence::keyBindings(QKeySequence::Close);
  for (const QKeySequence& k : {QKeySequence(Qt::CTRL | Qt::Key_F4), QKeySequence(Qt::CTRL | Qt::Key_W)})
    if (!own.contains(k)) keys << k;
  closeChild->setShortcuts(keys);
  connect(closeChild, &QAction::triggered, mdi_, &QMdiArea::closeActiveSubWindow);
  addAction(closeChild);
  auto* menuStyle = new MenuBarStyle;
  menuStyle->setParent(this);
  menuBar()->setStyle(menuStyle);
  // F10 opens the first menu.
  auto* menuKey = new QAction(this);
  menuKey->setObjectName("MenuKey");
  menuKey->setShortcut(Qt::Key_F10);
  connect(menuKey, &QAction::triggered, this, [this] {
    if (!menuBar()->actions().isEmpty()) menuBar()->setActiveAction(menuBar()->actions().first());
  });
  addAction(menuKey);

  // Access keys of the active child form go before those of the menu bar.
  qApp->installEventFilter(this);
}

MDIForm1::~MDIForm1() {
  // The child windows go after this window's own members; no activation
  // handler may run for them any more.
  disconnect(mdi_, nullptr, this, nullptr);
  g_main = nullptr;
}

void MDIForm1::buildMenu() {
  std::vector<QMenu*> stack;
  const size_t n = sizeof kMenu / sizeof kMenu[0];
  for (size_t i = 0; i < n; ++i) {
    const MenuItem& m = kMenu[i];
    stack.resize(size_t(m.depth));
    QAction* action = nullptr;
    if (QString(m.caption) == "-") {
      action = stack.back()->addSeparator();
    } else if (isSubMenu(i)) {
      QMenu* menu = m.depth == 0 ? menuBar()->addMenu(QString::fromUtf8(m.caption))
                                 : stack.back()->addMenu(QString::fromUtf8(m.caption));
      menu->setObjectName(QString::fromUtf8(m.name));
      action = menu->menuAction();
      stack.push_back(menu);
    } else {
      action = stack.back()->addAction(QString::fromUtf8(m.caption));
      if (*m.shortcut) action->setShortcut(QKeySequence(QString::fromUtf8(m.shortcut)));
    }
    const QString name = QString::fromUtf8(m.name);
    action->setObjectName(name);
    actions_[name] = action;
    if (*m.form && !forms::has(QString::fromUtf8(m.form))) action->setEnabled(false);
  }

  // Calculators with one shared instance.
  for (size_t i = 0; i < n; ++i) {
    const QString form = QString::fromUtf8(kMenu[i].form);
    if (form.isEmpty() || form == "LP_Box" || form == "ReihenS_RC") continue;
    connect(actions_[kMenu[i].name], &QAction::triggered, this, [this, form] { showShared(form); });
  }
  for (const Crossover& c : kCrossovers) {
    const QString caption = QString::fromUtf8(c.caption);
    const QString mode = c.mode;
    connect(actions_[c.item], &QAction::triggered, this, [this, caption, mode] { openCrossover(caption, mode); });
  }
  for (const Combination& c : kCombinations) {
    const QString mode = c.mode;
    connect(actions_[c.item], &QAction::triggered, this, [this, mode] { openCombination(mode); });
  }
  connect(actions_["mnuEnd"], &QAction::triggered, this, &QWidget::close);
  connect(actions_["mnuTaschenrechner"], &QAction::triggered, this, &MDIForm1::startCalculator);
  connect(actions_["mnuInfo"], &QAction::triggered, this, &MDIForm1::showInfo);
  connect(actions_["mnuHelp"], &QAction::triggered, this, &MDIForm1::showHelp);
  connect(actions_["mnuLiteratur"], &QAction::triggered, this, &MDIForm1::showLiterature);
}

QAction* MDIForm1::menuAction(const QString& name) const {
  auto it = actions_.find(name);
  return it == actions_.end() ? nullptr : it->second;
}

QMenuBar* MDIForm1::menus() const { return menuBar(); }

bool MDIForm1::load() {
  // One running Quarzel per user; tests give each process its own key.
  QString key = qEnvironmentVariable("QUARZEL_INSTANCE");
  if (key.isEmpty()) key = qEnvironmentVariable("USER", "user");
  if (!instance::acquire(key)) {
    dialogs::msgBox(
        "Das Programm zweimal zu aktivieren ist nicht ratsam. Wenn Sie diese möglichkeit benötigen, so wenden Sie "
        "sich bitte an den Autor dieser Software.",
        dialogs::Icon::Exclamation, dialogs::Buttons::OK, Module1::AppTitle + " läuft bereits ");
    return false;
  }
  placeWindow();
  return true;
}

void MDIForm1::placeWindow() {
  QScreen* screen = QGuiApplication::primaryScreen();
  if (!screen) return;
  const QRect s = screen->geometry();
  const double pxPerTwipX = screen->logicalDotsPerInchX() / 1440.0;
  const double pxPerTwipY = screen->logicalDotsPerInchY() / 1440.0;
  const int height = s.height() - int(kHeightMarginTwips * pxPerTwipY);
  const int width = s.width() - int(kDesignWidthTwips * pxPerTwipX / 2);
  // The sizes are those of the whole window, title bar and frame included;
  // the frame is known once the window manager has put one around it.
  const QMargins frame = windowHandle() ? windowHandle()->frameMargins() : QMargins();
  resize(width - frame.left() - frame.right(), height - frame.top() - frame.bottom());
  move(s.x() + (s.width() - width) / 2, s.y());
  placed_ = true;
}

void MDIForm1::placeWithFrame() {
  // Placed before it was shown, the window did not have its frame yet: the
  // first time the frame is known, the window is placed again.
  if (!placed_ || framePlaced_ || !windowHandle() || (windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)))
    return;
  if (windowHandle()->frameMargins().isNull()) return;
  framePlaced_ = true;
  placeWindow();
}

void MDIForm1::moveEvent(QMoveEvent* event) {
  QMainWindow::moveEvent(event);
  placeWithFrame();
}

void MDIForm1::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  placeWithFrame();
}

QWidget* MDIForm1::loadShared(const QString& name) {
  auto it = shared_.find(name);
  if (it != shared_.end() && it->second) return it->second;
  QWidget* form = forms::create(name);
  if (!form) return nullptr;
  shared_[name] = form;
  return form;
}

void MDIForm1::showChild(QWidget* form) {
  QMdiSubWindow* sub = qobject_cast<QMdiSubWindow*>(form->parentWidget());
  const bool placed = sub != nullptr;
  if (!sub) {
    sub = mdi_->addSubWindow(form);
    sub->setAttribute(Qt::WA_DeleteOnClose);
    sub->setWindowIcon(windowIcon());
    sub->adjustSize();
    form->installEventFilter(this);
    // Calculators (not the text windows) can be copied as text.
    if (form->objectName() != "frmAbout") formtext::install(form);
  }
  sub->show();
  form->show();
  // A new window opens wholly visible; one wider or taller than the area
  // starts at its top left corner.
  if (!placed) {
    const QSize room = mdi_->viewport()->size();
    if (sub->width() <= room.width() && sub->height() <= room.height()) keepInside(sub);
  }
  if (sub->x() < 0 || sub->y() < 0) sub->move(std::max(0, sub->x()), std::max(0, sub->y()));
  mdi_->setActiveSubWindow(sub);
  // What the user types first goes into the first field, unless the form is
  // brought to the front with the focus already in one of its fields.
  QWidget* focus = form->focusWidget();
  if (!focus || !focus->isVisible() || !focus->isEnabled() || qobject_cast<QPushButton*>(focus))
    focus = CalcForm::firstInput(form);
  if (focus) focus->setFocus(Qt::OtherFocusReason);
}

void MDIForm1::keepInside(QWidget* sub) {
  const QSize room = mdi_->viewport()->size();
  if (room.isEmpty()) return;
  sub->resize(sub->size().boundedTo(room));
  const int x = std::max(0, std::min(sub->x(), room.width() - sub->width()));
  const int y = std::max(0, std::min(sub->y(), room.height() - sub->height()));
  sub->move(x, y);
}

QWidget* MDIForm1::showShared(const QString& name) {
  QWidget* form = loadShared(name);
  if (form) showChild(form);
  return form;
}

void MDIForm1::activate(QWidget* form) {
  if (auto* sub = qobject_cast<QMdiSubWindow*>(form->parentWidget())) mdi_->setActiveSubWindow(sub);
}

QWidget* MDIForm1::activeForm() const {
  QMdiSubWindow* sub = mdi_->activeSubWindow();
  if (!sub) sub = mdi_->currentSubWindow();
  return sub ? sub->widget() : nullptr;
}

QList<QMdiSubWindow*> MDIForm1::childWindows() const { return mdi_->subWindowList(QMdiArea::CreationOrder); }

void MDIForm1::onSubWindowActivated(QMdiSubWindow* sub) {
  // A form's activate handler runs when it becomes the active child, not
  // when the whole program regains the focus (after a message box).
  if (!sub || !sub->widget() || sub->widget() == lastActivated_) return;
  lastActivated_ = sub->widget();
  if (auto* form = qobject_cast<CalcForm*>(sub->widget())) form->activated();
}

void MDIForm1::openCrossover(const QString& caption, const QString& mode) {
  auto* form = qobject_cast<CalcForm*>(loadShared("LP_Box"));
  if (!form) return;
  form->setCaption(caption);
  form->setTag(mode);
  QAction* box = actions_["LPBox"];
  box->setEnabled(false);
  connect(form, &CalcForm::unloaded, box, [box] { box->setEnabled(true); });
  showChild(form);
}

void MDIForm1::openCombination(const QString& mode) {
  auto* form = qobject_cast<CalcForm*>(forms::create("ReihenS_RC"));
  if (!form) return;
  form->setTag(mode);
  showChild(form);
}

void MDIForm1::showInfo() {
  auto it = shared_.find("frmAbout");
  frmAbout* about = it != shared_.end() && it->second ? qobject_cast<frmAbout*>(it->second) : nullptr;
  if (!about) {
    about = frmAbout::info();
    shared_["frmAbout"] = about;
  }
  showChild(about);
  keepInside(about->parentWidget());
}

void MDIForm1::showHelp() {
  frmAbout* w = frmAbout::help();
  showChild(w);
  w->parentWidget()->resize(mdi_->width() * 3 / 4, mdi_->height() * 3 / 4);
  keepInside(w->parentWidget());
}

void MDIForm1::showLiterature() {
  frmAbout* w = frmAbout::literature();
  showChild(w);
  w->parentWidget()->resize(mdi_->width() * 2 / 3, mdi_->height() / 2);
  keepInside(w->parentWidget());
}

void MDIForm1::startCalculator() {
  QStringList candidates;
#ifdef Q_OS_WIN
  candidates << "CALC.EXE";
#else
  candidates << "gnome-calculator" << "kcalc" << "galculator" << "qalculate-gtk" << "speedcrunch" << "xcalc";
#endif
  for (const QString& c : candidates) {
    const QString path = QStandardPaths::findExecutable(c);
    if (!path.isEmpty() && QProcess::startDetached(path, {})) return;
  }
  dialogs::msgBox("Der Taschenrechner konnte nicht gestartet werden." + Module1::NL +
                      "Es wurde kein Rechnerprogramm gefunden.",
                  dialogs::Icon::Exclamation);
}

void MDIForm1::setBackgroundPicture(const PictureBox* picture) {
  backgroundDrawing_ = picture ? picture->drawing() : PictureBox::Drawing();
  backgroundPixmap_ = picture ? picture->pixmap() : QPixmap();
  updateBackground();
}

void MDIForm1::updateBackground() {
  const QSize size = mdi_->viewport()->size();
  if ((!backgroundDrawing_ && backgroundPixmap_.isNull()) || size.isEmpty()) {
    mdi_->setBackground(QColor(0x80, 0x80, 0x80));
    return;
  }
  PictureBox box("background");
  if (backgroundDrawing_)
    box.setDrawing(backgroundDrawing_);
  else
    box.setPixmap(backgroundPixmap_);
  mdi_->setBackground(QBrush(box.render(size)));
  mdi_->viewport()->update();
}

bool MDIForm1::eventFilter(QObject* watched, QEvent* event) {
  if (watched == mdi_->viewport() && event->type() == QEvent::Resize) updateBackground();
  if (event->type() == QEvent::LayoutRequest) {
    // A form whose contents grew (a longer caption in another mode) gets a
    // window large enough for them: no label is cut off.
    auto* form = qobject_cast<QWidget*>(watched);
    auto* sub = form ? qobject_cast<QMdiSubWindow*>(form->parentWidget()) : nullptr;
    if (sub && sub->widget() == form && !sub->isMaximized() && !sub->isMinimized()) {
      const QSize more = (form->sizeHint() - form->size()).expandedTo(QSize(0, 0));
      if (more.width() > 0 || more.height() > 0) sub->resize(sub->size() + more);
    }
  }
  if (event->type() == QEvent::Shortcut) {
    auto* w = qobject_cast<QWidget*>(watched);
    if (w && w->window() == this && accessKey(static_cast<QShortcutEvent*>(event)->key())) return true;
  }
  return QMainWindow::eventFilter(watched, event);
}

bool MDIForm1::accessKey(const QKeySequence& key) {
  // While a child form is active, an Alt+letter that the form uses as an
  // access key is the form's: "&Berechnung" before "&Berechnungen", and
  // "&Drucken" before "&Datei". The menu bar keeps the letters the form
  // does not use.
  QMdiSubWindow* sub = mdi_->activeSubWindow();
  QWidget* form = sub ? sub->widget() : nullptr;
  if (!form || key.count() != 1 || key[0].keyboardModifiers() != Qt::AltModifier) return false;
  const QChar letter = QChar(key[0].key()).toUpper();
  if (!letter.isLetterOrNumber()) return false;
  QList<QWidget*> targets;
  for (QWidget* w : form->findChildren<QWidget*>()) {
    if (!w->isVisible() || !w->isEnabled()) continue;
    QString caption;
    if (auto* b = qobject_cast<QAbstractButton*>(w))
      caption = b->text();
    else if (auto* l = qobject_cast<QLabel*>(w); l && l->buddy())
      caption = l->text();
    if (accessKeyOf(caption) != letter) continue;
    QWidget* t = accessTarget(w);
    if (t && t->isVisible() && t->isEnabled() && !targets.contains(t)) targets << t;
  }
  if (targets.isEmpty()) return false;  // not the form's: the menu bar's, as usual
  if (targets.size() == 1) {
    // One control has the letter: a button is pressed, a field gets the focus.
    QWidget* t = targets.first();
    if (t->focusPolicy() != Qt::NoFocus) t->setFocus(Qt::ShortcutFocusReason);
    if (auto* b = qobject_cast<QAbstractButton*>(t)) b->click();
    return true;
  }
  // Several controls share the letter: each press moves the focus to the next.
  const qsizetype at = targets.indexOf(QApplication::focusWidget());
  targets[(at + 1) % targets.size()]->setFocus(Qt::ShortcutFocusReason);
  return true;
}

void MDIForm1::keyPressEvent(QKeyEvent* event) {
  // Return or Enter that no control of the active child took: a focused
  // button is pressed, otherwise the form's default button (its compute
  // button).
  QMdiSubWindow* sub = mdi_->activeSubWindow();
  QWidget* form = sub ? sub->widget() : nullptr;
  if (form && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) &&
      !(event->modifiers() & ~Qt::KeypadModifier)) {
    auto* focused = qobject_cast<QPushButton*>(QApplication::focusWidget());
    QPushButton* button = focused && form->isAncestorOf(focused) ? focused : nullptr;
    if (!button) {
      for (QPushButton* b : form->findChildren<QPushButton*>()) {
        if (b->isDefault() && b->isVisible() && b->isEnabled()) button = b;
      }
    }
    if (button && button->isEnabled()) {
      button->click();
      event->accept();
      return;
    }
  }
  QMainWindow::keyPressEvent(event);
}

void MDIForm1::closeQuietly() {
  quiet_ = true;
  close();
}

void MDIForm1::closeEvent(QCloseEvent* event) {
  if (!quiet_) {
    const QString version = QString("%1.%2.%3")
                                .arg(Module1::versionMajor())
                                .arg(Module1::versionMinor())
                                .arg(Module1::versionRevision());
    const auto answer = dialogs::msgBox(
        Module1::AppTitle + " V " + version + Module1::NL + "          Programm für Praktiker",
        dialogs::Icon::Question, dialogs::Buttons::OKCancel, " Wirklich beenden ?");
    if (answer != dialogs::Answer::OK) {
      event->ignore();
      return;
    }
  }
  // Every other form is unloaded, the last opened first.
  const QList<QMdiSubWindow*> subs = childWindows();
  for (auto it = subs.rbegin(); it != subs.rend(); ++it) (*it)->close();
  quit_ = true;
  event->accept();
}
