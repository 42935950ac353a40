#include "media/clip_player.h"

#include <QAudioOutput>
#include <QUrl>
#include <QVBoxLayout>
#include <QVideoWidget>
#include <utility>

#include "media/sound_file.h"

namespace bramlee {

ClipPlayer::ClipPlayer(QWidget* parent) : QWidget(parent) {
  (new QVBoxLayout(this))->setContentsMargins({});
  QPalette dark = palette();
  dark.setColor(QPalette::Window, Qt::black);
  setPalette(dark);
  setAutoFillBackground(true);
}

ClipPlayer::~ClipPlayer() {
  delete player_;  // before what it shows and sounds through
}

void ClipPlayer::MakePlayer() {
  if (player_ != nullptr) return;
  player_ = new QMediaPlayer;
  output_ = new QAudioOutput(player_);
  output_->setMuted(mute_);
  player_->setAudioOutput(output_);
  picture_ = new QVideoWidget(this);
  layout()->addWidget(picture_);
  picture_->show();
  SetStretchToFit(stretch_);
  player_->setVideoOutput(picture_);
  connect(player_, &QMediaPlayer::mediaStatusChanged, this, &ClipPlayer::TakeRate);
  connect(player_, &QMediaPlayer::errorOccurred, this, &ClipPlayer::LetGoOfPlayer);
}

/// One bad file reports its error up to four times: the first report ends its player.
void ClipPlayer::LetGoOfPlayer() {
  player_->disconnect(this);
  std::exchange(player_, nullptr)->deleteLater();
  std::exchange(picture_, nullptr)->deleteLater();
}

void ClipPlayer::Play(const QString& file) {
  if (!IsPlayableFile(file)) return;
  MakePlayer();
  player_->stop();
  player_->setSource(QUrl::fromLocalFile(file));
  if (player_ != nullptr) player_->play();
}

void ClipPlayer::Stop() {
  if (player_ != nullptr) player_->stop();
}

bool ClipPlayer::Playing() const {
  return player_ != nullptr && player_->playbackState() == QMediaPlayer::PlayingState;
}

void ClipPlayer::SetRate(double rate) {
  rate_ = rate;
  if (player_ != nullptr) TakeRate(player_->mediaStatus());
}

/// Sets the rate once the file is loaded, and 1 before it: the player ignores a rate that is set
/// earlier or that it has already.
void ClipPlayer::TakeRate(QMediaPlayer::MediaStatus status) {
  if (status != QMediaPlayer::LoadedMedia && status != QMediaPlayer::BufferedMedia) return;
  player_->setPlaybackRate(1);
  player_->setPlaybackRate(rate_);
}

void ClipPlayer::SetMute(bool mute) {
  mute_ = mute;
  if (player_ != nullptr) output_->setMuted(mute);
}

void ClipPlayer::SetStretchToFit(bool stretch) {
  stretch_ = stretch;
  if (picture_ == nullptr) return;
  picture_->setAspectRatioMode(stretch ? Qt::IgnoreAspectRatio : Qt::KeepAspectRatio);
}

}  // namespace bramlee
