#include "board/board.h"
#include "board/charts.h"
#include "shell/forms.h"

namespace bramlee {

void RegisterBoard(const BoardRecord& record) {
  RegisterForm(QString::fromLatin1(record.form), [&record] { return new Board(record); });
}

void RegisterBoards() {
  for (const BoardRecord* record :
       {&kCapitalsBoard, &kSmallLettersBoard, &kHindiVowelsBoard, &kHindiConsonantsBoard,
        &kTeluguVowelsBoard, &kTeluguConsonantsBoard}) {
    RegisterBoard(*record);
  }
  RegisterCharts();
}

}  // namespace bramlee
