// The menu bar of the boards and the choices made in it.
#include <QApplication>
#include <QMenuBar>
#include <QTest>

#include "board/board.h"
#include "tests/board/board_fixture.h"
#include "ui/forms.h"

namespace bramlee {
namespace {

class BoardMenus : public BoardTest {};

/// A menu's items as lines "name|caption", those of its menus behind dots.
void AppendItems(QStringList& lines, const QList<QAction*>& items, const QString& dots) {
  for (const QAction* item : items) {
    const QString name = item->menu() ? item->menu()->objectName() : item->objectName();
    lines.append(dots + name + u'|' + item->text());
    if (item->menu()) AppendItems(lines, item->menu()->actions(), dots + u'.');
  }
}

QStringList ColourItems(const char* array) {
  const char* const captions[] = {"&Black", "&Blue", "&Green", "&Red", "&Yellow", "&White"};
  QStringList lines;
  for (int i = 1; i <= 6; ++i) {
    lines.append(QStringLiteral("..%1|%2").arg(Q(array, i), Q(captions[i - 1])));
  }
  return lines;
}

TEST_F(BoardMenus, ReadInTheirOrderWithTheirTrailingBlanks) {
  const Board& board = Open("fbrmengc02");
  QStringList lines;
  AppendItems(lines, board.BarItems(), {});
  QStringList expected{Q("mnufile|&File"), Q(".mnublink|&Blink"), Q(".mnuclose|&Back"),
                       Q("mnucolors|&Colors"), Q(".mnugcolor1|&GridColor")};
  expected += ColourItems("mnugcolor");
  expected += Q(".mnulcolor|&LettersColor");
  expected += ColourItems("mnucolor");
  expected += Q(".mnuspeed|&Speed");
  for (int i = 1; i <= 6; ++i) {
    expected += QStringLiteral("..mnuspd(%1)|%1").arg(i);
  }
  expected += {Q("mnudraw|&Draw"),
               Q(".mnudall|&DrawAll     "),
               Q(".mnudlines|&DrawLines"),
               Q("..mnurulled(1)|&SingleRulled"),
               Q("..mnurulled(2)|&DoubleRulled"),
               Q("..mnurulled(3)|&TripleRulled"),
               Q("..mnurulled(4)|&FourRulled"),
               Q("..mnurulled(5)|&FiveRulled"),
               Q(".mnugrid|&DrawGrid     "),
               Q("mnuaud1|&Audio"),
               Q(".mnuaud|&Play"),
               Q(".mnuaud3|&Format"),
               Q("..mnufor(1)|.wma"),
               Q("..mnufor(2)|.mp3"),
               Q("..mnufor(3)|.wav"),
               Q("..mnufor(4)|.cda"),
               Q("mnublank1|") + QString(66, u' '),
               Q("mnuclear1|&Clear     ")};
  EXPECT_EQ(lines, expected);
}

TEST_F(BoardMenus, DifferWhereTheBoardsDo) {
  const QStringList alternatives{Q("fbrmhinv01"), Q("fbrmhinc01")};
  const QStringList plainAudio{Q("fbrmengs01"), Q("fbrmhinc01")};
  for (const char* form : kAllBoards) {
    const Board& board = Open(form);
    const auto* alternative = board.findChild<QAction*>(Q("mnudrawalt"));
    EXPECT_EQ(alternative != nullptr, alternatives.contains(Q(form))) << form;
    EXPECT_EQ(board.findChild<QLineEdit*>(Q("txtalt")) != nullptr, alternative != nullptr);
    if (alternative != nullptr) {
      EXPECT_EQ(alternative->text(), Q("&Draw Alternatives"));
      EXPECT_EQ(board.Named<QMenu>(Q("mnudraw"))->actions().last(), alternative);
    }
    EXPECT_EQ(board.Named<QMenu>(Q("mnuaud1"))->title(),
              plainAudio.contains(Q(form)) ? Q("Audio") : Q("&Audio"))
        << form;
    const bool isBack = Q(form) == Q("fbrmhinc01");
    EXPECT_EQ(board.Named<QAction>(isBack ? Q("mnuback") : Q("mnuclose"))->text(), Q("&Back"));
  }
}

TEST_F(BoardMenus, TheBarKeepsItsOwnFontAndFits1024Pixels) {
  for (const char* form : kAllBoards) {
    const Board& board = Open(form);
    EXPECT_EQ(board.sheet().font().pointSize(), 18) << form;
    EXPECT_EQ(board.Named<QWidget>(Q("txthdr1"))->font().pointSize(), 18) << form;
    EXPECT_EQ(board.menuBar()->font(), QApplication::font("QMenuBar")) << form;
    EXPECT_LE(board.menuBar()->sizeHint().width(), 1024) << form;
    int width = 0;
    for (const QAction* item : board.BarItems()) {
      width = std::max(width, board.menuBar()->actionGeometry(const_cast<QAction*>(item)).right());
    }
    EXPECT_LE(width, 1024) << form;
  }
}

TEST_F(BoardMenus, TheSpacerDoesNothing) {
  Board& board = Open("fbrmengc02");
  Pick(board, "mnurulled(1)");
  const QImage before = board.sheet().grab().toImage();
  Pick(board, "mnublank1");
  EXPECT_EQ(board.sheet().grab().toImage(), before);
  EXPECT_TRUE(board.Checked(Q("mnurulled(1)")));
  EXPECT_FALSE(board.Checked(Q("mnublank1")));
}

TEST_F(BoardMenus, AreAsDesignedInAFreshBoard) {
  for (const char* form : kAllBoards) {
    const auto& board = dynamic_cast<Board&>(*LoadForm(Q(form)));
    EXPECT_EQ(board.TextOf(Q("txtspd")), Q("0.01"));
    EXPECT_EQ(board.TextOf(Q("txtgridcolor")), Q("0"));
    EXPECT_EQ(ForeColorOf(board.Named<QWidget>(Q("txtgridcolor"))), 0x00FF0000U);
    EXPECT_EQ(board.sheet().ForeColor(), 0x000000FFU);
    for (int i = 0; i <= 32; ++i) EXPECT_EQ(board.TextOf(Q("txtundo", i)), Q("0"));
    const auto* timer = board.Named<QTimer>(Q("Timer1"));
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 100);
    for (const QAction* item : board.findChildren<QAction*>()) {
      EXPECT_FALSE(item->isChecked()) << form << " " << item->objectName().toStdString();
    }
  }
}

TEST_F(BoardMenus, TitlesAndGroundsAreTheBoardsOwn) {
  const struct {
    const char* form;
    const char* title;
    ColourWord ground;
  } kExpected[] = {
      {"fbrmengc02", "English Capital Letters", 0x00FFFFC0},
      {"fbrmengs01", "English Small Letters",   0x00E0E0E0},
      {"fbrmhinv01", "Hindi Vowels",            0x00E0E0E0},
      {"fbrmhinc01", "Hindi Consonants",        0x00E0E0E0},
      {"fbrmtelv01", "TELUGU-VOWELS",           0x00E0E0E0},
      {"fbrmtelc01", "TELUGU-CONSONANTS",       0x00E0E0E0},
  };
  for (const auto& expected : kExpected) {
    const Board& board = Open(expected.form);
    EXPECT_EQ(board.windowTitle(), Q(expected.title));
    EXPECT_EQ(board.TextOf(Q("txthdr1")), Q(expected.title));
    const auto* title = board.Named<QWidget>(Q("txthdr1"));
    EXPECT_EQ(BackColorOf(title), 0xFF0000U);
    EXPECT_EQ(ForeColorOf(title), 0xFFFFFFU);
    EXPECT_EQ(ColourAt(board, 4, 420), ColourOf(expected.ground));
  }
}

TEST_F(BoardMenus, TheTitleThatBlinksNeverHasTheFocus) {
  Board& board = Open("fbrmengc02");
  ShowForm(Q("fbrmengc02"));
  ASSERT_TRUE(QTest::qWaitForWindowActive(&board));
  auto* title = board.Named<QWidget>(Q("txthdr1"));
  QTest::mouseClick(title, Qt::LeftButton);
  EXPECT_FALSE(title->hasFocus());
  board.Tile(1)->setFocus();
  for (int tiles = 0; tiles <= board.letters().tiles; ++tiles) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_FALSE(title->hasFocus());
  }
}

