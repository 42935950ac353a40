#include "tools/letters/paper_argument.h"

#include <QStringList>

#include "paper/printed_pages.h"
#include "tools/letters/letter_arguments.h"

namespace bramlee {
namespace {

constexpr double kMostPaperMm = 2000;

}  // namespace

QString ReadPaper(const QString& text, QSizeF& paperMm) {
  if (text == QLatin1String("a4") || text == QLatin1String("letter")) {
    paperMm = text == QLatin1String("a4") ? kA4Mm : kLetterMm;
    return {};
  }
  const QStringList sides = text.split(u'x');
  const auto width = NumberIn<double>(sides.constFirst());
  const auto height = NumberIn<double>(sides.constLast());
  const auto isLength = [](const std::optional<double>& mm) {
    return mm && *mm > 0 && *mm <= kMostPaperMm;
  };
  if (sides.size() != 2 || !isLength(width) || !isLength(height)) {
    return QStringLiteral("--paper: no paper \"%1\": a4 letter, or as 148x210").arg(text);
  }
  paperMm = {*width, *height};
  return {};
}

}  // namespace bramlee
