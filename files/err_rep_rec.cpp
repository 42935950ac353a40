#include "files/err_rep_rec.h"

namespace bramlee {
namespace {

/// Visits every field at its offset: the one place that knows the layout.
template <class Codec, class Rec>
void AllFields(Codec& codec, Rec& rec) {
  codec.At(0, rec.ErrCount);
  codec.At(4, rec.ErrSerial);
  codec.At(24, rec.ErrMessage);
  codec.At(124, rec.ErrStamp);
}

static_assert(124 + sizeof(ErrRepRec::ErrStamp) == kErrRepRecLen);

}  // namespace

ErrRepRec DecodeErrRep(const QByteArray& bytes) {
  ErrRepRec rec;
  FieldReader reader(bytes);
  AllFields(reader, rec);
  return rec;
}

QByteArray EncodeErrRep(const ErrRepRec& rec) {
  FieldWriter writer(kErrRepRecLen);
  AllFields(writer, rec);
  return writer.Take();
}

}  // namespace bramlee
