// Where a routine that fails says so: the tags that boards and charts log.
#include "files/trap.h"
#include "tests/board/board_fixture.h"
#include "tests/files/trap_log.h"
#include "tests/ui/failing_event.h"

namespace bramlee {
namespace {

class BoardTags : public BoardTest {
 protected:
  /// The tags logged over that routine.
  template <class Routine>
  static QStringList TagsOf(Routine routine) {
    const TrapLog log;
    routine();
    return TrapLog::Tags();
  }
  /// The same where whatever it marks cannot be marked.
  template <class Routine>
  static QStringList TagsWithoutMarks(Routine routine) {
    const FailingEvent noMark("", QEvent::ActionChanged);
    return TagsOf(routine);
  }
};

[[noreturn]] void Fail() {
  throw TrappedError(Q("this part fails"));
}

/// A board whose own parts all fail but for its layout.
BoardRecord FailingRecord() {
  BoardRecord record = kCapitalsBoard;
  record.showTiles = [](Board&) { Fail(); };
  record.prepare = [](Board&, StrokeRec&) { Fail(); };
  record.drawAll = [](Board&) { Fail(); };
  record.speed = [](Board&, int) { Fail(); };
  return record;
}

TEST_F(BoardTags, OfItsLoadAndItsWipe) {
  BoardRecord record = kCapitalsBoard;
  record.layOut = [](Board&) { Fail(); };
  Board* board = nullptr;
  EXPECT_EQ(TagsOf([&] { board = &Open(record); }), Tags({"brd:01"}));
  EXPECT_EQ(TagsOf([&] { board->mnuclear1_Click(); }).first(), Q("brd:06"));  // then its report's
}

TEST_F(BoardTags, OfItsMenus) {
  SKIP_WHERE_LEAKS_COUNT();
  Board& board = Open(FailingRecord());
  EXPECT_EQ(TagsOf([&] { board.mnugcolor_Click(99); }), Tags({"brd:02"}));
  EXPECT_EQ(TagsOf([&] { board.mnucolor_Click(99); }), Tags({"brd:03"}));
  EXPECT_EQ(TagsOf([&] { board.mnuspd_Click(1); }), Tags({"brd:04"}));
  EXPECT_EQ(TagsWithoutMarks([&] { board.mnuaud_Click(); }), Tags({"brd:05"}));
  EXPECT_EQ(TagsWithoutMarks([&] { board.mnugrid_Click(); }), Tags({"brd:07"}));
  EXPECT_EQ(TagsWithoutMarks([&] { board.mnurulled_Click(1); }), Tags({"brd:08"}));
  EXPECT_EQ(TagsOf([&] { board.mnudrawalt_Click(); }), Tags({"brd:10"}));
  EXPECT_EQ(TagsOf([&] { board.mnudall_Click(); }), Tags({"brd:11"}));
}

TEST_F(BoardTags, OfItsTiles) {
  EXPECT_EQ(TagsOf([board = &Open(FailingRecord())] { board->pic_Click(1); }), Tags({"brd:09"}));
  UnloadAll();
  BoardRecord record = kCapitalsBoard;
  record.program = [](const Board&, const StrokeRec&) -> WriteLetter { Fail(); };
  // Nothing is to be brought into view, and then nothing written.
  EXPECT_EQ(TagsOf([board = &Open(record)] { board->pic_Click(1); }), Tags({"brd:12", "brd:09"}));
}

TEST_F(BoardTags, OfTheHindiSets) {
  SKIP_WHERE_LEAKS_COUNT();
  Board& board = Open("fbrmhinc01");
  QObject::connect(board.Named<QLineEdit>(Q("txtsetno")), &QLineEdit::textChanged, [] { Fail(); });
  EXPECT_EQ(TagsOf([&] { Q_EMIT board.Named<PictureBox>(Q("pic1(2)"))->clicked(); }),
            Tags({"brd:20"}));
}

TEST_F(BoardTags, OfTheCharts) {
  SKIP_WHERE_LEAKS_COUNT();
  const FailingEvent noPicture("pic(1)", QEvent::ShowToParent);
  EXPECT_EQ(TagsOf([] { LoadForm(Q("fbrmhinv00")); }), Tags({"brd:30"}));
  RegisterForm(Q("fbrmhinv01"), []() -> Form* { Fail(); });
  const Form* chart = LoadedForm(Q("fbrmhinv00"));
  EXPECT_EQ(TagsOf([&] { Q_EMIT chart->Named<PictureBox>(Q("pic(1)"))->clicked(); }),
            Tags({"brd:31"}));
}

}  // namespace
}  // namespace bramlee
