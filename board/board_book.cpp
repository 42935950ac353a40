// How a board goes over to the letters of the book and back.
#include "board/board.h"
#include "board/book_letters.h"
#include "letters/letter_names.h"

namespace bramlee {

QString TilePicture(std::string_view letterSet, int tile, bool book) {
  return QStringLiteral(":/pictures/%1%2/%3.jpg")
      .arg(book ? QStringLiteral("book/") : QString(),
           QString::fromLatin1(QByteArrayView(letterSet)))
      .arg(tile);
}

bool Board::WritesBookLetters() const {
  return wantsBook_ || BookLetters::Instance().On();
}

void Board::WantBookLetters(bool on) {
  if (wantsBook_ == on) return;
  wantsBook_ = on;
  FollowBook();
}

TileForm Board::FormOf(const StrokeRec& rec) const {
  const bool isDigit = rec.LetterNo <= letters_.digits;
  return {.alternative = rec.AltFlag == 1,
          .place = isDigit ? rec.LoopNo : 0,
          .book = WritesBookLetters()};
}

WriteLetter Board::ProgramFor(const StrokeRec& rec) const {
  const TileForm form = FormOf(rec);
  const bool fromBook = form.book && HasBookForm(letters_, rec.LetterNo, form);
  return fromBook ? ProgramOf(letters_, rec.LetterNo, form) : record_.program(*this, rec);
}

void Board::ShowLetterOf(int tile) const {
  const bool book = WritesBookLetters() && HasBookForm(letters_, tile);
  PictureBox* picture = Tile(tile);
  picture->SetPicture(TilePicture(record_.letterSet, tile, book));
  picture->setAccessibleName(QString::fromStdString(LetterName(record_.letterSet, tile, book)));
}

void Board::FollowBook() {
  const int lastTile = record_.lastTile != 0 ? record_.lastTile : letters_.tiles;
  for (int tile = record_.firstTile; tile <= lastTile; ++tile) ShowLetterOf(tile);
  reach_ = ReachOfAll();
  FitSheet();
}

}  // namespace bramlee
