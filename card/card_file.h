// The file of the biodata card. Record 1 holds the card's head and the first item, each further
// record one item; how many are in use stands in record 1.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "card/card_failure.h"
#include "files/data_files.h"
#include "files/student_rec.h"

namespace bramlee {

inline constexpr int kItemFields = 9;

/// An item as it is shown: day, month, year, name, price, count, amount, pocket money, balance.
using ItemTexts = std::array<QString, kItemFields>;
ItemTexts TextsOf(const StudentRec& rec);

/// What the file shows.
struct CardContents {
  bool hasHead = false;           ///< there is a record 1
  StudentRec head;                ///< record 1
  std::vector<StudentRec> items;  ///< records 1 to RecordCount, as far as the file goes
};

/// Never reads beyond the file, whatever its count says. Throws TrappedError.
CardContents ReadCard(const RecordFile& file);

/// Whose card it is.
struct CardHolder {
  QString name;
  QString className;
};

/// As the card's file has it, without blanks around. Empty where there is no card that can be read,
/// and as long as nobody has put a name on it.
CardHolder HolderOfCard();

/// How many items the first record counts, but none that the file does not hold.
std::int32_t CountedItems(const StudentRec& first, const RecordFile& file);

/// Throws ItemChanged unless that item is among the counted ones and still reads as it was shown.
void CheckItem(const RecordFile& file, std::int32_t recNo, const ItemTexts& shown);

// What fails in these is put into `failure`, if it is given.

/// Writes the default card when the file is missing. A file
/// shorter than one record is missing too; its bytes are first copied to a file beside it
/// ("brmstu1.bad", "brmstu1.bad2", ...), and it stays as it is when that fails.
void ProvideCard(CardFailure* failure = nullptr);

/// Makes the default card record 1. 0 when done; 1 on an error, and the file is as it was.
std::int16_t WriteDefaultCard(CardFailure* failure = nullptr);

/// Lowers the count and moves the records behind that one down by one place; the old last one
/// stays behind the count. A number beyond the file drops no record out, and the count falls all
/// the same. A count beyond the file falls from what the file holds: the items would otherwise come
/// back. An item that was `shown` has to pass CheckItem. 0 when done; 1 on an error, and the file
/// is as it was.
std::int16_t RemoveCardItem(std::int32_t recNo, const ItemTexts* shown = nullptr,
                            CardFailure* failure = nullptr);

}  // namespace bramlee
