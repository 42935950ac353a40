#include "media/windows_media_player.h"

#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>
#include <utility>

#include "files/drives.h"
#include "media/clip_player.h"
#include "media/sound_file.h"

namespace bramlee {

WindowsMediaPlayer::WindowsMediaPlayer(QWidget* parent)
    : QWidget(parent), clip_(new ClipPlayer(this)) {
  setObjectName(QStringLiteral("WindowsMediaPlayer1"));
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins({});
  rows->addWidget(clip_, 1);
  auto* strip = new QWidget(this);
  rows->addWidget(strip);
  MakeButtons(strip);
}

WindowsMediaPlayer::~WindowsMediaPlayer() {
  Stop();
}

void WindowsMediaPlayer::MakeButtons(QWidget* strip) {
  auto* row = new QHBoxLayout(strip);
  const auto add = [&](QStyle::StandardPixmap icon, const QString& name, auto click) {
    auto* button = new QToolButton(strip);
    button->setIcon(style()->standardIcon(icon));
    button->setToolTip(name);
    button->setAccessibleName(name);
    connect(button, &QToolButton::clicked, this, click);
    row->addWidget(button);
  };
  add(QStyle::SP_MediaPlay, tr("Play"), [this] { Play(); });
  add(QStyle::SP_MediaStop, tr("Stop"), [this] { Stop(); });
  add(QStyle::SP_MediaVolumeMuted, tr("Mute"), [this] { SetMute(!mute_); });
  row->addStretch();
}

void WindowsMediaPlayer::SetURL(const QString& path) {
  Stop();
  url_ = path;
}

void WindowsMediaPlayer::Play() {
  if (url_.isEmpty() || Playing()) return;
  const QString file = SystemPath(url_);
  if (IsPictureFile(file)) return clip_->Play(file);
  SoundEngine& engine = SoundEngine::Instance();
  connect(&engine, &SoundEngine::Ended, this, &WindowsMediaPlayer::SoundEnded,
          Qt::UniqueConnection);
  engine.SetRate(rate_);
  engine.SetMute(mute_);
  sound_ = engine.Play(file);
}

void WindowsMediaPlayer::SoundEnded(int number) {
  if (number == sound_) sound_ = 0;
}

void WindowsMediaPlayer::Stop() {
  clip_->Stop();
  if (std::exchange(sound_, 0) != 0) SoundEngine::Instance().Stop();
}

bool WindowsMediaPlayer::Playing() const {
  return sound_ != 0 || clip_->Playing();
}

void WindowsMediaPlayer::SetRate(double rate) {
  if (!(rate > 0)) return;
  rate_ = rate;
  clip_->SetRate(rate);
  if (sound_ != 0) SoundEngine::Instance().SetRate(rate);
}

void WindowsMediaPlayer::SetMute(bool mute) {
  mute_ = mute;
  clip_->SetMute(mute);
  if (sound_ != 0) SoundEngine::Instance().SetMute(mute);
}

void WindowsMediaPlayer::SetStretchToFit(bool stretch) {
  stretchToFit_ = stretch;
  clip_->SetStretchToFit(stretch);
}

}  // namespace bramlee
