// Where the sounds of the boards lie on a drive: for the boards, which play them, and for the
// sounds' maker.
#pragma once

namespace bramlee {

/// The folder of all sounds, from a drive's root.
inline constexpr char kSoundFolder[] = R"(\bramlee\aud\)";

/// The sounds of a board.
struct SoundSet {
  const char* name;    ///< "engc", as the maker's table is named
  const char* prefix;  ///< below the folder of sounds: a folder and how its files' names begin
};

/// In the order of the boards' numbers, from 1 on.
inline constexpr SoundSet kSoundSets[] = {
    {"engc", R"(engc\eng-)"     },
    {"engs", R"(engs\eng-)"     },
    {"hinv", R"(hin\hinv\hinv-)"},
    {"hinc", R"(hin\hinc\hinc-)"},
    {"telv", R"(tel\telv\telv-)"},
    {"telc", R"(tel\telc\telc-)"},
    {"mat",  R"(mat\mat-)"      },
};

/// Whole numbers, beside the maths board's tiles.
inline constexpr SoundSet kNumberSounds = {"matc", R"(mat\matc\mat-)"};

}  // namespace bramlee
