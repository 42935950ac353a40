#include "companions/book/book.h"

#include "board/board.h"
#include "board/book_letters.h"
#include "board/strip.h"
#include "board/strip_pictures.h"
#include "ui/choices.h"

namespace bramlee {
namespace {

const QString kBook = QStringLiteral("book/on");

/// An open book with a line on each page.
QIcon BookPicture() {
  return StripPicture({
      {{50, 26},  {50, 80}},
      { {50, 26}, {34, 18}, {12, 18}, {12, 72}, {34, 72}, {50, 80}},
      { {50, 26}, {66, 18}, {88, 18}, {88, 72}, {66, 72}, {50, 80}}
  });
}

void Follow(StripButton& button) {
  const bool on = Choices::Instance().Of(kBook, false).toBool();
  button.setChecked(on);
  BookLetters::Instance().SetOn(on);
}

}  // namespace

void AddBookSwitch(Board& board) {
  StripButton* button = board.strip().AddButton(
      Strip::Group::Teacher,
      {.name = "strip_book",
       .text = QStringLiteral("Letters as in the book"),
       .key = Qt::Key_B,
       .picture = BookPicture(),
       .checkable = true},
      [] { Choices::Instance().Choose(kBook, !BookLetters::Instance().On()); });
  Follow(*button);
  QObject::connect(&Choices::Instance(), &Choices::Changed, button, [button] { Follow(*button); });
}

}  // namespace bramlee
