// Random things that a hand does during Draw All: the same dots stand in the end.
#include <random>

#include "tests/companions/watch/watch_fixture.h"

namespace bramlee {
namespace {

class RandomHand : public WatchTest {
 protected:
  static constexpr unsigned kSeed = 1;

  /// A board whose letters all come on one sheet, over a grid: each lies over others.
  static BoardRecord OneSheet(BoardRecord record) {
    record.groupStarts = {};
    return record;
  }

  static void ActAtRandom(Board& board, std::mt19937& random) {
    const auto below = [&random](int count) {
      return static_cast<int>(random() % static_cast<unsigned>(count));
    };
    switch (below(8)) {
      case 0:
      case 1:
        return Button(board, "strip_pause")->click();
      case 2:
        return Button(board, "strip_back")->click();
      case 3:
      case 4:
        return Button(board, "strip_on")->click();
      case 5:
        return below(10) == 0 ? Button(board, "strip_again")->click() : void();
      case 6:
        return Slider(board)->setValue(below(61) - 30);
      default:
        return below(4) == 0 ? Button(board, "strip_fold")->click() : void();
    }
  }

  /// Draws all with so many of the hand's actions, one a frame; returns how many letters they came
  /// in.
  static std::size_t DrawAll(Board& board, int actionsInAll, unsigned seed) {
    std::mt19937 random(seed);
    std::size_t lettersAtLast = 0;
    int actions = 0;
    board.pen().SetFrameCall([&] {
      if (actions++ < actionsInAll) {
        ActAtRandom(board, random);
        lettersAtLast = board.pen().Letters().Letters().size();
      } else if (board.pen().IsPaused()) {
        board.pen().GoOn();
      }
    });
    Pick(board, "mnudall");
    EXPECT_GT(actions, actionsInAll);
    return lettersAtLast;
  }

  /// Draws all by itself and with that many actions.
  void ExpectTheSameDots(const BoardRecord& record, int actions) {
    Board& board = Open(OneSheet(record));  // unseen: nothing is painted
    board.SetText(Q("txtspd"), Q(kSlow));
    Pick(board, "mnugrid");
    Pick(board, "mnudall");
    const QImage wanted = Picture(board);
    const std::size_t dots = Dots(board);
    Pick(board, "mnuclear1");
    Pick(board, "mnugrid");
    Pick(board, "mnugrid");
    EXPECT_GE(DrawAll(board, actions, kSeed), 3U) << record.form;
    EXPECT_EQ(Picture(board), wanted) << record.form;
    EXPECT_EQ(Dots(board), dots) << record.form;
    UnloadForm(&board);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
};

TEST_F(RandomHand, LeavesTheSameDotsInDrawAll) {
  ExpectTheSameDots(kCapitalsBoard, 300);
}

TEST_F(RandomHand, SweepOfAThousandActionsOnTwoBoards) {
  for (const BoardRecord* record : {&kCapitalsBoard, &kTeluguVowelsBoard}) {
    ExpectTheSameDots(*record, 1000);
  }
}

}  // namespace
}  // namespace bramlee
