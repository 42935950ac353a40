#include "board/book_letters.h"

#include <QCoreApplication>
#include <QPointer>

namespace bramlee {

BookLetters& BookLetters::Instance() {
  static QPointer<BookLetters> letters;
  if (letters == nullptr) letters = new BookLetters(QCoreApplication::instance());
  return *letters;
}

void BookLetters::SetOn(bool on) {
  if (on_ == on) return;
  on_ = on;
  Q_EMIT Changed();
}

}  // namespace bramlee
