// bramlee-strokes: prints what the program of a letter does.
#include <QGuiApplication>
#include <QLoggingCategory>
#include <algorithm>
#include <memory>
#include <string_view>

#include "strokes/letter.h"
#include "tools/letters/stop_asked.h"
#include "tools/strokes/films.h"
#include "tools/strokes/pen_strokes_report.h"
#include "tools/strokes/pictures.h"
#include "tools/strokes/report.h"
#include "tools/strokes/request.h"
#include "tools/strokes/word_report.h"

namespace bramlee {
namespace {

ExitStatus DrawPictures(const Request& request) {
  const QString error = request.svg.isEmpty() ? QString() : WriteSvg(request);
  if (!error.isEmpty()) return kTool.Fail(kFailed, error);
  const QString second = request.png.isEmpty() ? QString() : WritePng(request);
  return second.isEmpty() ? kDone : kTool.Fail(kFailed, second);
}

ExitStatus WriteFiles(const Request& request) {
  CatchStop();
  const QString error = request.film.cards ? WriteCards(request) : WriteFilms(request);
  return error.isEmpty() ? kDone : kTool.Fail(kFailed, error);
}

/// Names what is left out of the word, and writes the rest.
ExitStatus AnswerWord(const Request& request) {
  const Word word = WordAsked(request);
  if (word.letters.empty()) {
    return kTool.Fail(kBadArguments, QStringLiteral("--word: there are no strokes for any of it"));
  }
  for (const LeftOut& each : word.leftOut) {
    kTool.Say(QStringLiteral("left out: ") + QString::fromStdString(each.text));
  }
  if (request.film.IsAsked()) return WriteFiles(request);
  if (!request.svg.isEmpty() || !request.png.isEmpty()) return DrawPictures(request);
  const std::string text = request.word.toStdString();
  return kTool.Print(request.penStrokes ? PenStrokesAsJson(word, text) : WordAsJson(word, text));
}

ExitStatus Answer(const QStringList& arguments) {
  const Parsed parsed = ParseArguments(arguments);
  if (!parsed.error.isEmpty()) return kTool.Fail(kBadArguments, parsed.error);
  if (!parsed.text.isEmpty()) return kTool.Print(parsed.text.toStdString());
  const Request& request = parsed.request;
  if (!request.word.isEmpty()) return AnswerWord(request);
  if (request.film.IsAsked()) return WriteFiles(request);
  if (!request.svg.isEmpty() || !request.png.isEmpty()) return DrawPictures(request);
  for (int tile = request.firstTile; tile <= request.lastTile; ++tile) {
    const ExitStatus status =
        kTool.Print(request.penStrokes ? PenStrokesAsJson(LetterOf(request.Tile(tile)))
                                       : StrokesAsJson(request, tile));
    if (status != kDone) return status;
  }
  return kDone;
}

}  // namespace
}  // namespace bramlee

int main(int argc, char** argv) {
  // Cards alone need fonts, which take a while to begin with.
  const bool needsFonts =
      std::any_of(argv, argv + argc, [](std::string_view each) { return each == "--cards"; });
  qputenv("QT_QPA_PLATFORM", "offscreen");  // and no window system
  // What Qt says of the session's folders is of no use to whoever writes letters.
  QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
  const std::unique_ptr<QCoreApplication> app(needsFonts ? new QGuiApplication(argc, argv)
                                                         : new QCoreApplication(argc, argv));
  return bramlee::Answer(QCoreApplication::arguments());
}
