#include "tools/contact_sheets/word_clusters.h"

#include "strokes/utf8.h"

namespace bramlee {
namespace {

constexpr std::u32string_view kHindi = U"कखगघङचछजझञटठडढणतथदधनपफबभमयरलवशषसह";
constexpr std::u32string_view kHindiSigns = U"ािीुूृेैोौं";
constexpr std::u32string_view kTelugu = U"కఖగఘఙచఛజఝఞటఠడఢణతథదధనపఫబభమయరలవశషసహళ";
constexpr std::u32string_view kTeluguSigns = U"ాిీుూృెేైొోౌ్ం";

}  // namespace

std::vector<WordCluster> ClustersOf(std::string_view script) {
  const bool hindi = script == "hin";
  std::vector<WordCluster> clusters;
  for (const char32_t letter : hindi ? kHindi : kTelugu) {
    clusters.push_back({.text = Utf8Of(letter), .bare = true});
    for (const char32_t sign : hindi ? kHindiSigns : kTeluguSigns) {
      clusters.push_back({.text = Utf8Of(letter) + Utf8Of(sign)});
    }
  }
  return clusters;
}

}  // namespace bramlee
