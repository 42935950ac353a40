// Where everything stands on the boards, in twips, worked out anew here.
#include "board/board.h"
#include "tests/board/board_fixture.h"
#include "ui/forms.h"
#include "ui/screen.h"

namespace bramlee {
namespace {

class Layout : public BoardTest {};

std::string At(int left, int top, int width = 900, int height = 825) {
  return std::to_string(left) + " " + std::to_string(top) + " " + std::to_string(width) + " " +
         std::to_string(height);
}

std::string TilePlace(const Board& board, int tile) {
  return PlaceText(board, Q("pic", tile));
}

int TitleLeft(const Board& board) {
  return static_cast<int>(PlaceOf(board.Named<QWidget>(Q("txthdr1"))).left);
}

/// The tiles that may be seen at all, whatever the set or the form.
bool EverShown(const Board& board, int tile) {
  if (tile < 1) return false;
  return tile <= board.letters().tiles;
}

TEST_F(Layout, EveryBoardIsAsLargeAsTheScreenBeforeItIsMaximised) {
  environment.screen = ScreenSize{.width = 15360, .height = 11520};
  for (const char* form : kAllBoards) {
    Board& board = Open(form);
    EXPECT_EQ(PixelsOf(board.Outer()), QRect(0, 0, 1024, 768)) << form;
    ShowForm(Q(form));
    EXPECT_TRUE(board.isMaximized()) << form;
  }
}

TEST_F(Layout, CapitalsStandInTheShapeOfAnA) {
  const Board& board = Open("fbrmengc02");
  const int lefts[] = {2040, 1440, 2640, 840,  2040, 3240, 240,  1440, 2640,
                       3840, 240,  1440, 2640, 3840, 240,  1440, 2640, 3840,
                       840,  2040, 3240, 1440, 2640, 2040, 960,  3120};
  const int rows[] = {0, 1, 1, 2, 2, 2, 3, 3, 3, 3, 4, 4, 4, 4, 5, 5, 5, 5, 6, 6, 6, 7, 7, 8, 9, 9};
  for (int i = 1; i <= 26; ++i) {
    EXPECT_EQ(TilePlace(board, i), At(lefts[i - 1], 600 + 600 * rows[i - 1], 1215, 615)) << i;
  }
}

TEST_F(Layout, EveryTileOfEveryBoardSaysThatAClickDraws) {
  for (const char* form : kAllBoards) {
    const Board& board = Open(form);
    for (int i = board.record().firstTile; i <= board.record().lastTile; ++i) {
      EXPECT_EQ(board.Tile(i)->toolTip(), Q("Click To Draw")) << form << " " << i;
    }
  }
}

TEST_F(Layout, SmallLettersStandInFourColumnsWithTheWAside) {
  const Board& board = Open("fbrmengs01");
  const int lefts[] = {600, 1650, 2700, 3750};
  const int tops[] = {600, 1575, 2550, 3525, 4500, 5475, 6450};
  for (int i = 1; i <= 26; ++i) {
    const int left = i == 23 ? 2640 : lefts[(i - 1) % 4];
    EXPECT_EQ(TilePlace(board, i), At(left, tops[(i - 1) / 4])) << i;
  }
}

TEST_F(Layout, HindiVowelsStandInTwoRows) {
  const Board& board = Open("fbrmhinv01");
  for (int i = 1; i <= 13; ++i) EXPECT_EQ(TilePlace(board, i), At(1450 + 950 * (i - 1), 560)) << i;
  for (int i = 14; i <= 28; ++i) {
    EXPECT_EQ(TilePlace(board, i), At(1450 + 950 * (i - 14), 1435)) << i;
    EXPECT_FALSE(board.Tile(i)->isHidden());
  }
  for (int i = 29; i <= 36; ++i) EXPECT_TRUE(board.Tile(i)->isHidden()) << i;
  EXPECT_TRUE(board.Tile(0)->isHidden());
  EXPECT_EQ(TitleLeft(board), 1450 + 4 * 950 + 450);
}

TEST_F(Layout, HindiConsonantsContinueTheirThreeRowsFurtherRight) {
  Board& board = Open("fbrmhinc01");
  for (int set = 1; set <= 3; ++set) {
    board.Named<PictureBox>(Q("pic1", set))->click();
    for (int k = 1; k <= 37; ++k) {
      int left = 0;
      int top = 0;
      if (k <= 15) {
        left = 1450 + 950 * ((k - 1) % 5);
        top = 560 + 875 * ((k - 1) / 5);
      } else if (k <= 25) {
        left = 7050 + 950 * ((k - 16) % 5);
        top = 560 + 875 * ((k - 16) / 5);
      } else {
        left = 7050 + 950 * (k - 26);
        top = 2310;
      }
      EXPECT_EQ(TilePlace(board, k + 37 * (set - 1)), At(left, top)) << set << " " << k;
    }
  }
}

TEST_F(Layout, TheSetButtonsStandLeftOfTheRows) {
  const Board& board = Open("fbrmhinc01");
  for (int set = 1; set <= 3; ++set) {
    EXPECT_EQ(PlaceText(board, Q("pic1", set)), At(100, 560 + 875 * (set - 1), 1250)) << set;
  }
}

TEST_F(Layout, TeluguVowelsEndTheirFirstRowWith31And32) {
  const Board& board = Open("fbrmtelv01");
  // The letters of tiles 7 and 8 are wider than the others.
  const auto width = [](int tile) { return tile == 7 || tile == 8 ? 1150 : 900; };
  int left = 1450;
  for (int i = 1; i <= 14; ++i) {
    EXPECT_EQ(TilePlace(board, i), At(left, 560, width(i))) << i;
    left += i == 7 || i == 8 ? width(i) + 50 : 950;
  }
  const int left31 = left - 950 + width(14) + 50;
  EXPECT_EQ(TilePlace(board, 31), At(left31, 560, width(31)));
  EXPECT_EQ(TilePlace(board, 32), At(left31 + width(31) + 50, 560, width(32)));
  for (int i = 15; i <= 30; ++i) EXPECT_EQ(TilePlace(board, i), At(1750 + 950 * (i - 15), 1435));
  const int left33 = 1750 + 950 * 5 + 450;
  for (int i = 33; i <= 36; ++i) EXPECT_EQ(TilePlace(board, i), At(left33 + 950 * (i - 33), 2310));
  EXPECT_EQ(TitleLeft(board), left33);
}

TEST_F(Layout, TeluguConsonantsHaveTwoRowsBelowTheSheet) {
  const Board& board = Open("fbrmtelc01");
  const int tops[] = {560, 1435, 2310, 8488};
  for (int i = 1; i <= 68; ++i) {
    EXPECT_EQ(TilePlace(board, i), At(1450 + 950 * ((i - 1) % 17), tops[(i - 1) / 17])) << i;
  }
  for (int i = 69; i <= 75; ++i) EXPECT_EQ(TilePlace(board, i), At(6200 + 950 * (i - 69), 9363));
  for (int i = 1; i <= 75; ++i) EXPECT_FALSE(board.Tile(i)->isHidden());
  EXPECT_TRUE(board.Tile(0)->isHidden());
  EXPECT_EQ(TitleLeft(board), 1450 + 6 * 950 + 450);
}

TEST_F(Layout, NothingShownCoversAnythingElse) {
  for (const char* form : kAllBoards) {
    const Board& board = Open(form);
    std::vector<const QWidget*> shown;
    for (const QObject* child : board.sheet().children()) {
      const auto* control = qobject_cast<const QWidget*>(child);
      if (control != nullptr && !control->isHidden()) shown.push_back(control);
    }
    EXPECT_GT(shown.size(), 26U);
    for (const QWidget* one : shown) {
      for (const QWidget* other : shown) {
        if (one == other) continue;
        // The capitals' tiles share their borders' pixels.
        const QSize shared = one->geometry().intersected(other->geometry()).size();
        EXPECT_LE(std::min(shared.width(), shared.height()), 1)
            << form << " " << one->objectName().toStdString() << " "
            << other->objectName().toStdString();
      }
    }
  }
}

TEST_F(Layout, TheTitleEndsAboveTheFirstTilesAndHoldsItsText) {
  for (const char* form : kAllBoards) {
    const Board& board = Open(form);
    const auto* title = board.Named<QLineEdit>(Q("txthdr1"));
    for (int i = 1; i <= board.letters().tiles; ++i) {
      if (!board.Tile(i)->isHidden()) {
        EXPECT_LT(title->geometry().bottom(), board.Tile(i)->geometry().top()) << form << " " << i;
      }
    }
    EXPECT_LT(title->fontMetrics().horizontalAdvance(title->text()), title->width() - 8) << form;
    EXPECT_LE(title->fontMetrics().height(), title->height()) << form;
  }
}

TEST_F(Layout, TheSheetIsLargeEnoughToScrollToAllOfIt) {
  const struct {
    const char* form;
    int right;
    int bottom;
  } kExtents[] = {
      {"fbrmengc02", 1200, 450     },
      {"fbrmengs01", 1200, 430 + 55},
      {"fbrmhinv01", 1100, 550     },
      {"fbrmhinc01", 1227, 550     },
      {"fbrmtelv01", 1200, 550     }, // the rules
      {"fbrmtelc01", 1173, 679     },
  };
  for (const auto& expected : kExtents) {
    const Board& board = Open(expected.form);
    const QSize size = board.sheet().minimumSize();
    EXPECT_GE(size.width(), expected.right + 5) << expected.form;
    EXPECT_GE(size.height(), expected.bottom + 5) << expected.form;
    const QRect sheet({}, size);
    for (int i = 1; i <= board.letters().tiles; ++i) {
      if (EverShown(board, i) && !board.Tile(i)->isHidden()) {
        EXPECT_TRUE(sheet.contains(board.Tile(i)->geometry())) << expected.form << " " << i;
      }
    }
  }
}

TEST_F(Layout, ABoardIsShownMaximised) {
  for (const char* form : kAllBoards) {
    ShowForm(Q(form));
    EXPECT_TRUE(LoadedForm(Q(form))->isMaximized()) << form;
  }
}

}  // namespace
}  // namespace bramlee
