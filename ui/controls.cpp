#include "ui/controls.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "ui/return_key.h"

namespace bramlee {

QString Indexed(const char* array, int index) {
  return QStringLiteral("%1(%2)").arg(QLatin1StringView(array)).arg(index);
}

Ground::Ground(QWidget* parent) : QWidget(parent) {
  // It fills all of itself, so nothing behind it is painted when something on it moves.
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void Ground::SetBackColor(ColourWord colour) {
  backColor_ = ColourOf(colour);
  update();
}

void Ground::paintEvent(QPaintEvent* /*event*/) {
  QPainter(this).fillRect(rect(), backColor_);
}

TextBox::TextBox(const QString& text, QWidget* parent) : QLineEdit(text, parent) {}

namespace {

void SetRole(QWidget* control, QPalette::ColorRole role, ColourWord colour) {
  QPalette palette = control->palette();
  palette.setColor(role, ColourOf(colour));
  control->setPalette(palette);
}

QPalette::ColorRole GroundRole(const QWidget* control) {
  return qobject_cast<const QLabel*>(control) != nullptr ? QPalette::Window : QPalette::Base;
}

QPalette::ColorRole TextRole(const QWidget* control) {
  return qobject_cast<const QLabel*>(control) != nullptr ? QPalette::WindowText : QPalette::Text;
}

}  // namespace

void SetBackColor(QWidget* control, ColourWord colour) {
  SetRole(control, GroundRole(control), colour);
  if (qobject_cast<QLabel*>(control) != nullptr) control->setAutoFillBackground(true);
}

void SetForeColor(QWidget* control, ColourWord colour) {
  SetRole(control, TextRole(control), colour);
}

ColourWord BackColorOf(const QWidget* control) {
  return WordOf(control->palette().color(GroundRole(control)));
}

ColourWord ForeColorOf(const QWidget* control) {
  return WordOf(control->palette().color(TextRole(control)));
}

void FitFont(QLabel* label, QFont font, QSize room) {
  const auto sizeAt = [&](int pixels) {
    font.setPixelSize(pixels);
    const QFontMetrics metrics(font);
    return QSize(metrics.horizontalAdvance(label->text()), metrics.height());
  };
  const auto fits = [room](QSize text) {
    return text.width() <= room.width() && text.height() <= room.height();
  };
  // Each size tried loads a font: a guess by proportion, then what rounding leaves.
  constexpr int kTried = 32;
  const QSizeF tried = sizeAt(kTried);
  const double scale = std::min(room.width() / tried.width(), room.height() / tried.height());
  int pixels = std::max(static_cast<int>(kTried * scale), 1);
  while (pixels > 1 && !fits(sizeAt(pixels))) --pixels;
  label->setFont(font);
}

Label::Label(const QString& text, QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setText(text);
  SetForeColor(this, 0);
}

void Label::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
    Q_EMIT Clicked();
  }
}

Combo::Combo(QWidget* parent) : QComboBox(parent) {
  setEditable(true);
  setInsertPolicy(QComboBox::NoInsert);
  setCompleter(nullptr);
  // On leaving, the box would otherwise pick the entry that reads like the text.
  lineEdit()->disconnect(SIGNAL(editingFinished()), this);
  lineEdit()->disconnect(SIGNAL(returnPressed()), this);
  connect(this, &QComboBox::activated, this, &Combo::Picked);
}

void Combo::showPopup() {
  view()->installEventFilter(this);  // before any that the open list has
  QComboBox::showPopup();
}

bool Combo::eventFilter(QObject* watched, QEvent* event) {
  const bool isKey = event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
  if (watched == view() && isKey && IsReturn(*static_cast<QKeyEvent*>(event))) {
    return FilterReturn(*static_cast<QKeyEvent*>(event));
  }
  return QComboBox::eventFilter(watched, event);
}

/// The open list picks as soon as it is asked whether Return is a shortcut, and closes. A pick that
/// takes long would get the key itself a second time, in the box's text: the list picks by that.
bool Combo::FilterReturn(QKeyEvent& event) {
  if (std::exchange(listMayPick_, false)) return false;
  event.accept();
  if (event.type() == QEvent::ShortcutOverride || event.isAutoRepeat()) return true;
  listMayPick_ = true;
  QKeyEvent pick(QEvent::ShortcutOverride, event.key(), event.modifiers());
  QCoreApplication::sendEvent(view(), &pick);
  return true;
}

void Combo::keyPressEvent(QKeyEvent* event) {
  if (IsReturn(*event)) {
    if (!event->isAutoRepeat()) Q_EMIT Entered();
    event->accept();
    return;
  }
  if (refusesHeldKeys_ && event->isAutoRepeat()) return event->accept();
  QComboBox::keyPressEvent(event);
}

void Combo::wheelEvent(QWheelEvent* event) {
  event->ignore();
}

}  // namespace bramlee
