#include "maths/drills.h"

#include <array>

#include "files/numbers.h"
#include "files/trap.h"
#include "letters/letter_names.h"
#include "maths/arithmetic.h"
#include "maths/maths_menu.h"
#include "maths/result_box.h"
#include "ui/message_box.h"
#include "ui/scale.h"

namespace bramlee {
namespace {

constexpr ColourWord kPaleYellow = 0x80FFFF;
constexpr ColourWord kWrongRow = 0xFF;  // red

// Sizes of the row, in twips: the whole row fits a screen of 1024 pixels.
constexpr double kGap = 200;
constexpr double kRowHeight = 900;
constexpr double kOperandWidth = 2250;
constexpr double kEqualsWidth = 900;
constexpr double kResultWidth = 6000;

/// The operands' letters, in pixels: to be read at arm's length.
constexpr int kFigurePixels = 30;

struct Drill {
  const char* item;
  const char* caption;
  int sign;
};
constexpr Drill kDrills[] = {
    {"mnuadd", "&Additions",       kPlus     },
    {"mnusub", "&Subtractions",    kMinus    },
    {"mnumul", "&Multiplications", kTimes    },
    {"mnudiv", "&Divisions",       kDividedBy},
    {"mnuper", "&Percentage",      kPerCent  },
};

Combo* SecondOperand(const Board& board) {
  return board.Named<Combo>(QStringLiteral("cmb(18)"));
}

PictureBox* SignPicture(const Board& board, int sign) {
  return board.Named<PictureBox>(Indexed("pic1", sign));
}

PictureBox* Equals(const Board& board) {
  return board.Named<PictureBox>(QStringLiteral("picequal"));
}

/// The numbers 1 to `ones`, then the tens after it up to 100.
Combo* AddOperand(Board& board, const QString& name, const QString& accessibleName, int ones) {
  Combo* box = board.AddCombo(name);
  for (int i = 1; i <= ones; ++i) box->addItem(QString::number(i));
  for (int i = ones + 10; i <= 100; i += 10) box->addItem(QString::number(i));
  box->setCurrentIndex(-1);
  box->setEditText(QStringLiteral("0"));
  QFont font = box->font();
  font.setPixelSize(kFigurePixels);
  SetDesignFont(box, font);
  box->setAccessibleName(accessibleName);
  SetBackColor(box, kPaleYellow);
  SetForeColor(box, 0);
  box->hide();
  return box;
}

void AddSign(Board& board, int sign) {
  PictureBox* picture = board.AddPicture(Indexed("pic1", sign));
  picture->SetPicture(QStringLiteral(":/pictures/mat/sign%1.jpg").arg(sign));
  picture->setAccessibleName(QString::fromStdString(LetterName(board.record().letterSet, sign)));
  picture->setEnabled(false);  // it only shows what the row does
  picture->hide();
}

void SetRowVisible(Board& board, int sign, bool visible) {
  const std::array<QWidget*, 5> row = {FirstOperand(board), SignPicture(board, sign),
                                       SecondOperand(board), Equals(board), Result(board)};
  for (QWidget* control : row) control->setVisible(visible);
}

/// One behind the other along the top of tile 6, which keeps its place though it is hidden.
void LayOutRow(Board& board, int sign) {
  const double top = PlaceOf(board.Tile(6)).top;
  MoveTo(FirstOperand(board), PlaceOf(board.Tile(6)).left, top);
  const auto behind = [](const QWidget* control) {
    const TwipsRect place = PlaceOf(control);
    return place.left + place.width + kGap;
  };
  MoveTo(SignPicture(board, kPlus), behind(FirstOperand(board)), top);
  MoveTo(SignPicture(board, sign), behind(FirstOperand(board)), top);
  MoveTo(SecondOperand(board), behind(SignPicture(board, sign)), top);
  MoveTo(Equals(board), behind(SecondOperand(board)), top);
  MoveTo(Result(board), behind(Equals(board)), top);
  board.FitSheet();
}

/// Tab goes along the row, not by way of the tables' picture if that is left beside it.
void TabAlongRow(Board& board) {
  QWidget::setTabOrder(FirstOperand(board), SecondOperand(board));
  QWidget::setTabOrder(SecondOperand(board), Equals(board));
  QWidget::setTabOrder(Equals(board), Result(board));
}

void MathsRowShow(Board& board, int sign) {
  SetRowVisible(board, sign, true);
  LayOutRow(board, sign);
  TabAlongRow(board);
}

void Drill_Click(Board& board, const Drill& drill) {
  const QString item = QString::fromLatin1(drill.item);
  HideSheetMenus(board);
  board.mnuclear1_Click();
  if (board.Checked(item)) {
    board.SetChecked(item, false);
    SetRowVisible(board, drill.sign, false);  // a sign of another drill stays where it was
    ShowDigitTiles(board);
    return;
  }
  UncheckMathsMenu(board);
  board.SetChecked(item, true);
  MathsRowShow(board, drill.sign);
  HideDigitTiles(board);
  StartAtFirstOperand(board);
}

/// The first sign that can be seen, 0 for none.
int SignInForce(const Board& board) {
  for (int sign = kPlus; sign <= kPerCent; ++sign) {
    if (!SignPicture(board, sign)->isHidden()) return sign;
  }
  return 0;
}

struct Operands {
  double a = 0;
  double b = 0;
  Combo* wrong = nullptr;  ///< the first whose text is no number
};

/// A first operand that is no number counts as 0 and the second with it, whatever it reads.
Operands ReadOperands(const Board& board) {
  const QString a = FirstOperand(board)->currentText();
  if (!IsNumeric(a)) return {.wrong = FirstOperand(board)};
  const QString b = SecondOperand(board)->currentText();
  if (!IsNumeric(b)) return {.a = Val(a), .wrong = SecondOperand(board)};
  return {.a = Val(a), .b = Val(b)};
}

}  // namespace

void MakeDrillRow(Board& board) {
  Combo* first = AddOperand(board, QStringLiteral("cmb(16)"), QStringLiteral("First number"), 20);
  Combo* second = AddOperand(board, QStringLiteral("cmb(18)"), QStringLiteral("Second number"), 10);
  PictureBox* equals = board.AddPicture(QStringLiteral("picequal"));
  equals->SetPicture(QStringLiteral(":/pictures/mat/equal.jpg"));
  equals->setAccessibleName(QStringLiteral("Equals"));
  equals->hide();
  auto* result = new ResultBox(board.client());
  result->setObjectName(QStringLiteral("txtval(20)"));
  result->setAccessibleName(QStringLiteral("Result"));
  result->SetText(QStringLiteral("0"));
  SetBackColor(result, kPaleYellow);
  SetForeColor(result, 0);
  result->hide();
  // Two signs can stand at one spot. The lower one counts then, so it is in front: made last.
  for (int sign = kPerCent; sign >= kPlus; --sign) AddSign(board, sign);

  const double top = PlaceOf(board.Tile(1)).top;
  Place(first, {.left = 600, .top = top, .width = kOperandWidth, .height = kRowHeight});
  Place(second, {.left = 600, .top = top, .width = kOperandWidth, .height = kRowHeight});
  Place(equals, {.left = 600, .top = top, .width = kEqualsWidth, .height = kRowHeight});
  Place(result, {.left = 4550, .top = top, .width = kResultWidth, .height = kRowHeight});
  for (int sign = kPlus; sign <= kPerCent; ++sign) {
    Place(SignPicture(board, sign),
          {.left = 600, .top = top, .width = kEqualsWidth, .height = kRowHeight});
  }
  QObject::connect(equals, &PictureBox::clicked, &board, [&board] { CalcResult(board); });
}

void MakeDrillMenu(Board& board, QMenu* menu) {
  for (const Drill& drill : kDrills) {
    board.AddItem(menu, QString::fromLatin1(drill.item), QString::fromLatin1(drill.caption),
                  [&board, &drill] {
                    Trap(QStringLiteral("mat:02"), [&](ErrInfo&) { Drill_Click(board, drill); });
                  });
  }
}

void CalcResult(Board& board) {
  Trap(QStringLiteral("mat:03"), [&board](ErrInfo&) {
    const int sign = SignInForce(board);
    if (sign == 0) return;
    SetBackColor(FirstOperand(board), kPaleYellow);
    SetBackColor(SecondOperand(board), kPaleYellow);
    const Operands row = ReadOperands(board);
    if (row.wrong != nullptr) {
      SetBackColor(row.wrong, kWrongRow);
      MsgBox(QStringLiteral("Enter Number"));
    }
    if (IsInfinite(sign, row.a, row.b)) return MsgBox(QStringLiteral("Infinity"));
    const std::optional<double> result = RowResult(sign, row.a, row.b);
    if (result) Result(board)->SetText(NumberText(*result));
  });
}

}  // namespace bramlee
