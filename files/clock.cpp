#include "files/clock.h"

namespace bramlee {
namespace {

std::optional<QDate>& GivenDay() {
  static std::optional<QDate> day;
  return day;
}

}  // namespace

QDate Today() {
  return GivenDay().value_or(QDate::currentDate());
}

void SetToday(std::optional<QDate> today) {
  GivenDay() = today;
}

}  // namespace bramlee
