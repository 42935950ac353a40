#include "paper/sheet_style.h"

#include <algorithm>

namespace bramlee {
namespace {

constexpr RowKind kRowKinds[] = {RowKind::Model, RowKind::BuiltUp, RowKind::Dotted,
                                 RowKind::Grey,  RowKind::Hollow,  RowKind::Blank};
constexpr Ruling kRulings[] = {Ruling::English, Ruling::Hindi, Ruling::Telugu, Ruling::Boxes,
                               Ruling::None};

template <class Choice>
std::optional<Choice> ChoiceNamed(std::span<const Choice> choices, const QString& name) {
  const auto found = std::ranges::find_if(
      choices, [&](Choice choice) { return name == QLatin1String(NameOf(choice)); });
  return found == choices.end() ? std::nullopt : std::optional(*found);
}

}  // namespace

const char* NameOf(RowKind kind) {
  switch (kind) {
    case RowKind::Model:
      return "model";
    case RowKind::BuiltUp:
      return "built-up";
    case RowKind::Dotted:
      return "dotted";
    case RowKind::Grey:
      return "grey";
    case RowKind::Hollow:
      return "hollow";
    case RowKind::Blank:
      return "blank";
  }
  return "";
}

const char* NameOf(Ruling ruling) {
  switch (ruling) {
    case Ruling::English:
      return "english";
    case Ruling::Hindi:
      return "hindi";
    case Ruling::Telugu:
      return "telugu";
    case Ruling::Boxes:
      return "boxes";
    case Ruling::None:
      return "none";
  }
  return "";
}

std::optional<RowKind> RowKindNamed(const QString& name) {
  return ChoiceNamed(RowKinds(), name);
}

std::optional<Ruling> RulingNamed(const QString& name) {
  return ChoiceNamed(Rulings(), name);
}

std::span<const RowKind> RowKinds() {
  return kRowKinds;
}

std::span<const Ruling> Rulings() {
  return kRulings;
}

Ruling RulingOf(std::string_view letterSet) {
  if (letterSet.starts_with("hin")) return Ruling::Hindi;
  if (letterSet.starts_with("tel")) return Ruling::Telugu;
  return letterSet == "mat" ? Ruling::Boxes : Ruling::English;
}

}  // namespace bramlee
