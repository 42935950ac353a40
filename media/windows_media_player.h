// The media player that stands on PlayerForm.
#pragma once

#include <QString>
#include <QWidget>

#include "media/sound_engine.h"

namespace bramlee {

class ClipPlayer;

/// Plays one file at a time, by its buttons too, and returns from every call at once; ignores a
/// file that cannot be played. Sounds go to the sound engine, clips with pictures show in this
/// widget. Loads nothing for either before the first Play. Its sound stops when it is destroyed.
class WindowsMediaPlayer : public QWidget {
  Q_OBJECT
 public:
  explicit WindowsMediaPlayer(QWidget* parent = nullptr);
  ~WindowsMediaPlayer() override;

  /// The path of what Play plays, as the program names files. Setting one, even the same again,
  /// ends what is playing and starts nothing.
  const QString& URL() const { return url_; }
  void SetURL(const QString& path);

  // --- controls
  /// From the start. While it is playing, or without a URL, nothing.
  void Play();
  /// The next Play starts again from the beginning.
  void Stop();
  /// From Play until the sound or clip has ended, was stopped or turned out not to be playable. An
  /// end arrives as an event of the event loop.
  bool Playing() const;

  // --- settings; they stay from file to file
  /// 1 is as recorded. Ignores a rate that is not greater than 0.
  double Rate() const { return rate_; }
  void SetRate(double rate);
  bool Mute() const { return mute_; }
  void SetMute(bool mute);

  /// Whether a picture fills the place also where that distorts it.
  bool StretchToFit() const { return stretchToFit_; }
  void SetStretchToFit(bool stretch);

 private:
  void MakeButtons(QWidget* strip);
  void SoundEnded(int number);

  QString url_;
  double rate_ = 1;
  bool mute_ = false;
  bool stretchToFit_ = false;
  int sound_ = 0;  ///< the engine's number of the sound that is playing, 0 for none
  ClipPlayer* clip_;
};

}  // namespace bramlee
