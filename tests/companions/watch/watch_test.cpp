// A teacher's hand on the pen, by the strip's buttons and keys.
#include "companions/watch/watch.h"

#include <QTest>

#include "tests/companions/watch/watch_fixture.h"

namespace bramlee {
namespace {

std::vector<int> TilesWritten(Board& board) {
  std::vector<int> tiles;
  for (const PlacedLetter& placed : board.pen().Letters().Letters()) {
    tiles.push_back(placed.letter.Id().tile);
  }
  return tiles;
}

TEST_F(WatchTest, PausesWithinAFrameAndGoesOnAtTheNextDot) {
  Board& board = Show("fbrmengc02");
  std::vector<std::size_t> dots;
  const auto look = [&] { dots.push_back(Dots(board)); };
  AtFrames(board, {[] {}, Press(board, "strip_pause"), look, look, look,
                   Press(board, "strip_pause"), look});
  board.pic_Click(2);
  ASSERT_EQ(dots.size(), 4U);
  EXPECT_EQ(dots[0], dots[1]);
  EXPECT_EQ(dots[0], dots[2]);
  EXPECT_GT(dots[3], dots[2]);
  EXPECT_EQ(Picture(board), PlainPicture(board));
}

TEST_F(WatchTest, SaysPauseOrGoOnAndLooksSo) {
  Board& board = Show("fbrmengc02");
  const QToolButton* pause = Button(board, "strip_pause");
  const auto picture = [pause] { return pause->icon().pixmap(36, 36).toImage(); };
  const QImage bars = picture();
  QImage triangle;
  AtFrames(board,
           {Press(board, "strip_pause"),
            [&] {
              EXPECT_EQ(pause->accessibleName(), Q("Go on"));
              EXPECT_EQ(pause->toolTip(), Q("Go on (Space)"));
              triangle = picture();
            },
            Press(board, "strip_pause"), [&] { EXPECT_EQ(pause->accessibleName(), Q("Pause")); }});
  board.pic_Click(2);
  EXPECT_NE(triangle, bars);
  EXPECT_EQ(picture(), bars);
}

TEST_F(WatchTest, PausesInDrawAllAnywhere) {
  BoardRecord record = kCapitalsBoard;
  record.groupStarts = {};  // all letters on one sheet
  Board& board = Show(record);
  std::vector<int> pausedIn;
  board.pen().SetFrameCall([&, frame = 0, paused = 0]() mutable {
    if (board.pen().IsPaused()) {
      if (++paused % 3 == 0) Button(board, "strip_pause")->click();
    } else if (++frame % 40 == 0) {
      pausedIn.push_back(static_cast<int>(board.pen().Letters().Letters().size()));
      Button(board, "strip_pause")->click();
    }
  });
  Pick(board, "mnudall");
  EXPECT_GT(pausedIn.size(), 10U);
  EXPECT_EQ(board.pen().Letters().Letters().size(), 26U);
  EXPECT_EQ(Picture(board), PlainPicture(board));
}

TEST_F(WatchTest, PausesAndGoesOnBySpaceWhateverHasTheFocus) {
  Board& board = Show("fbrmengc02");
  board.Tile(2)->setFocus();
  int paused = 0;
  const auto look = [&] { paused += board.pen().IsPaused() ? 1 : 0; };
  AtFrames(board, {Key(board, Qt::Key_Space), look, look, Key(board, Qt::Key_Space),
                   [&] { EXPECT_FALSE(board.pen().IsPaused()); }});
  board.pic_Click(2);
  EXPECT_EQ(paused, 2);
  QCoreApplication::processEvents();
  EXPECT_EQ(TilesWritten(board), std::vector<int>{2});  // and presses no tile afterwards
}

TEST_F(WatchTest, StepsByTheArrowKeysWhileALetterIsWritten) {
  Board& board = Show("fbrmengc02");
  board.Tile(2)->setFocus();
  std::vector<Player::Where> where;
  const auto look = [&] {
    EXPECT_TRUE(board.pen().IsPaused());
    where.push_back(board.pen().Stands());
  };
  AtFrames(board, {[] {}, Key(board, Qt::Key_Left), look, Key(board, Qt::Key_Right),
                   [&] { EXPECT_FALSE(board.pen().IsPaused()); }});
  board.pen().SetFrameCall([&, frame = 0]() mutable {
    switch (++frame) {
      case 3:
        return Key(board, Qt::Key_Left)();
      case 4:
        look();
        return Key(board, Qt::Key_Right)();
      default:
        if (frame < 4 || !board.pen().IsPaused()) return;
        look();
        if (where.size() == 2) return Key(board, Qt::Key_Left)();
        if (where.size() == 3) return Button(board, "strip_pause")->click();
    }
  });
  board.pic_Click(2);
  EXPECT_EQ(where, (std::vector<Player::Where>{
                       {.letter = 0, .stroke = 0, .begun = false},
                       {.letter = 0, .stroke = 1, .begun = false},
                       {.letter = 0, .stroke = 0, .begun = false}
  }));
  EXPECT_EQ(Picture(board), PlainPicture(board));
  EXPECT_EQ(QApplication::focusWidget(), board.Tile(2));
}

TEST_F(WatchTest, IgnoresAHeldKeysRepeats) {
  Board& board = Show("fbrmengc02");
  bool paused = false;
  AtFrames(board, {User([&] {
                     const auto key = [&](QEvent::Type type, bool repeat) {
                       QKeyEvent event(type, Qt::Key_Space, Qt::NoModifier, Q(" "), repeat);
                       QCoreApplication::sendEvent(board.windowHandle(), &event);
                     };
                     key(QEvent::KeyPress, false);
                     for (int i = 0; i < 3; ++i) key(QEvent::KeyPress, true);
                     key(QEvent::KeyRelease, false);
                   }),
                   [&] { paused = board.pen().IsPaused(); }, Press(board, "strip_pause")});
  board.pic_Click(2);
  EXPECT_TRUE(paused);
}

TEST_F(WatchTest, StepsBackAndOnAfterTheLetterStands) {
  Board& board = Show("fbrmengc02");
  board.pic_Click(2);
  const std::size_t strokes = board.pen().Letters().Letters()[0].letter.PenStrokes().size();
  ASSERT_GE(strokes, 2U);
  const std::size_t whole = Dots(board);
  std::size_t before = whole;
  for (std::size_t i = 0; i < strokes; ++i) {
    Press(board, "strip_back")();
    EXPECT_LT(Dots(board), before);
    before = Dots(board);
  }
  EXPECT_EQ(Dots(board), 0U);
  EXPECT_FALSE(Button(board, "strip_back")->isEnabled());
  Press(board, "strip_on")();
  EXPECT_GT(Dots(board), 0U);
  EXPECT_TRUE(board.pen().IsPaused());
  Press(board, "strip_pause")();
  EXPECT_EQ(Dots(board), whole);
  EXPECT_EQ(Picture(board), PlainPicture(board));
}

TEST_F(WatchTest, EnablesWhatThereIsToDo) {
  Board& board = Show("fbrmengc02");
  const auto enabled = [&] {
    std::string names;
    for (const char* name : {"strip_back", "strip_pause", "strip_on", "strip_again"}) {
      if (Button(board, name)->isEnabled()) names += std::string(name + 6) + " ";
    }
    return names;
  };
  EXPECT_EQ(enabled(), "");
  AtFrames(board, {[] {}, [&] { EXPECT_EQ(enabled(), "back pause on again "); }});
  board.pic_Click(2);
  EXPECT_EQ(enabled(), "back again ");
  Press(board, "strip_back")();
  EXPECT_EQ(enabled(), "back pause on again ");
  while (Button(board, "strip_back")->isEnabled()) Press(board, "strip_back")();
  EXPECT_EQ(enabled(), "pause on again ");
  Press(board, "strip_pause")();
  EXPECT_EQ(enabled(), "back again ");
  Pick(board, "mnuclear1");
  EXPECT_EQ(enabled(), "");
}

/// A board that notes the sounds it asks for.
BoardRecord Speaking(std::vector<int>& spoken) {
  static std::vector<int>* heard;
  heard = &spoken;
  BoardRecord record = kCapitalsBoard;
  record.cue = [](Board& board, const StrokeRec& rec) {
    if (board.Checked(Q("mnuaud"))) heard->push_back(rec.LetterNo);
  };
  return record;
}

TEST_F(WatchTest, WritesTheLastLetterAgainWithItsSoundIfPlayIsOn) {
  std::vector<int> spoken;
  Board& board = Show(Speaking(spoken));
  board.pic_Click(2);
  board.pic_Click(3);
  const QImage both = Picture(board);
  Press(board, "strip_again")();
  EXPECT_EQ(spoken, std::vector<int>{});
  EXPECT_EQ(Picture(board), both);
  Pick(board, "mnuaud");
  Press(board, "strip_again")();
  EXPECT_EQ(spoken, std::vector<int>{3});
  EXPECT_EQ(Picture(board), both);
  EXPECT_EQ(TilesWritten(board), (std::vector<int>{2, 3}));
}

TEST_F(WatchTest, WritesAgainInALettersMiddleAndAsksForItsSoundOnceMore) {
  std::vector<int> spoken;
  Board& board = Show(Speaking(spoken));
  Pick(board, "mnuaud");
  AtFrames(board, {[] {}, [] {}, [] {}, Press(board, "strip_again"),
                   [&] {
                     EXPECT_EQ(board.pen().Stands(),
                               (Player::Where{.letter = 0, .stroke = 0, .begun = true}));
                   }});
  board.pic_Click(2);
  EXPECT_EQ(spoken, (std::vector<int>{2, 2}));
  EXPECT_EQ(Picture(board), PlainPicture(board));
}

TEST_F(WatchTest, WritesAgainByRWhetherALetterIsWrittenOrNot) {
  Board& board = Show("fbrmengc02");
  board.Tile(2)->setFocus();
  bool fromTheStart = false;
  AtFrames(board, {[] {}, [] {}, Key(board, Qt::Key_R),
                   [&] { fromTheStart = board.pen().Stands().stroke == 0; }});
  board.pic_Click(2);
  EXPECT_TRUE(fromTheStart);
  int frames = 0;
  board.pen().SetFrameCall([&] { ++frames; });
  QTest::keyClick(board.windowHandle(), Qt::Key_R);
  EXPECT_GT(frames, 5);
  EXPECT_EQ(Picture(board), PlainPicture(board));
  EXPECT_EQ(TilesWritten(board), std::vector<int>{2});
}

TEST_F(WatchTest, LeavesAnRThatIsTypedToItsTextBox) {
  Board& board = Show("fbrmmat01");
  board.pic_Click(2);
  const auto* box = board.Named<QComboBox>(Q("cmb(0)"));
  box->lineEdit()->setFocus();
  box->lineEdit()->selectAll();
  int frames = 0;
  board.pen().SetFrameCall([&] { ++frames; });
  QTest::keyClick(board.windowHandle(), Qt::Key_R);
  EXPECT_EQ(box->currentText(), Q("r"));
  EXPECT_EQ(frames, 0);
}

TEST_F(WatchTest, EscEndsAPauseAndThePenHurries) {
  Board& board = Show("fbrmengc02");
  int frames = 0;
  board.pen().SetFrameCall([&] {
    if (++frames == 2) Button(board, "strip_pause")->click();
    if (frames == 4) Key(board, Qt::Key_Escape)();
  });
  board.pic_Click(2);
  EXPECT_EQ(frames, 4);
  EXPECT_EQ(Picture(board), PlainPicture(board));
  QCoreApplication::processEvents();
  EXPECT_FALSE(board.pen().IsPaused());
}

TEST_F(WatchTest, EscHurriesThoughTheStripHasTheFocus) {
  Board& board = Show("fbrmengc02");
  board.pic_Click(3);
  Button(board, "strip_again")->setFocus();
  int frames = 0;
  board.pen().SetFrameCall([&] {
    if (++frames == 2) Button(board, "strip_pause")->click();
    if (frames == 3) Key(board, Qt::Key_Escape)();
    if (frames > 10) board.pen().GoOn();  // it did not; the test is to end
  });
  board.pic_Click(2);
  EXPECT_EQ(frames, 3);
}

TEST_F(WatchTest, EscHurriesTheRestOfDrawAllFromAPause) {
  Board& board = Show("fbrmengc02");
  int frames = 0;
  board.pen().SetFrameCall([&] {
    if (++frames == 50) Button(board, "strip_pause")->click();
    if (frames == 55) Key(board, Qt::Key_Escape)();
  });
  Pick(board, "mnudall");
  EXPECT_EQ(frames, 55);
  EXPECT_EQ(TilesWritten(board), (std::vector<int>{25, 26}));
  EXPECT_EQ(Picture(board), PlainPicture(board));
}

TEST_F(WatchTest, AClosedBoardEndsItsPauseAndGoes) {
  for (const bool afterTheLetter : {false, true}) {
    Board& board = Show("fbrmengc02");
    const auto close = [window = board.windowHandle()] {
      QCloseEvent event;
      QCoreApplication::sendEvent(window, &event);
    };
    if (afterTheLetter) {
      board.pic_Click(2);
      Press(board, "strip_back")();
      close();
    } else {
      AtFrames(board, {Press(board, "strip_pause"), [] {}, User(close)});
      board.pic_Click(2);
      EXPECT_EQ(Picture(board), PlainPicture(board));
    }
    EXPECT_TRUE(QTest::qWaitFor([] { return LoadedForm("fbrmengc02") == nullptr; }));
  }
}

TEST_F(WatchTest, ClicksOnTilesWaitInTheirOrderDuringAPause) {
  Board& board = Show("fbrmengc02");
  AtFrames(board, {Press(board, "strip_pause"), User([&] {
                     ClickTile(board, 4);
                     ClickTile(board, 3);
                   }),
                   [&] { EXPECT_EQ(TilesWritten(board), std::vector<int>{2}); },
                   [&] { EXPECT_EQ(TilesWritten(board), std::vector<int>{2}); },
                   Press(board, "strip_pause")});
  board.pic_Click(2);
  EXPECT_EQ(TilesWritten(board), std::vector<int>{2});
  EXPECT_TRUE(QTest::qWaitFor([&] { return TilesWritten(board).size() == 3; }));
  EXPECT_EQ(TilesWritten(board), (std::vector<int>{2, 4, 3}));
}

TEST_F(WatchTest, ATileThatIsClickedAfterAStepBackIsWrittenAtOnce) {
  Board& board = Show("fbrmengc02");
  board.pic_Click(2);
  Press(board, "strip_back")();
  ClickTile(board, 3);
  EXPECT_EQ(TilesWritten(board), std::vector<int>{3});
  EXPECT_FALSE(board.pen().IsPaused());
}

}  // namespace
}  // namespace bramlee
