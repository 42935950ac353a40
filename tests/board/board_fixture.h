// What tests of boards share: real forms by their names, real menu items and tiles, a drive
// of the test's own choice, and drives without a sound.
#pragma once

#include <QColor>
#include <string>
#include <vector>

#include "board/board.h"
#include "board/companions.h"
#include "tests/files/temp_drives.h"

namespace bramlee {

inline const QColor kRed(0xFF, 0, 0);
inline const QColor kBlue(0, 0, 0xFF);
inline const QColor kGreen(0, 0xFF, 0);
inline const QColor kBlack(0, 0, 0);
inline const QColor kWhite(0xFF, 0xFF, 0xFF);

/// The boards of letters.
inline constexpr const char* kAllBoards[] = {"fbrmengc02", "fbrmengs01", "fbrmhinv01",
                                             "fbrmhinc01", "fbrmtelv01", "fbrmtelc01"};

QString Q(const char* latin);
QString Q(const char* array, int index);

/// Picks the menu item of that name, as a user would.
void Pick(const Form& form, const QString& item);
inline void Pick(const Form& form, const char* item) {
  Pick(form, Q(item));
}

/// The indices of the marked items of an array of six, five or four.
std::vector<int> Marked(const Board& board, const char* array, int last);

/// The sheet's colour at a place, tiles and all.
QColor ColourAt(const Board& board, int x, int y);

/// Whether nothing but the ground is to be seen there.
bool IsBlank(const Board& board, int x, int y);

/// A control's place in twips, as text: "1450 560 900 825".
std::string PlaceText(const Form& form, const QString& control);

/// Whether that button of the strip is disabled while a letter is written, and only then.
bool RestsWhileALetterIsWritten(Board& board, const char* button);

class BoardTest : public TempDrives {
 protected:
  void SetUp() override;
  void TearDown() override;

  /// The real board of that form's name, loaded unseen, at the quickest step without a mark.
  Board& Open(const char* form);
  /// A board of a changed record, loaded unseen under the record's name.
  Board& Open(const BoardRecord& record);

  std::optional<QString> drive = Q("C:");  ///< the one chosen for the media

 private:
  std::vector<BoardRecord> records_;
};

/// From now on all boards have this companion: added once, whichever suites ask for it.
template <Companion companion>
void AddOnce() {
  [[maybe_unused]] static const bool added = (AddCompanion(companion), true);
}

/// Tests of boards that have these companions.
template <Companion... companions>
class BoardWith : public BoardTest {
 protected:
  static void SetUpTestSuite() { (AddOnce<companions>(), ...); }
};

}  // namespace bramlee
