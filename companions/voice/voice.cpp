#include "companions/voice/voice.h"

#include <QShortcut>

#include "board/board.h"
#include "board/strip.h"
#include "board/strip_pictures.h"
#include "companions/voice/voice_window.h"
#include "files/trap.h"

namespace bramlee {
namespace {

/// A tag for what cannot be opened for lack of memory.
const QString kTag = QStringLiteral("voi:01");

/// A microphone on its stand.
QIcon VoicePicture() {
  return StripPicture({
      {{38, 46},  {38, 22}, {44, 12}, {56, 12}, {62, 22}, {62, 46}, {56, 56}, {44, 56}, {38, 46}},
      StripArc({50, 44},
      26, 180, 360),
      {{50, 70}, {50, 88}},
      {{32, 88},         {68, 88}               },
  });
}

/// One a board.
class OwnVoice : public QObject {
 public:
  explicit OwnVoice(Board& board) : QObject(&board), board_(board) {
    button_ = board.strip().AddButton(Strip::Group::Teacher,
                                      {.name = "strip_voice",
                                       .text = QStringLiteral("Own voice"),
                                       .key = QStringLiteral("V"),
                                       .picture = VoicePicture()},
                                      [this] { Trap(kTag, [this](ErrInfo&) { Show(); }); });
    auto* key = new QShortcut(Qt::Key_V, &board);
    key->setAutoRepeat(false);
    connect(key, &QShortcut::activated, button_, &StripButton::click);
    connect(&board.pen(), &BoardPen::Changed, this, [this] { FollowPen(); });
    FollowPen();
  }

 private:
  /// Input for a window would wait for the letter's end.
  void FollowPen() { button_->setEnabled(!board_.pen().IsWriting()); }

  void Show() {
    auto* window = new VoiceWindow(board_);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->open();
  }

  Board& board_;
  StripButton* button_;
};

}  // namespace

void AddOwnVoice(Board& board) {
  new OwnVoice(board);
}

}  // namespace bramlee
