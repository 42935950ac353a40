// Draws every letter on sheets to look at: with its pen strokes numbered, or, with --book, as given
// and as in the book beside its printed sign, or, with --words, each consonant with each vowel
// sign.
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cstdio>
#include <vector>

#include "tools/contact_sheets/book_sheets.h"
#include "tools/contact_sheets/letter_cell.h"
#include "tools/contact_sheets/word_sheets.h"

namespace bramlee {
namespace {

constexpr int kColumns = 6;
constexpr int kRows = 5;

std::vector<LetterId> LettersOf(const LetterSet& set) {
  std::vector<LetterId> letters;
  for (int tile = 1; tile <= set.tiles; ++tile) {
    letters.push_back({.set = set.name, .tile = tile, .form = {}});
    if (!HasSecondForm(set, tile)) continue;
    letters.push_back({.set = set.name, .tile = tile, .form = {.alternative = true}});
  }
  return letters;
}

QImage DrawSheet(std::span<const LetterId> letters) {
  QImage sheet(kCell.width() * kColumns, kCell.height() * kRows, QImage::Format_RGB32);
  sheet.fill(Qt::white);
  QPainter painter(&sheet);
  painter.setRenderHint(QPainter::Antialiasing);
  for (std::size_t i = 0; i < letters.size(); ++i) {
    const int place = static_cast<int>(i);
    const QPoint corner(place % kColumns * kCell.width(), place / kColumns * kCell.height());
    const Letter& letter = LetterOf(letters[i]);
    DrawLetter(painter, letter, letter.Bounds(), QRectF(corner, QSizeF(kCell)));
  }
  return sheet;
}

bool DrawSet(const LetterSet& set, const QString& folder) {
  constexpr std::size_t kOnASheet = std::size_t{kColumns} * kRows;
  const std::vector<LetterId> letters = LettersOf(set);
  for (std::size_t first = 0, number = 1; first < letters.size(); first += kOnASheet, ++number) {
    const std::size_t count = std::min(kOnASheet, letters.size() - first);
    const QImage sheet = DrawSheet(std::span(letters).subspan(first, count));
    if (!SaveSheet(sheet, folder, set, number)) return false;
  }
  return true;
}

}  // namespace
}  // namespace bramlee

int main(int argc, char** argv) {
  const QGuiApplication app(argc, argv);
  QStringList arguments = QGuiApplication::arguments().mid(1);
  const bool book = arguments.removeAll(QStringLiteral("--book")) > 0;
  const bool words = arguments.removeAll(QStringLiteral("--words")) > 0;
  if (arguments.size() != 1) {
    std::fprintf(stderr, "usage: bramlee_contact_sheets [--book | --words] FOLDER\n");
    return 2;
  }
  if (words) {
    for (const char* script : {"hin", "tel"}) {
      if (!bramlee::DrawWordSheets(script, arguments[0])) return 1;
    }
    return 0;
  }
  for (const bramlee::LetterSet& set : bramlee::LetterSets()) {
    const auto draw = book ? bramlee::DrawBookSheets : bramlee::DrawSet;
    if (!draw(set, arguments[0])) return 1;
  }
  return 0;
}
