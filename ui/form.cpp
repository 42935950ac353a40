#include "ui/form.h"

#include <QCloseEvent>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QThread>
#include <QWindow>
#include <utility>

#include "ui/forms.h"
#include "ui/held_input.h"
#include "ui/screen.h"

namespace bramlee {

Form::Form(QAnyStringView name, Kind kind) : kind_(kind) {
  setObjectName(name.toString());
  setAttribute(Qt::WA_DeleteOnClose, false);
  if (kind != Kind::Frame) SetClient(new Ground(this));
}

void Form::SetClient(QWidget* client, QWidget* scroller) {
  client_ = client;
  setCentralWidget(scroller != nullptr ? scroller : client);
}

void Form::SetGround(ColourWord colour) const {
  if (auto* ground = dynamic_cast<Ground*>(client_)) ground->SetBackColor(colour);
}

void Form::Present() {
  if (frame_ != nullptr) {
    frame_->Present();
    frame_->BringForward(this);
    return;
  }
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

void Form::CloseAsked() {
  UnloadForm(this);
}

void Form::StandIn(Form* frame, QMdiSubWindow* subWindow) {
  frame_ = frame;
  subWindow_ = subWindow;
}

void Form::SetOuter(const TwipsRect& rect) {
  outer_ = rect;
  FitToOuter();
}

void Form::FitToOuter() {
  if (subWindow_ != nullptr) return Place(subWindow_, *outer_);
  // How wide the window manager's borders are is known once the window has been shown.
  const QMargins borders = windowHandle() != nullptr ? windowHandle()->frameMargins() : QMargins();
  const QRect outer = PixelsOf(*outer_);
  resize(outer.size().shrunkBy(borders));
  move(ScreenOrigin() + outer.topLeft());  // of the border's corner
}

void Form::AllowForBorders() {
  if (!outer_ || bordersKnown_ || subWindow_ != nullptr || windowHandle() == nullptr) return;
  if (windowState() & ~Qt::WindowActive || windowHandle()->frameMargins().isNull()) return;
  bordersKnown_ = true;
  FitToOuter();
}

TwipsRect Form::Outer() const {
  if (subWindow_ != nullptr) return PlaceOf(subWindow_);
  const QRect pixels = frameGeometry().translated(-ScreenOrigin());
  if (outer_ && PixelsOf(*outer_) == pixels) return *outer_;
  return TwipsOf(pixels);
}

void Form::CentreOnScreen(double width, double height) {
  const ScreenSize screen = Screen();
  SetOuter({.left = (screen.width - width) / 2,
            .top = (screen.height - height) / 2,
            .width = width,
            .height = height});
}

TextBox* Form::AddText(const QString& name, const QString& text) {
  auto* box = new TextBox(text, client_);
  box->setObjectName(name);
  return box;
}

TextBox* Form::AddHiddenText(const QString& name, const QString& text) {
  auto* box = AddText(name, text);
  box->setFocusPolicy(Qt::NoFocus);
  box->hide();
  return box;
}

Label* Form::AddLabel(const QString& name, const QString& text) {
  auto* label = new Label(text, client_);
  label->setObjectName(name);
  return label;
}

PictureBox* Form::AddPicture(const QString& name, const QString& toolTip) {
  auto* picture = new PictureBox(client_);
  picture->setObjectName(name);
  picture->setToolTip(toolTip);
  return picture;
}

Combo* Form::AddCombo(const QString& name, const QString& text) {
  auto* combo = new Combo(client_);
  combo->setObjectName(name);
  combo->setEditText(text);
  return combo;
}

QTimer* Form::AddTimer(const QString& name, int intervalMs, bool enabled,
                       std::function<void()> tick) {
  auto* timer = new QTimer(this);
  timer->setObjectName(name);
  timer->setInterval(intervalMs);
  connect(timer, &QTimer::timeout, this, std::move(tick));
  if (enabled) timer->start();
  return timer;
}

QMenu* Form::AddMenu(const QString& name, const QString& caption) {
  auto* menu = new QMenu(caption, this);
  menu->setObjectName(name);
  PutOnBar(menu->menuAction());
  return menu;
}

QMenu* Form::AddMenu(QMenu* parent, const QString& name, const QString& caption) {
  auto* menu = new QMenu(caption, parent);
  menu->setObjectName(name);
  parent->addMenu(menu);
  return menu;
}

QAction* Form::AddItem(QMenu* menu, const QString& name, const QString& caption,
                       std::function<void()> click) {
  QAction* item = AddCommand(menu, name, caption, std::move(click));
  item->setCheckable(true);
  return item;
}

QAction* Form::AddCommand(QMenu* menu, const QString& name, const QString& caption,
                          std::function<void()> click) {
  QAction* item = NewItem(name, caption, std::move(click));
  menu->addAction(item);
  return item;
}

QAction* Form::AddBarItem(const QString& name, const QString& caption,
                          std::function<void()> click) {
  QAction* item = NewItem(name, caption, std::move(click));
  PutOnBar(item);
  return item;
}

QAction* Form::NewItem(const QString& name, const QString& caption, std::function<void()> click) {
  auto* item = new QAction(caption, this);
  item->setObjectName(name);
  item->setMenuRole(QAction::NoRole);
  // A pick has flipped the mark already; the handlers set marks themselves and find it as it was.
  connect(item, &QAction::triggered, this, [item, click = std::move(click)](bool checked) {
    if (item->isCheckable()) item->setChecked(!checked);
    if (click) click();
  });
  return item;
}

void Form::PutOnBar(QAction* item) {
  barItems_.append(item);
  if (kind_ != Kind::FrameChild) menuBar()->addAction(item);
}

namespace {

/// A handler that shows a message box waits in an event loop of its own. What is let go by
/// another event meanwhile may be what the waiting handler stands on: it stays until that loop
/// has ended.
void DestroyWhenIdle(QObject* object) {
  if (QThread::currentThread()->loopLevel() <= 1) return object->deleteLater();
  QTimer::singleShot(kLookAgainMs, object, [object] { DestroyWhenIdle(object); });
}

}  // namespace

void Form::LetGo() {
  setObjectName({});
  for (QTimer* timer : findChildren<QTimer*>()) timer->stop();
  hide();
  if (frame_ != nullptr) frame_->Release(this);
  if (subWindow_ != nullptr) {
    DestroyWhenIdle(subWindow_);  // takes this form along
  } else {
    DestroyWhenIdle(this);
  }
}

void Form::closeEvent(QCloseEvent* event) {
  event->ignore();
  CloseAsked();
}

bool Form::event(QEvent* event) {
  const bool done = QMainWindow::event(event);
  switch (event->type()) {
    case QEvent::Show:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::WindowActivate:
      AllowForBorders();
      break;
    default:
      break;
  }
  return done;
}

QString CaptionOf(const QAction* item) {
  QString caption = item->text();
  return caption.remove(u'&');
}

}  // namespace bramlee
