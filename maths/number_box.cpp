#include "maths/number_box.h"

#include "board/cues.h"
#include "files/numbers.h"
#include "files/trap.h"
#include "letters/letter_sets.h"
#include "ui/scale.h"

namespace bramlee {
namespace {

constexpr ColourWord kBlack = 0;
constexpr ColourWord kRed = 0xFF;
constexpr int kLastEntry = 100;
constexpr qsizetype kLongestWritten = 4;

/// In twips. Low, so that it covers none of the signs' pictures, which stand in the middle of the
/// tiles beneath it.
constexpr double kHeight = 450;
constexpr int kLetterPixels = 20;

Combo* NumberBox(const Board& board) {
  return board.Named<Combo>(QStringLiteral("cmb(0)"));
}

/// The tile that writes the digit.
int TileOf(QChar digit) {
  return digit == u'0' ? kDigitTiles : digit.digitValue();
}

void SpeakWhole(Board& board, const QString& text) {
  CueBoardNo = board.record().cueBoardNo;
  PlayCue(RoundToInteger(Val(text)), CueBoardNo);
}

/// Clicks the tile of each digit, with the digit's place in txtaltno. A tile that begins a group
/// wipes, which clears the place, and so writes in its own.
void WriteDigits(Board& board, const QString& text) {
  const BoardPen::Writing writing(board.pen());
  for (int place = 1; place <= text.size(); ++place) {
    const QChar digit = text[place - 1];
    if (!digit.isDigit()) continue;
    board.SetText(QStringLiteral("txtalt3"), QStringLiteral("3"));
    board.SetText(QStringLiteral("txtaltno"), QString::number(place));
    board.SetText(QStringLiteral("txtaud"), QStringLiteral("1"));
    board.pic_Click(TileOf(digit));
    board.SetText(QStringLiteral("txtalt"), QStringLiteral("0"));
  }
}

}  // namespace

void MakeNumberBox(Board& board) {
  Combo* box = board.AddCombo(QStringLiteral("cmb(0)"));
  for (int i = 0; i <= kLastEntry; ++i) box->addItem(QString::number(i));
  box->setCurrentIndex(-1);
  box->clearEditText();
  QFont font = box->font();
  font.setPixelSize(kLetterPixels);
  SetDesignFont(box, font);
  box->RefuseHeldKeys();  // they would go on writing long after they are let go
  box->setAccessibleName(QStringLiteral("Number to write"));
  SetBackColor(box, 0xFFFFFF);
  SetForeColor(box, kBlack);
  QObject::connect(box, &Combo::Picked, &board, [&board] { NumberBox_Click(board); });
  QObject::connect(box, &Combo::Entered, &board, [&board] { NumberBox_Click(board); });
}

void LayOutNumberBox(Board& board) {
  const TwipsRect plus = PlaceOf(board.Tile(11));
  Place(NumberBox(board), {.left = plus.left,
                           .top = plus.top,
                           .width = 3.5 * PlaceOf(board.Tile(10)).width,
                           .height = kHeight});
}

void NumberBox_Click(Board& board) {
  Trap(QStringLiteral("mat:01"), [&board](ErrInfo&) {
    SetForeColor(NumberBox(board), kBlack);
    const QString text = NumberBox(board)->currentText();
    if (!IsNumeric(text)) return SetForeColor(NumberBox(board), kRed);
    board.SetText(QStringLiteral("txtaud"), QStringLiteral("1"));
    if (board.Checked(QStringLiteral("mnuaud"))) SpeakWhole(board, text);
    if (text.size() <= kLongestWritten) WriteDigits(board, text);
  });
}

}  // namespace bramlee
