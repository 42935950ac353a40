// Fields of fixed-length records, taken from bytes and put into bytes at given offsets. Integers
// and doubles are little-endian on every machine; fields follow each other without gaps.
#pragma once

#include <QByteArray>
#include <QString>
#include <QtEndian>
#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "files/cp1252.h"

namespace bramlee {

/// A text of exactly kLength bytes. Its bytes stay as they were read until a text is put in.
template <std::size_t kLength>
struct FixedText {
  std::array<char, kLength> bytes{};

  /// The text up to its first NUL, blanks at its end included.
  QString Text() const {
    const auto end = std::find(bytes.begin(), bytes.end(), '\0');
    return FromCp1252({bytes.data(), end - bytes.begin()});
  }
  /// Cut on the right, or padded with blanks.
  void Set(const QString& text) {
    const QByteArray coded =
        ToCp1252(text).leftJustified(static_cast<qsizetype>(kLength), ' ', true);
    std::copy(coded.begin(), coded.end(), bytes.begin());
  }
};

/// Takes fields out of a record. The bytes must hold the record.
class FieldReader {
 public:
  explicit FieldReader(const QByteArray& bytes) : bytes_(bytes) {}

  template <class Number>
  void At(int offset, Number& field) const {
    field = qFromLittleEndian<Number>(bytes_.constData() + offset);
  }
  template <std::size_t kLength>
  void At(int offset, FixedText<kLength>& field) const {
    At(offset, field.bytes);
  }
  template <std::size_t kLength>
  void At(int offset, std::array<char, kLength>& field) const {
    std::copy_n(bytes_.constData() + offset, kLength, field.begin());
  }

 private:
  const QByteArray& bytes_;
};

/// Puts fields into a record of that many bytes.
class FieldWriter {
 public:
  explicit FieldWriter(int length) : bytes_(length, '\0') {}

  template <class Number>
  void At(int offset, const Number& field) {
    qToLittleEndian(field, bytes_.data() + offset);
  }
  template <std::size_t kLength>
  void At(int offset, const FixedText<kLength>& field) {
    At(offset, field.bytes);
  }
  template <std::size_t kLength>
  void At(int offset, const std::array<char, kLength>& field) {
    std::copy_n(field.begin(), kLength, bytes_.data() + offset);
  }
  QByteArray Take() { return std::move(bytes_); }

 private:
  QByteArray bytes_;
};

}  // namespace bramlee
