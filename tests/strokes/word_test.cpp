// Words: how letters come together, what is left out, where lines break.
#include "strokes/word.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "engine/last_point.h"

namespace bramlee {
namespace {

std::vector<std::string> TextsOf(const Word& word) {
  std::vector<std::string> texts;
  for (const WordLetter& letter : word.letters) texts.push_back(letter.text);
  return texts;
}

std::vector<std::string> LeftOutOf(const Word& word) {
  std::vector<std::string> texts;
  for (const LeftOut& each : word.leftOut) texts.push_back(each.text);
  return texts;
}

using Texts = std::vector<std::string>;
using StrokeRun = Run;  ///< a test has a Run of its own

/// Around the dots of one letter of the word.
Box InkOf(const Word& word, std::size_t letter) {
  const WordLetter& part = word.letters.at(letter);
  std::vector<Run> runs;
  for (std::size_t i = part.firstStroke; i < part.firstStroke + part.strokes; ++i) {
    const PenStroke& stroke = word.letter.PenStrokes()[i];
    const auto own = word.letter.Runs().subspan(stroke.firstRun, stroke.runs);
    runs.insert(runs.end(), own.begin(), own.end());
  }
  return BoundsOf(runs, kUsualStep).value_or(Box{});
}

double Right(const Box& box) {
  return box.x + box.width;
}
double Bottom(const Box& box) {
  return box.y + box.height;
}

/// The lines that a word has on its head.
std::vector<StrokeRun> HeadLinesOf(const Word& word) {
  std::vector<StrokeRun> lines;
  for (const StrokeRun& run : word.letter.Runs()) {
    if (run.primitive == Primitive::LineRight && run.values[1] == kWordHead) lines.push_back(run);
  }
  return lines;
}

TEST(WordTest, HasEveryRunInOnePenStroke) {
  const Word word = LayWord("Ravi रवि 7");
  std::size_t next = 0;
  for (const PenStroke& stroke : word.letter.PenStrokes()) {
    EXPECT_EQ(stroke.firstRun, next);
    next += stroke.runs;
  }
  EXPECT_EQ(next, word.letter.Runs().size());
}

TEST(WordTest, LeavesTheLastPointRegistersAlone) {
  LastX = 1, LastY = 2, LastX2 = 3, LastY2 = 4;
  LayWord("Ka का కా 5");
  EXPECT_EQ(LastX + LastY + LastX2 + LastY2, 10);
  ClearLastPoint();
}

TEST(WordTest, StandsBetweenHeadAndBase) {
  for (const char* text : {"A", "H", "l", "d", "x", "8", "क", "म"}) {
    const Box ink = LayWord(text).letter.Bounds();
    EXPECT_NEAR(Bottom(ink), kWordBase, 3) << text;
    EXPECT_GE(ink.y, kWordHead - 3) << text;
  }
  EXPECT_NEAR(LayWord("x").letter.Bounds().y, kWordBase - 100, 3);
  EXPECT_GT(Bottom(LayWord("g").letter.Bounds()), kWordBase + 40);
}

TEST(WordTest, KeepsLettersApartButNearEachOther) {
  const Word word = LayWord("imBVT90");
  ASSERT_EQ(word.letters.size(), 7U);
  for (std::size_t i = 1; i < word.letters.size(); ++i) {
    const double gap = InkOf(word, i).x - Right(InkOf(word, i - 1));
    EXPECT_GE(gap, 7) << i;
    EXPECT_LE(gap, 35) << i;
    EXPECT_EQ(word.letters[i].left, word.letters[i - 1].right);
  }
  EXPECT_EQ(word.letters.back().right, word.width);
}

TEST(WordTest, GivesANarrowLetterLessRoomThanAWideOne) {
  EXPECT_LT(LayWord("i").width, LayWord("n").width);
  EXPECT_LT(LayWord("1").width, LayWord("0").width);
}

TEST(WordTest, WritesTheSameTextTheSameWay) {
  const Word one = LayWord("नमस्ते");
  const Word again = LayWord("नमस्ते");
  EXPECT_TRUE(std::ranges::equal(one.letter.Runs(), again.letter.Runs()));
}

TEST(WordTest, HasOneHeadLineAWordAtItsEnd) {
  const Word word = LayWord("कमल जल");
  const std::vector<StrokeRun> lines = HeadLinesOf(word);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(word.letter.Runs().back(), lines.back());
  EXPECT_EQ(lines[0].values[0], 0);
  EXPECT_NEAR(lines[0].values[2], word.letters[2].right, 0.01);
  EXPECT_NEAR(lines[1].values[0], word.letters[3].left, 0.01);
}

TEST(WordTest, DrawsTheHeadLineOverEachLetterWhereWanted) {
  const Word word = LayWord("कमल", {.headLine = HeadLine::PerLetter});
  EXPECT_EQ(HeadLinesOf(word).size(), 3U);
  const WordLetter& first = word.letters[0];
  const PenStroke& last = word.letter.PenStrokes()[first.firstStroke + first.strokes - 1];
  EXPECT_EQ(word.letter.Runs()[last.firstRun], HeadLinesOf(word)[0]);
}

TEST(WordTest, BreaksTheHeadLineOverACurl) {
  EXPECT_EQ(HeadLinesOf(LayWord("कभी")).size(), 2U);
  EXPECT_EQ(HeadLinesOf(LayWord("थ")).size(), 1U);
}

TEST(WordTest, TakesSignsWithTheirLetter) {
  EXPECT_EQ(TextsOf(LayWord("हिन्दी")), (Texts{"हि", "न्दी"}));
  EXPECT_EQ(TextsOf(LayWord("क्षत्रिय")), (Texts{"क्ष", "त्रि", "य"}));
  EXPECT_EQ(TextsOf(LayWord("अंगूर")), (Texts{"अं", "गू", "र"}));
}

TEST(WordTest, PutsSignsBeforeBehindAboveAndBelow) {
  const Box plain = LayWord("म").letter.Bounds();
  const Word before = LayWord("मि");
  const Word behind = LayWord("मा");
  EXPECT_GT(before.width, LayWord("म").width + 40);
  EXPECT_GT(behind.width, LayWord("म").width + 40);
  EXPECT_LT(LayWord("मे").letter.Bounds().y, plain.y - 20);
  EXPECT_EQ(LayWord("मे").width, LayWord("म").width);
  EXPECT_GT(Bottom(LayWord("मु").letter.Bounds()), Bottom(plain) + 20);
  // written where it stands: its stem is the first that reaches the base
  const StrokeRun& stem = before.letter.Runs()[1];
  EXPECT_EQ(stem.primitive, Primitive::LineDown);
  EXPECT_LT(stem.values[0], 50);
}

TEST(WordTest, WritesHaDaAndShaWithVocalicRInShapesOfTheirOwn) {
  const auto has = [](const char* text, Primitive primitive, double y) {
    const Word word = LayWord(text);
    return std::ranges::any_of(word.letter.Runs(), [&](const StrokeRun& run) {
      return run.primitive == primitive && std::abs(run.values[1] - y) < 1;
    });
  };
  EXPECT_LT(Bottom(LayWord("हृ").letter.Bounds()), kWordBase + 1) << "the sign lies in the bow";
  EXPECT_GT(Bottom(LayWord("सृ").letter.Bounds()), kWordBase + 20) << "elsewhere it hangs below";
  EXPECT_TRUE(has("दृ", Primitive::LineLeft, 472)) << "a straight tail";
  EXPECT_FALSE(has("दु", Primitive::LineLeft, 472));
  EXPECT_EQ(LayWord("शृ").letter.Runs()[0].primitive, Primitive::SlantUpRight) << "as in shra";
  EXPECT_GT(Bottom(LayWord("ह्रृ").letter.Bounds()), kWordBase + 20) << "not with an r joined";
}

TEST(WordTest, GivesEInWordsTheLongMarkOfAi) {
  const double ai = LayWord("मै").letter.Bounds().y;
  EXPECT_EQ(LayWord("मे").letter.Bounds().y, ai);
  EXPECT_EQ(LayWord("मो").letter.Bounds().y, ai);
  EXPECT_LT(LayWord("मे").letter.PenStrokes().size(), LayWord("मै").letter.PenStrokes().size());
}

TEST(WordTest, LiftsTheHoodOfIOverJoinedLetters) {
  const StrokeRun narrow = LayWord("ति").letter.Runs()[0];
  const StrokeRun wide = LayWord("न्दि").letter.Runs()[0];
  EXPECT_GT(wide.values[5], narrow.values[5]);
  const double top = narrow.values[4] - narrow.values[5];
  EXPECT_NEAR(wide.values[4] - wide.values[5], top, 0.01);
}

TEST(WordTest, JoinsConsonantsByHalfFormAndMark) {
  const double whole = LayWord("न").width;
  EXPECT_LT(LayWord("न्द").width, whole + LayWord("द").width - 20);
  EXPECT_EQ(LayWord("द्म").letters.size(), 1U);
  EXPECT_GT(Bottom(LayWord("द्म").letter.Bounds()), kWordBase + 20) << "the mark below";
}

TEST(WordTest, PutsAnRBeforeAboveAndAnRBehindBelow) {
  EXPECT_EQ(LayWord("र्म").width, LayWord("म").width);
  EXPECT_LT(LayWord("र्म").letter.Bounds().y, kWordHead - 40);
  EXPECT_EQ(LayWord("प्र").width, LayWord("प").width);
  EXPECT_EQ(LayWord("त्र").letters.size(), 1U);
}

TEST(WordTest, FollowsJoinersAfterTheMark) {
  const Word mark = LayWord("क्\u200Cष");
  const Word half = LayWord("क्\u200Dष");
  EXPECT_EQ(mark.letters.size(), 2U);
  EXPECT_GT(Bottom(InkOf(mark, 0)), kWordBase + 20);
  EXPECT_EQ(half.letters.size(), 1U);
  EXPECT_GT(half.width, LayWord("क्ष").width + 50) << "not the joined letter";
  EXPECT_TRUE(mark.leftOut.empty() && half.leftOut.empty());
}

TEST(WordTest, IgnoresJoinersElsewhere) {
  const Word word = LayWord("\u200DA\u200C\uFEFFb\u200E");
  EXPECT_EQ(TextsOf(word), (Texts{"A", "b"}));
  EXPECT_TRUE(word.leftOut.empty());
}

TEST(WordTest, SetsADotBelow) {
  const Word dotted = LayWord("ड़");
  EXPECT_GT(Bottom(dotted.letter.Bounds()), Bottom(LayWord("ड").letter.Bounds()) + 10);
  EXPECT_TRUE(std::ranges::equal(dotted.letter.Runs(), LayWord("\u095C").letter.Runs()));
}

TEST(WordTest, PutsATeluguSignInThePlaceOfTheTick) {
  const auto runs = [](const char* text) { return LayWord(text).letter.Runs().size(); };
  EXPECT_EQ(runs("కి"), runs("క") - 2 + runs("ి"));
  EXPECT_EQ(runs("కు"), runs("క") + runs("ు")) << "the tick stays";
  EXPECT_EQ(runs("లె"), runs("ల") + runs("ె")) << "it has none";
  EXPECT_LT(LayWord("కి").letter.Bounds().y, LayWord("క").letter.Bounds().y - 30);
}

TEST(WordTest, HangsFurtherTeluguConsonantsBelow) {
  EXPECT_EQ(TextsOf(LayWord("అమ్మ")), (Texts{"అ", "మ్మ"}));
  EXPECT_GT(Bottom(LayWord("క్క").letter.Bounds()), Bottom(LayWord("క").letter.Bounds()) + 30);
  EXPECT_EQ(LayWord("స్త్రీ").letters.size(), 1U);
  EXPECT_EQ(TextsOf(LayWord("క్\u200Cక")), (Texts{"క్\u200C", "క"}));
}

TEST(WordTest, PutsTheSignOfTeluguAiAboveAndBelow) {
  const Box ink = LayWord("కై").letter.Bounds();
  EXPECT_LT(ink.y, LayWord("క").letter.Bounds().y + 20);
  EXPECT_GT(Bottom(ink), kWordBase + 40);
}

TEST(WordTest, LeavesADoubledTeluguSignOutAndNamesIt) {
  EXPECT_EQ(LeftOutOf(LayWord("కాా")), (Texts{"ా"}));
  EXPECT_EQ(LeftOutOf(LayWord("అా")), (Texts{"ా"}));
  EXPECT_EQ(LeftOutOf(LayWord("కంం")), (Texts{"ం"}));
}

TEST(WordTest, WritesALoneSignAlone) {
  for (const char* sign : {"ा", "ि", "ी", "ु", "ू", "ृ",  "े",  "ै", "ो", "ौ", "ं", "ँ",  "ः", "्",
                           "़",  "ॅ",  "ॉ", "ా", "ి", "ు", "ృ", "ై", "ో",  "ౌ",  "్", "ం", "ః"}) {
    const Word word = LayWord(sign);
    EXPECT_EQ(word.letters.size(), 1U) << sign;
    EXPECT_TRUE(word.leftOut.empty()) << sign;
    EXPECT_GE(word.letter.Bounds().x, 0) << sign;
    EXPECT_LE(Right(word.letter.Bounds()), word.width) << sign;
  }
}

TEST(WordTest, LeavesADoubledSignOutAndNamesIt) {
  EXPECT_EQ(LeftOutOf(LayWord("काा")), (Texts{"ा"}));
  EXPECT_EQ(LeftOutOf(LayWord("कैे")), (Texts{"े"}));
  EXPECT_EQ(LeftOutOf(LayWord("कंं")), (Texts{"ं"}));
  EXPECT_EQ(LeftOutOf(LayWord("अा")), (Texts{"ा"}));
  EXPECT_TRUE(std::ranges::equal(LayWord("काा").letter.Runs(), LayWord("का").letter.Runs()));
}

TEST(WordTest, LeavesOutWhatHasNoStrokesAndNamesIt) {
  const Word word = LayWord("Añб\U0001F600c१");
  EXPECT_EQ(TextsOf(word), (Texts{"A", "c"}));
  EXPECT_EQ(word.leftOut, (std::vector<LeftOut>{
                              {"ñ",         1 },
                              {"б",         3 },
                              {"\U0001F600", 5 },
                              {"१",        10}
  }));
}

TEST(WordTest, LeavesOutTextFromRightToLeft) {
  EXPECT_EQ(LeftOutOf(LayWord("שa\u200Fم")), (Texts{"ש", "م"}));
}

TEST(WordTest, NamesBytesThatAreNoTextAsOneCharacterEach) {
  const Word word = LayWord("a\xFF\xE0\xA4");
  EXPECT_EQ(TextsOf(word), (Texts{"a"}));
  EXPECT_EQ(LeftOutOf(word), (Texts{"\uFFFD", "\uFFFD", "\uFFFD"}));
}

TEST(WordTest, IsEmptyWithoutLetters) {
  for (const char* text : {"", "   ", "\t\n", "\u200D"}) {
    const Word word = LayWord(text);
    EXPECT_TRUE(word.letters.empty());
    EXPECT_TRUE(word.leftOut.empty());
    EXPECT_EQ(word.letter.Runs().size(), 0U);
    EXPECT_EQ(word.width, 0);
  }
}

TEST(WordTest, LeavesOuterBlanksOutAndKeepsInnerOnes) {
  const Word word = LayWord("  a b ");
  ASSERT_EQ(word.letters.size(), 2U);
  EXPECT_EQ(word.letters[0].left, 0);
  EXPECT_EQ(word.letters[1].left - word.letters[0].right, 75);
}

TEST(WordTest, SaysWhatIsWrittenWithOneBlankBetweenWords) {
  EXPECT_EQ(LayWord("  Añ\t б राम ").letter.Text(), "A राम");
  EXPECT_EQ(LayWord("б").letter.Text(), "");
  EXPECT_EQ(LayLines("ab cd", 1)[1].letter.Text(), "b");
}

TEST(WordLinesTest, BreakAtBlanks) {
  const double width = LayWord("ab cd").width;
  const std::vector<Word> lines = LayLines("ab cd ef", width + 1);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(TextsOf(lines[0]), (Texts{"a", "b", "c", "d"}));
  EXPECT_EQ(TextsOf(lines[1]), (Texts{"e", "f"}));
  EXPECT_EQ(TextsOf(LayLines("ab cd ef", width - 1)[0]), (Texts{"a", "b"}));
}

TEST(WordLinesTest, BreakALongWordBetweenItsLetters) {
  std::string text;
  for (int i = 0; i < 200; ++i) text += "मि";
  const std::vector<Word> lines = LayLines(text, 1000);
  std::size_t letters = 0;
  for (const Word& line : lines) {
    EXPECT_LE(line.width, 1000);
    EXPECT_EQ(HeadLinesOf(line).size(), 1U);
    letters += line.letters.size();
  }
  EXPECT_EQ(letters, 200U);
}

TEST(WordLinesTest, AreOneLetterThatSaysTheWholeText) {
  const std::vector<Word> lines = LayLines("ab cdcdcdcd", LayWord("ab cd").width);
  ASSERT_EQ(lines.size(), 3U);
  const Letter all = LinesAsLetter(lines, 300);
  EXPECT_EQ(all.Text(), "ab cdcdcdcd");
  EXPECT_EQ(all.PenStrokes().size(), LayWord("ab cdcdcdcd").letter.PenStrokes().size());
  EXPECT_NEAR(Bottom(all.Bounds()), kWordBase + 600, 3);
  EXPECT_EQ(all.Size(), kWordBase - kWordHead);
  EXPECT_EQ(LinesAsLetter({}, 300).Runs().size(), 0U);
}

TEST(WordLinesTest, GiveALetterThatIsTooWideALineOfItsOwn) {
  const std::vector<Word> lines = LayLines("mm", 10);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[1].letters.size(), 1U);
}

TEST(WordLinesTest, NameWhatIsLeftOutOnce) {
  const std::vector<Word> lines = LayLines("é aa ü", 100);
  std::size_t named = 0;
  for (const Word& line : lines) {
    named += line.leftOut.size();
    EXPECT_FALSE(line.letters.empty());
  }
  EXPECT_EQ(named, 2U);
  EXPECT_EQ(LayLines("  é ", 100).size(), 1U);
}

}  // namespace
}  // namespace bramlee
