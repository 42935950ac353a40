// The sounds of a board to choose from, each with who speaks it.
#pragma once

#include <QListWidget>

#include "companions/voice/board_sounds.h"
#include "voice/own_sounds.h"

namespace bramlee {

/// Pictures of tiles and numbers, below each "own voice", "maker's" or "missing". Exactly one is
/// chosen, unless there is none.
class SoundList : public QListWidget {
  Q_OBJECT
 public:
  explicit SoundList(QWidget* parent = nullptr);

  /// Adds a sound at the end, or finds it. Returns its row.
  int Offer(const BoardSound& sound);
  /// The sound that is chosen; an empty one for none.
  BoardSound Chosen() const;
  VoiceOf ChosenVoice() const;
  /// Chooses the sound behind the chosen one. False at the end.
  bool ChooseNext();
  /// Looks at all sounds again.
  void ShowVoices(const OwnSounds& own);
  /// How many are in one's own voice.
  int OwnOnes() const;

 private:
  void ShowVoice(int row, VoiceOf voice);

  QList<BoardSound> sounds_;
  QList<VoiceOf> voices_;
};

/// For people: "own voice".
QString VoiceText(VoiceOf voice);

}  // namespace bramlee
