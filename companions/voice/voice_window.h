// The window in which a board's sounds are recorded.
#pragma once

#include <QDialog>
#include <QTemporaryDir>
#include <functional>

#include "companions/voice/sound_list.h"
#include "companions/voice/sounds_work.h"
#include "companions/voice/take_light.h"
#include "companions/voice/taking.h"
#include "voice/own_sounds.h"

class QHBoxLayout;
class QLabel;
class QProgressBar;
class QPushButton;
class QSpinBox;
class QVBoxLayout;

namespace bramlee {

class Board;
class MicrophoneList;

/// Lists the board's sounds; each is heard, recorded, kept or recorded again, and given back to the
/// sounds' maker. A sound that is kept leads to the next one. Escape calls off what is recorded or
/// copied, else closes the window.
class VoiceWindow : public QDialog {
  Q_OBJECT
 public:
  /// Of that board, which outlives the window.
  explicit VoiceWindow(Board& board);

  void reject() override;

 protected:
  bool event(QEvent* event) override;

 private:
  QVBoxLayout* MakeSide();
  QHBoxLayout* MakeFoot();
  QWidget* MakeNumberRow();
  void Connect();
  void Begin();

  void ShowMicrophones(const QList<Microphone>& there);
  void Follow();
  void FollowTake();
  void Choose();
  void ShowLevel(double peak);
  void Say(const QString& line);

  void Hear();
  void TakeOver(const Recording& recording);
  void Again();
  void Keep();
  void GiveBack();
  void ToStick();
  void FromStick();
  void AddNumber();
  void Work(const SoundsWork::Work& work, std::function<void(const Copied&)> then);
  void Finish(const Copied& copied);
  void Forget();

  Board& board_;
  OwnSounds own_;
  bool driveIsThere_;
  SpeechWave take_;  ///< recorded and not yet kept; empty for none
  QTemporaryDir takes_;
  std::function<void(const Copied&)> then_;

  SoundList* list_;
  QLabel* progressText_;
  QLabel* chosen_;
  TakeLight* light_;
  QProgressBar* level_;
  QPushButton* hear_;
  QPushButton* record_;
  QPushButton* keep_;
  QPushButton* again_;
  QPushButton* giveBack_;
  QSpinBox* number_;
  MicrophoneList* microphones_;
  QPushButton* toStick_;
  QPushButton* fromStick_;
  QProgressBar* progress_;
  QLabel* said_;
  QPushButton* close_;
  Taking taking_;
  SoundsWork work_;
};

}  // namespace bramlee
