// Drills, tables and typed numbers on a real display, from the keyboard alone.
#include <gtest/gtest.h>

#include "letters/letter_sets.h"
#include "tests/recorder.h"
#include "tests/xvfb/desktop.h"

namespace bramlee {
namespace {

class MathsAtTheKeyboard : public ::testing::Test {
 protected:
  explicit MathsAtTheKeyboard(const QStringList& step = {})
      : program_(desktop_, QStringLiteral(BRAMLEE_PROGRAMS "/watched_maths"), step) {
    program_.WaitFor(QStringLiteral("ready"));
  }

  /// Keys one after the other, named as xdotool names them.
  void Keys(const QStringList& keys) const {
    for (const QString& key : keys) desktop_.Key(key);
  }
  void Type(const char* text) const {
    desktop_.Xdotool({QStringLiteral("type"), QStringLiteral("--"), QString::fromLatin1(text)});
  }
  /// Opens "&Maths" and goes down to the item. A menu takes keys only once it stands open, with
  /// its first item lit.
  void GoTo(const char* item) {
    const QString there = QStringLiteral("at ") + QString::fromLatin1(item);
    desktop_.Key(QStringLiteral("alt+m"));
    QString lit = program_.WaitFor(QStringLiteral("at mnunum"));
    while (lit != there) {
      desktop_.Key(QStringLiteral("Down"));
      lit = program_.WaitFor(QStringLiteral("at "));
    }
  }
  /// Picks a drill by the arrow keys, or by its letter, and leaves its row ready to be typed into.
  void Begin(const char* item) {
    GoTo(item);
    desktop_.Key(QStringLiteral("Return"));
    program_.WaitFor(QStringLiteral("picked ") + QString::fromLatin1(item));
  }
  void Begin(const char* item, const char* letter) {
    GoTo("mnunum");
    desktop_.Key(QString::fromLatin1(letter));
    program_.WaitFor(QStringLiteral("picked ") + QString::fromLatin1(item));
  }
  /// Types over both operands, from the first one on, and presses the equals picture.
  void Compute(const char* a, const char* b) const {
    Type(a);
    desktop_.Key(QStringLiteral("Tab"));
    Type(b);
    Keys({QStringLiteral("Tab"), QStringLiteral("Return")});
  }
  void OpenList() {
    desktop_.Key(QStringLiteral("alt+Down"));
    program_.WaitFor(QStringLiteral("list open"));
  }
  /// Marks the item that has the numbers spoken.
  void Speak() {
    Keys({QStringLiteral("alt+a"), QStringLiteral("p")});
    program_.WaitFor(QStringLiteral("picked mnuaud"));
  }
  /// All numbers written by now, a blank between them.
  std::string Written() {
    QStringList numbers = program_.Lines().filter(QStringLiteral("number written "));
    for (QString& number : numbers) number = number.section(u' ', 2);
    return numbers.join(u' ').toStdString();
  }
  std::string NextResult() { return Next("result "); }
  std::string NextMessage() { return Next("message "); }
  std::string Next(const char* what) {
    const QString beginning = QString::fromLatin1(what);
    return program_.WaitFor(beginning).mid(beginning.size()).toStdString();
  }

  /// The point in the line that begins so.
  QPoint PointOf(const char* what) {
    const QStringList words =
        program_.Lines().filter(QString::fromLatin1(what)).first().split(u' ');
    return {words[words.size() - 2].toInt(), words.last().toInt()};
  }

  /// The box around all that is red on the screen below the tiles, from the sheet's corner.
  QRect RedInk() {
    const QImage screen = desktop_.Screenshot();
    const QPoint sheet = PointOf("sheet ");
    QRect box;
    for (int y = sheet.y() + 250; y < screen.height(); ++y) {
      for (int x = sheet.x(); x < screen.width(); ++x) {
        if (screen.pixel(x, y) == qRgb(255, 0, 0)) box |= QRect(x, y, 1, 1);
      }
    }
    return box.translated(-sheet);
  }

  const Desktop& desktop() const { return desktop_; }
  Program& program() { return program_; }

