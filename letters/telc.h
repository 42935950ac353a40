// What the two sources of the Telugu consonants know of each other.
#pragma once

#include <span>

#include "letters/pen.h"

namespace bramlee {

/// A tile and the routine that writes its letter.
struct TeluguConsonant {
  int tile;
  Letter write;
};

/// The forms that a consonant takes below another one, in telc_below.cpp.
std::span<const TeluguConsonant> TeluguConsonantsBelow();

}  // namespace bramlee
