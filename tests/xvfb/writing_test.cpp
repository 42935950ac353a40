// Input, closes and the window while strokes are written, on a real display.
#include <gtest/gtest.h>

#include <QFile>
#include <QHash>
#include <QPoint>
#include <QTemporaryDir>

#include "ink/ink.h"
#include "letters/letter_sets.h"
#include "tests/xvfb/desktop.h"

namespace bramlee {
namespace {

/// A letter of this step would take minutes: it ends when the pen hurries, not before.
const QString kEndless = QStringLiteral("0.00004");

/// The capitals board as watched_board.cpp runs it.
class WatchedBoard : public Program {
 public:
  explicit WatchedBoard(const Desktop& desktop, const QString& step, const QString& size = {},
                        const QStringList& settings = {})
      : Program(desktop, QStringLiteral(BRAMLEE_PROGRAMS "/watched_board"),
                size.isEmpty() ? QStringList{step} : QStringList{step, size}, settings),
        desktop_(desktop) {
    WaitFor(QStringLiteral("ready"));
    for (const QString& line : Lines()) {
      const QStringList words = line.split(QStringLiteral(" at "));
      if (words.size() != 2) continue;
      places_[words[0]] =
          QPointF(words[1].section(u' ', 0, 0).toDouble(), words[1].section(u' ', 1).toDouble());
    }
    window_ = Lines().filter(QStringLiteral("window ")).first().section(u' ', 1).toUInt();
  }

  QPointF Place(const QString& name) const { return places_.value(name); }
  std::uint32_t Window() const { return window_; }

  void Click(const QString& name) const { desktop_.Click(Place(name).toPoint()); }
  void ClickTile(int tile) const { Click(Tile(tile)); }
  static QString Tile(int tile) { return QStringLiteral("tile %1").arg(tile); }

  /// Clicks tile 1 and waits until its letter has begun.
  void BeginLetter() {
    ClickTile(1);
    WaitFor(QStringLiteral("begins 1"));
  }

  /// The picture of the sheet's dots.
  QImage Dots() {
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("dots.png"));
    Tell(QStringLiteral("save ") + file);
    WaitFor(QStringLiteral("saved"));
    return QImage(file).convertToFormat(QImage::Format_RGB32);
  }

  /// Expects these lines in this order, others among them.
  void ExpectInOrder(const QStringList& beginnings) {
    qsizetype place = -1;
    for (const QString& beginning : beginnings) {
      const qsizetype next = PlaceOf(beginning, place + 1);
      EXPECT_GE(next, 0) << qPrintable(beginning) << " is not where it should be in:\n"
                         << qPrintable(Lines().join(u'\n'));
      if (next < 0) return;
      place = next;
    }
  }

  /// How many lines begin so between two others.
  qsizetype CountBetween(const QString& from, const QString& to, const QString& beginning) {
    const qsizetype first = PlaceOf(from);
    const qsizetype last = PlaceOf(to, first);
    qsizetype count = 0;
    for (qsizetype i = first; i < last; ++i) count += Lines()[i].startsWith(beginning) ? 1 : 0;
    return count;
  }

 private:
  const Desktop& desktop_;
  QHash<QString, QPointF> places_;
  std::uint32_t window_ = 0;
};

/// Capitals as the sheet of a board has to hold them.
Ink Capitals(double step, std::initializer_list<std::int16_t> letters) {
  Ink ink(step);
  for (const std::int16_t letter : letters) {
    StrokeRec rec = FillStrokeRec(SheetKind::Capitals, letter);
    WriteCapital(rec, ink);
  }
  return ink;
}

void ExpectSheetHolds(WatchedBoard& board, const Ink& ink, double ratio = 1) {
  const QImage dots = board.Dots();
  const QRectF area(QPointF(), QSizeF(dots.size()) / ratio);
  QImage wanted = ink.Picture(area, ratio, QColor(0xC0, 0xFF, 0xFF));
  wanted.setDevicePixelRatio(1);
  EXPECT_EQ(dots, wanted);
}

class Writing : public ::testing::Test {
 protected:
  void ActivateOther() const {
    desktop.Xdotool({QStringLiteral("search"), QStringLiteral("--name"), QStringLiteral("^other$"),
                     QStringLiteral("windowactivate"), QStringLiteral("--sync")});
  }