 private:
  Desktop desktop_;
  Program program_;
};

/// With the pen as slow as it is at first: a key goes up long before its number is written.
class MathsByASlowPen : public MathsAtTheKeyboard {
 protected:
  MathsByASlowPen() : MathsAtTheKeyboard({QStringLiteral("0.01")}) {}
};

/// Where a tile's ink lies, from the sheet's corner, in pixels.
QRect InkOf(int tile) {
  constexpr double kPenRadius = 5;
  Recorder strokes(1);
  WriteWholeTile(*FindLetterSet("mat"), tile, {}, strokes);
  QRectF ink;
  for (const Dot& dot : strokes.dots) {
    ink |= QRectF(double{dot.x} - kPenRadius, double{dot.y} - kPenRadius, 2 * kPenRadius,
                  2 * kPenRadius);
  }
  return ink.toAlignedRect();
}

TEST_F(MathsAtTheKeyboard, AllDrillsOneAfterTheOther) {
  Begin("mnuadd", "a");
  Compute("12", "30");
  EXPECT_EQ(NextResult(), "42");
  Begin("mnuadd", "a");

  // The S is that of ShowTables too, which stands above it: the arrow keys get there.
  Begin("mnusub");
  Compute("12", "30");
  EXPECT_EQ(NextResult(), "-18");
  Begin("mnusub");

  Begin("mnumul", "m");
  Compute("12", "30");
  EXPECT_EQ(NextResult(), "360");
  Begin("mnumul", "m");

  Begin("mnudiv", "d");
  Compute("7", "2");
  EXPECT_EQ(NextResult(), "3.5");
  Begin("mnudiv", "d");

  Begin("mnuper", "p");
  Compute("50", "200");
  EXPECT_EQ(NextResult(), "100");
}

TEST_F(MathsAtTheKeyboard, MessagesAreReadAndTheDrillGoesOn) {
  Begin("mnudiv", "d");
  Compute("5", "0");
  EXPECT_EQ(NextMessage(), "Infinity");
  desktop().Key(QStringLiteral("Return"));
  program().WaitFor(QStringLiteral("cursor picequal"));
  desktop().Key(QStringLiteral("shift+Tab"));
  Type("abc");
  Keys({QStringLiteral("Tab"), QStringLiteral("space")});
  EXPECT_EQ(NextMessage(), "Enter Number");
  desktop().Key(QStringLiteral("Return"));
  EXPECT_EQ(NextMessage(), "Infinity");  // 5 by 0, which stands for the text
  desktop().Key(QStringLiteral("Return"));
  program().WaitFor(QStringLiteral("cursor picequal"));
  desktop().Key(QStringLiteral("shift+Tab"));
  Type("4");
  Keys({QStringLiteral("Tab"), QStringLiteral("Return")});
  EXPECT_EQ(NextResult(), "1.25");
}

TEST_F(MathsAtTheKeyboard, ATable) {
  GoTo("mnutable");
  desktop().Key(QStringLiteral("Right"));
  program().WaitFor(QStringLiteral("at mnutbl"));
  desktop().Key(QStringLiteral("Return"));
  program().WaitFor(QStringLiteral("picked mnutbl"));
  Type("7");
  Keys({QStringLiteral("Tab"), QStringLiteral("Return")});
  const std::string table = NextResult();
  EXPECT_TRUE(table.starts_with("7 X 1 = 7|7 X 2 = 14|")) << table;
  EXPECT_TRUE(table.ends_with("|7 X 20 = 140|")) << table;
}

TEST_F(MathsByASlowPen, ANumberPickedFromTheOpenListRunsOnce) {
  desktop().Click(PointOf("number box "));
  for (const char* pick : {"Return", "KP_Enter"}) {
    OpenList();
    Keys({QStringLiteral("Down"), QString::fromLatin1(pick)});
    program().WaitFor(QStringLiteral("number written"));
  }
  // Keys come in order: what a pick left waiting runs before this one.
  Type("9");
  desktop().Key(QStringLiteral("Return"));
  program().WaitFor(QStringLiteral("number written 29"));
  EXPECT_EQ(Written(), "1 2 29");
}

TEST_F(MathsByASlowPen, ANumberPickedFromTheOpenListIsSpokenOnce) {
  Speak();
  desktop().Click(PointOf("number box "));
  OpenList();
  Keys({QStringLiteral("Down"), QStringLiteral("Return")});
  EXPECT_NE(NextMessage().find("Not Found"), std::string::npos);  // as nothing lies on the drive
  desktop().Key(QStringLiteral("Return"));
  program().WaitFor(QStringLiteral("number written"));
  Type("9");
  desktop().Key(QStringLiteral("Return"));
  EXPECT_NE(NextMessage().find("mat-19"), std::string::npos);
  desktop().Key(QStringLiteral("Return"));
  program().WaitFor(QStringLiteral("number written"));
  EXPECT_EQ(Written(), "1 19");
}

TEST_F(MathsByASlowPen, AnArrowKeyThatIsHeldPicksOneNumber) {
  desktop().Click(PointOf("number box "));
  desktop().Xdotool({QStringLiteral("keydown"), QStringLiteral("Down")});
  for (int times = 0; times < 5; ++times) program().WaitFor(QStringLiteral("key repeated"));
  desktop().Xdotool({QStringLiteral("keyup"), QStringLiteral("Down")});
  Type("7");
  desktop().Key(QStringLiteral("Return"));
  program().WaitFor(QStringLiteral("number written 07"));
  EXPECT_EQ(Written(), "0 07");
}

TEST_F(MathsAtTheKeyboard, TypedFifteenShowsTheFiveAlone) {
  desktop().Click(PointOf("number box "));
  Type("15");
  desktop().Key(QStringLiteral("Return"));
  // The drive is empty, so each sound that is asked for shows a message.
  program().WaitFor(QStringLiteral("number written"));
  const QRect five = InkOf(5);
  QRect seen;
  for (int looks = 0; looks < 200 && (seen.isEmpty() || seen.height() < 100); ++looks) {
    seen = RedInk();
  }
  constexpr int kSoftRim = 2;
  EXPECT_TRUE(five.contains(seen)) << seen.left() << " to " << seen.right();
  EXPECT_TRUE(seen.adjusted(-kSoftRim, -kSoftRim, kSoftRim, kSoftRim).contains(five));
  EXPECT_FALSE(program().HasPrinted(QStringLiteral("message")));
}

}  // namespace
}  // namespace bramlee
