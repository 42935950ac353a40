// The strip of a board: what stands on it, how it folds, and that nothing else moves.
#include "board/strip.h"

#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>
#include <map>
#include <memory>

#include "tests/companions/watch/watch_fixture.h"
#include "ui/choices.h"

namespace bramlee {
namespace {

constexpr const char* kBoards[] = {"fbrmengc02", "fbrmengs01", "fbrmhinv01", "fbrmhinc01",
                                   "fbrmtelv01", "fbrmtelc01", "fbrmmat01"};
/// What stands on the strip, from left to right.
constexpr const char* kControls[] = {"strip_back",  "strip_pause", "strip_on",
                                     "strip_again", "strip_speed", "strip_fold"};
constexpr int kMostHeight = 56;
constexpr int kThinEdge = 16;

class StripTest : public WatchTest {
 protected:
  static Strip& StripOf(const Board& board) { return *board.Named<Strip>(Q("strip")); }
  static QWidget* Control(const Board& board, const char* name) {
    return board.Named<QWidget>(Q(name));
  }
  static void Settle() { QCoreApplication::processEvents(); }

  /// Where everything stands on the client, and the menu bar above it.
  static std::map<QString, QRect> Places(const Board& board) {
    std::map<QString, QRect> places;
    for (const QWidget* each : board.sheet().findChildren<QWidget*>()) {
      if (!each->objectName().isEmpty()) places[each->objectName()] = each->geometry();
    }
    const QPoint origin = board.sheet().mapTo(&board, QPoint());
    places[Q("sheet")] = {origin, board.sheet().minimumSize()};
    places[Q("menu bar")] = board.menuBar()->geometry();
    return places;
  }
};

TEST_F(StripTest, StandsOnEveryBoardAlongItsLowerEdge) {
  for (const char* form : kBoards) {
    const Board& board = Show(form);
    const Strip& strip = StripOf(board);
    EXPECT_LE(strip.height(), kMostHeight) << form;
    EXPECT_EQ(strip.width(), board.width()) << form;
    EXPECT_EQ(strip.geometry().bottom(), board.rect().bottom()) << form;
    int left = -1;
    for (const char* name : kControls) {
      const QWidget* control = Control(board, name);
      EXPECT_TRUE(control->isVisible()) << form << " " << name;
      EXPECT_GE(control->height(), kStripButtonPixels) << name;
      EXPECT_GE(control->width(), kStripButtonPixels) << name;
      const int x = control->mapTo(&strip, QPoint()).x();
      EXPECT_GT(x, left) << name;
      left = x;
    }
  }
}

TEST_F(StripTest, MovesNothingOnTheClient) {
  for (const char* form : kBoards) {
    LeaveCompanionsOut();
    Board& without = Show(form);
    EXPECT_EQ(without.findChild<QToolBar*>(), nullptr);
    const auto wanted = Places(without);
    UnloadForm(&without);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    WatchTest::SetUp();
    const Board& with = Show(form);
    ASSERT_NE(with.findChild<Strip*>(), nullptr);
    EXPECT_EQ(Places(with), wanted) << form;
  }
}

TEST_F(StripTest, NamesItsControlsAndSaysTheirKeys) {
  const Board& board = Show("fbrmengc02");
  const struct {
    const char* control;
    const char* name;
    const char* toolTip;
  } kSaid[] = {
      {"strip_back",  "Stroke back",      "Stroke back (Left)"       },
      {"strip_pause", "Pause",            "Pause (Space)"            },
      {"strip_on",    "Stroke on",        "Stroke on (Right)"        },
      {"strip_again", "Again",            "Again (R)"                },
      {"strip_speed", "Speed of the pen", "Speed of the pen: 1 times"},
      {"strip_fold",  "Fold the strip",   "Fold the strip"           },
      {"strip",       "Strip",            ""                         },
  };
  for (const auto& said : kSaid) {
    EXPECT_EQ(Control(board, said.control)->accessibleName(), Q(said.name));
    EXPECT_EQ(Control(board, said.control)->toolTip(), Q(said.toolTip));
  }
}

TEST_F(StripTest, HasAPictureOnEachButtonAndNoTwoAlike) {
  const Board& board = Show("fbrmengc02");
  QList<QImage> pictures;
  for (const char* name : {"strip_back", "strip_pause", "strip_on", "strip_again", "strip_fold"}) {
    const QIcon icon = Button(board, name)->icon();
    for (const double ratio : {1.0, 2.0}) {
      const QSize wanted(kStripPicturePixels, kStripPicturePixels);
      EXPECT_EQ(icon.pixmap(wanted, ratio).size(), wanted * ratio) << name;
    }
    const QImage picture = icon.pixmap(kStripPicturePixels, kStripPicturePixels).toImage();
    EXPECT_FALSE(pictures.contains(picture)) << name;
    pictures.append(picture);
  }
}

TEST_F(StripTest, IsReachedByTabInItsOrder) {
  Board& board = Show("fbrmengc02");
  board.pic_Click(2);  // so that nothing but going on is disabled
  board.pen().StrokeBack();
  Control(board, "strip_back")->setFocus(Qt::TabFocusReason);
  for (const char* name : {"strip_pause", "strip_on", "strip_again", "strip_speed", "strip_fold"}) {
    QTest::keyClick(board.windowHandle(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), Control(board, name)) << name;
  }
  // And from the last tile on.
  board.Tile(26)->setFocus(Qt::TabFocusReason);
  bool reached = false;
  for (int tabs = 0; tabs < 40 && !reached; ++tabs) {
    QTest::keyClick(board.windowHandle(), Qt::Key_Tab);
    reached = QApplication::focusWidget() == Control(board, "strip_back");
  }
  EXPECT_TRUE(reached);
}

TEST_F(StripTest, PressesTheButtonThatHasTheFocusByReturnAndSpace) {
  Board& board = Show("fbrmengc02");
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    board.pic_Click(2);
    const std::size_t whole = Dots(board);
    Control(board, "strip_back")->setFocus(Qt::TabFocusReason);
    QTest::keyClick(board.windowHandle(), key);
    EXPECT_LT(Dots(board), whole) << key;
    Pick(board, "mnuclear1");
  }
}

TEST_F(StripTest, TakesItsArrowKeysAndRWhileItHasTheFocus) {
  Board& board = Show("fbrmengc02");
  board.pic_Click(2);
  const std::size_t whole = Dots(board);
  Control(board, "strip_again")->setFocus(Qt::TabFocusReason);
  QTest::keyClick(board.windowHandle(), Qt::Key_Left);
  const std::size_t less = Dots(board);
  EXPECT_LT(less, whole);
  QTest::keyClick(board.windowHandle(), Qt::Key_Right);
  EXPECT_EQ(Dots(board), whole);
  QTest::keyClick(board.windowHandle(), Qt::Key_Left);
  QTest::keyClick(board.windowHandle(), Qt::Key_R);
  EXPECT_EQ(Dots(board), whole);
}

TEST_F(StripTest, LeavesTheArrowKeysToTheSpeedThatHasTheFocus) {
  Board& board = Show("fbrmengc02");
  board.pic_Click(2);
  const std::size_t whole = Dots(board);
  Slider(board)->setFocus(Qt::TabFocusReason);
  QTest::keyClick(board.windowHandle(), Qt::Key_Left);
  EXPECT_LT(Slider(board)->value(), 0);
  EXPECT_EQ(Dots(board), whole);
  Slider(board)->setValue(0);
  AtFrames(board, {Key(board, Qt::Key_Right), [] {},
                   [&] {
                     EXPECT_GT(Slider(board)->value(), 0);
                     EXPECT_FALSE(board.pen().IsPaused());
                   }});
  board.pic_Click(3);
}

TEST_F(StripTest, LeavesArrowsAndSpaceToTheTilesWhileNothingIsWritten) {
  Board& board = Show("fbrmtelv01");
  board.pic_Click(2);
  const std::size_t whole = Dots(board);
  board.Tile(2)->setFocus(Qt::TabFocusReason);
  QTest::keyClick(board.windowHandle(), Qt::Key_Left);
  EXPECT_EQ(QApplication::focusWidget(), board.Tile(1));
  EXPECT_EQ(Dots(board), whole);
}

TEST_F(StripTest, LeavesTheFocusWhereItIsWhenItIsClicked) {
  Board& board = Show("fbrmengc02");
  board.pic_Click(2);
  board.Tile(2)->setFocus();
  const QWidget* back = Control(board, "strip_back");
  QTest::mouseClick(board.windowHandle(), Qt::LeftButton, {},
                    back->mapTo(&board, back->rect().center()));
  EXPECT_TRUE(board.pen().IsPaused());
  EXPECT_EQ(QApplication::focusWidget(), board.Tile(2));
}

TEST_F(StripTest, FoldsToAThinEdgeThatBringsItBack) {
  const Board& board = Show("fbrmengc02");
  const int client = board.sheet().parentWidget()->height();
  Button(board, "strip_fold")->click();
  EXPECT_TRUE(QTest::qWaitFor([&] { return StripOf(board).height() <= kThinEdge; }));
  EXPECT_GT(StripOf(board).height(), 0);
  EXPECT_GT(board.sheet().parentWidget()->height(), client + 30);
  for (const char* name : kControls) {
    const bool isEdge = Q(name) == Q("strip_fold");
    EXPECT_EQ(Control(board, name)->isVisible(), isEdge) << name;
  }
  const QWidget* edge = Control(board, "strip_fold");
  EXPECT_GT(edge->width(), board.width() * 9 / 10);  // as wide as the board: easy to hit
  EXPECT_EQ(edge->accessibleName(), Q("Show the strip"));
  EXPECT_EQ(edge->toolTip(), Q("Show the strip"));
  QTest::mouseClick(board.windowHandle(), Qt::LeftButton, {},
                    edge->mapTo(&board, edge->rect().center()));
  EXPECT_TRUE(QTest::qWaitFor([&] { return board.sheet().parentWidget()->height() == client; }));
  EXPECT_TRUE(Control(board, "strip_back")->isVisible());
}

TEST_F(StripTest, LastsFoldedAndAllBoardsFollow) {
  const Board& first = Show("fbrmengc02");
  const Board& second = Show("fbrmtelc01");
  Button(first, "strip_fold")->click();
  Settle();
  EXPECT_FALSE(Control(second, "strip_back")->isVisible());
  UnloadAll();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  const Board& later = Show("fbrmhinc01");
  EXPECT_FALSE(Control(later, "strip_back")->isVisible());
  Button(later, "strip_fold")->click();
  Settle();
  EXPECT_TRUE(Control(later, "strip_back")->isVisible());
  EXPECT_FALSE(Choices::Instance().Of(Q("strip/folded"), true).toBool());
}

TEST_F(StripTest, TakesTheKeysOfTheHandThoughItIsFolded) {
  Board& board = Show("fbrmengc02");
  Button(board, "strip_fold")->click();
  bool paused = false;
  AtFrames(board, {Key(board, Qt::Key_Space), [&] { paused = board.pen().IsPaused(); },
                   Key(board, Qt::Key_Space)});
  board.pic_Click(2);
  EXPECT_TRUE(paused);
  EXPECT_EQ(Picture(board), PlainPicture(board));
}

TEST_F(StripTest, IsNotOfferedToBeTakenAway) {
  Board& board = Show("fbrmengc02");
  const std::unique_ptr<QMenu> menu(board.createPopupMenu());
  EXPECT_TRUE(menu == nullptr || menu->isEmpty());
}

TEST_F(StripTest, ScrollsWhereTheWindowIsNarrower) {
  Board& board = Show("fbrmengc02");
  board.pic_Click(2);
  board.resize(260, 400);
  Settle();
  EXPECT_LE(StripOf(board).height(), kMostHeight);
  EXPECT_TRUE(Control(board, "strip_fold")->isVisible());
  EXPECT_LE(Control(board, "strip_fold")->mapTo(&board, QPoint()).x() + kStripButtonPixels,
            board.width());
  const auto* view = StripOf(board).findChild<QScrollArea*>();
  const auto isSeen = [&](const char* name) {
    const QWidget* control = Control(board, name);
    return view->viewport()->rect().contains(
        QRect(control->mapTo(view->viewport(), QPoint()), control->size()));
  };
  EXPECT_FALSE(isSeen("strip_speed"));
  Control(board, "strip_again")->setFocus(Qt::TabFocusReason);
  QTest::keyClick(board.windowHandle(), Qt::Key_Tab);
  EXPECT_TRUE(isSeen("strip_speed"));
  const auto wheel = [&](int notches) {
    QWheelEvent event(QPointF(5, 5), view->mapToGlobal(QPointF(5, 5)), {}, {0, notches * 120},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(view->viewport(), &event);
  };
  for (int i = 0; i < 10; ++i) wheel(1);
  EXPECT_TRUE(isSeen("strip_back"));
  for (int i = 0; i < 10; ++i) wheel(-1);
  EXPECT_TRUE(isSeen("strip_speed"));
}

TEST_F(StripTest, LosesNothingOfABoardOnASmallScreen) {
  for (const char* form : kBoards) {
    Board& board = Show(form);
    board.resize(1024, 740);  // 768 less the window manager's title
    Settle();
    EXPECT_EQ(board.width(), 1024);
    auto* scroller = qobject_cast<QScrollArea*>(board.centralWidget());
    ASSERT_NE(scroller, nullptr);
    const QSize missing = board.sheet().size() - scroller->viewport()->size();
    EXPECT_GE(scroller->horizontalScrollBar()->maximum(), missing.width()) << form;
    EXPECT_GE(scroller->verticalScrollBar()->maximum(), missing.height()) << form;
  }
}

}  // namespace
}  // namespace bramlee
