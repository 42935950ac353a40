// Every item of every board's menu, picked once by hand, and what it does to the screen.
#include <algorithm>
#include <vector>

#include "media/windows_media_player.h"
#include "tests/xvfb/forms/at_the_start.h"

namespace bramlee {
namespace {

struct BoardCase {
  const char* form;
  int subject;      ///< its tile on the home form
  const char* cue;  ///< sound file of tile 2, but for the extension
  int second;       ///< a tile that has a second form and begins no group, 0 for none
};

constexpr BoardCase kBoards[] = {
    {"fbrmengc02", 1, R"(C:\bramlee\aud\engc\eng-b)",      0},
    {"fbrmengs01", 2, R"(C:\bramlee\aud\engs\eng-b)",      0},
    {"fbrmhinv01", 3, R"(C:\bramlee\aud\hin\hinv\hinv-2)", 2},
    {"fbrmhinc01", 4, R"(C:\bramlee\aud\hin\hinc\hinc-2)", 3},
    {"fbrmtelv01", 5, R"(C:\bramlee\aud\tel\telv\telv-2)", 0},
    {"fbrmtelc01", 6, R"(C:\bramlee\aud\tel\telc\telc-2)", 0},
    {"fbrmmat01",  7, R"(C:\bramlee\aud\mat\mat-2)",       3},
};

/// Tested with what they open.
const char* const kMathsItems[] = {"mnunum", "mnutbl", "mnuadd", "mnusub",
                                   "mnumul", "mnudiv", "mnuper"};

constexpr int kSmallLetters = 2;
constexpr int kHindiVowels = 3;
constexpr int kMaths = 7;

constexpr ColourWord kColours[] = {0x000000, 0xFF0000, 0x00FF00, 0x0000FF, 0x00FFFF, 0xFFFFFF};
const char* const kSteps[] = {"0.001", "0.004", "0.03", "0.08", "0.2", "1"};
const char* const kExtensions[] = {".wma", ".mp3", ".wav", ".cda"};

/// Begins no group on any board.
constexpr int kTile = 2;

std::string At(const char* array, int index) {
  return Indexed(array, index).toStdString();
}

std::string PlayersFile() {
  return Ask([]() -> std::string {
    const Form* player = LoadedForm(QStringLiteral("f1207vid"));
    if (player == nullptr) return {};
    return player->Named<WindowsMediaPlayer>(QStringLiteral("WindowsMediaPlayer1"))
        ->URL()
        .toStdString();
  });
}

class Boards : public AtTheStart, public ::testing::WithParamInterface<BoardCase> {
 protected:
  /// Writes the tile and expects it, and nothing else new, on the screen.
  static void Write(OpenBoard& board, int tile, const TileForm& form = {}) {
    board.ExpectTile(tile, form);
    board.Click(Indexed("pic", tile));
    EXPECT_GT(board.SeeSheet(), kSomeInk) << tile;
  }

  static void PickSpeeds(OpenBoard& board) {
    for (int i = 1; i <= Board::kSpeeds; ++i) {
      if (i > 1 && GetParam().subject == kHindiVowels) {
        board.Pick(Indexed("mnuspd", i));
        EXPECT_EQ(board.Marks(), "") << "a pick takes the mark away that is there";
      }
      board.Pick(Indexed("mnuspd", i));
      EXPECT_EQ(board.Marks(), At("mnuspd", i));
      EXPECT_EQ(board.Text("txtspd"), kSteps[i - 1]);
    }
    board.Expected().SetStep(1);
  }

  static void PickLetterColours(OpenBoard& board) {
    for (int i = 1; i <= Board::kColours; ++i) {
      board.Pick(Indexed("mnucolor", i));
      EXPECT_EQ(board.Marks(), At("mnucolor", i) + " mnuspd(6)");
      board.Expected().SetPen(kColours[i - 1]);
      Write(board, kTile);
    }
  }

  /// A rule in each grid colour, and the grid in the last.
  static void PickGridColoursAndLines(OpenBoard& board) {
    const BoardRecord& record = *Ask([&] { return &board.Get()->record(); });
    const ColourWord letters = board.Expected().Colour();
    for (int i = 1; i <= Board::kColours; ++i) {
      board.Pick(Indexed("mnugcolor", i));
      board.Expected().SetPen(kColours[i - 1]);
      std::string lines = " mnugrid mnurulled(5)";
      if (i <= Board::kRules) {
        board.Pick(Indexed("mnurulled", i));
        lines = ' ' + At("mnurulled", i);
        auto number = static_cast<std::int16_t>(i);
        DrawRules(board.Expected(), record.ruleExtent, record.ruleLines, number);
      } else {
        board.Pick("mnugrid");
        DrawGrid(board.Expected(), record.gridExtent);
      }
      EXPECT_EQ(board.Marks(), "mnucolor(6) " + At("mnugcolor", i) + lines + " mnuspd(6)");
      EXPECT_GT(board.SeeSheet(), kSomeInk);
    }
    board.Expected().SetPen(letters);
  }

