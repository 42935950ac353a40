// The dialog that writes a board's letters to files.
#include "companions/export/export.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QImage>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTest>
#include <QTimer>

#include "board/strip.h"
#include "companions/export/export_choices.h"
#include "strokes/word.h"
#include "tests/board/board_fixture.h"
#include "tests/ui/pressed_by_return.h"

namespace bramlee {
namespace {

class Exports : public BoardWith<AddExport> {
 protected:
  Board& OpenWith(const char* form, std::initializer_list<int> tiles) {
    Board& board = Open(form);
    board.show();
    for (const int tile : tiles) board.pic_Click(tile);
    return board;
  }
  QDialog& Ask(Board& board) const {
    board.Named<StripButton>(Q("strip_export"))->click();
    auto* dialog = board.findChild<QDialog*>(Q("export"));
    EXPECT_NE(dialog, nullptr);
    dialog->findChild<QLineEdit*>(Q("export_folder"))->setText(folder.path());
    return *dialog;
  }
  template <class Widget>
  static Widget& In(const QDialog& dialog, const char* name) {
    return *dialog.findChild<Widget*>(Q(name));
  }
  static void Choose(const QDialog& dialog, Which which, FilmKind kind) {
    In<QComboBox>(dialog, "export_which").setCurrentIndex(static_cast<int>(which));
    In<QComboBox>(dialog, "export_kind").setCurrentIndex(static_cast<int>(kind));
  }
  static bool IsWorking(const QDialog& dialog) {
    return !In<QPushButton>(dialog, "export_begin").isEnabled();
  }
  static QString Said(const QDialog& dialog) { return In<QLabel>(dialog, "export_said").text(); }
  /// Presses Export and waits until all is written, or not.
  static std::string Begin(const QDialog& dialog) {
    In<QPushButton>(dialog, "export_begin").click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !IsWorking(dialog); }, 60'000));
    return Said(dialog).toStdString();
  }
  QStringList There() const {
    return QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  }

