#include "paper/usual_paper.h"

#include <QLocale>
#include <algorithm>
#include <iterator>

#include "paper/printed_pages.h"

namespace bramlee {
namespace {

/// Countries that measure by metres and print on Letter paper nevertheless.
constexpr QLocale::Territory kMetricWithLetter[] = {
    QLocale::Canada, QLocale::Chile,       QLocale::Colombia,   QLocale::CostaRica,
    QLocale::Mexico, QLocale::Philippines, QLocale::PuertoRico, QLocale::Venezuela};

bool UsesLetterPaper(const QLocale& locale) {
  return locale.measurementSystem() == QLocale::ImperialUSSystem ||
         std::ranges::find(kMetricWithLetter, locale.territory()) != std::end(kMetricWithLetter);
}

}  // namespace

QSizeF UsualPaperMm() {
  return UsesLetterPaper(QLocale()) ? kLetterMm : kA4Mm;
}

}  // namespace bramlee
