#include "files/student_rec.h"

namespace bramlee {
namespace {

/// Visits every field at its offset: the one place that knows the layout.
template <class Codec, class Rec>
void AllFields(Codec& codec, Rec& rec) {
  codec.At(0, rec.StudentSerial);
  codec.At(4, rec.StudentName);
  codec.At(104, rec.ClassName);
  codec.At(204, rec.IdCardPath);
  codec.At(254, rec.LogoPath);
  codec.At(304, rec.TeacherName);
  codec.At(404, rec.ItemName);
  codec.At(504, rec.PocketMoney);
  codec.At(508, rec.ItemAmount);
  codec.At(512, rec.Balance);
  codec.At(516, rec.EnterDay);
  codec.At(518, rec.EnterMonth);
  codec.At(520, rec.EnterYear);
  codec.At(522, rec.RecordCount);
  codec.At(526, rec.PricePerItem);
  codec.At(534, rec.TotalItems);
  codec.At(538, rec.StudentReserved);
}

static_assert(538 + sizeof(StudentRec::StudentReserved) == kStudentRecLen);

}  // namespace

StudentRec DecodeStudent(const QByteArray& bytes) {
  StudentRec rec;
  FieldReader reader(bytes);
  AllFields(reader, rec);
  return rec;
}

QByteArray EncodeStudent(const StudentRec& rec) {
  FieldWriter writer(kStudentRecLen);
  AllFields(writer, rec);
  return writer.Take();
}

}  // namespace bramlee
