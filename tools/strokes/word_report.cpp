#include "tools/strokes/word_report.h"

#include <QJsonArray>
#include <QJsonDocument>

#include "tools/strokes/number_text.h"
#include "tools/strokes/run_text.h"

namespace bramlee {
namespace {

template <class Things, class Text>
std::string List(const Things& things, Text text) {
  std::string list;
  for (const auto& thing : things) {
    if (!list.empty()) list += ',';
    list += text(thing);
  }
  return '[' + list + ']';
}

std::string LetterAsJson(const WordLetter& letter) {
  return "{\"text\":" + QuotedForJson(letter.text) + ",\"left\":" + ToThousandth(letter.left) +
         ",\"right\":" + ToThousandth(letter.right) +
         ",\"penStrokes\":" + std::to_string(letter.strokes) + '}';
}

}  // namespace

Word WordAsked(const Request& request) {
  return LayWord(request.word.toStdString(),
                 {.headLine = request.headPerLetter ? HeadLine::PerLetter : HeadLine::Once,
                  .step = request.step});
}

std::string WordAsJson(const Word& word, std::string_view text) {
  return "{\"word\":" + QuotedForJson(text) + ",\"step\":" + ShortestText(word.letter.Step()) +
         ",\"width\":" + ToThousandth(word.width) +
         ",\"letters\":" + List(word.letters, LetterAsJson) + ",\"leftOut\":" +
         List(word.leftOut, [](const LeftOut& each) { return QuotedForJson(each.text); }) +
         ",\"strokes\":" + RunsAsJson(word.letter) + "}\n";
}

std::string QuotedForJson(std::string_view text) {
  const QJsonArray one{QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))};
  std::string array = QJsonDocument(one).toJson(QJsonDocument::Compact).toStdString();
  return array.substr(1, array.size() - 2);  // without the brackets
}

}  // namespace bramlee
