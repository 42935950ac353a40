// Every tile of every set against golden strokes that were worked out independently.
#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "tests/golden_strokes.h"
#include "tests/letters/written.h"

namespace bramlee {
namespace {

constexpr const char* kBoards[] = {"engc", "engs", "hinv", "hinc", "telv", "telc", "mat"};

/// The golden tile as the program writes it.
ToldTile AsWritten(const ToldTile& golden) {
  const TileForm form{.alternative = golden.alt != 0, .place = golden.place};
  const Recorder sheet = Written(golden.board, golden.tile, form, std::stod(golden.step));
  ToldTile written = golden;
  written.last = {LastX, LastY, LastX2, LastY2};
  written.strokes.clear();
  for (const RecordedRun& run : sheet.runs) {
    written.strokes.push_back({PrimitiveName(run.primitive), run.arguments, run.dots});
  }
  return written;
}

class GoldenStrokes : public testing::TestWithParam<std::tuple<const char*, const char*>> {};

TEST_P(GoldenStrokes, AreWritten) {
  const auto [board, stepMark] = GetParam();
  const LastDots lastDots;
  ASSERT_FALSE(lastDots.Empty());
  const QByteArrayList lines = GoldenLines(std::string(board) + stepMark + ".jsonl");
  ASSERT_GE(lines.size(), FindLetterSet(board)->tiles);
  for (const QByteArray& line : lines) {
    const ToldTile golden = ParseTile(line);
    EXPECT_EQ(golden.board, board);
    EXPECT_EQ(Difference(golden, AsWritten(golden), lastDots), "") << golden.Name();
  }
}

INSTANTIATE_TEST_SUITE_P(Boards, GoldenStrokes,
                         testing::Combine(testing::ValuesIn(kBoards),
                                          testing::Values("", "-step1")),
                         [](const auto& suite) {
                           return std::string(std::get<0>(suite.param)) +
                                  (*std::get<1>(suite.param) == 0 ? "" : "_step1");
                         });

}  // namespace
}  // namespace bramlee
