// Letters as files in a folder: all of them, or none.
#pragma once

#include <QString>
#include <QStringList>
#include <atomic>
#include <stop_token>
#include <vector>

#include "film/film_file.h"

namespace bramlee {

/// A letter to export.
struct ExportedLetter {
  LetterFilm film;
  QString name;   ///< of its file, without what it ends in; of steps, what their names begin with
  QString sound;  ///< for a video: a sound file of the system; empty for none
};

/// How an export ended.
struct Exported {
  QStringList written;  ///< the files, as whole paths, in the letters' order; empty after an error
  QStringList left;     ///< for people: the letters that cannot be made, and why
  QString error;        ///< a line for people; empty when all is written or it was cancelled
  bool cancelled = false;
};

/// Makes the files of letters and puts them into a folder. Nothing stands there before all of them
/// are made, and each then takes its place in one step; what fails or is cancelled before leaves
/// the folder as it was.
class FilmExport {
 public:
  /// The folder has to be there. A letter that nothing can be made of is left out, and named in
  /// Exported::left.
  FilmExport(QString folder, FilmKind kind, std::vector<ExportedLetter> letters);

  /// Those of its files that are there already and would be replaced, by their names.
  QStringList Replaced() const;

  /// Makes and writes all. As many letters are made at the same time as there are threads, the
  /// caller's among them. Once only.
  Exported Run(int threads, const std::stop_token& stop = {});

  // --- how far it has come; from any thread
  int Frames() const { return frames_; }
  int FramesDone() const { return framesDone_; }

 private:
  QStringList NamesOf(const ExportedLetter& letter) const;
  void MakeLetters(const std::stop_token& stop);
  Exported WriteAll() const;

  const QString folder_;
  const FilmKind kind_;
  std::vector<ExportedLetter> letters_;
  QStringList left_;
  int frames_ = 0;
  std::atomic<int> framesDone_ = 0;
  std::atomic<std::size_t> next_ = 0;
  std::vector<MadeFilm> made_;  ///< one a letter
  std::atomic<bool> failed_ = false;
};

}  // namespace bramlee
