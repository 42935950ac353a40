#include "tests/xvfb/forms/user.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QThread>
#include <QWindow>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <stdexcept>

#include "ui/forms.h"

namespace bramlee {
namespace {

/// How long something that works may take on the busiest machine.
constexpr int kHangsMs = 10'000;
constexpr int kLookMs = 5;
/// How often in a row a window has to be found at one place to be at rest, and how far apart.
constexpr int kRestLooks = 5;
constexpr int kRestMs = 20;
/// From a combo box's right edge into its arrow.
constexpr int kArrowPixels = 8;

[[noreturn]] void Fail(const QString& what) {
  throw std::runtime_error(what.toStdString());
}

bool StandsInFront(const Form* form) {
  const QWidget* window = form->window();
  if (!form->isVisible() || !window->isActiveWindow() || window->windowHandle() == nullptr ||
      !window->windowHandle()->isExposed() || QApplication::activePopupWidget() != nullptr) {
    return false;
  }
  const QMdiSubWindow* inFrame = form->SubWindow();
  return inFrame == nullptr || inFrame->mdiArea()->activeSubWindow() == inFrame;
}

/// A place on the control that no other control covers; none if it is out of sight.
std::optional<QPoint> FreePlaceOn(const QWidget* control) {
  constexpr double kShares[] = {0.5, 0.25, 0.75, 0.1, 0.9};
  const QWidget* window = control->window();
  for (const double down : kShares) {
    for (const double across : kShares) {
      const QPoint place(static_cast<int>(across * control->width()),
                         static_cast<int>(down * control->height()));
      const QWidget* there = window->childAt(control->mapTo(window, place));
      const bool free = there == control || (there != nullptr && control->isAncestorOf(there));
      if (control->isVisible() && free) return control->mapToGlobal(place);
    }
  }
  return std::nullopt;
}

/// The menu that holds the entry, nullptr for one on the bar. A bar that was too narrow once may
/// still have it in the menu of its extension too.
const QMenu* MenuOf(const QAction* entry) {
  const QMenu* menu = nullptr;
  for (const QObject* place : entry->associatedObjects()) {
    if (qobject_cast<const QMenuBar*>(place) != nullptr) return nullptr;
    if (menu == nullptr) menu = qobject_cast<const QMenu*>(place);
  }
  return menu;
}

/// The menus' entries that lead to the item, from the bar on, and the item.
QList<QAction*> WayTo(QAction* item) {
  QList<QAction*> way{item};
  while (const QMenu* menu = MenuOf(way.first())) way.prepend(menu->menuAction());
  return way;
}

/// Where the entry can be clicked, if its menu or bar is open and it is seen there.
std::optional<QPoint> PlaceOfEntry(QAction* entry) {
  for (QObject* place : entry->associatedObjects()) {
    QRect seen;
    auto* widget = qobject_cast<QWidget*>(place);
    if (const auto* menu = qobject_cast<QMenu*>(place)) seen = menu->actionGeometry(entry);
    if (const auto* bar = qobject_cast<QMenuBar*>(place)) seen = bar->actionGeometry(entry);
    if (widget == nullptr || !widget->isVisible() || !widget->rect().contains(seen)) continue;
    if (!seen.isEmpty()) return widget->mapToGlobal(seen.center());
  }
  return std::nullopt;
}

QMessageBox* BoxInFront() {
  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  return box != nullptr && box->isActiveWindow() && box->windowHandle()->isExposed() ? box
                                                                                     : nullptr;
}

/// Waits until `place` has returned the same for a while.
void UntilAtRest(const QString& what, const std::function<std::optional<QRect>()>& place) {
  std::optional<QRect> last;
  int looks = 0;
  Until(what, [&] {
    const std::optional<QRect> now = Ask(place);
    looks = now && now == last ? looks + 1 : 0;
    last = now;
    if (now) QThread::msleep(kRestMs);
    return looks >= kRestLooks;
  });
}

}  // namespace

void AwaitAnswer(const std::function<bool(int ms)>& hasCome) {
  if (hasCome(2 * kHangsMs)) return;
  std::fputs("the program hangs\n", stderr);
  std::abort();
}

void Until(const QString& what, const std::function<bool()>& holds) {
  QElapsedTimer waited;
  waited.start();
  while (!holds()) {
    if (waited.elapsed() > kHangsMs) Fail(QStringLiteral("never: ") + what);
    QThread::msleep(kLookMs);
  }
}

void ClickOn(const QString& what, const std::function<QWidget*()>& control) {
  const std::optional<QPoint> place = Ask([&]() -> std::optional<QPoint> {
    const QWidget* there = control();
    return there != nullptr ? FreePlaceOn(there) : std::nullopt;
  });
  if (!place) Fail(what + QStringLiteral(" cannot be clicked: it is covered or out of sight"));
  TheDesktop().Click(*place);
}

std::string ReadBox(const QString& button) {
  UntilAtRest(QStringLiteral("a message box"), []() -> std::optional<QRect> {
    const QMessageBox* box = BoxInFront();
    if (box == nullptr) return std::nullopt;
    return QRect(box->mapToGlobal(QPoint()), box->size());
  });
  const auto [text, box] = Ask([] { return std::pair(BoxInFront()->text(), BoxInFront()); });
  ClickOn(button, [&]() -> QWidget* {
    for (QAbstractButton* offered : BoxInFront()->buttons()) {
      if (offered->text().remove(u'&') == button) return offered;
    }
    return nullptr;
  });
  Until(QStringLiteral("the end of the box: ") + text,
        [gone = box] { return Ask([gone] { return QApplication::activeModalWidget() != gone; }); });
  return text.toStdString();
}

OpenForm::OpenForm(const char* name) : name_(QString::fromLatin1(name)) {
  UntilAtRest(name_ + QStringLiteral(" in front"), [this]() -> std::optional<QRect> {
    const Form* form = Get();
    if (form == nullptr || !StandsInFront(form)) return std::nullopt;
    return QRect(form->mapToGlobal(QPoint()), form->size());
  });
}

Form* OpenForm::LoadedFormOf(const QString& name) {
  return LoadedForm(name);
}

void OpenForm::Click(const QString& control) const {
  ClickOn(name_ + u'.' + control, [&] { return Get()->findChild<QWidget*>(control); });
}

void OpenForm::Pick(const QString& item) {
  picked_.insert(item);
  const auto way = [&] { return WayTo(Get()->Named<QAction>(item)); };
  const qsizetype steps = Ask([&] { return way().size(); });
  for (qsizetype step = 0; step < steps; ++step) {
    std::optional<QPoint> place;
    Until(name_ + u'.' + item + QStringLiteral(" in an open menu"), [&] {
      place = Ask([&] { return PlaceOfEntry(way()[step]); });
      return place.has_value();
    });
    TheDesktop().Click(*place);
  }
  Until(QStringLiteral("the end of the menu"),
        [] { return Ask([] { return QApplication::activePopupWidget() == nullptr; }); });
}

void OpenForm::ClickGround() const {
  ClickOn(name_, [&] { return Get()->client(); });
}

void OpenForm::PickFromList(const char* combo, int index) const {
  const QString name = QString::fromLatin1(combo);
  const auto box = [&] { return Get()->Named<Combo>(name); };
  TheDesktop().Click(Ask([&] {
    return box()->mapToGlobal(QPoint(box()->width() - kArrowPixels, box()->height() / 2));
  }));
  const auto entry = [&]() -> std::optional<QRect> {
    const QAbstractItemView* list = box()->view();
    if (!list->isVisible() || QApplication::activePopupWidget() == nullptr) return std::nullopt;
    const QRect row = list->visualRect(list->model()->index(index, 0));
    return QRect(list->viewport()->mapToGlobal(row.topLeft()), row.size());
  };
  UntilAtRest(QStringLiteral("the list of ") + name, entry);
  TheDesktop().Click(Ask([&] { return entry()->center(); }));
  Until(QStringLiteral("the end of the list"),
        [] { return Ask([] { return QApplication::activePopupWidget() == nullptr; }); });
}

void OpenForm::Type(const char* control, const QString& text) const {
  Click(control);
  TheDesktop().Xdotool(
      {QStringLiteral("key"), QStringLiteral("ctrl+a"), QStringLiteral("type"), text});
  Until(QStringLiteral("the typed text ") + text,
        [&] { return Text(control) == text.toStdString(); });
}

std::string OpenForm::Marks() const {
  return Ask([this] {
    QStringList marks;
    for (const QAction* item : Get()->findChildren<QAction*>()) {
      if (item->isCheckable() && item->isChecked()) marks.append(item->objectName());
    }
    marks.sort();
    return marks.join(u' ').toStdString();
  });
}

std::string OpenForm::Text(const char* control) const {
  const QString text = Ask([&]() -> QString {
    const auto* found = Get()->Named<QWidget>(QString::fromLatin1(control));
    if (const auto* combo = qobject_cast<const QComboBox*>(found)) return combo->currentText();
    if (const auto* lines = qobject_cast<const QPlainTextEdit*>(found)) return lines->toPlainText();
    if (const auto* label = qobject_cast<const QLabel*>(found)) return label->text();
    return Get()->TextOf(QString::fromLatin1(control));
  });
  return text.toStdString();
}

bool OpenForm::Shows(const char* control) const {
  return Ask([&] { return Get()->Named<QWidget>(QString::fromLatin1(control))->isVisible(); });
}

QList<int> OpenForm::Shown(const char* array, int last) const {
  return Ask([&] {
    QList<int> shown;
    for (int i = 0; i <= last; ++i) {
      const auto* element = Get()->findChild<QWidget*>(Indexed(array, i));
      if (element != nullptr && element->isVisible()) shown.append(i);
    }
    return shown;
  });
}

QStringList OpenForm::NeverPicked() const {
  return Ask([this] {
    QStringList names;
    for (QAction* item : Get()->findChildren<QAction*>()) {
      if (item->objectName().isEmpty() || picked_.contains(item->objectName())) continue;
      const QList<QAction*> way = WayTo(item);
      if (std::ranges::all_of(way, &QAction::isVisible)) names.append(item->objectName());
    }
    return names;
  });
}

QImage OpenForm::Seen() const {
  const QRect place = Ask([this] { return QRect(Get()->mapToGlobal(QPoint()), Get()->size()); });
  return TheDesktop().Screenshot().copy(place);
}

void OpenForm::UntilGone() const {
  Until(name_ + QStringLiteral(" gone"), [&] { return Ask([&] { return Get() == nullptr; }); });
}

OpenBoard::OpenBoard(const char* name) : OpenForm(name) {
  expected_.SetStep(std::stod(Text("txtspd")));
}

void OpenBoard::ExpectTile(int tile, const TileForm& form) {
  Ask([&] { WriteWholeTile(Get()->letters(), tile, form, expected_); });
}

namespace {

/// The sheet as far as the screen shows it bare.
struct BareSheet {
  QRect place;   ///< on the screen
  QRegion bare;  ///< in the sheet
  QColor ground;
};

BareSheet BareSheetOf(const Board& board) {
  const Sheet& sheet = board.sheet();
  const QWidget* viewport = sheet.parentWidget();
  BareSheet seen{
      QRect(sheet.mapToGlobal(QPoint()), sheet.size()),
      QRect(sheet.mapFrom(viewport, QPoint()), viewport->size()).intersected(sheet.rect()),
      ColourOf(board.record().backColor)};
  for (const QObject* child : sheet.children()) {
    const auto* control = qobject_cast<const QWidget*>(child);
    if (control == nullptr) continue;
    // The title blinks.
    const bool title = control->objectName() == QStringLiteral("txthdr1");
    if (title || control->isVisible()) seen.bare -= control->geometry();
  }
  return seen;
}

/// How many pixels of the region fulfil `holds`, which is given both images' pixels.
int CountPixels(const QRegion& region, const QImage& one, const QImage& other, auto holds) {
  int count = 0;
  for (const QRect& rect : region) {
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
      for (int x = rect.left(); x <= rect.right(); ++x) {
        count += holds(one.pixel(x, y) | 0xFF000000, other.pixel(x, y) | 0xFF000000) ? 1 : 0;
      }
    }
  }
  return count;
}

}  // namespace

int OpenBoard::SeeSheet() const {
  const BareSheet sheet = Ask([this] { return BareSheetOf(*Get()); });
  const QImage wanted =
      expected_.Picture(QRectF(QPointF(), QSizeF(sheet.place.size())), 1, sheet.ground)
          .convertToFormat(QImage::Format_RGB32);
  QImage seen;
  try {
    Until(Name() + QStringLiteral(" shows what is expected"), [&] {
      seen = TheDesktop().Screenshot().copy(sheet.place);
      return CountPixels(sheet.bare, seen, wanted, std::not_equal_to<QRgb>()) == 0;
    });
  } catch (const std::runtime_error&) {
    seen.save(Name() + QStringLiteral("-seen.png"));
    wanted.save(Name() + QStringLiteral("-wanted.png"));
    throw;
  }
  const QRgb ink = ColourOf(expected_.Colour()).rgb();
  return CountPixels(sheet.bare, seen, wanted, [ink](QRgb pixel, QRgb) { return pixel == ink; });
}

}  // namespace bramlee
