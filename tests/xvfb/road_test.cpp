// The real program on a real display, from its start to its exit, used as a user would: nothing is
// known of it but what the screen shows.
#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>
#include <functional>

#include "letters/letter_sets.h"
#include "tests/recorder.h"
#include "tests/xvfb/desktop.h"

namespace bramlee {
namespace {

const QString kFrame = QStringLiteral("Welcome To BRAMLEE");
const QString kBoard = QStringLiteral("English Capital Letters");
const QString kWorksheet = QStringLiteral("Worksheet: English Capital Letters");
const QString kCard = QStringLiteral("BRAM-LEE: BioData");
constexpr QRgb kStartGround = 0xC0FFC0;
constexpr QRgb kHomeGround = 0xE0F4FF;
constexpr QRgb kCapitalsGround = 0xC0FFFF;
constexpr QRgb kCapitalsTile = 0xC62828;  ///< the edge of the first subject's picture
constexpr QRgb kInk = 0xFF0000;

bool Alike(QRgb a, QRgb b) {
  constexpr int kNear = 10;  // pictures are JPEG
  return std::abs(qRed(a) - qRed(b)) <= kNear && std::abs(qGreen(a) - qGreen(b)) <= kNear &&
         std::abs(qBlue(a) - qBlue(b)) <= kNear;
}

/// How much of the screen has that colour, 0 to 1.
double Share(const QImage& screen, QRgb colour) {
  int pixels = 0;
  for (int y = 0; y < screen.height(); y += 4) {
    for (int x = 0; x < screen.width(); x += 4) pixels += Alike(screen.pixel(x, y), colour);
  }
  return 16.0 * pixels / (screen.width() * screen.height());
}

/// The box around all straight runs of that colour of at least `length` pixels within a part of
/// the screen; empty when there is none.
QRect Runs(const QImage& screen, const QRect& part, QRgb colour, int length) {
  QRect box;
  for (int y = part.top(); y <= part.bottom(); ++y) {
    int run = 0;
    for (int x = part.left(); x <= part.right() + 1; ++x) {
      if (x <= part.right() && Alike(screen.pixel(x, y), colour)) {
        ++run;
        continue;
      }
      if (run >= length) box |= QRect(x - run, y, run, 1);
      run = 0;
    }
  }
  return box;
}

/// Where a letter's ink lies, from the sheet's corner, in pixels.
QRect InkOf(const char* set, int tile) {
  constexpr double kPenRadius = 5;
  Recorder strokes(1);
  WriteWholeTile(*FindLetterSet(set), tile, {}, strokes);
  QRectF ink;
  for (const Dot& dot : strokes.dots) {
    ink |= QRectF(double{dot.x} - kPenRadius, double{dot.y} - kPenRadius, 2 * kPenRadius,
                  2 * kPenRadius);
  }
  return ink.toRect();
}

bool IsNear(const QRect& a, const QRect& b) {
  constexpr int kNear = 2;
  return std::abs(a.left() - b.left()) <= kNear && std::abs(a.right() - b.right()) <= kNear &&
         std::abs(a.top() - b.top()) <= kNear && std::abs(a.bottom() - b.bottom()) <= kNear;
}

/// What the sound library knows of its plug-ins lies there.
constexpr char kSoundLibrary[] = "home/.cache/gstreamer-1.0/";

/// All files below a folder but the sound library's, by their names from there.
QStringList FilesBelow(const QString& folder) {
  QStringList files;
  QDirIterator walk(folder, QDir::Files | QDir::Hidden | QDir::System,
                    QDirIterator::Subdirectories);
  while (walk.hasNext()) {
    const QString file = QDir(folder).relativeFilePath(walk.next());
    if (!file.startsWith(QLatin1StringView(kSoundLibrary))) files.append(file);
  }
  files.sort();
  return files;
}

class Road : public ::testing::Test {
 protected:
  Road() {
    for (const char* folder : {"drives/c/bramlee/dba", "home", "tmp", "run"}) {
      QDir().mkpath(In(folder));
    }
    QFile::setPermissions(In("run"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  }

  QString In(const char* place) const { return own_.filePath(QString::fromLatin1(place)); }

  /// Whatever the program and its libraries may write goes into the test's own folder.
  std::unique_ptr<Program> StartOn(const Desktop& desktop) const {
    return std::make_unique<Program>(
        desktop, QStringLiteral(BRAMLEE_PROGRAM), QStringList{},
        QStringList{QStringLiteral("BRAMLEE_DRIVES=") + In("drives"),
                    QStringLiteral("HOME=") + In("home"), QStringLiteral("TMPDIR=") + In("tmp"),
                    QStringLiteral("XDG_RUNTIME_DIR=") + In("run"),
                    QStringLiteral("XDG_DATA_HOME="), QStringLiteral("XDG_CONFIG_HOME="),
                    QStringLiteral("XDG_CACHE_HOME=")});
  }

  /// Waits until the screen shows something; a screen that never does is kept as a picture.
  static QImage See(const Desktop& desktop, const char* what,
                    const std::function<bool(const QImage&)>& there) {
    QImage screen;
    const bool seen = Eventually([&] {
      screen = desktop.Screenshot();
      return there(screen);
    });
    if (seen) return screen;
    const QString kept = QStringLiteral(BRAMLEE_PROGRAMS "/never-seen.png");
    screen.save(kept);
    throw std::runtime_error("never seen: " + std::string(what) + ", but " + qPrintable(kept));
  }
  static QImage SeeGround(const Desktop& desktop, const char* what, QRgb ground) {
    return See(desktop, what,
               [ground](const QImage& screen) { return Share(screen, ground) > 0.4; });
  }
  /// Presses keys one after the other, once the window of that title has them.
  static void Press(const Desktop& desktop, const QString& title, const QStringList& keys) {
    See(desktop, qPrintable(QStringLiteral("keys for ") + title), [&](const QImage&) {
      const auto window = desktop.WindowTitled(title);
      return window != 0 && desktop.HasKeys(window);
    });
    for (const QString& key : keys) desktop.Key(key);
  }
  /// The first subject's tile, empty when it is not seen.
  static QRect CapitalsTile(const QImage& screen) {
    return Runs(screen, screen.rect(), kCapitalsTile, 60);
  }

 private:
  QTemporaryDir own_;
};

TEST_F(Road, FromStartToExit) {
  const Desktop desktop;
  const auto program = StartOn(desktop);

  QImage screen = SeeGround(desktop, "the start form", kStartGround);
  desktop.Click(screen.rect().center());
  screen = SeeGround(desktop, "home", kHomeGround);
  desktop.Click(CapitalsTile(screen).center());

  screen = SeeGround(desktop, "the capitals", kCapitalsGround);
  const QPoint sheet = Runs(screen, screen.rect(), kCapitalsGround, 300).topLeft();
  const QRect rest(sheet + QPoint(380, 0), screen.rect().bottomRight());
  EXPECT_TRUE(Runs(screen, rest, kInk, 2).isEmpty());
  // The tile of B stands 1440 twips from the left and 1200 from the top, 1215 by 615 large.
  desktop.Click(sheet + QPoint((1440 + 1215 / 2) / 15, (1200 + 615 / 2) / 15));
  const QRect letter = InkOf("engc", 2).translated(sheet);
  See(desktop, "a written B",
      [&](const QImage& seen) { return IsNear(Runs(seen, rest, kInk, 2), letter); });

  Press(desktop, kBoard,
        {QStringLiteral("alt+f"), QStringLiteral("Down"), QStringLiteral("Return")});
  SeeGround(desktop, "home again", kHomeGround);

  Press(desktop, kFrame, {QStringLiteral("alt+b")});
  See(desktop, "the card", [](const QImage& seen) { return CapitalsTile(seen).isEmpty(); });
  Press(desktop, kCard, {QStringLiteral("alt+f"), QStringLiteral("b")});
  See(desktop, "home below the card",
      [](const QImage& seen) { return !CapitalsTile(seen).isEmpty(); });

  Press(desktop, kFrame, {QStringLiteral("alt+f"), QStringLiteral("e")});
  EXPECT_EQ(program->WaitForEnd(), 0);
  EXPECT_EQ(FilesBelow(In("")), QStringList{QStringLiteral("drives/c/bramlee/dba/brmstu1.dat")});
  EXPECT_EQ(QFile(In("drives/c/bramlee/dba/brmstu1.dat")).size(), 600);
}

TEST_F(Road, AWorksheetIsSavedAsAFileByKeysAlone) {
  const Desktop desktop;
  const auto program = StartOn(desktop);
  SeeGround(desktop, "the start form", kStartGround);
  Press(desktop, kFrame, {QStringLiteral("alt+m"), QStringLiteral("s")});
  const QImage screen = SeeGround(desktop, "home", kHomeGround);
  desktop.Click(CapitalsTile(screen).center());
  Press(desktop, kBoard, {QStringLiteral("ctrl+p")});
  Press(desktop, kWorksheet, {QStringLiteral("alt+s")});
  Press(desktop, QStringLiteral("Save as PDF"), {QStringLiteral("ctrl+a")});
  desktop.Xdotool({QStringLiteral("type"), In("sheet.pdf")});
  desktop.Key(QStringLiteral("Return"));
  EXPECT_TRUE(Eventually([&] { return QFile::exists(In("sheet.pdf")); }));
  QFile saved(In("sheet.pdf"));
  ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
  EXPECT_TRUE(saved.readAll().startsWith("%PDF-"));
  Press(desktop, kWorksheet, {QStringLiteral("Escape")});
  Press(desktop, kBoard,
        {QStringLiteral("alt+f"), QStringLiteral("Down"), QStringLiteral("Return")});
  SeeGround(desktop, "home again", kHomeGround);
}

TEST_F(Road, BackFromHomeAndExitFromTheStartForm) {
  const Desktop desktop;
  const auto program = StartOn(desktop);
  SeeGround(desktop, "the start form", kStartGround);
  Press(desktop, kFrame, {QStringLiteral("alt+m"), QStringLiteral("s")});
  SeeGround(desktop, "home", kHomeGround);
  Press(desktop, kFrame, {QStringLiteral("alt+f"), QStringLiteral("b")});
  SeeGround(desktop, "the start form again", kStartGround);
  Press(desktop, kFrame, {QStringLiteral("alt+m"), QStringLiteral("e")});
  EXPECT_EQ(program->WaitForEnd(), 0);
}

TEST_F(Road, ClosingTheFrameEndsTheProgram) {
  const Desktop desktop;
  const auto program = StartOn(desktop);
  SeeGround(desktop, "the start form", kStartGround);
  desktop.AskToClose(desktop.WindowTitled(kFrame));
  EXPECT_EQ(program->WaitForEnd(), 0);
  EXPECT_EQ(FilesBelow(In("")), QStringList{});
}

TEST_F(Road, TheSoundLibraryIsReadyBeforeAnyClickAndNotInTheProgram) {
  const Desktop desktop;
  const auto program = StartOn(desktop);
  const QDir library(In(kSoundLibrary));
  ASSERT_TRUE(Eventually([&] {
    return !library.entryList({QStringLiteral("registry.*.bin")}, QDir::Files).isEmpty();
  }));
  QFile loaded(QStringLiteral("/proc/%1/maps").arg(program->ProcessId()));
  ASSERT_TRUE(loaded.open(QIODevice::ReadOnly));
  const QByteArray libraries = loaded.readAll();
  EXPECT_TRUE(libraries.contains("libQt6Multimedia"));
  EXPECT_FALSE(libraries.contains("libgstreamer"));
}

TEST_F(Road, EveryWindowStandsOnThePrimaryScreenWhereverThatLies) {
  const QRect primary(1024, 0, 1024, 768);
  const QRect other(0, 0, 1024, 768);
  const Desktop desktop({primary, other});
  const auto program = StartOn(desktop);
  const auto seeOnPrimary = [&](const QString& title) {
    See(desktop, qPrintable(title + QStringLiteral(" on the primary screen")), [&](const QImage&) {
      const auto window = desktop.WindowTitled(title);
      return window != 0 && primary.contains(desktop.OuterPlace(window));
    });
  };
  seeOnPrimary(kFrame);
  Press(desktop, kFrame, {QStringLiteral("alt+m"), QStringLiteral("s")});
  See(desktop, "home", [](const QImage& screen) { return !CapitalsTile(screen).isEmpty(); });
  Press(desktop, kFrame, {QStringLiteral("alt+b")});
  seeOnPrimary(kCard);
  Press(desktop, kCard, {QStringLiteral("alt+f"), QStringLiteral("b")});
  const QImage screen = See(desktop, "home below the card",
                            [](const QImage& seen) { return !CapitalsTile(seen).isEmpty(); });
  desktop.Click(CapitalsTile(screen).center());
  seeOnPrimary(kBoard);
  // A message box goes where the pointer is, if it is let to.
  desktop.Xdotool({QStringLiteral("mousemove"), QStringLiteral("500"), QStringLiteral("700")});
  Press(desktop, kBoard,
        {QStringLiteral("alt+a"), QStringLiteral("p"), QStringLiteral("Tab"),
         QStringLiteral("space")});
  seeOnPrimary(QStringLiteral("BRAM LEE"));
}

TEST_F(Road, TheFrameIsAsLargeAsTheScreenAndLiesWhollyOnIt) {
  for (const QSize size : {QSize(1024, 768), QSize(1366, 768), QSize(1920, 1080)}) {
    const Desktop desktop(size);
    // A panel changes nothing: the forms are laid out for all of the screen.
    desktop.SetFreePart(QRect({0, 40}, size - QSize(60, 100)));
    const auto program = StartOn(desktop);
    SeeGround(desktop, "the start form", kStartGround);
    // Three pixels or less are missing to the whole screen; the window manager's borders count.
    const auto window = desktop.WindowTitled(kFrame);
    ASSERT_NE(window, 0U);
    See(desktop, "the frame within the screen", [&](const QImage& screen) {
      const QRect outer = desktop.OuterPlace(window);
      return screen.rect().contains(outer) && screen.width() - outer.width() <= 3 &&
             screen.height() - outer.height() <= 3;
    });
  }
}

}  // namespace
}  // namespace bramlee
