#include "tools/sounds_maker/number_words.h"

#include <QStringList>

namespace bramlee {
namespace {

constexpr const char* kUpToNineteen[] = {"zero",    "one",     "two",       "three",    "four",
                                         "five",    "six",     "seven",     "eight",    "nine",
                                         "ten",     "eleven",  "twelve",    "thirteen", "fourteen",
                                         "fifteen", "sixteen", "seventeen", "eighteen", "nineteen"};
constexpr const char* kTens[] = {"",      "",      "twenty",  "thirty", "forty",
                                 "fifty", "sixty", "seventy", "eighty", "ninety"};

QString BelowHundred(int number) {
  if (number < 20) return QString::fromLatin1(kUpToNineteen[number]);
  QString tens = QString::fromLatin1(kTens[number / 10]);
  if (number % 10 == 0) return tens;
  return tens + u' ' + QString::fromLatin1(kUpToNineteen[number % 10]);
}

}  // namespace

QString NumberWords(int number) {
  if (number < 0 || number > kLargestSpelled) return {};
  if (number < 100) return BelowHundred(number);
  QStringList words;
  if (number >= 1000) words << BelowHundred(number / 1000) << QStringLiteral("thousand");
  if (number % 1000 >= 100) {
    words << BelowHundred(number % 1000 / 100) << QStringLiteral("hundred");
  }
  if (number % 100 != 0) words << QStringLiteral("and") << BelowHundred(number % 100);
  return words.join(u' ');
}

}  // namespace bramlee
