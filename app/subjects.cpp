#include "app/subjects.h"

#include <iterator>

#include "ui/form_ids.h"

namespace bramlee {
namespace {

constexpr HomeSubject kSubjects[] = {
    {"English:Capital Letters", kCapitalsForm,         0x002828C6, ":/pictures/home/1.jpg"},
    {"English:Small Letters",   kSmallLettersForm,     0x008A3AAD, ":/pictures/home/2.jpg"},
    {"Hindi:Wovels",            kHindiVowelsForm,      0x00C06515, ":/pictures/home/3.jpg"},
    {"Hindi:Consonants",        kHindiConsonantsForm,  0x005C6800, ":/pictures/home/4.jpg"},
    {"Telugu:Wovels",           kTeluguVowelsForm,     0x009A1B6A, ":/pictures/home/5.jpg"},
    {"Telugu:Consonants",       kTeluguConsonantsForm, 0x00004C9C, ":/pictures/home/6.jpg"},
    {"Maths:Numbers",           kMathsForm,            0x00327D2E, ":/pictures/home/7.jpg"},
    {"Maths:Basics",            nullptr,               0x00444444, nullptr                },
};
static_assert(std::size(kSubjects) <= kMostSubjects);

}  // namespace

std::span<const HomeSubject> HomeSubjects() {
  return kSubjects;
}

}  // namespace bramlee
