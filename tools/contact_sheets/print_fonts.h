// The fonts that letters are held against.
#pragma once

#include <QString>
#include <string_view>
#include <vector>

namespace bramlee {

/// Families of a set's script, the two that show its letters best first. Those of
/// packaging/packages.txt: no other need be there.
inline std::vector<QString> PrintFontsOf(std::string_view letterSet) {
  if (letterSet.starts_with("hin")) {
    return {QStringLiteral("Lohit Devanagari"), QStringLiteral("Nakula"), QStringLiteral("Gargi")};
  }
  if (letterSet.starts_with("tel")) {
    return {QStringLiteral("Lohit Telugu"), QStringLiteral("Mandali"), QStringLiteral("Gidugu"),
            QStringLiteral("NTR"), QStringLiteral("Pothana2000")};
  }
  return {QStringLiteral("URW Gothic"), QStringLiteral("Nimbus Sans"),
          QStringLiteral("DejaVu Sans")};
}

}  // namespace bramlee
