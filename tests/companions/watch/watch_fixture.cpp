#include "tests/companions/watch/watch_fixture.h"

#include <QTest>

#include "board/companions.h"
#include "companions/watch/watch.h"
#include "maths/maths.h"
#include "ui/held_input.h"

namespace bramlee {
namespace {

bool withCompanions = true;

void AddWatchingIfWanted(Board& board) {
  if (withCompanions) AddWatching(board);
}

QImage PictureOf(const Ink& ink, const Board& board) {
  return ink.Picture(board.sheet().rect(), 1, ColourOf(board.record().backColor));
}

}  // namespace

void WatchTest::SetUp() {
  BoardTest::SetUp();
  RegisterMaths();
  withCompanions = true;
  static const bool added = [] {
    AddCompanion(AddWatchingIfWanted);
    return true;
  }();
  EXPECT_TRUE(added);
}

/// What is still held would wait into the next test.
void WatchTest::TearDown() {
  bool free = false;
  WhenFree(qApp, [&free] { free = true; });
  EXPECT_TRUE(QTest::qWaitFor([&free] { return free; }));
  BoardTest::TearDown();
}

void WatchTest::LeaveCompanionsOut() {
  withCompanions = false;
}

namespace {

Board& Seen(Board& board) {
  board.SetText(Q("txtspd"), Q(kSlow));
  board.show();
  board.resize(1366, 768);
  board.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&board));
  return board;
}

}  // namespace

Board& WatchTest::Show(const char* form) {
  return Seen(Open(form));
}

Board& WatchTest::Show(const BoardRecord& record) {
  return Seen(Open(record));
}

void WatchTest::AtFrames(Board& board, std::vector<Act> acts) {
  board.pen().SetFrameCall([acts = std::move(acts), next = std::size_t{0}]() mutable {
    if (next < acts.size()) acts[next++]();
  });
}

WatchTest::Act WatchTest::User(const Act& act) {
  return
      [act] { QMetaObject::invokeMethod(QCoreApplication::instance(), act, Qt::QueuedConnection); };
}

QToolButton* WatchTest::Button(const Board& board, const char* name) {
  return board.Named<QToolButton>(Q(name));
}

QSlider* WatchTest::Slider(const Board& board) {
  return board.Named<QSlider>(Q("strip_speed"));
}

WatchTest::Act WatchTest::Press(const Board& board, const char* button) {
  return [pressed = Button(board, button)] { pressed->click(); };
}

WatchTest::Act WatchTest::Key(const Board& board, Qt::Key key) {
  return User([&board, key] { QTest::keyClick(board.windowHandle(), key); });
}

void WatchTest::ClickTile(const Board& board, int tile) {
  const PictureBox* picture = board.Tile(tile);
  QTest::mouseClick(board.windowHandle(), Qt::LeftButton, {},
                    picture->mapTo(&board, picture->rect().center()));
}

QImage WatchTest::Picture(const Board& board) {
  return PictureOf(board.sheet().Dots(), board);
}

QImage WatchTest::PlainPicture(Board& board) {
  Ink ink;
  Player(board.pen().Letters(), ink).RunToEnd();
  return PictureOf(ink, board);
}

}  // namespace bramlee
