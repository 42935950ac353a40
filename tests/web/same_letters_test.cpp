// The letters in a browser are those of the program: every dot, every verdict, every pixel.
#include <gtest/gtest.h>

#include <QColor>
#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QStandardPaths>
#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

#include "ink/ink.h"
#include "letters/letter_sets.h"
#include "strokes/letter.h"
#include "strokes/set_looks.h"
#include "tests/writing/hands.h"
#include "tests/writing/recorded_pens.h"
#include "writing/page.h"
#include "writing/player.h"
#include "writing/tracer.h"

namespace bramlee {
namespace {

/// The letters' code as ./web/build makes it.
const QString kCode = QStringLiteral(BRAMLEE_TEST_DATA "/../../build/wasm/letters.wasm.gz");

/// As hashOf in ask_letters.js.
class Hash {
 public:
  void Add(std::uint32_t even, std::uint32_t odd) {
    even_ = (even_ ^ even) * kPrime;
    odd_ = (odd_ ^ odd) * kPrime;
  }
  std::string Text() const { return std::to_string(even_) + ' ' + std::to_string(odd_); }

 private:
  static constexpr std::uint32_t kPrime = 0x01000193;
  std::uint32_t even_ = 0x811c9dc5;
  std::uint32_t odd_ = 0x811c9dc5;
};

class HashingSurface final : public DrawingSurface {
 public:
  explicit HashingSurface(double step) : step_(step) {}
  void PSet(float x, float y) override {
    hash_.Add(std::bit_cast<std::uint32_t>(x), std::bit_cast<std::uint32_t>(y));
    ++dots_;
  }
  double Step() const override { return step_; }
  std::string Text() const { return std::to_string(dots_) + ' ' + hash_.Text(); }

