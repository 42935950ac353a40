#include "board/cues.h"

#include <sys/stat.h>

#include <QFileInfo>
#include <QImage>

#include "app/subjects.h"
#include "home/home.h"
#include "media/media.h"
#include "media/windows_media_player.h"
#include "tests/board/board_fixture.h"

namespace bramlee {
namespace {

using Numbers = std::vector<std::int16_t>;

std::string Path(std::int16_t letterNo, std::int16_t set) {
  QString path;
  EXPECT_EQ(CuePath(letterNo, set, path), 0);
  return path.toStdString();
}

class Cues : public BoardTest {
 protected:
  void SetUp() override {
    BoardTest::SetUp();
    RegisterMedia();
    MakeDataFolder();
  }

  /// A file in a sound's place.
  void Record(const char* file) const {
    QDir().mkpath(QFileInfo(On(file)).path());
    WriteBytes(On(file), "x");
  }

  /// The player's URL, empty if it is not loaded.
  static std::string Handed() {
    const Form* form = LoadedForm(Q("f1207vid"));
    return form == nullptr
               ? std::string()
               : form->Named<WindowsMediaPlayer>(Q("WindowsMediaPlayer1"))->URL().toStdString();
  }
};

TEST(CueLetterCharOf, OneToTwentySixIsAToZ) {
  QString text;
  for (std::int16_t i = 1; i <= 26; ++i) {
    ASSERT_EQ(CueLetterChar(i, text), 0);
    EXPECT_EQ(text, QString(QChar(u'a' + i - 1)));
  }
}

TEST(CueLetterCharOf, AnyOtherNumberFails) {
  for (const std::int16_t number : Numbers{0, 27, -1, 32767, -32768}) {
    QString text = Q("as it was");
    EXPECT_EQ(CueLetterChar(number, text), 1) << number;
    EXPECT_EQ(text, Q("as it was"));
  }
}

TEST_F(Cues, EachSetHasItsFolderPrefixAndLetter) {
  EXPECT_EQ(Path(2, 1), R"(C:\bramlee\aud\engc\eng-b.wma)");
  EXPECT_EQ(Path(26, 2), R"(C:\bramlee\aud\engs\eng-z.wma)");
  EXPECT_EQ(Path(13, 3), R"(C:\bramlee\aud\hin\hinv\hinv-13.wma)");
  EXPECT_EQ(Path(111, 4), R"(C:\bramlee\aud\hin\hinc\hinc-111.wma)");
  EXPECT_EQ(Path(36, 5), R"(C:\bramlee\aud\tel\telv\telv-36.wma)");
  EXPECT_EQ(Path(75, 6), R"(C:\bramlee\aud\tel\telc\telc-75.wma)");
}

TEST_F(Cues, ALettersNumberHasNoLeadingZeros) {
  EXPECT_EQ(Path(10, 5), R"(C:\bramlee\aud\tel\telv\telv-10.wma)");
  EXPECT_EQ(Path(1, 3), R"(C:\bramlee\aud\hin\hinv\hinv-1.wma)");
  EXPECT_EQ(Path(0, 3), R"(C:\bramlee\aud\hin\hinv\hinv-0.wma)");
}

TEST_F(Cues, AChosenDriveAndFormatAreInThePath) {
  drive = Q("D:");
  Board& capitals = Open("fbrmengc02");
  capitals.mnuaud_Click();
  Pick(capitals, "mnufor(2)");
  EXPECT_EQ(Path(3, 1), R"(D:\bramlee\aud\engc\eng-c.mp3)");
  Open("fbrmtelc01");
  EXPECT_EQ(Path(12, 6), R"(D:\bramlee\aud\tel\telc\telc-12.wma)");
}

TEST_F(Cues, EachFormatIsItsItemsCaption) {
  Board& capitals = Open("fbrmengc02");
  const char* extensions[] = {"wma", "mp3", "wav", "cda"};
  for (int i = 1; i <= 4; ++i) {
    Pick(capitals, Q("mnufor", i));
    EXPECT_EQ(Path(1, 1), std::string(R"(C:\bramlee\aud\engc\eng-a.)") + extensions[i - 1]);
  }
}

TEST_F(Cues, OfSeveralMarkedFormatsTheFirstPlays) {
  Board& capitals = Open("fbrmengc02");
  for (const char* item : {"mnufor(2)", "mnufor(3)", "mnufor(4)"}) {
    capitals.SetChecked(Q(item), true);
  }
  EXPECT_EQ(Path(1, 1), R"(C:\bramlee\aud\engc\eng-a.mp3)");
}

TEST_F(Cues, CaptionsAreReadWithoutMnemonicMarksAndBlanks) {
  Board& capitals = Open("fbrmengc02");
  capitals.Named<QAction>(Q("mnufor(3)"))->setText(Q(" .w&av "));
  capitals.SetText(Q("txtdrv"), Q("  E: "));
  Pick(capitals, "mnufor(3)");
  EXPECT_EQ(Path(1, 1), R"(E:\bramlee\aud\engc\eng-a.wav)");
}

TEST_F(Cues, SmallLettersReadFormatAndDriveFromTheCapitals) {
  Board& small = Open("fbrmengs01");
  small.mnuaud_Click();
  Pick(small, "mnufor(3)");
  small.SetText(Q("txtdrv"), Q("F:"));
  EXPECT_EQ(LoadedForm(Q("fbrmengc02")), nullptr);
  EXPECT_EQ(Path(1, 2), R"(C:\bramlee\aud\engs\eng-a.wma)");
  ASSERT_NE(LoadedForm(Q("fbrmengc02")), nullptr);
  EXPECT_FALSE(LoadedForm(Q("fbrmengc02"))->isVisible());
  Pick(*LoadedForm(Q("fbrmengc02")), "mnufor(2)");
  EXPECT_EQ(Path(1, 2), R"(C:\bramlee\aud\engs\eng-a.mp3)");
}

TEST_F(Cues, CapitalsLoadedUnseenKeepTheDriveOfThatMoment) {
  // The home form with its menus and tiles, not the one of drives alone.
  RegisterHome(HomeSubjects());
  ShowForm(Q("fbrmhom1"));
  const Form& home = *LoadedForm(Q("fbrmhom1"));
  const auto writeSmallA = [&home] {
    home.Named<PictureBox>(Q("pic(2)"))->click();
    auto& small = dynamic_cast<Board&>(*LoadedForm(Q("fbrmengs01")));
    small.SetText(Q("txtspd"), Q("1"));
    Pick(small, "mnuaud");
    small.Tile(1)->click();
    return small.TextOf(Q("txtdrv"));
  };
  Record("c/bramlee/aud/engs/eng-a.wma");
  EXPECT_EQ(writeSmallA(), Q("C:"));
  EXPECT_EQ(Handed(), R"(C:\bramlee\aud\engs\eng-a.wma)");
  Pick(*LoadedForm(Q("fbrmengs01")), "mnuclose");
  UnloadForm(LoadedForm(Q("f1207vid")));
  Pick(home, "mnudrv(4)");
  Record("d/bramlee/aud/engs/eng-a.wma");
  EXPECT_EQ(writeSmallA(), Q("D:"));
  EXPECT_EQ(Handed(), R"(C:\bramlee\aud\engs\eng-a.wma)");
  EXPECT_EQ(LoadedForm(Q("fbrmengc02"))->TextOf(Q("txtdrv")), Q("C:"));
  EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(Cues, HindiVowelsReadTheirOwnMarkAndTheCapitalsCaption) {
  Board& vowels = Open("fbrmhinv01");
  vowels.SetText(Q("txtdrv"), Q("G:"));
  EXPECT_EQ(LoadedForm(Q("fbrmengc02")), nullptr);
  EXPECT_EQ(Path(4, 3), R"(G:\bramlee\aud\hin\hinv\hinv-4.wma)");
  ASSERT_NE(LoadedForm(Q("fbrmengc02")), nullptr);
  EXPECT_FALSE(LoadedForm(Q("fbrmengc02"))->isVisible());
  Pick(vowels, "mnufor(3)");
  EXPECT_EQ(Path(4, 3), R"(G:\bramlee\aud\hin\hinv\hinv-4.wav)");
  Pick(*LoadedForm(Q("fbrmengc02")), "mnufor(2)");
  EXPECT_EQ(Path(4, 3), R"(G:\bramlee\aud\hin\hinv\hinv-4.wav)");
  LoadedForm(Q("fbrmengc02"))->Named<QAction>(Q("mnufor(3)"))->setText(Q(".ogg"));
  EXPECT_EQ(Path(4, 3), R"(G:\bramlee\aud\hin\hinv\hinv-4.ogg)");
}

TEST_F(Cues, OtherBoardsReadTheirOwnMenus) {
  const struct {
    std::int16_t set;
    const char* form;
  } kOwn[] = {
      {4, "fbrmhinc01"},
      {5, "fbrmtelv01"},
      {6, "fbrmtelc01"}
  };
  for (const auto& own : kOwn) {
    Pick(Open(own.form), "mnufor(3)");
    EXPECT_TRUE(Path(1, own.set).ends_with("-1.wav")) << own.form;
  }
  EXPECT_EQ(LoadedForm(Q("fbrmengc02")), nullptr);
}

TEST_F(Cues, AFileThatIsThereIsPassedToThePlayer) {
  Record("c/bramlee/aud/hin/hinv/hinv-3.wma");
  Open("fbrmhinv01");
  EXPECT_EQ(PlayCue(3, 3), 0);
  EXPECT_EQ(Handed(), R"(C:\bramlee\aud\hin\hinv\hinv-3.wma)");
  EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(Cues, ADiscsTrackIsPassedOnLikeAnyOtherFile) {
  Record("c/bramlee/aud/hin/hinv/hinv-3.cda");
  Pick(Open("fbrmhinv01"), "mnufor(4)");
  EXPECT_EQ(PlayCue(3, 3), 0);
  EXPECT_EQ(Handed(), R"(C:\bramlee\aud\hin\hinv\hinv-3.cda)");
  EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(Cues, AMissingFileShowsOneMessageAndLoadsNoPlayer) {
  drive = Q("X:");
  EXPECT_EQ(PlayCue(1, 1), 0);
  ASSERT_EQ(boxes.size(), 1);
  EXPECT_EQ(boxes[0].toStdString(), R"(X:\bramlee\aud\engc\eng-a.wma Not Found: )");
  EXPECT_EQ(LoadedForm(Q("f1207vid")), nullptr);
  EXPECT_TRUE(QDir(On("c/bramlee/dba")).isEmpty());
}

TEST_F(Cues, AnUnknownSetHasAnEmptyPath) {
  for (const std::int16_t set : Numbers{0, 8, -1}) {
    boxes.clear();
    EXPECT_EQ(PlayCue(1, set), 0);
    EXPECT_EQ(boxes, QStringList{Q(" Not Found: ")}) << set;
  }
  EXPECT_EQ(LoadedForm(Q("f1207vid")), nullptr);
}

TEST_F(Cues, AnUnknownLetterFailsAndShowsNothing) {
  for (const std::int16_t set : Numbers{1, 2}) {
    for (const std::int16_t letter : Numbers{0, 27}) {
      EXPECT_EQ(PlayCue(letter, set), 1);
      QString path = Q("as it was");
      EXPECT_EQ(CuePath(letter, set, path), 1);
      EXPECT_TRUE(path.isEmpty());
    }
  }
  EXPECT_TRUE(boxes.isEmpty());
  EXPECT_EQ(LoadedForm(Q("f1207vid")), nullptr);
}

TEST_F(Cues, ASetWithoutABoardFailsAndShowsNothing) {
  EXPECT_EQ(PlayCue(1, 7), 1);
  EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(Cues, ATileAsksOnlyWhilePlayIsOn) {
  Board& capitals = Open("fbrmengc02");
  capitals.pic_Click(2);
  EXPECT_TRUE(boxes.isEmpty());
  capitals.mnuaud_Click();
  capitals.pic_Click(2);
  EXPECT_EQ(CueBoardNo, 1);
  ASSERT_EQ(boxes.size(), 1);
  EXPECT_EQ(boxes[0].toStdString(), R"(C:\bramlee\aud\engc\eng-b.wma Not Found: )");
}

TEST_F(Cues, AMissingSoundLeavesTheLetterWritten) {
  Board& capitals = Open("fbrmengc02");
  capitals.mnuaud_Click();
  const QImage before = capitals.sheet().grab().toImage();
  capitals.pic_Click(2);
  EXPECT_EQ(boxes.size(), 1);
  EXPECT_NE(capitals.sheet().grab().toImage(), before);
}

TEST_F(Cues, AFileThatIsNoSoundLeavesTheLetterWritten) {
  const QString file = On("c/bramlee/aud/engc/eng-b.wma");
  QDir().mkpath(QFileInfo(file).path());
  for (const char* bytes : {"", "x", "RIFF and nothing more", "\x30\x26\xB2\x75 cut off"}) {
    WriteBytes(file, bytes);
    Board& capitals = Open("fbrmengc02");
    capitals.mnuaud_Click();
    const QImage before = capitals.sheet().grab().toImage();
    capitals.pic_Click(2);
    EXPECT_TRUE(boxes.isEmpty()) << bytes;
    EXPECT_EQ(Handed(), R"(C:\bramlee\aud\engc\eng-b.wma)");
    EXPECT_NE(capitals.sheet().grab().toImage(), before) << bytes;
    UnloadForm(&capitals);
    UnloadForm(LoadedForm(Q("f1207vid")));
  }
}

TEST_F(Cues, APipeInAFilesPlaceHoldsNothingUpAndAFolderCountsAsMissing) {
  const QString pipe = On("c/bramlee/aud/engc/eng-b.wma");
  QDir().mkpath(QFileInfo(pipe).path());
  ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
  QDir().mkpath(On("c/bramlee/aud/engc/eng-c.wma"));
  Board& capitals = Open("fbrmengc02");
  capitals.mnuaud_Click();
  const QImage before = capitals.sheet().grab().toImage();
  capitals.pic_Click(2);
  EXPECT_EQ(Handed(), R"(C:\bramlee\aud\engc\eng-b.wma)");
  EXPECT_NE(capitals.sheet().grab().toImage(), before);
  EXPECT_TRUE(boxes.isEmpty());
  capitals.pic_Click(3);
  EXPECT_EQ(boxes, QStringList{Q(R"(C:\bramlee\aud\engc\eng-c.wma Not Found: )")});
}

TEST_F(Cues, AfterTheCountdownTheNextCueLoadsThePlayerAnew) {
  Record("c/bramlee/aud/engc/eng-a.wma");
  PlayCue(1, 1);
  Form* first = LoadedForm(Q("f1207vid"));
  ASSERT_NE(first, nullptr);
  first->Named<WindowsMediaPlayer>(Q("WindowsMediaPlayer1"))->SetRate(2);
  UnloadForm(first);
  EXPECT_EQ(Handed(), "");
  PlayCue(1, 1);
  EXPECT_EQ(Handed(), R"(C:\bramlee\aud\engc\eng-a.wma)");
  const Form* again = LoadedForm(Q("f1207vid"));
  EXPECT_EQ(again->Named<WindowsMediaPlayer>(Q("WindowsMediaPlayer1"))->Rate(), 1);
  EXPECT_EQ(again->TextOf(Q("txtete")), Q("5"));
}

TEST_F(Cues, PlayAndFormatItemsMarkEachOther) {
  Board& board = Open("fbrmtelv01");
  Pick(board, "mnuspd(2)");
  Pick(board, "mnuaud");
  EXPECT_TRUE(board.Checked(Q("mnuaud")));
  EXPECT_EQ(Marked(board, "mnufor", 4), std::vector<int>{1});
  EXPECT_TRUE(Marked(board, "mnuspd", 6).empty());
  Pick(board, "mnufor(4)");
  EXPECT_EQ(Marked(board, "mnufor", 4), std::vector<int>{4});
  Pick(board, "mnuaud");
  EXPECT_FALSE(board.Checked(Q("mnuaud")));
  EXPECT_TRUE(Marked(board, "mnufor", 4).empty());
}

}  // namespace
}  // namespace bramlee
