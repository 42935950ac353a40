// ffmpeg, which makes films of frames.
#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <stop_token>

namespace bramlee {

/// The oldest ffmpeg that holds a film's last frame.
inline constexpr int kLeastFfmpegMajor = 4;
inline constexpr int kLeastFfmpegMinor = 2;

/// Why ffmpeg cannot be used, a line for people that says what to install; empty when it can.
QString FfmpegTrouble();

/// One run of ffmpeg that reads frames and writes a file. Used within one thread.
class Ffmpeg {
 public:
  /// Starts it.
  Ffmpeg(const QStringList& arguments, std::stop_token stop);
  ~Ffmpeg();
  Ffmpeg(const Ffmpeg&) = delete;
  Ffmpeg& operator=(const Ffmpeg&) = delete;

  /// Passes bytes on; waits while it has enough of them. False when it has ended early or the stop
  /// was asked for.
  bool Write(const QByteArray& bytes);
  /// Waits for its end. Empty when the file is whole, else a line for people.
  QString Finish();

 private:
  std::stop_token stop_;
  QProcess process_;
};

}  // namespace bramlee
