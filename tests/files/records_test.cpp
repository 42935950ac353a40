#include <gtest/gtest.h>

#include <cmath>

#include "files/cp1252.h"
#include "files/err_rep_rec.h"
#include "files/student_rec.h"

namespace bramlee {
namespace {

/// Bytes that differ from their neighbours and from zero.
QByteArray Pattern(int length) {
  QByteArray bytes;
  for (int i = 0; i < length; ++i) bytes += static_cast<char>(1 + i * 37 % 251);
  return bytes;
}

TEST(StudentRecord, HasItsFieldsAtTheirOffsets) {
  QByteArray bytes(kStudentRecLen, ' ');
  const auto put = [&](int offset, const char* field, int width) {
    bytes.replace(offset, width, QByteArray(field, width));
  };
  put(0, "\x04\x03\x02\x01", 4);
  put(4, "Name", 4);
  put(104, "Class", 5);
  put(204, "C:\\id.jpg", 9);
  put(254, "C:\\logo.jpg", 11);
  put(304, "Teacher", 7);
  put(404, "Item", 4);
  put(504, "\x01\x00\x00\x00", 4);
  put(508, "\x02\x00\x00\x00", 4);
  put(512, "\xfd\xff\xff\xff", 4);
  put(516, "\x1f\x00", 2);
  put(518, "\x0c\x00", 2);
  put(520, "\xe9\x07", 2);
  put(522, "\x05\x00\x00\x00", 4);
  put(526, "\x00\x00\x00\x00\x00\x00\xf8\x3f", 8);
  put(534, "\x06\x00\x00\x00", 4);
  put(538, "Reserved", 8);
  const StudentRec rec = DecodeStudent(bytes);
  EXPECT_EQ(rec.StudentSerial, 0x01020304);
  EXPECT_EQ(rec.StudentName.Text(), QStringLiteral("Name").leftJustified(100));
  EXPECT_EQ(rec.ClassName.Text(), QStringLiteral("Class").leftJustified(100));
  EXPECT_EQ(rec.IdCardPath.Text(), QStringLiteral("C:\\id.jpg").leftJustified(50));
  EXPECT_EQ(rec.LogoPath.Text(), QStringLiteral("C:\\logo.jpg").leftJustified(50));
  EXPECT_EQ(rec.TeacherName.Text(), QStringLiteral("Teacher").leftJustified(100));
  EXPECT_EQ(rec.ItemName.Text(), QStringLiteral("Item").leftJustified(100));
  EXPECT_EQ(rec.PocketMoney, 1);
  EXPECT_EQ(rec.ItemAmount, 2);
  EXPECT_EQ(rec.Balance, -3);
  EXPECT_EQ(rec.EnterDay, 31);
  EXPECT_EQ(rec.EnterMonth, 12);
  EXPECT_EQ(rec.EnterYear, 2025);
  EXPECT_EQ(rec.RecordCount, 5);
  EXPECT_EQ(rec.PricePerItem, 1.5);
  EXPECT_EQ(rec.TotalItems, 6);
  EXPECT_EQ(EncodeStudent(rec), bytes);
}

TEST(StudentRecord, KeepsAnyBytesItWasReadFrom) {
  EXPECT_EQ(EncodeStudent(DecodeStudent(Pattern(kStudentRecLen))), Pattern(kStudentRecLen));
  QByteArray notANumber(kStudentRecLen, '\0');
  notANumber.replace(526, 8, QByteArray("\x01\x02\x03\x04\x05\x06\xf7\xff", 8));
  EXPECT_TRUE(std::isnan(DecodeStudent(notANumber).PricePerItem));
  EXPECT_EQ(EncodeStudent(DecodeStudent(notANumber)), notANumber);
}

TEST(ErrorRecord, HasItsFieldsAtTheirOffsets) {
  const QByteArray bytes = QByteArray("\x02\x01\x00\x00", 4) +
                           QByteArray("S.No:2:").leftJustified(20) +
                           QByteArray("Message").leftJustified(100) + QByteArray(26, 's');
  ErrRepRec rec = DecodeErrRep(bytes);
  EXPECT_EQ(rec.ErrCount, 258);
  EXPECT_EQ(rec.ErrSerial.Text(), QStringLiteral("S.No:2:").leftJustified(20));
  EXPECT_EQ(rec.ErrMessage.Text(), QStringLiteral("Message").leftJustified(100));
  EXPECT_EQ(rec.ErrStamp.Text(), QString(26, u's'));
  EXPECT_EQ(EncodeErrRep(rec), bytes);
  EXPECT_EQ(EncodeErrRep(DecodeErrRep(Pattern(kErrRepRecLen))), Pattern(kErrRepRecLen));
}

TEST(FixedTexts, AreCutOnTheRightAndPaddedWithBlanks) {
  StudentRec rec;
  rec.StudentName.Set(QString(120, u'n'));
  rec.ClassName.Set(QStringLiteral("BRM"));
  rec.TeacherName.Set({});
  const QByteArray bytes = EncodeStudent(rec);
  EXPECT_EQ(bytes.mid(4, 100), QByteArray(100, 'n'));
  EXPECT_EQ(bytes.mid(104, 100), QByteArray("BRM").leftJustified(100));
  EXPECT_EQ(bytes.mid(304, 100), QByteArray(100, ' '));
}

TEST(FixedTexts, EndAtTheirFirstNul) {
  QByteArray bytes(kStudentRecLen, '\0');
  bytes.replace(4, 9, QByteArray("Anna\0Otto", 9));
  EXPECT_EQ(DecodeStudent(bytes).StudentName.Text(), QStringLiteral("Anna"));
  EXPECT_EQ(DecodeStudent(bytes).ClassName.Text(), QString());
}

TEST(CodePage, MapsEveryByteToACharacterOfItsOwnAndBack) {
  for (int byte = 0; byte < 256; ++byte) {
    const QByteArray bytes(1, static_cast<char>(byte));
    const QString text = FromCp1252(bytes);
    ASSERT_EQ(text.size(), 1);
    EXPECT_EQ(ToCp1252(text), bytes);
    EXPECT_TRUE(FitsCp1252(text));
  }
  EXPECT_EQ(FromCp1252("\x80\x85\x9f\xe9"), QStringLiteral("\u20ac\u2026\u0178\u00e9"));
}

TEST(CodePage, HasItsOwnCharactersBetweenTheControlsAndLatin) {
  // Five of the thirty-two are open.
  const QString typed = QStringLiteral(
      "\u20ac\u201a\u0192\u201e\u2026\u2020\u2021\u02c6\u2030\u0160\u2039\u0152\u017d"
      "\u2018\u2019\u201c\u201d\u2022\u2013\u2014\u02dc\u2122\u0161\u203a\u0153\u017e\u0178");
  EXPECT_EQ(ToCp1252(typed),
            "\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8a\x8b\x8c\x8e"
            "\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9a\x9b\x9c\x9e\x9f");
  for (int byte = 0xA0; byte < 0x100; ++byte) {
    EXPECT_EQ(FromCp1252(QByteArray(1, static_cast<char>(byte))), QString(QChar(byte)));
  }
}

TEST(CodePage, HasAQuestionMarkForWhatItLacks) {
  EXPECT_EQ(ToCp1252(QStringLiteral("a\u0905b\U0001F600c")), "a?b?c");
  EXPECT_FALSE(FitsCp1252(QStringLiteral("a\u0905")));
  EXPECT_TRUE(FitsCp1252(QStringLiteral("a\u201c")));
  EXPECT_FALSE(FitsCp1252(QString(QChar(0xD800))));
}

}  // namespace
}  // namespace bramlee
