// What bramlee-sounds says for each letter, as phonemes.
#include <map>

#include "tests/tools/sounds_maker.h"

namespace bramlee {
namespace {

TEST_F(SoundsMaker, SweepOfEverythingIsSaidInItsOwnLanguage) {
  const auto phonemes = Phonemes("engc,engs,hinv,hinc,telv,telc,mat");
  EXPECT_EQ(phonemes.size(), 26U + 26 + 29 + 111 + 36 + 75 + 17);
  for (const auto& [file, said] : phonemes) {
    EXPECT_FALSE(said.isEmpty()) << file.toStdString();
    for (const char* wrong : {"|", "(en)", "_:_:_"}) {
      EXPECT_FALSE(said.contains(QString::fromLatin1(wrong)))
          << file.toStdString() << ": " << said.toStdString();
    }
  }
}

// The consonants in the order of both alphabets, as their sounds are named.
constexpr const char* kHindiSounds[] = {
    "k",   "k#", "g", "g#", "N",  "c",  "c#", "J",  "J#",  "n^", "t.", "t.#", "d.",
    "d.#", "n.", "t", "t#", "d",  "d#", "n",  "p",  "p#",  "b",  "b#", "m",   "j",
    "r",   "l",  "v", "S",  "s.", "s",  "H",  "l.", "ks.", "tr", "gj"};
static_assert(std::size(kHindiSounds) == 37);

TEST_F(SoundsMaker, SpeaksHindiConsonantsAsTheirOwnSounds) {
  const auto phonemes = Phonemes("hinc");
  const auto said = [&](int tile) {
    return phonemes.at(QStringLiteral("hin/hinc/hinc-%1").arg(tile)).toStdString();
  };
  for (int letter = 1; letter <= 37; ++letter) {
    const std::string sound = kHindiSounds[letter - 1];
    EXPECT_EQ(said(letter), sound + "'V:");
    EXPECT_EQ(said(letter + 37), "'a:d#a: " + sound + "'V:");
    if (letter == 27) continue;
    EXPECT_EQ(said(letter + 74), sound + (letter <= 33 ? "r" : "") + "'V:");
  }
  EXPECT_EQ(said(27 + 74), "r@r'V:");
}

TEST_F(SoundsMaker, SpeaksTheVowelsAsTheirOwnSounds) {
  const auto phonemes = Phonemes("hinv,telv");
  const char* const kHindi[] = {"'V:", "'a:", "'I",  "'i:", "'U",  "'u:", "r'I",
                                "'e:", "'E:", "'o:", "'O:", "'VN", "'VH@"};
  for (int tile = 1; tile <= 13; ++tile) {
    EXPECT_EQ(phonemes.at(QStringLiteral("hin/hinv/hinv-%1").arg(tile)).toStdString(),
              kHindi[tile - 1]);
  }
  const std::map<int, const char*> kTelugu = {
      {1,  "'a"  },
      {2,  "'a:" },
      {3,  "'i"  },
      {4,  "'i:" },
      {5,  "'u"  },
      {6,  "'u:" },
      {7,  "r'u" },
      {8,  "r'u:"},
      {9,  "'e"  },
      {10, "'e:" },
      {11, "'aI" },
      {12, "'o"  },
      {13, "'o:" },
      {14, "'aU" },
      {31, "l'u" },
      {32, "l'u:"},
      {33, "'am" },
      {34, "'a~" },
      {35, "'aha"}
  };
  for (const auto& [tile, sound] : kTelugu) {
    EXPECT_EQ(phonemes.at(QStringLiteral("tel/telv/telv-%1").arg(tile)).toStdString(), sound);
  }
}

TEST_F(SoundsMaker, SpeaksEnglishLettersByTheirNames) {
  const auto phonemes = Phonemes("engc,engs");
  const char* const kNames[] = {
      "'eI",   "b'i:", "s'i:", "d'i:", "'i:",        "'Ef",  "dZ'i:", "'eItS", "'aI",
      "dZ'eI", "k'eI", "'El",  "'Em",  "'En",        "'oU",  "p'i:",  "kj'u:", "'A@",
      "'Es",   "t'i:", "j'u:", "v'i:", "d'Vb@Lj,u:", "'Eks", "w'aI",  "z'Ed"};
  for (char16_t letter = u'a'; letter <= u'z'; ++letter) {
    for (const char* set : {"engc", "engs"}) {
      const QString file = QString::fromLatin1(set) + QStringLiteral("/eng-") + QChar(letter);
      EXPECT_EQ(phonemes.at(file).toStdString(), kNames[letter - u'a']) << file.toStdString();
    }
  }
}

TEST_F(SoundsMaker, SpeaksDigitsAndSignsByTheirNames) {
  const auto phonemes = Phonemes("mat");
  const char* const kNames[] = {"w'0n",
                                "t'u:",
                                "Tr'i:",
                                "f'o@",
                                "f'aIv",
                                "s'Iks",
                                "s'Ev@n",
                                "'eIt",
                                "n'aIn",
                                "z'i@roU",
                                "pl'Vs",
                                "m'aIn@s",
                                "m,VltIpl'aId b'aI st'A@",
                                "dI2v'aIdI2d b'aI sl'aS",
                                "p3 s'Ent",
                                "'i:kw@Lz",
                                "kw'EstS@n m'A@k"};
  for (int tile = 1; tile <= 17; ++tile) {
    EXPECT_EQ(phonemes.at(QStringLiteral("mat/mat-%1").arg(tile)).toStdString(), kNames[tile - 1]);
  }
}

TEST_F(SoundsMaker, SpeaksTeluguConsonantsAsTheirOwnSounds) {
  const auto phonemes = Phonemes("telc");
  const auto said = [&](int tile) {
    return phonemes.at(QStringLiteral("tel/telc/telc-%1").arg(tile)).toStdString();
  };
  const char* const kGutturalToRetroflex[] = {"k",  "k#", "g",  "g#", "N",   "c",  "ts",  "c#", "J",
                                              "dz", "J#", "n^", "t.", "t.#", "d.", "d.#", "n."};
  for (int i = 0; i < 17; ++i) {
    EXPECT_EQ(said(1 + i), std::string(kGutturalToRetroflex[i]) + "'a");
  }
  const char* const kDentalToSibilant[] = {"t", "t#", "d", "d#", "n",  "p",  "p#", "b", "b#",
                                           "m", "j",  "r", "l",  "v#", "S;", "s.", "s"};
  for (int i = 0; i < 17; ++i) {
    EXPECT_EQ(said(35 + i), std::string(kDentalToSibilant[i]) + "'a");
  }
  EXPECT_EQ(said(69), "h'a");
  EXPECT_EQ(said(71), "l.'a");
  EXPECT_EQ(said(73), "ks.'a");
  EXPECT_EQ(said(74), "b'and.i r'a");
}

TEST_F(SoundsMaker, SpeaksSignsByTheNamesTheyHaveInClass) {
  const auto phonemes = Phonemes("hinv,telv");
  const std::map<int, const char*> kHindi = {
      {15, "'a: ki m'a:tra:"         },
      {16, "c#'o:t.i; 'I ki m'a:tra:"},
      {17, "b'Vr.i; 'i ki m'a:tra:"  },
      {20, "r'I ki m'a:tra:"         },
      {24, "'O: ki m'a:tra:"         },
      {28, "H@l'Vnt"                 }
  };
  for (const auto& [tile, sound] : kHindi) {
    EXPECT_EQ(phonemes.at(QStringLiteral("hin/hinv/hinv-%1").arg(tile)).toStdString(), sound);
  }
  const std::map<int, const char*> kTelugu = {
      {15, "t'alak,at.t.u"   },
      {16, "d'i:rg#am"       },
      {17, "g'ud.i"          },
      {18, "g'ud.i d'i:rg#am"},
      {19, "k'ommu"          },
      {21, "v#'at.rus,ud.i"  },
      {23, "'etv#am"         },
      {28, "'aUtv#am"        },
      {36, "p'ollu"          }
  };
  for (const auto& [tile, sound] : kTelugu) {
    EXPECT_EQ(phonemes.at(QStringLiteral("tel/telv/telv-%1").arg(tile)).toStdString(), sound);
  }
}

TEST_F(SoundsMaker, SpeaksWhatIsJoinedBelowByItsSoundAndName) {
  const auto phonemes = Phonemes("telc");
  const auto said = [&](int tile) {
    return phonemes.at(QStringLiteral("tel/telc/telc-%1").arg(tile)).toStdString();
  };
  // A letter's tile and that of the same letter joined below another.
  std::map<int, int> pairs = {
      {69, 70},
      {71, 72},
      {74, 75}
  };
  for (int tile = 1; tile <= 17; ++tile) pairs[tile] = tile + 17;
  for (int tile = 35; tile <= 51; ++tile) pairs[tile] = tile + 17;
  for (const auto& [letter, below] : pairs) {
    EXPECT_EQ(said(below), said(letter) + " v#'attu") << below;
  }
  EXPECT_NE(said(74), said(46)) << "the two r have names of their own";
}

}  // namespace
}  // namespace bramlee
