#include "paper/sums.h"

#include <algorithm>
#include <random>
#include <utility>

namespace bramlee {
namespace {

constexpr SumKind kSumKinds[] = {SumKind::Add, SumKind::Subtract, SumKind::Multiply,
                                 SumKind::Divide, SumKind::PerCent};

/// The numbers that a box of the drills offers: 1 to `ones`, then the tens after it up to 100.
std::vector<int> NumbersOffered(int ones) {
  std::vector<int> numbers;
  for (int i = 1; i <= ones; ++i) numbers.push_back(i);
  for (int i = ones + 10; i <= 100; i += 10) numbers.push_back(i);
  return numbers;
}

/// Whether the result is a whole number, and not negative.
bool ComesOutWhole(const Sum& sum) {
  switch (sum.kind) {
    case SumKind::Add:
    case SumKind::Multiply:
      return true;
    case SumKind::Subtract:
      return sum.first >= sum.second;
    case SumKind::Divide:
      return sum.first % sum.second == 0;
    case SumKind::PerCent:
      return sum.first * sum.second % 100 == 0;
  }
  return false;
}

/// The same order on every machine, which std::shuffle does not promise.
void Shuffle(std::vector<Sum>& sums, std::minstd_rand& random) {
  for (std::size_t left = sums.size(); left > 1; --left) {
    std::swap(sums[left - 1], sums[random() % left]);
  }
}

}  // namespace

int Sum::Result() const {
  switch (kind) {
    case SumKind::Add:
      return first + second;
    case SumKind::Subtract:
      return first - second;
    case SumKind::Multiply:
      return first * second;
    case SumKind::Divide:
      return second == 0 ? 0 : first / second;
    case SumKind::PerCent:
      return first * second / 100;
  }
  return 0;
}

std::vector<Sum> ChooseSums(SumKind kind, int largest, int count, std::uint32_t seed) {
  std::vector<Sum> all;
  for (const int first : NumbersOffered(20)) {
    for (const int second : NumbersOffered(10)) {
      const Sum sum{.kind = kind, .first = first, .second = second};
      const bool isSmall = std::max(first, second) <= largest && sum.Result() <= largest;
      if (isSmall && ComesOutWhole(sum)) all.push_back(sum);
    }
  }
  std::vector<Sum> chosen;
  if (all.empty()) return chosen;
  std::minstd_rand random(seed);
  const auto wanted = static_cast<std::size_t>(std::max(0, count));
  while (chosen.size() < wanted) {
    Shuffle(all, random);
    const std::size_t taken = std::min(all.size(), wanted - chosen.size());
    chosen.insert(chosen.end(), all.begin(), all.begin() + static_cast<std::ptrdiff_t>(taken));
  }
  return chosen;
}

const char* NameOf(SumKind kind) {
  switch (kind) {
    case SumKind::Add:
      return "add";
    case SumKind::Subtract:
      return "subtract";
    case SumKind::Multiply:
      return "multiply";
    case SumKind::Divide:
      return "divide";
    case SumKind::PerCent:
      return "percent";
  }
  return "";
}

std::optional<SumKind> SumKindNamed(const QString& name) {
  const auto found = std::ranges::find_if(
      kSumKinds, [&](SumKind kind) { return name == QLatin1String(NameOf(kind)); });
  return found == std::end(kSumKinds) ? std::nullopt : std::optional(*found);
}

std::span<const SumKind> SumKinds() {
  return kSumKinds;
}

}  // namespace bramlee
