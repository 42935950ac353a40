// Today's date.
#pragma once

#include <QDate>
#include <optional>

namespace bramlee {

/// The system's date, or the one that SetToday gave.
QDate Today();

/// It is that day from now on; nothing brings the real one back.
void SetToday(std::optional<QDate> today);

}  // namespace bramlee
