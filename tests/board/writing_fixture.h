// Boards that note what is done on them.
#pragma once

#include <string>

#include "tests/board/board_fixture.h"

namespace bramlee {

class BoardWriting : public BoardTest {
 protected:
  void SetUp() override {
    BoardTest::SetUp();
    Log().clear();
  }
  static std::string& Log() {
    static std::string log;
    return log;
  }
  static void Note(const std::string& what) { Log() += Log().empty() ? what : " " + what; }

  /// A board that notes its loads as "load" and each letter by its number, writing none.
  static BoardRecord Noting(BoardRecord record) {
    record.layOut = [](Board&) { Note("load"); };
    record.cue = [](Board&, const StrokeRec&) {};
    record.write = [](Board&, StrokeRec& rec) { Note(std::to_string(rec.LetterNo)); };
    return record;
  }
};

}  // namespace bramlee
