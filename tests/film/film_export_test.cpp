// Letters as files in a folder.
#include "film/film_export.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <csignal>
#include <thread>

#include "film/file_names.h"
#include "tests/film/films.h"

namespace bramlee {
namespace {

ExportedLetter Exported1(int tile, const FilmLook& look = RedOnGrey()) {
  const LetterId id{.set = "hinv", .tile = tile, .form = {}};
  return {.film = LetterFilm(LetterOf(id), look), .name = FileNameOf(id), .sound = {}};
}

std::vector<ExportedLetter> Letters(std::initializer_list<int> tiles) {
  std::vector<ExportedLetter> letters;
  for (const int tile : tiles) letters.push_back(Exported1(tile));
  return letters;
}

class Exporting : public testing::Test {
 protected:
  QStringList There() const {
    return QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  }
  QString PathOf(const char* name) const { return folder.filePath(QString::fromUtf8(name)); }
  void Put(const char* name, const QByteArray& bytes) const {
    QFile file(PathOf(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  QByteArray BytesOf(const char* name) const {
    QFile file(PathOf(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  QTemporaryDir folder;
};

TEST_F(Exporting, WritesAFileALetterOnAnyNumberOfThreads) {
  for (const int threads : {1, 2, 7}) {
    FilmExport films(folder.path(), FilmKind::Svg, Letters({1, 2, 3}));
    const Exported exported = films.Run(threads);
    EXPECT_EQ(exported.error.toStdString(), "");
    EXPECT_EQ(exported.written, QStringList({PathOf("hinv-01-अ.svg"), PathOf("hinv-02-आ.svg"),
                                             PathOf("hinv-03-इ.svg")}));
    EXPECT_EQ(There().size(), 3);
    EXPECT_EQ(BytesOf("hinv-02-आ.svg"), Exported1(2).film.Svg());
    EXPECT_EQ(films.FramesDone(), films.Frames());
  }
}

TEST_F(Exporting, WritesAFileAStep) {
  const auto strokes = LetterOf({.set = "hinv", .tile = 2, .form = {}}).PenStrokes().size();
  FilmExport films(folder.path(), FilmKind::Steps, Letters({2}));
  EXPECT_EQ(films.Run(1).written.size(), static_cast<qsizetype>(strokes));
  EXPECT_TRUE(There().contains(QStringLiteral("hinv-02-आ-1.png")));
}

TEST_F(Exporting, TellsWhatItWouldReplaceAndReplacesIt) {
  Put("hinv-02-आ.svg", "old");
  Put("other.svg", "kept");
  FilmExport films(folder.path(), FilmKind::Svg, Letters({1, 2}));
  EXPECT_EQ(films.Replaced(), QStringList{QStringLiteral("hinv-02-आ.svg")});
  EXPECT_EQ(films.Run(1).error.toStdString(), "");
  EXPECT_EQ(BytesOf("hinv-02-आ.svg"), Exported1(2).film.Svg());
  EXPECT_EQ(BytesOf("other.svg"), "kept");
}

TEST_F(Exporting, LeavesOutATileWithoutStrokes) {
  FilmExport films(folder.path(), FilmKind::Svg, Letters({13, 14, 15}));
  const Exported exported = films.Run(2);
  EXPECT_EQ(exported.written.size(), 2);
  EXPECT_EQ(exported.left, QStringList{QStringLiteral("picture has no strokes")});
}

TEST_F(Exporting, SaysWhyThereIsNothingToWrite) {
  EXPECT_EQ(FilmExport(folder.path(), FilmKind::Svg, Letters({14})).Run(1).error.toStdString(),
            "picture has no strokes");
  EXPECT_EQ(FilmExport(folder.path(), FilmKind::Svg, {}).Run(1).error.toStdString(),
            "there is no letter");
}

TEST_F(Exporting, LeavesTheFolderAsItWasWhenItIsCancelled) {
  Put("hinv-01-अ.svg", "old");
  for (const FilmKind kind : {FilmKind::Svg, FilmKind::Steps}) {
    FilmExport films(folder.path(), kind, Letters({1, 2, 3}));
    std::stop_source stop;
    stop.request_stop();
    const Exported exported = films.Run(2, stop.get_token());
    EXPECT_TRUE(exported.cancelled);
    EXPECT_EQ(exported.error.toStdString(), "");
    EXPECT_EQ(There().size(), 1);
    EXPECT_EQ(BytesOf("hinv-01-अ.svg"), "old");
  }
}

TEST_F(Exporting, IsCancelledFromAnotherThreadAtAnyMoment) {
  if (!IsInstalled("ffmpeg")) GTEST_SKIP() << "needs ffmpeg";
  for (const int stopAt : {1, 20, 60}) {
    FilmExport films(folder.path(), FilmKind::Gif, Letters({1, 2, 3, 4}));
    std::stop_source stop;
    const std::jthread watcher([&] {
      while (films.FramesDone() < stopAt) std::this_thread::yield();
      stop.request_stop();
    });
    EXPECT_TRUE(films.Run(2, stop.get_token()).cancelled) << stopAt;
    EXPECT_TRUE(There().isEmpty()) << stopAt;
  }
}

TEST_F(Exporting, SaysThatAFolderTakesNoFiles) {
  const QString missing = folder.filePath(QStringLiteral("no/such"));
  EXPECT_EQ(
      FilmExport(missing, FilmKind::Svg, Letters({1})).Run(1).error.toStdString(),
      (missing + QStringLiteral(" cannot be written: there is no such folder")).toStdString());
  const QString readOnly = QStringLiteral("/proc/self");  // so it is for root too
  const Exported exported = FilmExport(readOnly, FilmKind::Svg, Letters({1})).Run(1);
  EXPECT_TRUE(exported.written.isEmpty());
  EXPECT_TRUE(exported.error.startsWith(QStringLiteral("/proc/self cannot be written: ")))
      << exported.error.toStdString();
}

TEST_F(Exporting, LeavesNothingOnADiskThatFillsUp) {
  Put("hinv-01-अ.svg", "old");
  const rlimit small{.rlim_cur = 900, .rlim_max = RLIM_INFINITY};
  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &small);
  // The first letter is smaller, one of the others larger.
  const Exported exported =
      FilmExport(folder.path(), FilmKind::Svg, Letters({28, 1, 4, 11})).Run(1);
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  EXPECT_FALSE(exported.error.isEmpty());
  EXPECT_TRUE(exported.written.isEmpty());
  EXPECT_EQ(There().size(), 1);
  EXPECT_EQ(BytesOf("hinv-01-अ.svg"), "old");
}

TEST_F(Exporting, LeavesAFolderOfTheFilesNameAlone) {
  ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("hinv-02-आ.svg")));
  const Exported exported = FilmExport(folder.path(), FilmKind::Svg, Letters({1, 2})).Run(1);
  EXPECT_TRUE(exported.error.endsWith(QStringLiteral("it is a folder")))
      << exported.error.toStdString();
  EXPECT_EQ(There().size(), 1);
}

/// Has programs found in another folder alone.
class OtherPrograms : public Exporting {
 protected:
  void SetUp() override { qputenv("PATH", programs.path().toLocal8Bit()); }
  void TearDown() override { qputenv("PATH", path_); }
  void PutFfmpeg(const QByteArray& script) const {
    QFile file(programs.filePath(QStringLiteral("ffmpeg")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\n" + script);
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  }
  std::string GifError() const {
    return FilmExport(folder.path(), FilmKind::Gif, Letters({1})).Run(1).error.toStdString();
  }
  QTemporaryDir programs;

 private:
  const QByteArray path_ = qgetenv("PATH");
};

TEST_F(OtherPrograms, SayWhichPackageIsMissing) {
  EXPECT_EQ(GifError(), "ffmpeg is missing: install the package ffmpeg. SVG and PNG need it not.");
  EXPECT_EQ(FilmExport(folder.path(), FilmKind::Svg, Letters({1})).Run(1).written.size(), 1);
  EXPECT_EQ(FilmExport(folder.path(), FilmKind::Steps, Letters({28})).Run(1).error.toStdString(),
            "");
}

TEST_F(OtherPrograms, SayThatFfmpegIsTooOld) {
  PutFfmpeg("echo ffmpeg version 4.1.11-0+deb10u1 Copyright");
  EXPECT_EQ(GifError(),
            "ffmpeg is too old: 4.2 or newer is needed, from the package ffmpeg. SVG and PNG need "
            "it not.");
}

TEST_F(OtherPrograms, SayWhatFfmpegSaysLast) {
  PutFfmpeg("echo ffmpeg version 6.0; echo first >&2; echo no such encoder >&2; exit 1\n");
  EXPECT_EQ(GifError(), "vowel a (अ): ffmpeg failed: no such encoder");
  EXPECT_TRUE(There().isEmpty());
}

}  // namespace
}  // namespace bramlee