TEST_F(BoardMenus, AGridColourIsMarkedAloneAndKeptInItsTextBox) {
  Board& board = Open("fbrmengc02");
  const ColourWord colours[] = {0, 0xFF0000, 0xFF00, 0xFF, 0xFFFF, 0xFFFFFF};
  for (int i = 1; i <= 6; ++i) {
    Pick(board, Q("mnugcolor", i));
    EXPECT_EQ(ForeColorOf(board.Named<QWidget>(Q("txtgridcolor"))), colours[i - 1]);
    EXPECT_EQ(Marked(board, "mnugcolor", 6), std::vector<int>{i});
    EXPECT_EQ(board.TextOf(Q("txtgridcolor")), Q("0"));
  }
  EXPECT_EQ(board.sheet().ForeColor(), 0xFFU);
}

TEST_F(BoardMenus, ALetterColourIsMarkedAloneAndInThePen) {
  Board& board = Open("fbrmengc02");
  const ColourWord colours[] = {0, 0xFF0000, 0xFF00, 0xFF, 0xFFFF, 0xFFFFFF};
  for (int i = 1; i <= 6; ++i) {
    Pick(board, Q("mnucolor", i));
    EXPECT_EQ(board.sheet().ForeColor(), colours[i - 1]);
    EXPECT_EQ(Marked(board, "mnucolor", 6), std::vector<int>{i});
  }
  EXPECT_EQ(ForeColorOf(board.Named<QWidget>(Q("txtgridcolor"))), 0xFF0000U);
}

