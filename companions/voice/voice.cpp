#include "companions/voice/voice.h"

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

void Show(Board& board) {
  auto* window = new VoiceWindow(board);
  window->setAttribute(Qt::WA_DeleteOnClose);
  window->open();
}

}  // namespace

void AddOwnVoice(Board& board) {
  board.strip().AddButton(Strip::Group::Teacher,
                          {.name = "strip_voice",
                           .text = QStringLiteral("Own voice"),
                           .key = Qt::Key_V,
                           .picture = VoicePicture(),
                           .restsWhileWriting = true},
                          [&board] { Trap(kTag, [&board](ErrInfo&) { Show(board); }); });
}

}  // namespace bramlee
