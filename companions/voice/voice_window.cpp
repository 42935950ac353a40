#include "companions/voice/voice_window.h"

#include <QEvent>
#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

#include "board/board.h"
#include "companions/voice/microphone_list.h"
#include "companions/voice/stick_place.h"
#include "companions/voice/take_lines.h"
#include "files/platform.h"
#include "media/sound_engine.h"
#include "ui/named.h"
#include "ui/return_key.h"
#include "voice/sound_formats.h"

namespace bramlee {
namespace {

constexpr int kLeastPixels = 44;  ///< of what is clicked
constexpr int kSidePixels = 270;
constexpr int kFootPixels = 110;
constexpr QSize kWindow(900, 640);
constexpr int kLowestLevel = -60;  ///< decibels that the meter shows

QPushButton* Button(const char* text, const char* name, const char* accessible) {
  auto* button = Named(new QPushButton(QString::fromLatin1(text)), name, accessible);
  button->setMinimumHeight(kLeastPixels);
  button->setAutoDefault(false);
  return button;
}

QLabel* Line(const char* name, const char* accessible) {
  auto* line = Named(new QLabel, name, accessible);
  line->setTextFormat(Qt::PlainText);
  line->setWordWrap(true);
  return line;
}

QString SoundsText(int sounds) {
  return sounds == 1 ? QStringLiteral("1 recording") : QStringLiteral("%1 recordings").arg(sounds);
}

}  // namespace

VoiceWindow::VoiceWindow(Board& board)
    : QDialog(&board),
      board_(board),
      own_(SoundsDriveOf(board)),
      driveIsThere_(LookAt(SoundsDriveOf(board)) == Sight::Folder),
      list_(Named(new SoundList, "voice_sounds", "Sounds of the board")),
      progressText_(Line("voice_own", "How many are in your own voice")),
      chosen_(Line("voice_chosen", "Chosen sound")),
      light_(new TakeLight),
      level_(Named(new QProgressBar, "voice_level", "Level of the microphone")),
      hear_(Button("&Hear", "voice_hear", "Hear")),
      record_(Button("&Record", "voice_record", "Record")),
      keep_(Button("&Keep", "voice_keep", "Keep")),
      again_(Button("&Again", "voice_again", "Record again")),
      giveBack_(Button("&Give back", "voice_giveback", "Give back the maker's voice")),
      number_(Named(new QSpinBox, "voice_number", "Another number")),
      microphones_(new MicrophoneList),
      toStick_(Button("To a &stick", "voice_tostick", "Copy all recordings to a stick")),
      fromStick_(Button("&From a stick", "voice_fromstick", "Take recordings from a stick")),
      progress_(Named(new QProgressBar, "voice_progress", "Progress")),
      said_(Line("voice_said", "What came of it")),
      close_(Button("Close", "voice_close", "Close")) {
  setObjectName(QStringLiteral("voice"));
  setWindowTitle(QStringLiteral("Own voice"));
  light_->setObjectName(QStringLiteral("voice_light"));
  auto* upper = new QHBoxLayout;
  upper->addWidget(list_, 1);
  upper->addLayout(MakeSide());
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(upper, 1);
  layout->addWidget(said_);
  layout->addWidget(progress_);
  layout->addLayout(MakeFoot());
  said_->setMinimumHeight(2 * said_->fontMetrics().lineSpacing());
  resize(kWindow);
  for (const BoardSound& sound : SoundsOf(board_)) list_->Offer(sound);
  PressByReturn(*this);
  Connect();
  Begin();
}

QVBoxLayout* VoiceWindow::MakeSide() {
  level_->setRange(kLowestLevel, 0);
  level_->setValue(kLowestLevel);
  level_->setTextVisible(false);
  for (QLabel* line : {chosen_, progressText_}) line->setAlignment(Qt::AlignCenter);
  QFont large = chosen_->font();
  large.setPointSizeF(large.pointSizeF() * 1.4);
  chosen_->setFont(large);
  chosen_->setFixedWidth(kSidePixels);
  chosen_->setMinimumHeight(3 * QFontMetrics(large).lineSpacing());
  record_->setMinimumHeight(kLeastPixels * 3 / 2);
  record_->setFont(large);
  auto* side = new QVBoxLayout;
  side->addWidget(progressText_);
  side->addWidget(chosen_);
  side->addWidget(light_, 0, Qt::AlignHCenter);
  side->addWidget(level_);
  for (QPushButton* button : {record_, hear_, keep_, again_, giveBack_}) side->addWidget(button);
  side->addStretch();
  QWidget* numbers = MakeNumberRow();
  numbers->setHidden(!NumberSoundOf(board_, 0));
  side->addWidget(numbers);
  return side;
}

QWidget* VoiceWindow::MakeNumberRow() {
  auto* row = new QWidget;
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins({});
  number_->setRange(std::numeric_limits<std::int16_t>::min(),
                    std::numeric_limits<std::int16_t>::max());
  number_->setValue(101);
  number_->setMinimumHeight(kLeastPixels);
  QPushButton* add = Button("A&nother number", "voice_addnumber", "List another number");
  connect(add, &QPushButton::clicked, this, &VoiceWindow::AddNumber);
  layout->addWidget(number_);
  layout->addWidget(add);
  return row;
}

QHBoxLayout* VoiceWindow::MakeFoot() {
  auto* foot = new QHBoxLayout;
  auto* label = new QLabel(QStringLiteral("&Microphone"));
  label->setBuddy(microphones_);
  microphones_->setMinimumHeight(kLeastPixels);
  foot->addWidget(label);
  foot->addWidget(microphones_, 1);
  for (QPushButton* button : {toStick_, fromStick_, close_}) {
    button->setMinimumWidth(kFootPixels);
    foot->addWidget(button);
  }
  return foot;
}

void VoiceWindow::Connect() {
  connect(list_, &QListWidget::itemClicked, this, &VoiceWindow::Hear);
  connect(list_, &QListWidget::itemActivated, this, &VoiceWindow::Hear);
  connect(list_, &QListWidget::currentRowChanged, this, &VoiceWindow::Choose);
  connect(hear_, &QPushButton::clicked, this, &VoiceWindow::Hear);
  connect(record_, &QPushButton::pressed, this, [this] {
    Forget();
    taking_.Press(microphones_->Id());
  });
  connect(record_, &QPushButton::released, &taking_, &Taking::Release);
  connect(keep_, &QPushButton::clicked, this, &VoiceWindow::Keep);
  connect(again_, &QPushButton::clicked, this, &VoiceWindow::Again);
  connect(giveBack_, &QPushButton::clicked, this, &VoiceWindow::GiveBack);
  connect(toStick_, &QPushButton::clicked, this, &VoiceWindow::ToStick);
  connect(fromStick_, &QPushButton::clicked, this, &VoiceWindow::FromStick);
  connect(close_, &QPushButton::clicked, this, &VoiceWindow::reject);
  connect(&taking_, &Taking::Changed, this, &VoiceWindow::FollowTake);
  connect(&taking_, &Taking::Level, this, &VoiceWindow::ShowLevel);
  connect(&taking_, &Taking::Microphones, this, &VoiceWindow::ShowMicrophones);
  connect(&taking_, &Taking::Ended, this, &VoiceWindow::TakeOver);
  connect(&work_, &SoundsWork::Progress, this, [this](int done, int of) {
    progress_->setMaximum(of);
    progress_->setValue(done);
  });
  connect(&work_, &SoundsWork::Ended, this, &VoiceWindow::Finish);
}

void VoiceWindow::Begin() {
  SoundEngine::Instance().WarmUp();
  Say(driveIsThere_ ? own_.Finish() : QStringLiteral("The drive of the sounds is not there."));
  if (said_->text().isEmpty()) Say(EncoderTrouble());
  list_->ShowVoices(own_);
  list_->setCurrentRow(0);
  taking_.LookForMicrophones();
  Follow();
}

// --- what is seen

void VoiceWindow::Say(const QString& line) {
  said_->setText(line);
}

void VoiceWindow::ShowMicrophones(const QList<Microphone>& there) {
  const bool first = microphones_->IsEmpty() && !there.isEmpty();
  microphones_->Show(there);
  const QString none = QStringLiteral("There is no microphone: plug one in.");
  if (there.isEmpty()) {
    Say(none);
  } else if (said_->text() == none) {
    Say({});
  }
  Follow();
  if (first) record_->setFocus();
}

/// What can be done now.
void VoiceWindow::Follow() {
  const bool working = work_.IsRunning();
  const bool taking = taking_.Now() != Taking::State::Idle;
  const bool idle = !working && !taking;
  const bool taken = !take_.samples.empty();
  const VoiceOf voice = list_->ChosenVoice();
  const bool hasMicrophone = !microphones_->IsEmpty();
  list_->setEnabled(idle);
  record_->setEnabled(taking || (!working && hasMicrophone && driveIsThere_));
  hear_->setEnabled(idle && (taken || voice != VoiceOf::Nobody));
  keep_->setEnabled(idle && taken);
  again_->setEnabled(idle && taken && hasMicrophone);
  giveBack_->setEnabled(idle && voice == VoiceOf::Own);
  microphones_->setEnabled(idle && hasMicrophone);
  toStick_->setEnabled(idle && driveIsThere_);
  fromStick_->setEnabled(idle && driveIsThere_);
  progress_->setVisible(working);
  close_->setText(idle ? QStringLiteral("Close") : QStringLiteral("Cancel"));
  close_->setAccessibleName(close_->text());
  progressText_->setText(
      QStringLiteral("%1 of %2 in your own voice").arg(list_->OwnOnes()).arg(list_->count()));
  if (taking) return;
  const QString who = taken ? QStringLiteral("new, not yet kept") : VoiceText(voice);
  chosen_->setText(list_->Chosen().name + u'\n' + who);
}

void VoiceWindow::FollowTake() {
  const Taking::State now = taking_.Now();
  const QString name = list_->Chosen().name + u'\n';
  switch (now) {
    case Taking::State::Idle:
      light_->ShowDark();
      level_->setValue(kLowestLevel);
      break;
    case Taking::State::CountIn:
      light_->ShowCount(taking_.Count());
      chosen_->setText(name + QStringLiteral("get ready"));
      break;
    case Taking::State::Opening:
      chosen_->setText(name + QStringLiteral("the microphone opens"));
      break;
    case Taking::State::Recording:
      light_->ShowLit();
      chosen_->setText(name + QStringLiteral("speak now"));
      break;
  }
  const bool taking = now != Taking::State::Idle;
  record_->setText(taking ? QStringLiteral("Sto&p") : QStringLiteral("&Record"));
  record_->setAccessibleName(taking ? QStringLiteral("Stop") : QStringLiteral("Record"));
  Follow();
}

void VoiceWindow::ShowLevel(double peak) {
  level_->setValue(std::clamp(static_cast<int>(peak), kLowestLevel, 0));
}

/// Another sound is chosen: what was recorded for the one before goes.
void VoiceWindow::Choose() {
  take_ = {};
  Follow();
}

bool VoiceWindow::event(QEvent* event) {
  // Another window, or the maker, may have changed them.
  if (event->type() == QEvent::WindowActivate && !work_.IsRunning()) {
    list_->ShowVoices(own_);
    Follow();
  }
  return QDialog::event(event);
}

// --- what is done

void VoiceWindow::Hear() {
  const bool taken = !take_.samples.empty();
  const QString file =
      taken ? takes_.filePath(QStringLiteral("take.wav")) : own_.FileOf(list_->Chosen().sound);
  if (!file.isEmpty()) SoundEngine::Instance().Play(file);
}

void VoiceWindow::Forget() {
  take_ = {};
  Say({});
  Follow();
}

void VoiceWindow::TakeOver(const Recording& recording) {
  take_ = recording.cue;
  Say(LineOf(recording));
  if (!take_.samples.empty()) {
    QFile file(takes_.filePath(QStringLiteral("take.wav")));
    const QByteArray wave = WriteWave(take_);
    if (file.open(QIODevice::WriteOnly) && file.write(wave) == wave.size()) file.close();
    Hear();
  }
  Follow();
  (take_.samples.empty() ? record_ : keep_)->setFocus();
}

void VoiceWindow::Again() {
  Forget();
  record_->setFocus();
  taking_.Press(microphones_->Id());
  taking_.Release();
}

void VoiceWindow::Work(const SoundsWork::Work& work, std::function<void(const Copied&)> then) {
  if (work_.IsRunning()) return;
  then_ = std::move(then);
  progress_->setRange(0, 0);
  work_.Start(work);
  Follow();
}

void VoiceWindow::Finish(const Copied& copied) {
  list_->ShowVoices(own_);
  Say(copied.error);
  std::exchange(then_, nullptr)(copied);
  Follow();
}

void VoiceWindow::Keep() {
  const QString sound = list_->Chosen().sound;
  Work(
      [own = own_, sound, take = take_](const CopyProgress&, const std::stop_token&) {
        return Copied{.sounds = 1, .error = own.Keep(sound, take)};
      },
      [this](const Copied& copied) {
        if (!copied.error.isEmpty()) return keep_->setFocus();
        take_ = {};
        if (!list_->ChooseNext()) Say(QStringLiteral("That was the last sound of the board."));
        Follow();
        record_->setFocus();
      });
}

void VoiceWindow::GiveBack() {
  const QString sound = list_->Chosen().sound;
  Work(
      [own = own_, sound](const CopyProgress&, const std::stop_token&) {
        return Copied{.sounds = 1, .error = own.GiveBack(sound)};
      },
      [this](const Copied& copied) {
        if (copied.error.isEmpty()) Say(QStringLiteral("The maker's voice is back."));
        take_ = {};
      });
}

void VoiceWindow::ToStick() {
  const QString stick = StickPlace(this, QStringLiteral("Copy all recordings to"));
  if (stick.isEmpty()) return;
  Work(
      [own = own_, stick](const CopyProgress& progress, const std::stop_token& stop) {
        return CopyToStick(own, stick, progress, stop);
      },
      [this, stick](const Copied& copied) {
        NoteCopy(stick, copied);
        if (!copied.error.isEmpty()) return;
        Say(QStringLiteral("%1 copied to %2.").arg(SoundsText(copied.sounds), stick));
      });
}

void VoiceWindow::FromStick() {
  const QString stick = StickPlace(this, QStringLiteral("Take recordings from"));
  if (stick.isEmpty()) return;
  Work(
      [own = own_, stick](const CopyProgress& progress, const std::stop_token& stop) {
        return TakeFromStick(own, stick, progress, stop);
      },
      [this, stick](const Copied& copied) {
        NoteCopy(stick, copied);
        if (!copied.error.isEmpty()) return;
        Say(QStringLiteral("%1 taken from %2.").arg(SoundsText(copied.sounds), stick));
      });
}

void VoiceWindow::AddNumber() {
  const std::optional<BoardSound> sound = NumberSoundOf(board_, number_->value());
  if (!sound) return;
  const int row = list_->Offer(*sound);
  list_->ShowVoices(own_);
  list_->setCurrentRow(row);
  list_->scrollToItem(list_->item(row));
  record_->setFocus();
}

void VoiceWindow::reject() {
  if (taking_.Now() != Taking::State::Idle) return taking_.CallOff();
  if (work_.IsRunning()) return work_.Cancel();
  SoundEngine::Instance().Stop();
  QDialog::reject();
}

}  // namespace bramlee
