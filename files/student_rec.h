// One record of the biodata card's file: the card's head, which only record 1 is read for, and
// one bought item.
#pragma once

#include <QByteArray>

#include "files/record_codec.h"

namespace bramlee {

inline constexpr int kStudentRecLen = 600;

/// Sums of money are whole, the price alone need not be.
struct StudentRec {
  std::int32_t StudentSerial = 0;  ///< copied along, read by nothing
  FixedText<100> StudentName;
  FixedText<100> ClassName;
  FixedText<50> IdCardPath;  ///< "C:\bramlee\idcard.jpg"
  FixedText<50> LogoPath;
  FixedText<100> TeacherName;
  FixedText<100> ItemName;
  std::int32_t PocketMoney = 0;
  std::int32_t ItemAmount = 0;  ///< for all TotalItems
  std::int32_t Balance = 0;
  std::int16_t EnterDay = 0;  ///< day, month and year of the entry; any numbers
  std::int16_t EnterMonth = 0;
  std::int16_t EnterYear = 0;
  std::int32_t RecordCount = 0;  ///< records in use; valid in record 1
  double PricePerItem = 0;
  std::int32_t TotalItems = 0;             ///< how many were bought
  std::array<char, 62> StudentReserved{};  ///< carried along
};

/// The record in those bytes, which must be kStudentRecLen. Any bytes are a record.
StudentRec DecodeStudent(const QByteArray& bytes);
/// The record's bytes; those of a decoded record are the ones it came from.
QByteArray EncodeStudent(const StudentRec& rec);

}  // namespace bramlee
