// What sheets on paper cost: milliseconds and kilobytes a page for each set and kind of row, and
// for the book of all letters; how many numbers of strokes stand clean at each size.
#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>

#include "letters/letter_sets.h"
#include "paper/figure.h"
#include "paper/letter_book.h"
#include "paper/pdf_file.h"
#include "paper/worksheet.h"

namespace bramlee {
namespace {

using Clock = std::chrono::steady_clock;

struct Cost {
  double milliseconds = 0;
  double kilobytes = 0;
  int pages = 0;
};

template <class Document>
Cost CostOf(const Document& document) {
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("sheet.pdf"));
  const auto begin = Clock::now();
  const LaidOut made = LayOut(document);
  if (!made.error.IsNone() || !WritePdf(*made.pages, {}, file).IsNone()) return {};
  const auto end = Clock::now();
  return {.milliseconds = std::chrono::duration<double, std::milli>(end - begin).count(),
          .kilobytes = static_cast<double>(QFileInfo(file).size()) / 1000,
          .pages = made.pages->Count()};
}

std::vector<Practice> PracticesOf(const LetterSet& set) {
  std::vector<Practice> practices;
  for (int tile = 1; tile <= set.tiles; ++tile) {
    practices.push_back(PracticeOf({.set = set.name, .tile = tile, .form = {.book = true}}));
  }
  return practices;
}

/// Of the pages of one letter each, the slowest and the largest.
void PrintPages(const LetterSet& set) {
  for (const RowKind kind : RowKinds()) {
    Cost most;
    for (const Practice& practice : PracticesOf(set)) {
      Worksheet sheet{.practices = {practice}};
      sheet.style.rows = std::vector<RowKind>(6, kind);
      const Cost cost = CostOf(sheet);
      if (cost.pages == 0) continue;
      most.milliseconds = std::max(most.milliseconds, cost.milliseconds / cost.pages);
      most.kilobytes = std::max(most.kilobytes, cost.kilobytes / cost.pages);
    }
    std::printf("%-6s %-10s %10.1f %10.1f\n", std::string(set.name).c_str(), NameOf(kind),
                most.milliseconds, most.kilobytes);
  }
}

void PrintNumbers() {
  std::printf("\n%-10s %10s %10s %10s\n", "body mm", "numbers", "clean", "per cent");
  for (const double body : kBodySizesMm) {
    int numbers = 0, clean = 0;
    for (const LetterSet& set : LetterSets()) {
      for (const Practice& practice : PracticesOf(set)) {
        const Figure figure(practice, body, Hand::Right);
        for (const StrokeNumber& number : figure.Numbers()) {
          if (number.radius == 0) continue;
          ++numbers;
          if (number.clean) ++clean;
        }
      }
    }
    std::printf("%-10.0f %10d %10d %10.2f\n", body, numbers, clean, 100.0 * clean / numbers);
  }
}

void Print() {
  std::printf("%-6s %-10s %10s %10s\n", "set", "rows", "ms a page", "kB a page");
  for (const LetterSet& set : LetterSets()) PrintPages(set);
  LetterBook book;
  book.style.bodyMm = 14;
  const Cost cost = CostOf(book);
  std::printf("\nbook: %d pages, %.1f s, %.0f kB\n", cost.pages, cost.milliseconds / 1000,
              cost.kilobytes);
  PrintNumbers();
}

}  // namespace
}  // namespace bramlee

int main(int argc, char** argv) {
  const QGuiApplication app(argc, argv);
  bramlee::Print();
  return 0;
}
