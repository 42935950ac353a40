// Boards with the strip and a teacher's hand on the pen, and what happens at the pen's frames.
#pragma once

#include <QImage>
#include <QSlider>
#include <QToolButton>
#include <functional>
#include <vector>

#include "board/strip.h"
#include "tests/board/board_fixture.h"

namespace bramlee {

/// The step at which a letter takes dozens of frames. At step 1 it takes one.
inline constexpr char kSlow[] = "0.01";

class WatchTest : public BoardTest {
 protected:
  void SetUp() override;
  void TearDown() override;

  /// The board of that form's name at the slow step, seen and with the keys.
  Board& Show(const char* form);
  Board& Show(const BoardRecord& record);

  using Act = std::function<void()>;
  /// Has these happen at the pen's next frames, one a frame.
  static void AtFrames(Board& board, std::vector<Act> acts);
  /// What a user does at a frame: `act` runs as the windows live, when input may wait.
  static Act User(const Act& act);

  static QToolButton* Button(const Board& board, const char* name);
  static QSlider* Slider(const Board& board);
  static Act Press(const Board& board, const char* button);
  /// Keys as they come from the window system.
  static Act Key(const Board& board, Qt::Key key);
  static void ClickTile(const Board& board, int tile);

  /// All that stands on the sheet.
  static QImage Picture(const Board& board);
  /// What the letters and rulings of the page come to when nobody has a hand on the pen.
  static QImage PlainPicture(Board& board);
  static std::size_t Dots(const Board& board) { return board.sheet().Dots().KeptDots(); }

  /// Boards to come have no companion.
  static void LeaveCompanionsOut();
};

}  // namespace bramlee