  QTemporaryDir folder;
};

TEST_F(Exports, HaveAButtonOnTheStripThatRestsWhileALetterIsWritten) {
  Board& board = Open("fbrmengc02");
  EXPECT_EQ(board.Named<StripButton>(Q("strip_export"))->toolTip(),
            Q("Export letters to files (E)"));
  EXPECT_TRUE(RestsWhileALetterIsWritten(board, "strip_export"));
}

TEST_F(Exports, HaveButtonsThatReturnPresses) {
  EXPECT_EQ(DeafToReturn(Ask(OpenWith("fbrmengc02", {1}))), QStringList());
}

TEST_F(Exports, WriteTheLastLetter) {
  const QDialog& dialog = Ask(OpenWith("fbrmengc02", {1, 2}));
  Choose(dialog, Which::ThisLetter, FilmKind::Svg);
  EXPECT_EQ(Begin(dialog), "1 file written.");
  EXPECT_EQ(There(), QStringList{Q("engc-02-B.svg")});
  EXPECT_TRUE(In<QPushButton>(dialog, "export_show").isVisible());
}

TEST_F(Exports, WriteTheSheetsLettersOnceEach) {
  const QDialog& dialog = Ask(OpenWith("fbrmengc02", {1, 2, 3, 2}));
  Choose(dialog, Which::SheetsLetters, FilmKind::Svg);
  EXPECT_EQ(Begin(dialog), "3 files written.");
  EXPECT_EQ(There().size(), 3);
}

/// Has the board's pen write a word.
void WriteWord(Board& board, const char* text) {
  board.pen().Write({.letter = LayWord(text).letter, .colour = 0, .placing = {}}, nullptr);
}

TEST_F(Exports, WriteWordsThatStandOnTheSheet) {
  Board& board = OpenWith("fbrmengc02", {1});
  for (const char* text : {"Ram", "Anna Rao", "Ram"}) WriteWord(board, text);
  const QDialog& dialog = Ask(board);
  Choose(dialog, Which::SheetsLetters, FilmKind::Svg);
  EXPECT_EQ(Begin(dialog), "3 files written.");
  EXPECT_EQ(There(),
            QStringList({Q("engc-01-A.svg"), Q("word-01-Anna-Rao.svg"), Q("word-02-Ram.svg")}));
  Choose(dialog, Which::ThisLetter, FilmKind::Steps);
  EXPECT_EQ(Begin(dialog), "7 files written.");
  EXPECT_TRUE(There().contains(Q("word-01-Ram-1.png")));
  In<QComboBox>(dialog, "export_kind").setCurrentText(Q("Flash cards (PDF)"));
  EXPECT_EQ(Begin(dialog), "1 file written.");
  EXPECT_TRUE(There().contains(Q("word-01-Ram-cards.pdf")));
}

TEST_F(Exports, WriteTheWholeBoard) {
  const QDialog& dialog = Ask(OpenWith("fbrmhinv01", {}));
  Choose(dialog, Which::WholeBoard, FilmKind::Svg);
  EXPECT_EQ(Begin(dialog), "27 files written. Left out: picture has no strokes.");
  EXPECT_EQ(There().size(), 27);
}

TEST_F(Exports, LookAsTheBoardDoesUnlessOtherwiseChosen) {
  Board& board = OpenWith("fbrmengc02", {});
  Pick(board, "mnucolor(3)");
  board.pic_Click(1);
  const QDialog& dialog = Ask(board);
  Choose(dialog, Which::ThisLetter, FilmKind::Svg);
  Begin(dialog);
  const QString path = folder.filePath(Q("engc-01-A.svg"));
  EXPECT_TRUE(BytesOf(path).contains("stroke=\"#00ff00\""));
  EXPECT_TRUE(BytesOf(path).contains("fill=\"#c0ffff\""));
  In<QComboBox>(dialog, "export_colour").setCurrentText(Q("Blue"));
  In<QComboBox>(dialog, "export_ground").setCurrentText(Q("None"));
  In<QSpinBox>(dialog, "export_size").setValue(123);
  answer = true;
  Begin(dialog);
  EXPECT_TRUE(BytesOf(path).contains("stroke=\"#0000ff\""));
  EXPECT_TRUE(BytesOf(path).contains("width=\"123\""));
  EXPECT_FALSE(BytesOf(path).contains("<rect"));
}

TEST_F(Exports, AskOnceAboutFilesThatAreThere) {
  const QDialog& dialog = Ask(OpenWith("fbrmengc02", {1, 2, 3}));
  Choose(dialog, Which::SheetsLetters, FilmKind::Svg);
  Begin(dialog);
  EXPECT_TRUE(questions.isEmpty());
  const QString path = folder.filePath(Q("engc-01-A.svg"));
  WriteBytes(path, "old");
  answer = false;
  EXPECT_EQ(Begin(dialog), "Nothing was written.");
  EXPECT_EQ(questions, QStringList{Q("3 files in that folder would be replaced.")});
  EXPECT_EQ(BytesOf(path), "old");
  answer = true;
  EXPECT_EQ(Begin(dialog), "3 files written.");
  EXPECT_EQ(questions.size(), 2);
  EXPECT_NE(BytesOf(path), "old");
}

TEST_F(Exports, StepsHaveNumbersAlways) {
  const QDialog& dialog = Ask(OpenWith("fbrmengc02", {1}));
  auto& numbers = In<QCheckBox>(dialog, "export_numbers");
  Choose(dialog, Which::ThisLetter, FilmKind::Gif);
  EXPECT_TRUE(numbers.isEnabled());
  EXPECT_FALSE(numbers.isChecked());
  Choose(dialog, Which::ThisLetter, FilmKind::Steps);
  EXPECT_FALSE(numbers.isEnabled());
  EXPECT_TRUE(numbers.isChecked());
  EXPECT_EQ(Begin(dialog), "3 files written.");
  EXPECT_EQ(QImage(folder.filePath(Q("engc-01-A-3.png"))).size(), QSize(400, 400));
  Choose(dialog, Which::ThisLetter, FilmKind::Webm);
  EXPECT_FALSE(numbers.isChecked());
  EXPECT_TRUE(In<QCheckBox>(dialog, "export_sound").isEnabled());
}

TEST_F(Exports, WriteFlashCards) {
  const QDialog& dialog = Ask(OpenWith("fbrmengc02", {1}));
  Choose(dialog, Which::WholeBoard, FilmKind::Svg);
  auto& kind = In<QComboBox>(dialog, "export_kind");
  kind.setCurrentText(Q("Flash cards (PDF)"));
  EXPECT_FALSE(In<QSpinBox>(dialog, "export_size").isEnabled());
  EXPECT_EQ(Begin(dialog), "1 file written.");
  EXPECT_EQ(There(), QStringList{Q("engc-cards.pdf")});
  EXPECT_TRUE(BytesOf(folder.filePath(Q("engc-cards.pdf"))).startsWith("%PDF"));
  In<QComboBox>(dialog, "export_which").setCurrentIndex(0);
  EXPECT_EQ(Begin(dialog), "1 file written.");
  EXPECT_TRUE(There().contains(Q("engc-01-A-cards.pdf")));
}

TEST_F(Exports, SayWhatIsMissing) {
  Board& board = OpenWith("fbrmengc02", {});
  const QDialog& dialog = Ask(board);
  Choose(dialog, Which::ThisLetter, FilmKind::Svg);
  EXPECT_EQ(Begin(dialog),
            "No letter is written yet: click a tile first, or take the whole board.");
  Choose(dialog, Which::WholeBoard, FilmKind::Svg);
  In<QLineEdit>(dialog, "export_folder").setText(folder.filePath(Q("no/such")));
  EXPECT_EQ(Begin(dialog), "There is no folder of that name.");
  EXPECT_TRUE(There().isEmpty());
}

TEST_F(Exports, AreCancelledAndLeaveNothing) {
  if (QStandardPaths::findExecutable(Q("ffmpeg")).isEmpty()) GTEST_SKIP() << "needs ffmpeg";
  QDialog& dialog = Ask(OpenWith("fbrmengc02", {}));
  Choose(dialog, Which::WholeBoard, FilmKind::Gif);
  In<QPushButton>(dialog, "export_begin").click();
  EXPECT_TRUE(IsWorking(dialog));
  EXPECT_EQ(In<QPushButton>(dialog, "export_close").text(), Q("Cancel"));
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return In<QProgressBar>(dialog, "export_progress").value() > 10; }, 60'000));
  QTest::keyClick(&dialog, Qt::Key_Escape);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !IsWorking(dialog); }, 60'000));
  EXPECT_EQ(Said(dialog), Q("Cancelled: nothing was written."));
  EXPECT_TRUE(There().isEmpty());
  EXPECT_TRUE(dialog.isVisible());
}