TEST_F(BoardMenus, ASpeedIsMarkedAloneAndWritesItsStepAsText) {
  Board& board = Open("fbrmengc02");
  const char* const steps[] = {"0.001", "0.004", "0.03", "0.08", "0.2", "1"};
  for (int i = 1; i <= 6; ++i) {
    Pick(board, Q("mnuspd", i));
    EXPECT_EQ(board.TextOf(Q("txtspd")), Q(steps[i - 1]));
    EXPECT_EQ(Marked(board, "mnuspd", 6), std::vector<int>{i});
    Pick(board, Q("mnuspd", i));  // a second pick changes nothing
    EXPECT_EQ(Marked(board, "mnuspd", 6), std::vector<int>{i});
  }
}

TEST_F(BoardMenus, AnIndexWithoutAnEntryChangesNothing) {
  Board& board = Open("fbrmengc02");
  Pick(board, "mnucolor(2)");
  for (const int index : {0, 7, -1}) {
    board.mnucolor_Click(index);
    board.mnugcolor_Click(index);
    board.mnuspd_Click(index);
  }
  EXPECT_EQ(Marked(board, "mnucolor", 6), std::vector<int>{2});
  EXPECT_EQ(board.sheet().ForeColor(), 0xFF0000U);
  EXPECT_EQ(board.TextOf(Q("txtspd")), Q("1"));
}

TEST_F(BoardMenus, TheTitleBlinksWithTheTimerAndStaysAsTheLastTickLeftIt) {
  Board& board = Open("fbrmengc02");
  const auto* title = board.Named<QWidget>(Q("txthdr1"));
  auto* timer = board.Named<QTimer>(Q("Timer1"));
  EXPECT_FALSE(title->isHidden());
  board.Timer1_Timer();
  EXPECT_TRUE(title->isHidden());
  board.Timer1_Timer();
  EXPECT_FALSE(title->isHidden());
  board.Timer1_Timer();
  Pick(board, "mnublink");
  EXPECT_FALSE(timer->isActive());
  EXPECT_TRUE(title->isHidden());
  EXPECT_FALSE(board.Checked(Q("mnublink")));
  Pick(board, "mnublink");
  EXPECT_TRUE(timer->isActive());
  EXPECT_FALSE(board.Checked(Q("mnublink")));
}

