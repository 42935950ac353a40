// A user before the program's forms: clicks, picks and types by a real pointer and real keys, and
// returns what is to be seen. The forms run on the main thread as in the program, tests on one of
// their own.
#pragma once

#include <QColor>
#include <QCoreApplication>
#include <QImage>
#include <QRegion>
#include <QSet>
#include <QString>
#include <QStringList>
#include <functional>
#include <future>
#include <string>

#include "board/board.h"
#include "ink/ink.h"
#include "tests/xvfb/desktop.h"
#include "ui/held_input.h"

namespace bramlee {

/// Pixels that the smallest letter covers.
inline constexpr int kSomeInk = 100;

/// The desktop of this test program.
Desktop& TheDesktop();

/// Waits for the promised value; a program that hangs is ended with a word, since what it was
/// asked to do would be done to a test that has gone.
void AwaitAnswer(const std::function<bool(int ms)>& hasCome);

/// Runs `ask` on the forms' thread, after all that the user has begun by then (a letter, a
/// handler), and returns what it returns.
template <class Question>
auto Ask(Question ask) {
  using Answer = decltype(ask());
  std::promise<Answer> promise;
  auto answer = promise.get_future();
  const auto answerNow = [&promise, &ask] {
    if constexpr (std::is_void_v<Answer>) {
      ask();
      promise.set_value();
    } else {
      promise.set_value(ask());
    }
  };
  QMetaObject::invokeMethod(
      qApp, [answerNow] { WhenFree(qApp, answerNow); }, Qt::QueuedConnection);
  AwaitAnswer([&answer](int ms) {
    return answer.wait_for(std::chrono::milliseconds(ms)) == std::future_status::ready;
  });
  return answer.get();
}

/// Asks until the answer is true. Throws std::runtime_error with `what` if it never comes to be.
void Until(const QString& what, const std::function<bool()>& holds);

/// The text of the message box that stands there, or comes; it is answered by a click on that
/// button ("OK" for the only one).
std::string ReadBox(const QString& button = QStringLiteral("OK"));

/// Clicks the left button in the middle of what `control` names, where it is not covered.
void ClickOn(const QString& what, const std::function<QWidget*()>& control);

/// A form that the user has in front. Names are those of the program; they may be array elements.
class OpenForm {
 public:
  /// Waits until the form stands in front and moves no more.
  explicit OpenForm(const char* name);

  /// The form itself: for use within Ask.
  Form* Get() const { return LoadedFormOf(name_); }

  void Click(const QString& control) const;
  void Click(const char* control) const { Click(QString::fromLatin1(control)); }
  /// Opens the menus that lead to the item one after the other and picks it; returns once they
  /// have closed and its handler is through, or waits for a message box to be read. What stands
  /// on the bar itself is only clicked.
  void Pick(const QString& item);
  void Pick(const char* item) { Pick(QString::fromLatin1(item)); }
  /// Clicks the form where nothing but the form is meant.
  void ClickGround() const;
  /// Replaces the text of a text or combo box by typing.
  void Type(const char* control, const QString& text) const;
  /// Opens the box's list and clicks the entry.
  void PickFromList(const char* combo, int index) const;

  /// The names of all marked items, in order, a blank between them.
  std::string Marks() const;
  std::string Text(const char* control) const;
  bool Shows(const char* control) const;
  /// Which of the array's elements can be seen.
  QList<int> Shown(const char* array, int last) const;

  /// The names of the items that were never picked though their menus can be opened.
  QStringList NeverPicked() const;

  /// What the screen shows of the form.
  QImage Seen() const;

  /// Waits until the form is no longer loaded.
  void UntilGone() const;

 protected:
  const QString& Name() const { return name_; }

 private:
  static Form* LoadedFormOf(const QString& name);

  QString name_;
  QSet<QString> picked_;
};

/// A board in front of the user, and what its sheet should show.
class OpenBoard : public OpenForm {
 public:
  explicit OpenBoard(const char* name);

  Board* Get() const { return static_cast<Board*>(OpenForm::Get()); }

  /// What the user expects on the sheet: written to by the tests as the board should.
  Ink& Expected() { return expected_; }
  /// Writes a tile's letter to what is expected.
  void ExpectTile(int tile, const TileForm& form = {});

  /// Waits until the screen shows exactly what is expected wherever no control stands on the
  /// sheet. Returns how many pixels of it are of the expected ink's present colour.
  int SeeSheet() const;

 private:
  Ink expected_;
};

}  // namespace bramlee
