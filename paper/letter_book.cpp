#include "paper/letter_book.h"

#include <QPainter>
#include <algorithm>
#include <utility>

#include "letters/letter_sets.h"
#include "paper/print_ink.h"
#include "paper/print_text.h"
#include "paper/sheet_rows.h"

namespace bramlee {
namespace {

struct SetTitle {
  std::string_view set;
  const char* title;
  const char* language;
};
constexpr SetTitle kSetTitles[] = {
    {"engc", "English capital letters", "en"},
    {"engs", "English small letters",   "en"},
    {"hinv", "Hindi vowels",            "hi"},
    {"hinc", "Hindi consonants",        "hi"},
    {"telv", "Telugu vowels",           "te"},
    {"telc", "Telugu consonants",       "te"},
    {"mat",  "Numbers and signs",       "en"},
};

// In millimetres.
constexpr double kRunningTitle = 3.2;
constexpr double kTitle = 8;
constexpr double kEntry = 5;
constexpr double kEntryPitch = 11;
constexpr double kHeadRoom = 7;  ///< for the running title
constexpr double kFootRoom = 7;  ///< for the page number
constexpr double kLeaderDot = 0.5;
constexpr double kLeaderPitch = 2.5;

/// The letters of a set on their pages.
struct Chapter {
  QString title;
  SheetRows rows;
  int firstPage = 0;  ///< from 0
};

class BookPages : public PrintedPages {
 public:
  BookPages(QSizeF size, std::vector<Chapter> chapters, QStringList notes)
      : size_(size), chapters_(std::move(chapters)), notes_(std::move(notes)) {
    int page = 1;  // behind the contents
    for (Chapter& chapter : chapters_) {
      chapter.firstPage = page;
      page += static_cast<int>(chapter.rows.Pages().size());
      notes_ += chapter.rows.Notes();
    }
    count_ = page;
  }

  int Count() const override { return count_; }
  QSizeF SizeMm() const override { return size_; }
  QStringList Notes() const override { return notes_; }

  void Paint(QPainter& painter, int page) const override {
    painter.save();
    if (page == 0) {
      PaintContents(painter);
    } else {
      const Chapter& chapter = ChapterOf(page);
      PaintText(painter, {kMarginMm, kMarginMm + kRunningTitle}, chapter.title, kRunningTitle,
                kCaptionInk);
      chapter.rows.Paint(painter, static_cast<std::size_t>(page - chapter.firstPage));
    }
    PaintPageNumber(painter, page + 1);
    painter.restore();
  }

 private:
  const Chapter& ChapterOf(int page) const {
    const auto behind = std::ranges::upper_bound(chapters_, page, {}, &Chapter::firstPage);
    return *(behind - 1);
  }

  void PaintPageNumber(QPainter& painter, int number) const {
    const QString text = QString::number(number);
    const double left = (size_.width() - TextWidthMm(text, kRunningTitle)) / 2;
    PaintText(painter, {left, size_.height() - kMarginMm}, text, kRunningTitle, kCaptionInk);
  }

  void PaintContents(QPainter& painter) const {
    double base = kMarginMm + kTitle;
    PaintText(painter, {kMarginMm, base}, QStringLiteral("Letters to write"), kTitle, kBlackInk);
    base += kEntryPitch;
    for (const Chapter& chapter : chapters_) {
      base += kEntryPitch;
      PaintEntry(painter, chapter, base);
    }
  }

  void PaintEntry(QPainter& painter, const Chapter& chapter, double base) const {
    const QString page = QString::number(chapter.firstPage + 1);
    const double right = size_.width() - kMarginMm;
    const double pageLeft = right - TextWidthMm(page, kEntry);
    PaintText(painter, {kMarginMm, base}, chapter.title, kEntry, kBlackInk);
    PaintText(painter, {pageLeft, base}, page, kEntry, kBlackInk);
    painter.setPen(QPen(kRuleInk, kLeaderDot, Qt::SolidLine, Qt::RoundCap));
    const double from = kMarginMm + TextWidthMm(chapter.title, kEntry) + kLeaderPitch;
    for (double x = right - 4 * kLeaderPitch; x > from; x -= kLeaderPitch) {
      painter.drawPoint(QPointF(x, base));
    }
  }

  QSizeF size_;
  std::vector<Chapter> chapters_;
  QStringList notes_;
  int count_ = 1;
};

const SetTitle* FindTitle(std::string_view letterSet) {
  const auto found = std::ranges::find(kSetTitles, letterSet, &SetTitle::set);
  return found == std::end(kSetTitles) ? nullptr : found;
}

/// All letters of a set that have strokes, in the form asked for; the others are noted.
std::vector<Practice> PracticesOf(const LetterSet& set, bool given, QStringList& notes) {
  std::vector<Practice> practices;
  for (int tile = 1; tile <= set.tiles; ++tile) {
    practices.push_back(PracticeOf({.set = set.name, .tile = tile, .form = {.book = !given}}));
    if (!practices.back().letter.Runs().empty()) continue;
    notes.append(QStringLiteral("%1, tile %2, has no strokes").arg(TitleOfSet(set.name)).arg(tile));
    practices.pop_back();
  }
  return practices;
}

std::vector<std::string_view> SetsOf(const LetterBook& book) {
  if (!book.sets.empty()) return book.sets;
  std::vector<std::string_view> all;
  for (const LetterSet& set : LetterSets()) all.push_back(set.name);
  return all;
}

LaidOut Failed(PaperError::Kind kind, const QString& text) {
  return {
      .pages = nullptr, .error = {.kind = kind, .text = text}
  };
}

}  // namespace

LaidOut LayOut(const LetterBook& book) {
  if (book.style.rows.empty()) {
    return Failed(PaperError::Kind::NothingToPrint, QStringLiteral("no rows are chosen"));
  }
  const QSizeF size = book.page.SizeMm();
  const RowsArea area{.left = kMarginMm,
                      .top = kMarginMm + kHeadRoom,
                      .width = size.width() - 2 * kMarginMm,
                      .bottom = size.height() - kMarginMm - kFootRoom};
  std::vector<Chapter> chapters;
  QStringList notes;
  for (const std::string_view name : SetsOf(book)) {
    const LetterSet* set = FindLetterSet(name);
    if (set == nullptr) {
      return Failed(PaperError::Kind::UnknownSet,
                    QStringLiteral("no set \"%1\"").arg(QString::fromStdString(std::string(name))));
    }
    SheetRows rows(PracticesOf(*set, book.given, notes), book.style, area);
    if (!rows.Error().IsNone()) return {.pages = nullptr, .error = rows.Error()};
    chapters.push_back({.title = TitleOfSet(name), .rows = std::move(rows)});
  }
  return {.pages = std::make_shared<BookPages>(size, std::move(chapters), std::move(notes)),
          .error = {}};
}

QString TitleOfSet(std::string_view letterSet) {
  const SetTitle* found = FindTitle(letterSet);
  return found == nullptr ? QString() : QString::fromLatin1(found->title);
}

QString LanguageOfSet(std::string_view letterSet) {
  const SetTitle* found = FindTitle(letterSet);
  return found == nullptr ? QStringLiteral("en") : QString::fromLatin1(found->language);
}

}  // namespace bramlee
