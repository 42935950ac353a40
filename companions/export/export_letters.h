// Which of a board's letters are exported, and how they look.
#pragma once

#include <vector>

#include "companions/export/export_choices.h"
#include "film/film_export.h"

namespace bramlee {

class Board;

/// Whether there is any such letter.
bool HasLetters(Board& board, Which which);

/// The letters, as the board writes them now: its forms, step, colours and its pen's rate; on the
/// sheet words too. What stands on the sheet several times comes once, as it was
/// written last. A sound is in where the choices ask for it, the kind has it and the board's drive
/// holds it.
std::vector<ExportedLetter> LettersToExport(Board& board, const ExportChoices& choices);

}  // namespace bramlee
