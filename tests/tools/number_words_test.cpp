#include "tools/sounds_maker/number_words.h"

#include <gtest/gtest.h>

#include <QSet>

namespace bramlee {
namespace {

TEST(NumberWordsOf, NumbersAreSpelledAsSpoken) {
  const struct {
    int number;
    const char* words;
  } kSpelled[] = {
      {0,    "zero"                                      },
      {7,    "seven"                                     },
      {10,   "ten"                                       },
      {13,   "thirteen"                                  },
      {19,   "nineteen"                                  },
      {20,   "twenty"                                    },
      {40,   "forty"                                     },
      {85,   "eighty five"                               },
      {100,  "one hundred"                               },
      {101,  "one hundred and one"                       },
      {110,  "one hundred and ten"                       },
      {999,  "nine hundred and ninety nine"              },
      {1000, "one thousand"                              },
      {1005, "one thousand and five"                     },
      {1905, "one thousand nine hundred and five"        },
      {2300, "two thousand three hundred"                },
      {9999, "nine thousand nine hundred and ninety nine"},
  };
  for (const auto& spelled : kSpelled) {
    EXPECT_EQ(NumberWords(spelled.number).toStdString(), spelled.words);
  }
}

TEST(NumberWordsOf, NoTwoNumbersAreAlike) {
  QSet<QString> all;
  for (int number = 0; number <= kLargestSpelled; ++number) all.insert(NumberWords(number));
  EXPECT_EQ(all.size(), kLargestSpelled + 1);
}

TEST(NumberWordsOf, OtherNumbersHaveNoWords) {
  EXPECT_TRUE(NumberWords(-1).isEmpty());
  EXPECT_TRUE(NumberWords(10000).isEmpty());
}

}  // namespace
}  // namespace bramlee
