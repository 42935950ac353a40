// One record of the error report's file.
#pragma once

#include <QByteArray>

#include "files/record_codec.h"

namespace bramlee {

inline constexpr int kErrRepRecLen = 150;

struct ErrRepRec {
  std::int32_t ErrCount = 0;  ///< highest record used; valid in record 1
  FixedText<20> ErrSerial;    ///< "S.No:1:"; of later records "S.No:4:S.No:1:"
  FixedText<100> ErrMessage;  ///< what was reported, may be blank
  FixedText<26> ErrStamp;     ///< always blank
};

/// The record in those bytes, which must be kErrRepRecLen. Any bytes are a record.
ErrRepRec DecodeErrRep(const QByteArray& bytes);
/// The record's bytes; those of a decoded record are the ones it came from.
QByteArray EncodeErrRep(const ErrRepRec& rec);

}  // namespace bramlee
