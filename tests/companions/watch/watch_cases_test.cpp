// A hand on the pen at awkward moments.
#include <QTest>

#include "tests/board/scarce_memory.h"
#include "tests/companions/watch/watch_fixture.h"

namespace bramlee {
namespace {

class WatchCases : public WatchTest {
 protected:
  /// Has the pen pause every few frames for some frames. `paused`, if given, runs in each pause.
  static void PauseOften(Board& board, const Act& paused = {}) {
    board.pen().SetFrameCall([&board, paused, frame = 0]() mutable {
      if (++frame % 5 != 0) return;
      if (board.pen().IsPaused() && paused) paused();
      Button(board, "strip_pause")->click();
    });
  }

  /// What stands when `work` is done on a new board of that name, once with pauses and once without
  /// a hand.
  void ExpectTheSameWithPauses(const char* form, const std::function<void(Board&)>& work) {
    QImage pictures[2];
    int pauses = 0;
    for (const bool often : {false, true}) {
      Board& board = Show(form);
      if (often) PauseOften(board, [&] { ++pauses; });
      work(board);
      pictures[often ? 1 : 0] = Picture(board);
      UnloadForm(&board);
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    EXPECT_EQ(pictures[1], pictures[0]) << form;
    EXPECT_GE(pauses, 2) << form;
  }
};

TEST_F(WatchCases, PausesInATypedNumberOfSeveralDigits) {
  ExpectTheSameWithPauses("fbrmmat01", [](Board& board) {
    auto* number = board.Named<Combo>(Q("cmb(0)"))->lineEdit();
    number->setFocus();
    number->selectAll();
    QTest::keyClicks(number, Q("207"));
    QTest::keyClick(number, Qt::Key_Return);
    EXPECT_EQ(board.pen().Letters().Letters().size(), 3U);
    EXPECT_EQ(board.Named<QComboBox>(Q("cmb(0)"))->currentText(), Q("207"));
  });
}

TEST_F(WatchCases, PausesBySpaceInTheTextBoxThatHasTheFocus) {
  Board& board = Show("fbrmmat01");
  auto* number = board.Named<Combo>(Q("cmb(0)"))->lineEdit();
  number->setFocus();
  number->selectAll();
  bool paused = false;
  AtFrames(board, {Key(board, Qt::Key_Space), [&] { paused = board.pen().IsPaused(); },
                   Key(board, Qt::Key_Space)});
  QTest::keyClicks(number, Q("12"));
  QTest::keyClick(number, Qt::Key_Return);
  EXPECT_TRUE(paused);
  QCoreApplication::processEvents();
  EXPECT_EQ(number->text(), Q("12"));
}

TEST_F(WatchCases, PausesInTheAlternativeForms) {
  for (const char* form : {"fbrmhinv01", "fbrmhinc01", "fbrmmat01"}) {
    ExpectTheSameWithPauses(form, [](Board& board) {
      Pick(board, "mnudrawalt");
      board.SetText(Q("txtspd"), Q(kSlow));
      for (const int tile : {2, 3}) board.pic_Click(tile);
    });
  }
}

TEST_F(WatchCases, PausesInAGroupStartsWipe) {
  ExpectTheSameWithPauses("fbrmtelv01", [](Board& board) {
    board.pic_Click(2);
    Pick(board, "mnugrid");
    Pick(board, "mnurulled(2)");
    board.pic_Click(1);  // wipes; grid, rule and letter are written, with pauses in each
    EXPECT_EQ(board.pen().Letters().Letters().size(), 3U);
  });
}

TEST_F(WatchCases, StepsInAGroupStartsWipeTakeNothingAway) {
  Board& board = Show("fbrmengc02");
  Pick(board, "mnugrid");
  int steps = 0;
  board.pen().SetFrameCall([&] {
    if (board.pen().LastLetter() == 0 || ++steps > 3) return;
    EXPECT_FALSE(Button(board, "strip_back")->isEnabled());
    const std::size_t dots = Dots(board);
    EXPECT_FALSE(board.pen().StrokeBack());
    EXPECT_EQ(Dots(board), dots);
    Button(board, "strip_pause")->click();
  });
  board.pic_Click(1);
  EXPECT_GE(steps, 3);
  EXPECT_EQ(Picture(board), PlainPicture(board));
}

TEST_F(WatchCases, FoldsAndIsResizedInAPause) {
  Board& board = Show("fbrmengc02");
  std::size_t dots = 0;
  QImage seen;
  AtFrames(board, {[] {}, Press(board, "strip_pause"),
                   [&] {
                     dots = Dots(board);
                     seen = board.sheet().grab(QRect(0, 0, 500, 400)).toImage();
                   },
                   Press(board, "strip_fold"), [&] { board.resize(700, 500); },
                   [&] { board.resize(1900, 1000); },
                   [&] {
                     EXPECT_EQ(Dots(board), dots);
                     EXPECT_EQ(board.sheet().grab(QRect(0, 0, 500, 400)).toImage(), seen);
                     EXPECT_FALSE(Button(board, "strip_back")->isVisible());
                   },
                   Press(board, "strip_fold"), Press(board, "strip_pause")});
  board.pic_Click(2);
  EXPECT_TRUE(Button(board, "strip_back")->isVisible());
  EXPECT_EQ(Picture(board), PlainPicture(board));
}

TEST_F(WatchCases, StepsBackOnAnEmptySheetDoNothing) {
  Board& board = Show("fbrmengc02");
  const auto stepBack = [&] {
    Button(board, "strip_back")->setFocus();
    QTest::keyClick(&board.strip(), Qt::Key_Left);  // whether its button is enabled or not
    EXPECT_FALSE(board.pen().IsPaused());
    EXPECT_EQ(Dots(board), 0U);
  };
  stepBack();
  board.pic_Click(2);
  Pick(board, "mnuclear1");
  stepBack();
  QTest::keyClick(&board.strip(), Qt::Key_R);
  EXPECT_EQ(Dots(board), 0U);
  // The next letter is written as ever.
  board.pic_Click(3);
  EXPECT_EQ(Picture(board), PlainPicture(board));
}

TEST_F(WatchCases, StepsBackWhereTheGridWasDrawnOverALetterTakeTheLettersDotsAlone) {
  Board& board = Show("fbrmengc02");
  board.pic_Click(2);
  Press(board, "strip_back")();
  Pick(board, "mnugrid");  // over a letter that is less a stroke
  const QImage wanted = Picture(board);
  Pick(board, "mnuclear1");
  Pick(board, "mnugrid");
  board.pic_Click(2);
  Pick(board, "mnugrid");
  Pick(board, "mnugrid");
  Press(board, "strip_back")();
  EXPECT_EQ(Picture(board), wanted);
  Press(board, "strip_pause")();
  EXPECT_EQ(Picture(board), PlainPicture(board));
}

TEST_F(WatchCases, ALetterOnWhichAGridWasDrawnInAPauseGoesOn) {
  Board& board = Show("fbrmengc02");
  board.pic_Click(2);
  Press(board, "strip_back")();
  Pick(board, "mnugrid");
  EXPECT_TRUE(board.pen().IsPaused());
  EXPECT_EQ(ColourAt(board, 500, 50), kBlue);
  Press(board, "strip_pause")();
  EXPECT_FALSE(board.pen().IsPaused());
  EXPECT_EQ(Picture(board), PlainPicture(board));
}

TEST_F(WatchCases, StepsBackKeepTheColourThatWasChosenSince) {
  Board& board = Show("fbrmengc02");
  board.pic_Click(2);
  const QImage whole = Picture(board);
  Pick(board, "mnucolor(2)");
  const ColourWord chosen = board.sheet().ForeColor();
  Press(board, "strip_back")();
  EXPECT_EQ(board.sheet().ForeColor(), chosen);
  EXPECT_EQ(board.sheet().Dots().Colour(), chosen);
  Press(board, "strip_pause")();
  EXPECT_EQ(Picture(board), whole);  // the letter has the colour that it was begun with
  Press(board, "strip_again")();
  EXPECT_EQ(Picture(board), whole);
  board.pic_Click(3);
  EXPECT_EQ(board.pen().Letters().Letters()[1].colour, chosen);
}

/// What the journal asks for when it has 1024 dots and one more comes.
constexpr std::size_t kFor2048Dots = 16000;

TEST_F(WatchCases, ALetterWithoutMemoryEndsAndTheStripKnows) {
  Board& board = Show("fbrmengc02");
  {
    const ScarceMemory memory(kFor2048Dots);
    EXPECT_NO_THROW(board.pic_Click(2));
    EXPECT_GE(memory.Refused(), 1);
  }
  EXPECT_GT(Dots(board), 0U);
  for (const char* name : {"strip_back", "strip_pause", "strip_on", "strip_again"}) {
    EXPECT_FALSE(Button(board, name)->isEnabled()) << name;
  }
  EXPECT_EQ(Button(board, "strip_pause")->accessibleName(), Q("Pause"));
  EXPECT_TRUE(boxes.isEmpty());
  Pick(board, "mnuclear1");
  board.pic_Click(2);
  EXPECT_EQ(Picture(board), PlainPicture(board));
}

TEST_F(WatchCases, AnotherBoardsHandLeavesAPauseAlone) {
  Board& other = Show("fbrmtelv01");
  other.pic_Click(2);
  Board& board = Show("fbrmengc02");
  std::size_t dots = 0;
  AtFrames(board, {[] {}, Press(board, "strip_pause"), [&] { dots = Dots(board); },
                   Press(other, "strip_back"), Press(other, "strip_pause"),
                   [&] {
                     EXPECT_EQ(Dots(board), dots);
                     EXPECT_TRUE(board.pen().IsPaused());
                   },
                   Press(board, "strip_pause")});
  board.pic_Click(2);
  EXPECT_FALSE(other.pen().IsPaused());
  EXPECT_EQ(Picture(other), PlainPicture(other));
  EXPECT_EQ(Picture(board), PlainPicture(board));
}

}  // namespace
}  // namespace bramlee
