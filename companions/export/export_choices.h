// What a teacher chose in the export dialog; it lasts.
#pragma once

#include <QColor>
#include <QString>
#include <optional>

#include "film/film_file.h"
#include "ink/colours.h"

namespace bramlee {

/// Which letters are exported.
enum class Which : std::uint8_t { ThisLetter, SheetsLetters, WholeBoard };

/// A colour to pick: by its name, which is kept, or as the board has it.
struct NamedColour {
  const char* name;  ///< "Red"; what the list shows
  ColourWord colour;
};

/// The colours of the boards' menus, in their order.
inline constexpr NamedColour kNamedColours[] = {
    {"Black",  0x00000000},
    {"Blue",   0x00FF0000},
    {"Green",  0x0000FF00},
    {"Red",    0x000000FF},
    {"Yellow", 0x0000FFFF},
    {"White",  0x00FFFFFF},
};
inline constexpr char kAsOnTheBoard[] = "As on the board";
inline constexpr char kNoGround[] = "None";

/// The colour of that name; none for another.
std::optional<QColor> ColourNamed(const QString& name);

struct ExportChoices {
  Which which = Which::ThisLetter;
  std::optional<FilmKind> kind = FilmKind::Gif;  ///< none: flash cards
  int pixels = 400;
  QString ink = QString::fromLatin1(kAsOnTheBoard);
  QString ground = QString::fromLatin1(kAsOnTheBoard);  ///< or kNoGround
  bool numbers = false;
  bool sound = true;
  QString folder;
};

/// What was chosen last; at first a GIF of this letter, in the user's folder of pictures or, where
/// that is not there, the home folder.
ExportChoices LastExportChoices();
void KeepExportChoices(const ExportChoices& choices);

}  // namespace bramlee
