#include "shell/form.h"

#include <QCloseEvent>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QWindow>
#include <utility>

#include "shell/forms.h"

namespace bramlee {

Form::Form(const QString& name, Kind kind) : kind_(kind) {
  setObjectName(name);
  setAttribute(Qt::WA_DeleteOnClose, false);
  if (kind != Kind::Frame) SetClient(new Ground(this));
}

void Form::SetClient(QWidget* client, QWidget* scroller) {
  client_ = client;
  setCentralWidget(scroller != nullptr ? scroller : client);
}

void Form::Present() {
  QWidget* window = subWindow_ != nullptr ? static_cast<QWidget*>(subWindow_) : this;
  if (subWindow_ != nullptr) show();
  window->show();
  window->raise();
  window->activateWindow();
}

void Form::SetOuter(const TwipsRect& rect) {
  if (subWindow_ != nullptr) return Place(subWindow_, rect);
  // The window manager's frame is known once the window has been shown; before, it has no width.
  const QMargins margins = windowHandle() != nullptr ? windowHandle()->frameMargins() : QMargins();
  Place(this, rect);
  setGeometry(geometry().marginsRemoved(margins));
}

TwipsRect Form::Outer() const {
  if (subWindow_ != nullptr) return PlaceOf(subWindow_);
  return PlaceOf(this);
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
  QAction* item = NewItem(name, caption, std::move(click));
  item->setCheckable(true);
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

void Form::LetGo() {
  setObjectName({});
  for (QTimer* timer : findChildren<QTimer*>()) timer->stop();
  hide();
  if (subWindow_ != nullptr) {
    subWindow_->hide();
    subWindow_->deleteLater();  // takes this form along
  } else {
    deleteLater();
  }
}

void Form::closeEvent(QCloseEvent* event) {
  event->ignore();
  UnloadForm(this);
}

QString CaptionOf(const QAction* item) {
  QString caption = item->text();
  return caption.remove(u'&');
}

}  // namespace bramlee