 private:
  double step_;
  long dots_ = 0;
  Hash hash_;
};

/// A question to the browser's letters and the program's own answer.
struct Question {
  std::string text;
  std::string answer;
};

std::string DotsQuestion(const LetterId& id, const char* step) {
  std::ostringstream text;
  text << "dots " << id.set << ' ' << id.tile << ' ' << id.form.alternative << ' ' << id.form.book
       << ' ' << id.form.place << ' ' << step;
  return text.str();
}

std::string DotsOf(const LetterId& id, double step) {
  HashingSurface surface(step);
  WriteWholeTile(*FindLetterSet(id.set), id.tile, id.form, surface);
  return surface.Text();
}

std::vector<TileForm> FormsOf(const LetterSet& set, int tile) {
  std::vector<TileForm> forms{{}};
  if (HasSecondForm(set, tile)) forms.push_back({.alternative = true});
  for (int place = 1; tile <= set.digits && place <= 5; ++place) forms.push_back({.place = place});
  const std::size_t given = forms.size();
  for (std::size_t i = 0; i < given; ++i) {
    TileForm form = forms[i];
    form.book = true;
    if (HasBookForm(set, tile, form)) forms.push_back(form);
  }
  return forms;
}

std::vector<Question> AllDots(const char* step) {
  std::vector<Question> questions;
  for (const LetterSet& set : LetterSets()) {
    for (int tile = 1; tile <= set.tiles; ++tile) {
      for (const TileForm& form : FormsOf(set, tile)) {
        const LetterId id{.set = set.name, .tile = tile, .form = form};
        questions.push_back({DotsQuestion(id, step), DotsOf(id, std::stod(step))});
      }
    }
  }
  return questions;
}

/// Asks all of it at once and compares the answers.
void ExpectSame(const std::vector<Question>& questions) {
  if (!QFileInfo::exists(kCode)) GTEST_SKIP() << "./web/build has not been run";
  QByteArray asked;
  for (const Question& question : questions) {
    asked += QByteArray::fromStdString(question.text) + '\n';
  }
  QProcess node;
  node.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  node.start(QStringLiteral("node"), {QStringLiteral(BRAMLEE_TEST_DATA "/ask_letters.js"), kCode});
  node.write(asked);
  node.closeWriteChannel();
  ASSERT_TRUE(node.waitForFinished(-1));
  const QByteArrayList answers = node.readAllStandardOutput().trimmed().split('\n');
  ASSERT_EQ(answers.size(), static_cast<qsizetype>(questions.size()));
  for (qsizetype i = 0; i < answers.size(); ++i) {
    const Question& question = questions[static_cast<std::size_t>(i)];
    EXPECT_EQ(answers[i].toStdString(), question.answer) << question.text;
  }
}

class SameDots : public testing::TestWithParam<const char*> {};

TEST_P(SameDots, SweepOfEveryLetter) {
  ExpectSame(AllDots(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Steps, SameDots, testing::Values("0.01", "0.2", "1"));

TEST(SameLetters, DotsOfTheFirstLetterOfEachSet) {
  std::vector<Question> questions;
  for (const LetterSet& set : LetterSets()) {
    const LetterId id{.set = set.name, .tile = 1, .form = {}};
    questions.push_back({DotsQuestion(id, "0.01"), DotsOf(id, 0.01)});
  }
  ExpectSame(questions);
}

// --- the tracer

/// Places to a thousandth, so that both sides read the same figures.
Way AsPrinted(const Way& way, double unit) {
  Way rounded;
  for (const Point& point : way) {
    rounded.push_back(
        {std::round(point.x * unit * 1000) / 1000, std::round(point.y * unit * 1000) / 1000});
  }
  return rounded;
}

/// What a pen did and what the program said.
struct Traced {
  std::string touches;
  std::string said;
};

void Touch(Tracer& tracer, const Way& way, Traced& traced) {
  std::ostringstream touch;
  touch.precision(12);
  if (!traced.touches.empty()) touch << " /";
  for (const Point& point : way) touch << ' ' << point.x << ' ' << point.y;
  traced.touches += touch.str();
  tracer.Down(way.front());
  for (std::size_t i = 1; i < way.size(); ++i) tracer.Move(way[i]);
  const auto judgement = tracer.Up();
  if (!judgement) return;
  std::ostringstream said;
  said << judgement->stroke << ' ' << NameOf(judgement->verdict) << ' '
       << std::llround(judgement->progress * 1e9) << ' ' << judgement->misses << ' '
       << NameOf(judgement->help) << "; ";
  traced.said += said.str();
}

std::vector<Way> WaysOf(const Tracer& tracer, double unit) {
  std::vector<Way> ways;
  for (const GuideStroke& stroke : tracer.Strokes()) {
    Way way;
    for (const Point& point : stroke.points) way.push_back({point.x / unit, point.y / unit});
    ways.push_back(std::move(way));
  }
  return ways;
}

Question QuestionOf(const LetterId& id, const Tracer& tracer, const Traced& traced) {
  std::ostringstream text;
  text << "trace " << id.set << ' ' << id.tile << ' ' << NameOf(tracer.Level()) << traced.touches;
  return {text.str(),
          traced.said + std::to_string(tracer.Stroke()) + ' ' + std::to_string(tracer.Helped())};
}

/// A child of five traces the letter: each stroke first wrongly, in one way or another, then as
/// children do.
Question TracedBy(std::uint32_t seed, const LetterId& id, TraceLevel level) {
  Chance chance(seed);
  Tracer tracer(GuideOf(LetterOf(id)), level);
  const double unit = tracer.Strokes().front().unit;
  const std::vector<Way> ways = WaysOf(tracer, unit);
  Traced traced;
  for (std::size_t stroke = 0; stroke < ways.size(); ++stroke) {
    const Wrong wrong = kWrongs[(seed + stroke) % std::size(kWrongs)];
    const auto drawn = DrawnWrongly(wrong, ways, stroke, chance);
    if (drawn && !drawn->empty()) Touch(tracer, AsPrinted(*drawn, unit), traced);
    Touch(tracer, AsPrinted(DrawnBy(kFive, ways[stroke], chance), unit), traced);
  }
  return QuestionOf(id, tracer, traced);
}

TEST(SameLetters, VerdictsOnChildrensPens) {
  std::vector<Question> questions;
  std::uint32_t seed = 0;
  for (const LetterSet& set : LetterSets()) {
    for (int tile = 1; tile <= 10; ++tile) {
      const LetterId id{.set = set.name, .tile = tile, .form = {}};
      ++seed;
      questions.push_back(TracedBy(seed, id, kTraceLevels[seed % std::size(kTraceLevels)]));
    }
  }
  ExpectSame(questions);
}

/// Somebody's pen, laid over the letter.
Question TracedBy(const RecordedLetter& letter, TraceLevel level) {
  Tracer tracer(GuideOf(LetterOf(letter.id)), level);
  Traced traced;
  for (const Way& touch : letter.touches) Touch(tracer, AsPrinted(touch, 1), traced);
  return QuestionOf(letter.id, tracer, traced);
}

TEST(SameLetters, VerdictsOnRecordedPens) {
  std::vector<Question> questions;
  for (const RecordedLetter& letter :
       RecordedLetters(BRAMLEE_TEST_DATA "/../writing/recorded_pens.txt")) {
    for (const TraceLevel level : kTraceLevels) questions.push_back(TracedBy(letter, level));
  }
  for (const char* said : {"done", "resume", "astray", "elsewhere", "scribble"}) {
    EXPECT_TRUE(std::ranges::any_of(questions, [said](const Question& question) {
      return question.answer.find(said) != std::string::npos;
    })) << said;
  }
  ExpectSame(questions);
}

// --- the pixels

struct Shown {
  const SetLook& look;
  int tile;
  double ratio;
};

Question PixelsOf(const Shown& shown) {
  const LetterId id{.set = shown.look.set, .tile = shown.tile, .form = {}};
  const Letter& letter = LetterOf(id);
  const Box& box = letter.Bounds();
  const QRectF area(std::floor(box.x) - 8, std::floor(box.y) - 8, std::ceil(box.width) + 16,
                    std::ceil(box.height) + 16);
  const QColor ground = ColourOf(shown.look.sheet);
  Page page;
  page.Add({.letter = letter, .colour = kPenColour, .placing = {}});
  Ink ink;
  Player(page, ink).RunToEnd();
  const QImage picture =
      ink.Picture(area, shown.ratio, ground).convertToFormat(QImage::Format_RGBA8888);
  Hash hash;
  for (int y = 0; y < picture.height(); ++y) {
    const auto* line = reinterpret_cast<const std::uint32_t*>(picture.constScanLine(y));
    for (int x = 0; x < picture.width(); x += 2) hash.Add(line[x], line[x + 1]);
  }
  std::ostringstream text;
  text << "pixels " << id.set << ' ' << id.tile << ' ' << area.x() << ' ' << area.y() << ' '
       << area.width() << ' ' << area.height() << ' ' << shown.ratio << ' '
       << ground.name().toStdString();
  return {text.str(), std::to_string(picture.width()) + ' ' + std::to_string(picture.height()) +
                          ' ' + hash.Text()};
}

TEST(SameLetters, Pixels) {
  std::vector<Question> questions;
  for (const double ratio : {2.0, 4.0}) {  // whose pictures have an even number of columns
    for (const Shown& shown : {
             Shown{kCapitalsLook,         2, ratio},
             Shown{kTeluguConsonantsLook, 2, ratio},
             Shown{kHindiVowelsLook,      1, ratio},
             Shown{kNumbersLook,          8, ratio}
    }) {
      questions.push_back(PixelsOf(shown));
    }
  }
  ExpectSame(questions);
}

TEST(PackedCode, IsUnpackedByThePageItself) {
  if (QStandardPaths::findExecutable(QStringLiteral("node")).isEmpty()) GTEST_SKIP() << "no node";
  EXPECT_EQ(
      QProcess::execute(QStringLiteral("node"), {QStringLiteral(BRAMLEE_TEST_DATA "/unpack.js")}),
      0);
}

}  // namespace
}  // namespace bramlee