  /// Takes grid and rule off the menu: they stay on the sheet.
  static void Unmark(OpenBoard& board) {
    board.Pick("mnugrid");
    board.Pick("mnurulled(5)");
    EXPECT_EQ(board.Marks(), "mnucolor(6) mnugcolor(6) mnuspd(6)");
    EXPECT_GT(board.SeeSheet(), kSomeInk);
  }

  static void Clear(OpenBoard& board) {
    board.Pick("mnurulled(2)");
    board.Pick("mnublank1");
    board.Pick("mnuclear1");
    board.Expected().Wipe();
    board.SeeSheet();
    EXPECT_EQ(board.Marks(), "mnurulled(2)");
    EXPECT_EQ(board.Text("txtspd"), "1");
    board.Pick("mnurulled(2)");
    EXPECT_EQ(board.Marks(), "");
  }

  static void Blink(OpenBoard& board) {
    const auto ticks = [&] {
      return Ask([&] { return board.Get()->Named<QTimer>(QStringLiteral("Timer1"))->isActive(); });
    };
    const auto blinks = [&] {
      Until(QStringLiteral("the title hidden"), [&] { return !board.Shows("txthdr1"); });
      Until(QStringLiteral("the title shown"), [&] { return board.Shows("txthdr1"); });
    };
    blinks();
    board.Pick("mnublink");
    EXPECT_FALSE(ticks());
    board.Pick("mnublink");
    EXPECT_TRUE(ticks());
    blinks();
  }

  static void DrawAlternatives(OpenBoard& board) {
    const QList<int> all = board.Shown("pic", kHindiSetTiles);
    board.Pick("mnudrawalt");
    board.Expected().Wipe();
    EXPECT_EQ(board.Marks(), "mnudrawalt");
    EXPECT_EQ(board.Shown("pic", kHindiSetTiles), SecondForms(board));
    Write(board, GetParam().second, {.alternative = true});
    board.Pick("mnudrawalt");
    board.Expected().Wipe();
    board.SeeSheet();
    EXPECT_EQ(board.Marks(), "");
    EXPECT_EQ(board.Shown("pic", kHindiSetTiles), all);
  }

  static void Speak(OpenBoard& board) {
    board.Pick("mnucolor(1)");
    board.Expected().SetPen(kColours[0]);
    board.Pick("mnuaud");
    EXPECT_EQ(board.Marks(), "mnuaud mnucolor(1) mnufor(1)");
    if (GetParam().subject == kMaths) Write(board, 3);  // the first tile after it is silent
    for (int i = 1; i <= Board::kFormats; ++i) {
      board.Pick(Indexed("mnufor", i));
      EXPECT_EQ(board.Marks(), "mnuaud mnucolor(1) " + At("mnufor", i));
      board.Click(Indexed("pic", kTile));
      const std::string file = SpokenFile(i);
      const bool missing = file.ends_with(".cda");
      if (missing) {
        EXPECT_EQ(ReadBox(), file + " Not Found: ");
      }
      board.ExpectTile(kTile);
      EXPECT_GT(board.SeeSheet(), kSomeInk);
      EXPECT_EQ(PlayersFile() == file, !missing);
    }
    board.Pick("mnuaud");
    EXPECT_EQ(board.Marks(), "mnucolor(1)");
  }

  static void DrawAll(OpenBoard& board) {
    board.Pick("mnuaud");
    ExpectAll(board);
    board.Pick("mnudall");
    EXPECT_GT(board.SeeSheet(), kSomeInk);
    EXPECT_EQ(board.Marks(), "");
  }

  /// Sounds of tile 2 in all formats but the last. The maths tiles speak always: theirs are all
  /// there.
  void LayOutSounds() const {
    const auto layOut = [this](QString path) {
      const QString file = On("c") + path.remove(0, 2).replace(u'\\', u'/');
      QDir().mkpath(QFileInfo(file).path());
      EXPECT_TRUE(QFile(file).open(QIODevice::WriteOnly));
    };
    const QString cue = QString::fromLatin1(GetParam().cue);
    for (const char* extension : {".wma", ".mp3", ".wav"}) {
      layOut(cue + QString::fromLatin1(extension));
    }
    for (int i = 1; GetParam().subject == kMaths && i <= 17; ++i) {
      layOut(cue.chopped(1) + QStringLiteral("%1.wma").arg(i));
    }
  }

