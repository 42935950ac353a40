// Where the sounds of the boards lie on a drive: for the boards, which play them, and for the
// sounds' maker.
#pragma once

#include <QString>
#include <cstdint>

namespace bramlee {

/// The folder of all sounds, from a drive's root.
inline constexpr char kSoundFolder[] = R"(\bramlee\aud\)";

/// How the letter's part of a sound file's name reads.
enum class LetterPart : std::uint8_t { Number, Character };

/// The sounds of a board.
struct SoundSet {
  const char* name;    ///< "engc", as the maker's table is named
  const char* prefix;  ///< below the folder of sounds: a folder and how its files' names begin
  LetterPart part = LetterPart::Number;
};

/// In the order of the boards' numbers, from 1 on.
inline constexpr SoundSet kSoundSets[] = {
    {"engc",                 R"(engc\eng-)", LetterPart::Character},
    {"engs",                      R"(engs\eng-)",                               LetterPart::Character},
    {"hinv", R"(hin\hinv\hinv-)"},
    {"hinc",   R"(hin\hinc\hinc-)"                                },
    {"telv", R"(tel\telv\telv-)"},
    {"telc",   R"(tel\telc\telc-)"                                  },
    {"mat", R"(mat\mat-)"},
};

/// Whole numbers, beside the maths board's tiles.
inline constexpr SoundSet kNumberSounds = {"matc", R"(mat\matc\mat-)"};

/// How the set's files begin below the folder of sounds: "engc/eng-".
inline QString FilesOf(const SoundSet& set) {
  return QString::fromLatin1(set.prefix).replace(u'\\', u'/');
}

/// The letter's part of its file's name: "5", or "e". A tile has to be one of the set's.
inline QString LetterPartOfSound(const SoundSet& set, int tile) {
  return set.part == LetterPart::Number ? QString::number(tile) : QChar(u'a' + tile - 1);
}

}  // namespace bramlee
