#include "companions/words/words.h"

#include <algorithm>
#include <utility>

#include "board/board.h"
#include "board/strip.h"
#include "board/strip_pictures.h"
#include "card/card_file.h"
#include "companions/words/word_lines.h"
#include "companions/words/words_panel.h"
#include "companions/worksheet/worksheet.h"
#include "files/trap.h"
#include "strokes/writing_lines.h"
#include "ui/choices.h"

namespace bramlee {
namespace {

/// A tag for what cannot be written for lack of memory.
const QString kTag = QStringLiteral("wor:01");

/// A line with letters on it: a ring, a stem, a ring.
QIcon WordsPicture() {
  return StripPicture({
      StripArc({26,       56      },
      16, 0, 360),
      {{52, 20}, {52, 72}},
      StripArc({76,       56      },
      16, 0, 360),
      {{10, 86}, {92, 86}},
  });
}

/// A word keeps so far from the window's edge, in sheet pixels.
constexpr double kEdge = 10;
/// In a window narrower or lower than this a word goes beyond its edge: it would be too small.
constexpr double kLeastRoom = 300;

/// A board has its tiles above its sheet where that begins so far down, in sheet pixels.
constexpr double kLeastTiles = 200;

/// The grid's part of the sheet, where the letters stand; rules may run elsewhere. As far as the
/// window shows it, once the beginning is in view.
SheetExtent SeenRoom(Board& board) {
  SheetExtent room = board.record().gridExtent;
  const Sheet& sheet = board.sheet();
  if (!sheet.isVisible()) return room;
  board.BringIntoView(
      QRectF(QPointF(room.left, room.top), QPointF(room.right, room.bottom)).toAlignedRect());
  const QRectF view(sheet.parentWidget()->rect().translated(-sheet.pos()));
  const QRectF seen = sheet.FromSheet().inverted().mapRect(view);
  room.right =
      std::clamp(seen.right() - kEdge, std::min(room.left + kLeastRoom, room.right), room.right);
  room.bottom =
      std::clamp(seen.bottom() - kEdge, std::min(room.top + kLeastRoom, room.bottom), room.bottom);
  return room;
}

/// Words stand where the board's own letters do: their capitals are as high as its capitals, or as
/// its tall small letters.
WordRoom RoomOn(Board& board) {
  const WritingLines lines = WritingLinesOf(board.letters().name);
  const bool small = board.letters().sheet == SheetKind::SmallLetters;
  return {.around = SeenRoom(board), .head = small ? lines.top : lines.bodyTop, .base = lines.base};
}

/// One a board.
class WordWriting : public QObject {
 public:
  explicit WordWriting(Board& board) : QObject(&board), board_(board) {
    panel_ = new WordsPanel(&board, {.write = [this] { Do(&WordWriting::Write); },
                                     .writeMy = [this] { Do(&WordWriting::WriteMyName); },
                                     .print = [this] { Do(&WordWriting::Print); }});
    // Where it leaves the sheet free: over the tiles of a board whose sheet lies below them.
    const bool above = board.record().gridExtent.top > kLeastTiles;
    const auto open = [this, above] { panel_->Present(above, HasWorksheets(board_)); };
    board.strip().AddButton(Strip::Group::Teacher,
                            {.name = "strip_words",
                             .text = QStringLiteral("Words"),
                             .key = Qt::Key_W,
                             .picture = WordsPicture(),
                             .keyWorks = StripKeyWorks::Always},
                            open);
    connect(&board.pen(), &BoardPen::Changed, this,
            [this] { panel_->SetWriting(board_.pen().IsWriting()); });
  }

 private:
  void Do(void (WordWriting::*act)()) {
    Trap(kTag, [this, act](ErrInfo&) { (this->*act)(); });
  }

  /// Puts the card's name in the line; otherwise says why not.
  bool TakeMyName() {
    const QString name = HolderOfCard().name;
    // The card holds "?" for each letter that its code page lacks.
    const auto isLetter = [](QChar character) { return character.isLetter(); };
    if (name.isEmpty()) {
      panel_->Say(QStringLiteral("The card has no name on it yet."));
    } else if (name.contains(u'?') && std::ranges::none_of(name, isLetter)) {
      panel_->Say(QStringLiteral("The card cannot hold the letters of the name: type it."));
    } else {
      panel_->SetText(name);
      return true;
    }
    return false;
  }

  void WriteMyName() {
    if (TakeMyName()) Write();
  }

  void Print() {
    const bool typed = !panel_->Text().trimmed().isEmpty();
    if (typed || TakeMyName()) PrintWords(board_, panel_->Text());
  }

  void Write() {
    if (board_.pen().IsWriting()) return;  // Return in the line, in a pause
    const bool perLetter =
        Choices::Instance().Of(QString::fromLatin1(kPerLetterChoice), false).toBool();
    const WordOptions options{.headLine = perLetter ? HeadLine::PerLetter : HeadLine::Once,
                              .step = board_.sheet().Step()};
    SetText set =
        SetWords(panel_->Text().toStdString(), options, RoomOn(board_), board_.sheet().ForeColor());
    panel_->Say(NamesOf(set.leftOut));
    if (!set.letter) return;
    board_.StartGroup();
    board_.pen().Write(std::move(*set.letter), nullptr);
  }

  Board& board_;
  WordsPanel* panel_ = nullptr;
};

}  // namespace

void AddWords(Board& board) {
  new WordWriting(board);
}

}  // namespace bramlee
