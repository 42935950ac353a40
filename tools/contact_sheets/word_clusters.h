// Every consonant of a script with every vowel sign.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace bramlee {

struct WordCluster {
  std::string text;   ///< UTF-8
  bool bare = false;  ///< without a sign
};

/// Consonant by consonant: 33 by 12 for "hin", 34 by 15 for "tel".
std::vector<WordCluster> ClustersOf(std::string_view script);

}  // namespace bramlee