  /// Leaves by the one item that has not been picked yet.
  static void Leave(OpenBoard& board) {
    QStringList left = board.NeverPicked();
    for (const char* item : kMathsItems) left.removeOne(QString::fromLatin1(item));
    EXPECT_EQ(left.size(), 1) << qPrintable(left.join(u' '));
    board.Pick(left.value(0));
    board.UntilGone();
  }

 private:
  /// The tiles of the first set that have a second form.
  static QList<int> SecondForms(const OpenBoard& board) {
    const auto forms = Ask([&] { return board.Get()->letters().secondForms; });
    QList<int> tiles;
    std::ranges::copy_if(forms, std::back_inserter(tiles),
                         [](int tile) { return tile <= kHindiSetTiles; });
    return tiles;
  }

  /// The small letters speak in the capitals' format.
  static std::string SpokenFile(int format) {
    const int counts = GetParam().subject == kSmallLetters ? 1 : format;
    return std::string(GetParam().cue) + kExtensions[counts - 1];
  }

  /// What is left on the sheet when all letters have been drawn: the last group.
  static void ExpectAll(OpenBoard& board) {
    const BoardRecord& record = *Ask([&] { return &board.Get()->record(); });
    const LetterSet& letters = *Ask([&] { return &board.Get()->letters(); });
    std::vector<int> order(record.drawOrder.begin(), record.drawOrder.end());
    const int tiles = letters.footTilesFrom > 0 ? kHindiSetTiles : letters.tiles;
    for (int i = 1; record.drawOrder.empty() && i <= tiles; ++i) order.push_back(i);
    for (const int tile : order) {
      if (std::ranges::count(record.groupStarts, tile) > 0) board.Expected().Wipe();
      board.ExpectTile(tile);
    }
  }
};

TEST_P(Boards, DoWhatEachItemOfTheirMenuSays) {
  LayOutSounds();
  OpenForm home = GoHome();
  home.Click(Indexed("pic", GetParam().subject));
  OpenBoard board(GetParam().form);
  Write(board, kTile);  // red, at the speed that no item has
  PickSpeeds(board);
  PickLetterColours(board);
  PickGridColoursAndLines(board);
  Unmark(board);
  Clear(board);
  Blink(board);
  if (GetParam().second != 0) DrawAlternatives(board);
  Speak(board);
  DrawAll(board);
  Leave(board);
  OpenForm("fbrmhom1");
}

INSTANTIATE_TEST_SUITE_P(SweepOfEach, Boards, ::testing::ValuesIn(kBoards),
                         [](const auto& tried) { return std::string(tried.param.form); });

class SetsAndLines : public AtTheStart {};

TEST_F(SetsAndLines, ShowTheTilesOfTheSetThatIsPicked) {
  GoHome().Click("pic(4)");
  OpenBoard board("fbrmhinc01");
  board.Pick("mnuspd(6)");
  board.Expected().SetStep(1);
  for (const int set : {2, 3, 1}) {
    board.Click(Indexed("pic1", set));
    board.Expected().Wipe();
    board.SeeSheet();
    const int first = FirstHindiTileOf(set);
    const QList<int> shown = board.Shown("pic", 3 * kHindiSetTiles);
    EXPECT_EQ(shown.size(), kHindiSetTiles);
    EXPECT_EQ(shown.first(), first);
    board.Click(Indexed("pic", first + 1));
    board.ExpectTile(first + 1);
    EXPECT_GT(board.SeeSheet(), kSomeInk);
  }
}

TEST_F(SetsAndLines, LayALineOverTheHindiVowelsSheetAndTakeItAway) {
  GoHome().Click("pic(3)");
  OpenBoard board("fbrmhinv01");
  board.Pick("mnuspd(6)");
  board.Expected().SetStep(1);
  board.Click("pic(14)");
  Until(QStringLiteral("the line"), [&] { return board.Shows("pic(0)"); });
  board.SeeSheet();
  board.Click("pic(18)");
  board.ExpectTile(18);
  EXPECT_GT(board.SeeSheet(), kSomeInk);
  EXPECT_FALSE(board.Shows("pic(0)"));
}

}  // namespace
}  // namespace bramlee
