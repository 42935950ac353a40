#include "media/pcm_source.h"

#include <gtest/gtest.h>

namespace bramlee {
namespace {

using Samples = std::vector<std::int16_t>;

/// Both channels the same: 10, 20, 30 and so on.
Samples Ramp(int frames) {
  Samples samples;
  for (int i = 1; i <= frames; ++i) {
    samples.insert(samples.end(), 2, static_cast<std::int16_t>(10 * i));
  }
  return samples;
}

Samples Pull(PcmSource& source, int frames) {
  const QByteArray bytes = source.read(qint64{frames} * 4);
  const auto* begin = reinterpret_cast<const std::int16_t*>(bytes.constData());
  return {begin, begin + bytes.size() / 2};
}

Samples FirstChannel(const Samples& both) {
  Samples one;
  for (std::size_t i = 0; i < both.size(); i += 2) one.push_back(both[i]);
  return one;
}

class PcmSourceOf : public ::testing::Test {
 protected:
  void Append(const Samples& samples) { source.Append(samples.data(), samples.size()); }
  Samples PullFrames(int frames) { return FirstChannel(Pull(source, frames)); }

  int drained = 0;
  PcmSource source{[this] { ++drained; }};
};

TEST_F(PcmSourceOf, AppendedFramesGivesThemFromTheFirst) {
  Append(Ramp(4));
  EXPECT_EQ(Pull(source, 3), (Samples{10, 10, 20, 20, 30, 30}));
  EXPECT_EQ(PullFrames(1), (Samples{40}));
}

TEST_F(PcmSourceOf, RateTwoLeavesEverySecondFrameOut) {
  Append(Ramp(6));
  source.SetRate(2);
  EXPECT_EQ(PullFrames(3), (Samples{10, 30, 50}));
}

TEST_F(PcmSourceOf, HalfRatePutsOneBetween) {
  Append(Ramp(3));
  source.SetRate(0.5);
  EXPECT_EQ(PullFrames(5), (Samples{10, 15, 20, 25, 30}));
}

TEST_F(PcmSourceOf, ARateOfZeroIsIgnored) {
  Append(Ramp(3));
  for (const double rate : {0.0, -1.0, std::nan("")}) source.SetRate(rate);
  EXPECT_EQ(PullFrames(3), (Samples{10, 20, 30}));
}

TEST_F(PcmSourceOf, MutedFramesGoOnUnheard) {
  Append(Ramp(4));
  source.SetMute(true);
  EXPECT_EQ(PullFrames(2), (Samples{0, 0}));
  source.SetMute(false);
  EXPECT_EQ(PullFrames(2), (Samples{30, 40}));
}

TEST_F(PcmSourceOf, ASlowDecoderLeavesSilenceAndLosesNothing) {
  Append(Ramp(1));
  EXPECT_EQ(PullFrames(3), (Samples{10, 0, 0}));
  Append(Ramp(2));
  EXPECT_EQ(PullFrames(2), (Samples{10, 20}));
  EXPECT_EQ(drained, 0);
}

TEST_F(PcmSourceOf, AnEndIsPushedOutBySilenceAndReportedOnce) {
  Append(Ramp(2));
  source.Finish();
  Samples all;
  for (Samples some = PullFrames(4800); !some.empty(); some = PullFrames(4800)) {
    all.insert(all.end(), some.begin(), some.end());
  }
  EXPECT_EQ(all[1], 20);
  EXPECT_EQ(all.size(), 2U + 48 * 400);
  EXPECT_EQ(all.back(), 0);
  EXPECT_EQ(drained, 1);
  EXPECT_TRUE(PullFrames(10).empty());
  EXPECT_EQ(drained, 1);
}

TEST_F(PcmSourceOf, AheadIsWhatIsNotUsedUp) {
  Append(Samples(std::size_t{2} * 48 * 300));
  EXPECT_DOUBLE_EQ(source.AheadMs(), 300);
  PullFrames(48 * 100);
  EXPECT_DOUBLE_EQ(source.AheadMs(), 200);
}

TEST_F(PcmSourceOf, LongSoundsDropTheFramesThatAreUsedUp) {
  for (int second = 0; second < 5; ++second) {
    Append(Samples(std::size_t{2} * 48000, static_cast<std::int16_t>(second + 1)));
    EXPECT_EQ(PullFrames(48000), Samples(48000, static_cast<std::int16_t>(second + 1)));
  }
  EXPECT_DOUBLE_EQ(source.AheadMs(), 0);
}

}  // namespace
}  // namespace bramlee
