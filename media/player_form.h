// The form around the media player. No screen shows it: unseen, it is the sound of all boards.
#pragma once

#include "media/windows_media_player.h"
#include "ui/form.h"

namespace bramlee {

/// Loaded by the first cue, unloaded by its own countdown, loaded again by the next cue.
class PlayerForm : public Form {
  Q_OBJECT
 public:
  PlayerForm();

  /// Lays the form out and keeps the player's size for "&Default". Ignores errors. Tag "1207:02".
  void Form_Load() override;
  /// Ends what is playing.
  void Form_Unload() override;

  // --- handlers
  /// Unloads the form.
  void mnuback_Click();
  /// Shows or hides the list of clips.
  void mnulist_Click();
  void mnuplay_Click();
  void mnustop_Click();
  /// Sizes the player: 0 as kept at load; 1 to 4 a quarter, half, all and twice the form, in the
  /// middle across it. Its top stays.
  void mnudsize_Click(int index);
  /// Sets the speed that the item's caption reads, 1 as recorded.
  void mnuspd_Click(int index);
  /// 1 lets the countdown run, 2 holds it; what has elapsed is kept.
  void mnucdown_Click(int index);
  /// Plays the list's current entry and hides the list. Ignores errors. Tag "1207:01".
  void cmbavi_Click();
  /// Unloads the form when txtcnt reads 1. Reports an error. Tag "1207:03".
  void Timer1_Timer();
  /// One step of the countdown, as long as the timer's interval. The first takes the minutes from
  /// txtete, where those that remain are shown; the last unloads the form. Without minutes it shows
  /// a message and unloads the form.
  void Timerete_Timer();

  // --- what no menu item reaches
  void FlipMute();
  /// Switches whether a picture fills its place, distorted if need be.
  void FlipStretchToFit();

 private:
  void MakeMenus();
  void LayOut();
  WindowsMediaPlayer* Player() const;
  bool BeginCountdown();
  void EndCountdown();

  // --- the countdown; lengths of time in seconds
  bool started_ = false;
  double total_ = 0;
  double elapsed_ = 0;
};

}  // namespace bramlee
