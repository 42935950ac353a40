#include "ui/screen_rec.h"

#include <stdexcept>

#include "files/numbers.h"
#include "files/trap.h"
#include "ui/report.h"
#include "ui/screen.h"

namespace bramlee {
namespace {

/// The forms are made just short of the whole screen.
constexpr double kShort = 19.98 / 20;

std::int32_t Times(std::int32_t length, std::int32_t factor) {
  std::int32_t product = 0;
  if (__builtin_mul_overflow(length, factor, &product)) {
    throw std::overflow_error("a length does not fit 32 bits");
  }
  return product;
}

ScreenRec RecOf(const ScreenSize& screen) {
  ScreenRec rec;
  rec.ScrH = RoundToLong(screen.height * kShort);
  rec.ScrW = RoundToLong(screen.width * kShort);
  rec.UnitH = RoundToLong(rec.ScrH / 100.0);
  rec.UnitW = RoundToLong(rec.ScrW / 200.0);
  rec.WorkH = RoundToLong(Times(rec.ScrH, 80) / 100.0);
  rec.MarginW = RoundToLong(rec.UnitW * 3.5);
  rec.MarginH = Times(rec.UnitH, 3);
  rec.WorkW = RoundToLong(Times(rec.ScrW, 160) / 200.0);
  rec.ScaleFlag = 1;
  return rec;
}

}  // namespace

void FillScreenRec(ScreenRec& rec) {
  Trap(
      QStringLiteral("com1:01"), [&](ErrInfo&) { rec = RecOf(Screen()); },
      [](ErrInfo& err) { ReportError(err); });
}

}  // namespace bramlee
