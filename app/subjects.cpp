#include "app/subjects.h"

#include <iterator>

#include "strokes/set_looks.h"
#include "ui/form_ids.h"

namespace bramlee {
namespace {

/// The tile of a letter set.
constexpr HomeSubject TileOf(const SetLook& look, const char* board, const char* picture) {
  return {
      .caption = look.subject, .board = board, .colour = look.subjectColour, .picture = picture};
}

constexpr HomeSubject kSubjects[] = {
    TileOf(kCapitalsLook, kCapitalsForm, ":/pictures/home/1.jpg"),
    TileOf(kSmallLettersLook, kSmallLettersForm, ":/pictures/home/2.jpg"),
    TileOf(kHindiVowelsLook, kHindiVowelsForm, ":/pictures/home/3.jpg"),
    TileOf(kHindiConsonantsLook, kHindiConsonantsForm, ":/pictures/home/4.jpg"),
    TileOf(kTeluguVowelsLook, kTeluguVowelsForm, ":/pictures/home/5.jpg"),
    TileOf(kTeluguConsonantsLook, kTeluguConsonantsForm, ":/pictures/home/6.jpg"),
    TileOf(kNumbersLook, kMathsForm, ":/pictures/home/7.jpg"),
    {"Maths:Basics", nullptr, 0x00444444, nullptr},
};
static_assert(std::size(kSubjects) <= kMostSubjects);

}  // namespace

std::span<const HomeSubject> HomeSubjects() {
  return kSubjects;
}

}  // namespace bramlee
