#include "paper/worksheet.h"

#include <QPainter>
#include <utility>

#include "paper/heading.h"
#include "paper/sheet_rows.h"

namespace bramlee {
namespace {

class WorksheetPages : public PrintedPages {
 public:
  WorksheetPages(const Worksheet& sheet, SheetRows rows, QStringList notes)
      : size_(sheet.page.SizeMm()),
        heading_(sheet.heading),
        rows_(std::move(rows)),
        notes_(std::move(notes)) {}

  int Count() const override { return static_cast<int>(rows_.Pages().size()); }
  QSizeF SizeMm() const override { return size_; }
  QStringList Notes() const override { return notes_ + rows_.Notes(); }
  void Paint(QPainter& painter, int page) const override {
    painter.save();
    PaintHeading(painter, heading_, {kMarginMm, kMarginMm}, size_.width() - 2 * kMarginMm);
    rows_.Paint(painter, static_cast<std::size_t>(page));
    painter.restore();
  }

 private:
  QSizeF size_;
  Heading heading_;
  SheetRows rows_;
  QStringList notes_;
};

PaperError NothingToPrint(const QString& text) {
  return {.kind = PaperError::Kind::NothingToPrint, .text = text};
}

}  // namespace

LaidOut LayOut(const Worksheet& sheet) {
  if (sheet.style.rows.empty()) {
    return {.pages = nullptr, .error = NothingToPrint(QStringLiteral("no rows are chosen"))};
  }
  std::vector<Practice> shown;
  QStringList notes;
  for (const Practice& practice : sheet.practices) {
    if (!practice.letter.Runs().empty()) {
      shown.push_back(practice);
      notes += practice.notes;
    } else {
      notes.append(QStringLiteral("%1 has no strokes").arg(practice.caption));
    }
  }
  if (shown.empty()) {
    const QString why = notes.isEmpty() ? QStringLiteral("nothing is chosen") : notes.constFirst();
    return {.pages = nullptr, .error = NothingToPrint(why)};
  }
  const QSizeF size = sheet.page.SizeMm();
  const double width = size.width() - 2 * kMarginMm;
  SheetRows rows(shown, sheet.style,
                 {.left = kMarginMm,
                  .top = kMarginMm + HeadingHeightMm(sheet.heading, width),
                  .width = width,
                  .bottom = size.height() - kMarginMm});
  if (!rows.Error().IsNone()) return {.pages = nullptr, .error = rows.Error()};
  return {.pages = std::make_shared<WorksheetPages>(sheet, std::move(rows), std::move(notes)),
          .error = {}};
}

}  // namespace bramlee
