#include "board/cues.h"

#include <iterator>

#include "files/drives.h"
#include "files/numbers.h"
#include "files/sound_sets.h"
#include "files/trap.h"
#include "media/play_media_file.h"
#include "ui/form.h"
#include "ui/form_ids.h"
#include "ui/forms.h"
#include "ui/message_box.h"

namespace bramlee {

std::int16_t CueBoardNo = 0;

namespace {

constexpr int kFormats = 4;

/// How a board's sounds are asked for.
struct CueSet {
  const char* board;     ///< the form whose checked format and drive count
  const char* captions;  ///< the form whose format items give the extension
};

// As kSoundSets. The small letters ask the capitals' board, and the Hindi vowels take their
// captions there.
constexpr CueSet kCueSets[] = {
    {kCapitalsForm,         kCapitalsForm        },
    {kCapitalsForm,         kCapitalsForm        },
    {kHindiVowelsForm,      kCapitalsForm        },
    {kHindiConsonantsForm,  kHindiConsonantsForm },
    {kTeluguVowelsForm,     kTeluguVowelsForm    },
    {kTeluguConsonantsForm, kTeluguConsonantsForm},
    {kMathsForm,            kMathsForm           },
};
static_assert(std::size(kCueSets) == std::size(kSoundSets));

constexpr std::int16_t kMathsSet = 7;

/// By its id, as a cue is required to ask boards that nobody has opened yet: they load unseen.
const Form* Loaded(const char* name) {
  const Form* form = LoadForm(name);
  if (form == nullptr) throw TrappedError(QStringLiteral("no form of that name"));
  return form;
}

QString Extension(const Form* board, const Form* captions) {
  const auto caption = [captions](int i) {
    return CaptionOf(captions->Named<QAction>(Indexed("mnufor", i)));
  };
  for (int i = 1; i <= kFormats; ++i) {
    if (board->Named<QAction>(Indexed("mnufor", i))->isChecked()) return caption(i);
  }
  return caption(1);
}

/// Whole numbers speak in the place of the maths board's tiles while its txtaud is not 0.
QString Prefix(std::int16_t cueBoardNo, const Form* board) {
  const bool numbers = cueBoardNo == kMathsSet && Val(board->TextOf(QStringLiteral("txtaud"))) != 0;
  const SoundSet& sounds = numbers ? kNumberSounds : kSoundSets[cueBoardNo - 1];
  return QString::fromLatin1(kSoundFolder) + QString::fromLatin1(sounds.prefix);
}

QString DriveOf(const Form* board) {
  return Trim(board->TextOf(QStringLiteral("txtdrv")));
}

QString LetterText(std::int16_t cueBoardNo, std::int16_t letterNo) {
  if (kSoundSets[cueBoardNo - 1].part == LetterPart::Number) return QString::number(letterNo);
  QString letter;
  if (CueLetterChar(letterNo, letter) != 0) {
    throw TrappedError(QStringLiteral("no letter of that number"));
  }
  return letter;
}

}  // namespace

std::int16_t CueLetterChar(std::int16_t letterNo, QString& text) {
  if (letterNo < 1 || letterNo > 26) return 1;
  text = QChar(u'a' + letterNo - 1);
  return 0;
}

std::int16_t CuePath(std::int16_t letterNo, std::int16_t cueBoardNo, QString& path) {
  path.clear();
  if (cueBoardNo < 1 || cueBoardNo > std::ssize(kCueSets)) return 0;
  const CueSet& set = kCueSets[cueBoardNo - 1];
  const bool built = Trap({}, [&](ErrInfo&) {
    const Form* captions = Loaded(set.captions);
    const Form* board = Loaded(set.board);
    path = DriveOf(board) + Trim(Prefix(cueBoardNo, board)) + LetterText(cueBoardNo, letterNo) +
           Trim(Extension(board, captions));
  });
  return built ? 0 : 1;
}

QString CueDrive(std::int16_t cueBoardNo) {
  QString drive;
  if (cueBoardNo < 1 || cueBoardNo > std::ssize(kCueSets)) return drive;
  Trap({}, [&](ErrInfo&) { drive = DriveOf(Loaded(kCueSets[cueBoardNo - 1].board)); });
  return drive;
}

std::int16_t PlayCue(std::int16_t letterNo, std::int16_t cueBoardNo) {
  QString path;
  if (CuePath(letterNo, cueBoardNo, path) != 0) return 1;
  if (FileMissing(path)) {
    MsgBox(Trim(path) + QStringLiteral(" Not Found: "));
  } else {
    PlayMediaFile(path);
  }
  return 0;
}

}  // namespace bramlee