  Desktop desktop;
};

TEST_F(Writing, AnswersASecondClickAfterTheFirstLetter) {
  // Slower and slower, should the machine be too busy to click within a letter.
  for (const char* step : {"0.004", "0.0005", "0.00005"}) {
    WatchedBoard board(desktop, QString::fromLatin1(step));
    board.BeginLetter();
    board.ClickTile(2);
    if (board.HasPrinted(QStringLiteral("written 1"))) continue;
    board.WaitFor(QStringLiteral("written 2"));
    board.ExpectInOrder({QStringLiteral("begins 1"), QStringLiteral("written 1"),
                         QStringLiteral("begins 2"), QStringLiteral("written 2")});
    const auto ticks = [&](const char* from, const char* to) {
      return board.CountBetween(QString::fromLatin1(from), QString::fromLatin1(to),
                                QStringLiteral("tick"));
    };
    EXPECT_EQ(ticks("begins 1", "written 1"), 0);
    EXPECT_LE(ticks("written 1", "begins 2"), 1);
    EXPECT_EQ(ticks("begins 2", "written 2"), 0);
    ExpectSheetHolds(board, Capitals(QByteArray(step).toDouble(), {1, 2}));
    return;
  }
  FAIL() << "no click came within a letter";
}

TEST_F(Writing, HurriesWithEveryDotAfterEscape) {
  WatchedBoard board(desktop, kEndless);
  board.BeginLetter();
  desktop.Key(QStringLiteral("Escape"));
  board.WaitFor(QStringLiteral("key Esc"));
  board.ExpectInOrder(
      {QStringLiteral("begins 1"), QStringLiteral("written 1"), QStringLiteral("key Esc")});
  ExpectSheetHolds(board, Capitals(kEndless.toDouble(), {1}));
}

TEST_F(Writing, DeliversAllInputInItsOrder) {
  WatchedBoard board(desktop, kEndless);
  board.BeginLetter();
  board.Click(QStringLiteral("text"));
  desktop.Xdotool({QStringLiteral("type"), QStringLiteral("aBc")});
  board.ClickTile(2);
  desktop.Key(QStringLiteral("w"));
  desktop.Click({900, 550});  // on the sheet
  desktop.Xdotool({QStringLiteral("click"), QStringLiteral("4")});
  desktop.Key(QStringLiteral("Escape"));
  desktop.Key(QStringLiteral("alt+f"));
  board.WaitFor(QStringLiteral("menu mnufile"));
  board.ExpectInOrder({QStringLiteral("written 1"), QStringLiteral("text a"),
                       QStringLiteral("text aB"), QStringLiteral("text aBc"),
                       QStringLiteral("begins 2"), QStringLiteral("written 2"),
                       QStringLiteral("key W"), QStringLiteral("wheel"), QStringLiteral("key Esc"),
                       QStringLiteral("menu mnufile")});
  EXPECT_EQ(board.CountBetween(QStringLiteral("begins 1"), QStringLiteral("written 1"),
                               QStringLiteral("key")),
            0);
}

TEST_F(Writing, WritesALetterTwiceForADoubleClick) {
  WatchedBoard board(desktop, kEndless);
  board.BeginLetter();
  board.ClickTile(3);
  desktop.Xdotool({QStringLiteral("click"), QStringLiteral("1")});
  desktop.Key(QStringLiteral("Escape"));
  board.WaitFor(QStringLiteral("key Esc"));
  board.ExpectInOrder({QStringLiteral("written 1"), QStringLiteral("begins 3"),
                       QStringLiteral("written 3"), QStringLiteral("begins 3"),
                       QStringLiteral("written 3"), QStringLiteral("key Esc")});
  EXPECT_EQ(board.Lines().filter(QStringLiteral("begins 3")).size(), 2);
}

TEST_F(Writing, ClosesLastAndHurryUntilThen) {
  WatchedBoard board(desktop, kEndless);
  board.BeginLetter();
  desktop.AskToClose(board.Window());
  board.ClickTile(2);
  desktop.Key(QStringLiteral("x"));
  board.WaitFor(QStringLiteral("gone"));
  board.ExpectInOrder({QStringLiteral("written 1"), QStringLiteral("close fbrmengc02")});
  EXPECT_EQ(board.Lines().filter(QStringLiteral("close")).size(), 1);
}

TEST_F(Writing, DeliversWhatCameBeforeTheClose) {
  WatchedBoard board(desktop, kEndless);
  board.BeginLetter();
  board.ClickTile(2);
  desktop.Key(QStringLiteral("x"));
  desktop.AskToClose(board.Window());
  board.WaitFor(QStringLiteral("gone"));
  board.ExpectInOrder({QStringLiteral("written 1"), QStringLiteral("begins 2"),
                       QStringLiteral("written 2"), QStringLiteral("key X"),
                       QStringLiteral("close fbrmengc02"), QStringLiteral("gone")});
}

TEST_F(Writing, HurriesWhenAnotherWindowIsToClose) {
  WatchedBoard board(desktop, kEndless);
  board.BeginLetter();
  desktop.AskToClose(desktop.WindowTitled(QStringLiteral("other")));
  board.WaitFor(QStringLiteral("close other"));
  board.ExpectInOrder({QStringLiteral("written 1"), QStringLiteral("close other")});
  ExpectSheetHolds(board, Capitals(kEndless.toDouble(), {1}));
}

TEST_F(Writing, HoldsTheInputOfOtherWindowsToo) {
  WatchedBoard board(desktop, kEndless);
  board.BeginLetter();
  ActivateOther();
  board.Click(QStringLiteral("other"));
  board.ClickTile(2);
  desktop.Key(QStringLiteral("Escape"));
  board.WaitFor(QStringLiteral("key Esc"));
  board.ExpectInOrder({QStringLiteral("written 1"), QStringLiteral("other clicked"),
                       QStringLiteral("begins 2"), QStringLiteral("written 2")});
}

TEST_F(Writing, HoldsQueuedCallsInTheirPlace) {
  WatchedBoard board(desktop, kEndless);
  board.BeginLetter();
  board.Tell(QStringLiteral("call one"));
  board.WaitFor(QStringLiteral("came call one"));
  board.ClickTile(2);
  desktop.Key(QStringLiteral("Escape"));
  board.WaitFor(QStringLiteral("key Esc"));
  board.ExpectInOrder({QStringLiteral("begins 1"), QStringLiteral("came call one"),
                       QStringLiteral("written 1"), QStringLiteral("called one"),
                       QStringLiteral("begins 2"), QStringLiteral("key Esc")});
}

TEST_F(Writing, ClicksTheTileThatWasMeantThoughTheSheetScrollsMeanwhile) {
  WatchedBoard board(desktop, kEndless, QStringLiteral("520x420"));
  board.BeginLetter();
  const QString moved = board.Lines().filter(QStringLiteral("sheet moved")).last();
  const QPoint by(moved.section(u' ', 2, 2).toInt(), moved.section(u' ', 3, 3).toInt());
  EXPECT_LT(by.x(), 0);
  for (const int tile : {4, 3}) {
    desktop.Click(board.Place(WatchedBoard::Tile(tile)).toPoint() + by);
  }
  desktop.Key(QStringLiteral("Escape"));
  board.WaitFor(QStringLiteral("key Esc"));
  board.ExpectInOrder({QStringLiteral("written 1"), QStringLiteral("begins 4"),
                       QStringLiteral("written 4"), QStringLiteral("begins 3"),
                       QStringLiteral("written 3"), QStringLiteral("key Esc")});
}

TEST_F(Writing, LetsAMessageBoxWithinTheHandlerHaveItsInput) {
  WatchedBoard board(desktop, kEndless);
  board.Click(QStringLiteral("asks"));
  board.WaitFor(QStringLiteral("begins asking"));
  board.ClickTile(1);
  desktop.Key(QStringLiteral("Escape"));
  board.WaitFor(QStringLiteral("asks"));
  board.WaitFor(QStringLiteral("box"));
  desktop.Key(QStringLiteral("Return"));
  board.WaitFor(QStringLiteral("key Esc"));
  board.ExpectInOrder({QStringLiteral("asks"), QStringLiteral("answered"),
                       QStringLiteral("done asking"), QStringLiteral("begins 1"),
                       QStringLiteral("written 1"), QStringLiteral("key Esc")});
}

TEST_F(Writing, RepaintsWhatIsUncoveredAndAnswerTheWindowManager) {
  WatchedBoard board(desktop, kEndless);
  board.BeginLetter();
  const QRect part(0, 60, 360, 600);  // the tiles; the pen is elsewhere
  const QImage before = desktop.Screenshot().copy(part);
  const auto shown = [&] { return desktop.Screenshot().copy(part); };
  desktop.Cover(part);
  EXPECT_TRUE(Eventually([&] { return shown() != before; }));
  desktop.Uncover();
  EXPECT_TRUE(Eventually([&] { return shown() == before; }));
  EXPECT_TRUE(desktop.AnswersPing(board.Window(), 60'000));
  EXPECT_FALSE(board.HasPrinted(QStringLiteral("written 1")));
}

TEST_F(Writing, LosesNothingWhenTheWindowIsResizedDuringALetter) {
  WatchedBoard board(desktop, kEndless, QStringLiteral("1280x640"));
  board.BeginLetter();
  desktop.Resize(board.Window(), {500, 400});
  board.WaitFor(QStringLiteral("board 500 400"));
  desktop.Resize(board.Window(), {1300, 660});
  board.WaitFor(QStringLiteral("board 1300 660"));
  EXPECT_FALSE(board.HasPrinted(QStringLiteral("written 1")));
  desktop.Key(QStringLiteral("Escape"));
  board.WaitFor(QStringLiteral("key Esc"));
  ExpectSheetHolds(board, Capitals(kEndless.toDouble(), {1}));
}

class WritingAtRatio : public ::testing::TestWithParam<double> {};

TEST_P(WritingAtRatio, ShowsTheDotsAsTheirPicture) {
  const double ratio = GetParam();
  const Desktop desktop({2732, 1536});
  WatchedBoard board(desktop, QStringLiteral("0.03"), {},
                     {QStringLiteral("QT_SCALE_FACTOR=%1").arg(ratio)});
  for (const int tile : {5, 6, 7, 8}) {
    board.ClickTile(tile);
    board.WaitFor(QStringLiteral("written %1").arg(tile));
  }
  const Ink ink = Capitals(0.03, {5, 6, 7, 8});
  ExpectSheetHolds(board, ink, ratio);
  const QRect letters = QRectF(400 * ratio, 100 * ratio, 820 * ratio, 300 * ratio).toAlignedRect();
  const QImage dots = board.Dots().copy(letters);
  const QPoint sheet =
      desktop.PlaceOf(board.Window()) + board.Place(QStringLiteral("sheet")).toPoint();
  const auto shown = [&] { return desktop.Screenshot().copy(letters.translated(sheet)); };
  EXPECT_TRUE(Eventually([&] { return shown() == dots; }));
}

INSTANTIATE_TEST_SUITE_P(Writing, WritingAtRatio, ::testing::Values(1, 1.25, 1.5, 2),
                         [](const auto& tried) {
                           return "At" + std::to_string(std::lround(tried.param * 100));
                         });

}  // namespace
}  // namespace bramlee
