// The form around the media player. No screen shows it: unseen, it is the sound of all boards.
#pragma once

#include "media/windows_media_player.h"
#include "shell/form.h"

namespace bramlee {

/// Loaded by the first cue, unloaded by its own countdown, loaded again by the next cue.
class f1207vid : public Form {
  Q_OBJECT
 public:
  f1207vid();

  void Form_Load() override;
  void Form_Unload() override;

  // --- handlers
  void mnuback_Click();
  void mnulist_Click();
  void mnuplay_Click();
  void mnustop_Click();
  void mnudsize_Click(int index);
  void mnuspd_Click(int index);
  void mnucdown_Click(int index);
  void cmbavi_Click();
  void Timer1_Timer();
  void Timerete_Timer();

  // --- what no menu item reaches
  void FlipMute();
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
