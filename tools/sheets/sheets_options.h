// The options of bramlee-sheets, but for those that the tools for letters share.
#pragma once

#include <QCommandLineOption>
#include <QCommandLineParser>

namespace bramlee {

struct SheetsOptions {
  QCommandLineOption given{QStringLiteral("given"),
                           QStringLiteral("The letters as given, instead of as in the book.")};
  QCommandLineOption word{QStringLiteral("word"),
                          QStringLiteral("A word or name instead of letters of a set."),
                          QStringLiteral("TEXT")};
  QCommandLineOption numbers{QStringLiteral("numbers"),
                             QStringLiteral("A number or several, such as 1-20, likewise."),
                             QStringLiteral("N-M")};
  QCommandLineOption sums{
      QStringLiteral("sums"),
      QStringLiteral("Sums of a kind with numbers and results up to N, and their answers. "
                     "KIND is one of: add subtract multiply divide percent."),
      QStringLiteral("KIND:N")};
  QCommandLineOption count{QStringLiteral("count"),
                           QStringLiteral("How many sums; a page of them when not given."),
                           QStringLiteral("N")};
  QCommandLineOption seed{QStringLiteral("seed"),
                          QStringLiteral("Another number chooses other sums; 1 when not given."),
                          QStringLiteral("N"), QStringLiteral("1")};
  QCommandLineOption rows{
      QStringLiteral("rows"),
      QStringLiteral("The rows of each letter, parted by commas, of: model built-up dotted grey "
                     "hollow blank."),
      QStringLiteral("LIST"), QStringLiteral("model,dotted,dotted,blank")};
  QCommandLineOption size{
      QStringLiteral("size"),
      QStringLiteral("How high letters are, in millimetres; 20 when not given, 14 in the book, 10 "
                     "for sums."),
      QStringLiteral("MM")};
  QCommandLineOption ruling{
      QStringLiteral("ruling"),
      QStringLiteral("The lines: english hindi telugu boxes none; each script's own when not "
                     "given."),
      QStringLiteral("NAME")};
  QCommandLineOption paper{
      QStringLiteral("paper"),
      QStringLiteral("a4, letter, or its upright size in millimetres, such as 148x210."),
      QStringLiteral("NAME"), QStringLiteral("a4")};
  QCommandLineOption landscape{QStringLiteral("landscape"),
                               QStringLiteral("The paper lies on its long side.")};
  QCommandLineOption hand{QStringLiteral("hand"),
                          QStringLiteral("right or left; for the left hand rows end in the model."),
                          QStringLiteral("HAND"), QStringLiteral("right")};
  QCommandLineOption name{QStringLiteral("name"), QStringLiteral("The child's name, on top."),
                          QStringLiteral("TEXT")};
  QCommandLineOption schoolClass{QStringLiteral("class"), QStringLiteral("The class, on top."),
                                 QStringLiteral("TEXT")};
  QCommandLineOption date{QStringLiteral("date"), QStringLiteral("The date, on top."),
                          QStringLiteral("TEXT")};
  QCommandLineOption noHeading{QStringLiteral("no-heading"),
                               QStringLiteral("No line for name, class and date.")};
  QCommandLineOption title{QStringLiteral("title"), QStringLiteral("The document's title."),
                           QStringLiteral("TEXT")};
  QCommandLineOption author{QStringLiteral("author"), QStringLiteral("The document's author."),
                            QStringLiteral("TEXT")};
  QCommandLineOption output{
      {QStringLiteral("o"), QStringLiteral("output")},
      QStringLiteral("The file that is written, a PDF."),
      QStringLiteral("FILE")
  };

  void AddTo(QCommandLineParser& parser) const {
    parser.addOptions({given, word, numbers, sums, count, seed, rows, size, ruling, paper,
                       landscape, hand, name, schoolClass, date, noHeading, title, author, output});
  }
};

}  // namespace bramlee
