// From what a teacher chose to pages.
#pragma once

#include <QList>
#include <QString>
#include <string_view>

#include "companions/worksheet/tile_picker.h"
#include "companions/worksheet/worksheet_record.h"
#include "paper/pdf_file.h"

namespace bramlee {

class Board;

/// What a board has to offer.
struct WorksheetSource {
  std::string_view set;      ///< of letters; it outlives the dialog
  QString title;             ///< of the board, "English Capitals"
  QList<int> tiles;          ///< those with a letter that the board shows; all, where it shows none
  bool alternative = false;  ///< whether the board writes the alternative forms
  int atFirst = 0;           ///< the tile whose letter was written last, else the first
};

WorksheetSource SourceOf(Board& board);

/// The tile as it is offered: picture and name as given or as in the book.
OfferedTile OfferOf(const WorksheetSource& source, int tile, bool given);

/// The chosen tiles that the board offers; where none were ever chosen, or all of them are of
/// another part of the board, the one at first.
QList<int> TilesAtFirst(const WorksheetSource& source, const WorksheetRecord& record);

/// The words of a text with commas between.
QStringList WordsOf(const QString& text);

/// Works out the geometry of all letters of all boards, which the book's layout takes its time for
/// the first time. Does nothing when it is done already. Cancelled when the progress says so.
PaperError PrepareBook(bool given, const PageProgress& progress);
bool IsBookPrepared(bool given);

/// Lays out what was chosen. The heading is printed as it stands in the record.
LaidOut LayOut(const WorksheetSource& source, const WorksheetRecord& record);

/// What the file of such a worksheet says of itself, and a name for it: "English Capitals: A, B".
DocumentInfo InfoOf(const WorksheetSource& source, const WorksheetRecord& record);

}  // namespace bramlee
