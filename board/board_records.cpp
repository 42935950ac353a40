#include "board/board.h"
#include "board/charts.h"
#include "ui/forms.h"

namespace bramlee {

void RegisterBoard(const BoardRecord& record) {
  RegisterForm(record.form, [&record] { return new Board(record); });
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
