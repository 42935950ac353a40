#include "film/film_export.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <exception>
#include <filesystem>
#include <thread>
#include <utility>

#include "film/ffmpeg.h"
#include "film/file_names.h"

namespace bramlee {
namespace {

/// An error of writing, or nothing.
QString Put(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  const bool put = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() &&
                   file.flush() && file.error() == QFileDevice::NoError;
  return put ? QString() : file.errorString();
}

/// Gives a file another name, in the place of what has it already. An error, or nothing.
QString Move(const QString& from, const QString& to) {
  std::error_code error;
  std::filesystem::rename(from.toStdU16String(), to.toStdU16String(), error);
  return error ? QString::fromStdString(error.message()) : QString();
}

/// No error leaves a thread.
MadeFilm MakeCaught(const LetterFilm& film, const FilmOrder& order, const std::stop_token& stop) {
  try {
    return MakeFilm(film, order, stop);
  } catch (const std::exception& error) {
    return {.files = {}, .error = QString::fromUtf8(error.what())};
  }
}

Exported Failed(const QString& what, const QString& why) {
  return {
      .written = {},
      .left = {},
      .error = QStringLiteral("%1 cannot be written: %2").arg(QDir::toNativeSeparators(what), why)};
}

}  // namespace

FilmExport::FilmExport(QString folder, FilmKind kind, std::vector<ExportedLetter> letters)
    : folder_(std::move(folder)), kind_(kind) {
  for (ExportedLetter& letter : letters) {
    const QString trouble = FilmTrouble(letter.film);
    if (!trouble.isEmpty()) {
      left_ << trouble;
      continue;
    }
    frames_ += FramesOf(letter.film, kind);
    letters_.push_back(std::move(letter));
  }
}

QStringList FilmExport::NamesOf(const ExportedLetter& letter) const {
  const QString end = u'.' + SuffixOf(kind_);
  if (kind_ != FilmKind::Steps) return {letter.name + end};
  QStringList names;
  const auto steps = static_cast<int>(letter.film.Shown().PenStrokes().size());
  for (int step = 1; step <= steps; ++step) names << StepName(letter.name, step, steps) + end;
  return names;
}

QStringList FilmExport::Replaced() const {
  QStringList there;
  const QDir folder(folder_);
  for (const ExportedLetter& letter : letters_) {
    for (const QString& name : NamesOf(letter)) {
      if (folder.exists(name)) there << name;
    }
  }
  return there;
}

/// Makes letters until none is left to begin with.
void FilmExport::MakeLetters(const std::stop_token& stop) {
  for (std::size_t i = next_++; i < letters_.size() && !failed_; i = next_++) {
    const FilmOrder order{
        .kind = kind_, .sound = letters_[i].sound, .frameDone = [this] { ++framesDone_; }};
    made_[i] = MakeCaught(letters_[i].film, order, stop);
    if (!made_[i].error.isEmpty()) failed_ = true;
  }
}

Exported FilmExport::Run(int threads, const std::stop_token& stop) {
  if (letters_.empty()) {
    return {.written = {},
            .left = left_,
            .error = left_.isEmpty() ? QStringLiteral("there is no letter") : left_.constFirst()};
  }
  const QString trouble = NeedsFfmpeg(kind_) ? FfmpegTrouble() : QString();
  if (!trouble.isEmpty()) return {.written = {}, .left = left_, .error = trouble};
  made_.resize(letters_.size());
  {
    std::vector<std::jthread> others;
    const int more = std::min(threads, static_cast<int>(letters_.size())) - 1;
    others.reserve(static_cast<std::size_t>(std::max(more, 0)));
    for (int i = 0; i < more; ++i) others.emplace_back([this, stop] { MakeLetters(stop); });
    MakeLetters(stop);
  }
  if (stop.stop_requested()) return {.written = {}, .left = left_, .error = {}, .cancelled = true};
  for (std::size_t i = 0; i < made_.size(); ++i) {
    if (made_[i].error.isEmpty()) continue;
    return {.written = {},
            .left = left_,
            .error = QStringLiteral("%1: %2").arg(letters_[i].film.Name(), made_[i].error)};
  }
  Exported exported = WriteAll();
  exported.left = left_;
  return exported;
}

/// All are written beside their places first, so that a disk which fills up leaves no part of them.
Exported FilmExport::WriteAll() const {
  const QFileInfo target(folder_);
  if (!target.isDir()) return Failed(folder_, QStringLiteral("there is no such folder"));
  const QTemporaryDir aside(QDir(folder_).filePath(QStringLiteral(".bramlee-XXXXXX")));
  if (!aside.isValid()) return Failed(folder_, aside.errorString());
  Exported exported;
  for (std::size_t i = 0; i < letters_.size(); ++i) {
    const QStringList names = NamesOf(letters_[i]);
    for (qsizetype file = 0; file < names.size(); ++file) {
      const QString path = QDir(folder_).filePath(names[file]);
      const QString error = Put(aside.filePath(names[file]), made_[i].files[file]);
      if (!error.isEmpty()) return Failed(path, error);
      if (QFileInfo(path).isDir()) return Failed(path, QStringLiteral("it is a folder"));
      exported.written << path;
    }
  }
  for (const QString& path : exported.written) {
    const QString error = Move(aside.filePath(QFileInfo(path).fileName()), path);
    if (!error.isEmpty()) return Failed(path, error);
  }
  return exported;
}

}  // namespace bramlee
