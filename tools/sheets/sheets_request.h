// What bramlee-sheets was asked for.
#pragma once

#include <QString>
#include <QStringList>
#include <variant>

#include "paper/letter_book.h"
#include "paper/sums.h"
#include "paper/worksheet.h"
#include "tools/letters/tool.h"

namespace bramlee {

inline constexpr Tool kTool("bramlee-sheets");

/// What the arguments come to: a text to print (help, version), an error of one line, or, when
/// both are empty, a document and its file.
struct SheetsRequest {
  std::variant<Worksheet, SumSheet, LetterBook> document;
  DocumentInfo info;
  QString file;
  QString text;
  QString error;
};

/// Reads a command line; its first element is the program's name.
SheetsRequest ReadSheetsRequest(const QStringList& arguments);

}  // namespace bramlee
