#include "board/board.h"
#include "shell/forms.h"

namespace bramlee {

void RegisterBoard(const BoardRecord& record) {
  RegisterForm(QString::fromLatin1(record.form), [&record] { return new Board(record); });
}

void RegisterBoards() {
  RegisterBoard(kCapitalsBoard);
}

}  // namespace bramlee