TEST_F(BoardMenus, PlayTakesTheFirstFormatAndTheSpeedMarksButNotTheSpeed) {
  Board& board = Open("fbrmengc02");
  Pick(board, "mnuspd(5)");
  Pick(board, "mnuaud");
  EXPECT_TRUE(board.Checked(Q("mnuaud")));
  EXPECT_EQ(Marked(board, "mnufor", 4), std::vector<int>{1});
  EXPECT_TRUE(Marked(board, "mnuspd", 6).empty());
  EXPECT_EQ(board.TextOf(Q("txtspd")), Q("0.2"));
  Pick(board, "mnufor(3)");
  EXPECT_EQ(Marked(board, "mnufor", 4), std::vector<int>{3});
  Pick(board, "mnuaud");
  EXPECT_FALSE(board.Checked(Q("mnuaud")));
  EXPECT_TRUE(Marked(board, "mnufor", 4).empty());
}

TEST_F(BoardMenus, PlayAddsTheFirstFormatToOneChosenBefore) {
  Board& board = Open("fbrmengc02");
  Pick(board, "mnufor(3)");
  Pick(board, "mnuaud");
  EXPECT_EQ(Marked(board, "mnufor", 4), (std::vector<int>{1, 3}));
}

TEST_F(BoardMenus, BackUnloadsTheBoard) {
  for (const char* form : kAllBoards) {
    const Board& board = Open(form);
    Pick(board, Q(form) == Q("fbrmhinc01") ? "mnuback" : "mnuclose");
    EXPECT_EQ(LoadedForm(Q(form)), nullptr) << form;
  }
}

TEST_F(BoardMenus, TheDriveIsTheMediasWhenTheBoardIsLoaded) {
  drive = Q("E:");
  for (const char* form : kAllBoards) EXPECT_EQ(Open(form).TextOf(Q("txtdrv")), Q("E:")) << form;
}

TEST_F(BoardMenus, TheDriveIsCWhereNoneCanBeChosen) {
  drive.reset();
  for (const char* form : kAllBoards) EXPECT_EQ(Open(form).TextOf(Q("txtdrv")), Q("C:")) << form;
}

TEST_F(BoardMenus, OnHindiVowelsAPickTakesAMarkAwayBeforeAnotherSetsASpeed) {
  Board& board = Open("fbrmhinv01");
  Pick(board, "mnuspd(5)");
  EXPECT_EQ(board.TextOf(Q("txtspd")), Q("0.2"));
  Pick(board, "mnuspd(3)");  // only unmarks 5
  EXPECT_TRUE(Marked(board, "mnuspd", 6).empty());
  EXPECT_EQ(board.TextOf(Q("txtspd")), Q("0.2"));
  Pick(board, "mnuspd(3)");
  EXPECT_EQ(Marked(board, "mnuspd", 6), std::vector<int>{3});
  EXPECT_EQ(board.TextOf(Q("txtspd")), Q("0.03"));
  Pick(board, "mnuspd(3)");
  EXPECT_TRUE(Marked(board, "mnuspd", 6).empty());
}

TEST_F(BoardMenus, OnHindiVowelsOnePickIsEnoughAfterAWipeOrPlay) {
  Board& board = Open("fbrmhinv01");
  Pick(board, "mnuspd(5)");
  Pick(board, "mnuclear1");
  Pick(board, "mnuspd(4)");
  EXPECT_EQ(board.TextOf(Q("txtspd")), Q("0.08"));
  Pick(board, "mnuaud");
  Pick(board, "mnuspd(6)");
  EXPECT_EQ(board.TextOf(Q("txtspd")), Q("1"));
}

}  // namespace
}  // namespace bramlee
