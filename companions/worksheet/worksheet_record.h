// What a teacher chose in the worksheets' dialog, and how it lasts.
#pragma once

#include <QList>
#include <QString>
#include <cstdint>
#include <optional>
#include <string_view>

#include "paper/sums.h"
#include "paper/worksheet.h"

namespace bramlee {

/// What a worksheet is about.
enum class WorksheetMatter : std::uint8_t { Letters, TypedWords, Numbers, Sums, Book };

/// The numbers that a worksheet can have.
inline constexpr int kLastPractisedNumber = 20;

// What can be asked for.
inline constexpr int kLeastLargest = 5;
inline constexpr int kMostLargest = 1000;
inline constexpr int kMostSums = 200;

/// Which sums a worksheet has.
struct ChosenSums {
  SumKind kind = SumKind::Add;
  int largest = 20;        ///< of all numbers and results
  int count = 20;          ///< how many of them
  std::uint32_t seed = 1;  ///< the same gives the same sums
  bool answers = true;     ///< whether pages with the results follow
};

/// All that the dialog asks for.
struct WorksheetRecord {
  WorksheetMatter matter = WorksheetMatter::Letters;
  std::optional<QList<int>> tiles;  ///< of the board; nothing where none were ever chosen
  QString words;                    ///< as typed, with commas between
  int firstNumber = 1;
  int lastNumber = kLastPractisedNumber;
  ChosenSums sums;
  bool given = false;  ///< letters as the board has them instead of the book's
  SheetStyle style;
  PageFormat page;
  Heading heading;        ///< as typed; its date is not asked for
  bool fromCard = false;  ///< name and class are the card's instead
  bool today = false;     ///< the date is printed
};

/// What was chosen last for that letter set's board. Letters and ruling are kept for each set, the
/// hand is that of all the program, the rest is for all boards. What is kept in no known form, or
/// was never chosen, is as at first; the paper then is that of the user's country.
WorksheetRecord KeptWorksheet(std::string_view letterSet);

/// Keeps it all but the sums' seed.
void KeepWorksheet(std::string_view letterSet, const WorksheetRecord& record);

}  // namespace bramlee
