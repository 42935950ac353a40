// Why a sheet could not be laid out or written.
#pragma once

#include <QString>
#include <cstdint>

namespace bramlee {

struct PaperError {
  enum class Kind : std::uint8_t {
    None,
    NothingToPrint,  ///< no letter that has strokes, no sum, no row
    RowTooHigh,      ///< a row does not fit the paper's height, or not even one letter its width
    UnknownSet,      ///< a set of letters that there is not, or a tile outside of it
    Cancelled,       ///< whoever follows the progress wanted no more
    CannotWrite,     ///< the file or its folder; the text says why
    CannotPrint,     ///< the printer, likewise
  };

  Kind kind = Kind::None;
  QString text;  ///< one line for people; empty without an error

  bool IsNone() const { return kind == Kind::None; }
};

}  // namespace bramlee