/// Flash cards of a whole board; what happens once that many pages are done.
class ExportedCards : public Exports {
 protected:
  void Begin(const char* form, int pages, const std::function<void()>& act) {
    dialog = &Ask(OpenWith(form, {}));
    Choose(*dialog, Which::WholeBoard, FilmKind::Svg);
    In<QComboBox>(*dialog, "export_kind").setCurrentText(Q("Flash cards (PDF)"));
    auto* bar = &In<QProgressBar>(*dialog, "export_progress");
    QObject::connect(bar, &QProgressBar::valueChanged, bar, [pages, act](int value) {
      if (value == pages) act();
    });
    In<QPushButton>(*dialog, "export_begin").click();
  }
  QDialog* dialog = nullptr;
};

TEST_F(ExportedCards, ShowTheirProgress) {
  int seen = 0;
  Begin("fbrmengc02", 2, [&] {
    ++seen;
    EXPECT_TRUE(In<QProgressBar>(*dialog, "export_progress").isVisible());
    EXPECT_EQ(In<QProgressBar>(*dialog, "export_progress").maximum(), 4);
    EXPECT_EQ(In<QPushButton>(*dialog, "export_close").text(), Q("Cancel"));
    EXPECT_TRUE(IsWorking(*dialog));
    In<QPushButton>(*dialog, "export_begin").click();  // rests
  });
  EXPECT_EQ(seen, 1);
  EXPECT_FALSE(IsWorking(*dialog));
  EXPECT_EQ(Said(*dialog), Q("1 file written."));
}

TEST_F(ExportedCards, AreCancelledAtAnyPageAndLeaveWhatWasThere) {
  WriteBytes(folder.filePath(Q("engc-cards.pdf")), "old");
  answer = true;
  for (const int page : {1, 3, 4}) {
    Begin("fbrmengc02", page, [this] { QTest::keyClick(dialog, Qt::Key_Escape); });
    EXPECT_EQ(Said(*dialog), Q("Cancelled: nothing was written.")) << page;
    EXPECT_EQ(There(), QStringList{Q("engc-cards.pdf")});
    EXPECT_EQ(BytesOf(folder.filePath(Q("engc-cards.pdf"))), "old");
    EXPECT_TRUE(dialog->isVisible());
    dialog->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

TEST_F(ExportedCards, EndWithTheirBoard) {
  Begin("fbrmengc02", 2, [] {
    QTimer::singleShot(0, [] {
      UnloadAll();
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    });
  });
  EXPECT_TRUE(There().isEmpty());
}

TEST_F(Exports, EndWithTheirBoard) {
  if (QStandardPaths::findExecutable(Q("ffmpeg")).isEmpty()) GTEST_SKIP() << "needs ffmpeg";
  const QDialog& dialog = Ask(OpenWith("fbrmengc02", {}));
  Choose(dialog, Which::WholeBoard, FilmKind::Gif);
  In<QPushButton>(dialog, "export_begin").click();
  UnloadAll();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(There().isEmpty());
}

TEST_F(Exports, RememberWhatWasChosen) {
  Board& board = OpenWith("fbrmengc02", {1});
  QDialog& dialog = Ask(board);
  Choose(dialog, Which::SheetsLetters, FilmKind::Steps);
  In<QSpinBox>(dialog, "export_size").setValue(77);
  Begin(dialog);
  dialog.close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  const QDialog& again = Ask(board);
  EXPECT_EQ(In<QComboBox>(again, "export_which").currentText(), Q("The sheet's letters"));
  EXPECT_EQ(In<QComboBox>(again, "export_kind").currentText(), Q("Steps (PNG)"));
  EXPECT_EQ(In<QSpinBox>(again, "export_size").value(), 77);
}

TEST_F(Exports, HaveANameOnEveryControl) {
  const QDialog& dialog = Ask(OpenWith("fbrmengc02", {}));
  for (const QWidget* each : dialog.findChildren<QWidget*>(QRegularExpression(Q("^export_")))) {
    EXPECT_FALSE(each->accessibleName().isEmpty()) << each->objectName().toStdString();
  }
}

}  // namespace
}  // namespace bramlee
