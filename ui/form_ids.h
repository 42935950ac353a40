// The forms' ids. A form has its id as its Qt object name; docs/forms.md says what stands on each.
#pragma once

namespace bramlee {

inline constexpr char kFrameForm[] =
    "MDIbrm";  ///< the frame, in which start, home and the loading notice stand
inline constexpr char kStartForm[] = "fbrmsta1";      ///< the start form with the moving title
inline constexpr char kLoadingNotice[] = "fbrmsav1";  ///< the notice "Loading..." in front of home
inline constexpr char kHomeForm[] =
    "fbrmhom1";  ///< home: the seven subjects, the drives, the way to the card
inline constexpr char kReportNotice[] = "fcomsav1";    ///< the notice of an error report
inline constexpr char kCardForm[] = "fbrminf1";        ///< the biodata card
inline constexpr char kCapitalsForm[] = "fbrmengc02";  ///< the board of the English capitals
inline constexpr char kSmallLettersForm[] =
    "fbrmengs01";  ///< the board of the English small letters
inline constexpr char kHindiVowelsForm[] = "fbrmhinv01";      ///< the board of the Hindi vowels
inline constexpr char kHindiConsonantsForm[] = "fbrmhinc01";  ///< the board of the Hindi consonants
inline constexpr char kTeluguVowelsForm[] = "fbrmtelv01";     ///< the board of the Telugu vowels
inline constexpr char kTeluguConsonantsForm[] =
    "fbrmtelc01";  ///< the board of the Telugu consonants
inline constexpr char kMathsForm[] =
    "fbrmmat01";  ///< the board of the numbers, with drills and tables
inline constexpr char kHindiVowelsChart[] = "fbrmhinv00";  ///< the chart of the Hindi vowels
inline constexpr char kHindiConsonantsChart[] =
    "fbrmhinc00";                                           ///< the chart of the Hindi consonants
inline constexpr char kTeluguVowelsChart[] = "fbrmtelv00";  ///< the chart of the Telugu vowels
inline constexpr char kTeluguConsonantsChart[] =
    "fbrmtelc00";                                  ///< the chart of the Telugu consonants
inline constexpr char kPlayerForm[] = "f1207vid";  ///< the hidden player, the sound of all boards

}  // namespace bramlee
