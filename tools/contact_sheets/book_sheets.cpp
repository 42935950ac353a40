#include "tools/contact_sheets/book_sheets.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cstdio>
#include <vector>

#include "letters/letter_names.h"
#include "tools/contact_sheets/letter_cell.h"
#include "tools/contact_sheets/print_fonts.h"
#include "tools/contact_sheets/print_sign.h"

namespace bramlee {
namespace {

constexpr std::size_t kBookRows = 5;
constexpr double kMostScale = 1.6;  ///< of a small sign

struct Row {
  Letter given;
  Letter book;  ///< without runs where the letter stands in the book as given
  QString sign;
};

Row RowOf(const LetterSet& set, int tile, bool alternative) {
  const auto letter = [&](bool book) {
    return LetterOf({
        .set = set.name, .tile = tile, .form = {.alternative = alternative, .book = book}
    });
  };
  const bool otherwise = HasBookForm(set, tile, {.alternative = alternative});
  return {.given = letter(false),
          .book = otherwise ? letter(true) : Letter(),
          .sign = QString::fromStdString(PrintedLetter(set.name, tile, true))};
}

std::vector<Row> RowsOf(const LetterSet& set) {
  std::vector<Row> rows;
  for (int tile = 1; tile <= set.tiles; ++tile) {
    rows.push_back(RowOf(set, tile, false));
    if (HasSecondForm(set, tile)) rows.push_back(RowOf(set, tile, true));
  }
  return rows;
}

Box Around(const Box& a, const Box& b) {
  const double right = std::max(a.x + a.width, b.x + b.width);
  const double bottom = std::max(a.y + a.height, b.y + b.height);
  const double x = std::min(a.x, b.x);
  const double y = std::min(a.y, b.y);
  return {.x = x, .y = y, .width = right - x, .height = bottom - y};
}

void DrawRow(QPainter& painter, const Row& row, const std::vector<QString>& fonts, int top) {
  const auto cell = [&](int column) {
    return QRectF(QPointF(column * kCell.width(), top), QSizeF(kCell));
  };
  const bool otherwise = !row.book.Runs().empty();
  const Box shown = otherwise ? Around(row.given.Bounds(), row.book.Bounds()) : row.given.Bounds();
  DrawLetter(painter, row.given, shown, cell(0));
  if (otherwise) {
    DrawLetter(painter, row.book, shown, cell(1));
  } else {
    DrawCaption(painter, QStringLiteral("in the book as given"), cell(1));
  }
  for (int i = 0; i < 2; ++i) {
    const QString& family = fonts[static_cast<std::size_t>(i)];
    DrawCaption(painter, family, cell(i + 2));
    DrawSign(painter, row.sign, family, RoomOf(cell(i + 2)), kMostScale);
  }
}

QImage DrawSheet(std::span<const Row> rows, const std::vector<QString>& fonts) {
  QImage sheet(kCell.width() * 4, kCell.height() * static_cast<int>(rows.size()),
               QImage::Format_RGB32);
  sheet.fill(Qt::white);
  QPainter painter(&sheet);
  painter.setRenderHint(QPainter::Antialiasing);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    DrawRow(painter, rows[i], fonts, static_cast<int>(i) * kCell.height());
  }
  return sheet;
}

}  // namespace

bool SaveSheet(const QImage& sheet, const QString& folder, const LetterSet& set,
               std::size_t number) {
  const QString file = QStringLiteral("%1/%2-%3.png")
                           .arg(folder, QString::fromStdString(std::string(set.name)))
                           .arg(number);
  if (sheet.save(file)) return true;
  std::fprintf(stderr, "%s cannot be written\n", qPrintable(file));
  return false;
}

bool DrawBookSheets(const LetterSet& set, const QString& folder) {
  const std::vector<Row> rows = RowsOf(set);
  const std::vector<QString> fonts = PrintFontsOf(set.name);
  for (std::size_t first = 0, number = 1; first < rows.size(); first += kBookRows, ++number) {
    const std::size_t count = std::min(kBookRows, rows.size() - first);
    const QImage sheet = DrawSheet(std::span(rows).subspan(first, count), fonts);
    if (!SaveSheet(sheet, folder, set, number)) return false;
  }
  return true;
}

}  // namespace bramlee
