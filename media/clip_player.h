// Shows clips with pictures.
#pragma once

#include <QMediaPlayer>
#include <QString>
#include <QWidget>

class QAudioOutput;
class QVideoWidget;

namespace bramlee {

/// The place in which a clip shows, black while none does. The first Play makes its player, and so
/// does the first one after a failure, since a player that failed stays silent for good files.
class ClipPlayer : public QWidget {
  Q_OBJECT
 public:
  explicit ClipPlayer(QWidget* parent = nullptr);
  ~ClipPlayer() override;

  /// Plays the clip of that system path from its start; shows nothing when it cannot be played.
  void Play(const QString& file);
  /// Without a clip, nothing.
  void Stop();
  bool Playing() const;

  // --- settings; they hold for the clips to come, too
  /// 1 is as recorded; greater than 0.
  void SetRate(double rate);
  void SetMute(bool mute);
  /// Whether a picture fills the place also where that distorts it.
  void SetStretchToFit(bool stretch);

 private:
  void MakePlayer();
  void LetGoOfPlayer();
  void TakeRate(QMediaPlayer::MediaStatus status);

  QMediaPlayer* player_ = nullptr;
  QAudioOutput* output_ = nullptr;
  QVideoWidget* picture_ = nullptr;
  double rate_ = 1;
  bool mute_ = false;
  bool stretch_ = false;
};

}  // namespace bramlee
