#include "paper/heading.h"

#include <QPainter>
#include <algorithm>
#include <array>

#include "paper/print_ink.h"
#include "paper/print_text.h"

namespace bramlee {
namespace {

// In millimetres.
constexpr double kLabel = 3.2;
constexpr double kText = 4.4;
constexpr double kSmallestText = 2.9;  ///< a text that does not fit so goes on in a next line
constexpr double kLine = 6.5;          ///< from line to line
constexpr double kBelow = 5;           ///< between the heading and the first row
constexpr double kGap = 4;             ///< between two fields, and label and text

struct Field {
  QString label;
  QString text;
  double part;  ///< of the width
};

std::array<Field, 3> FieldsOf(const Heading& heading) {
  return {
      {{.label = QStringLiteral("Name"), .text = heading.name.simplified(), .part = 0.52},
       {.label = QStringLiteral("Class"), .text = heading.schoolClass.simplified(), .part = 0.22},
       {.label = QStringLiteral("Date"), .text = heading.date.simplified(), .part = 0.26}}
  };
}

double RoomOf(const Field& field, double width) {
  return field.part * width - kGap - TextWidthMm(field.label, kLabel) - kGap / 2;
}

double SizeOf(const Field& field, double room) {
  const double wide = TextWidthMm(field.text, kText);
  return wide <= room ? kText : std::max(kSmallestText, kText * room / wide);
}

/// The text in lines that are not wider than the room: broken at blanks, or anywhere in a word
/// that is longer.
QStringList LinesOf(const Field& field, double room) {
  const double size = SizeOf(field, room);
  QStringList lines;
  QString rest = field.text;
  while (!rest.isEmpty()) {
    auto fits = rest.size();
    while (fits > 1 && TextWidthMm(rest.left(fits), size) > room + 1e-6) --fits;
    if (fits < rest.size()) {
      const auto blank = rest.lastIndexOf(u' ', fits);
      if (blank > 0) fits = blank;
    }
    lines.append(rest.left(fits));
    rest = rest.mid(fits).trimmed();
  }
  if (lines.isEmpty()) lines.append(QString());
  return lines;
}

void PaintField(QPainter& painter, const Field& field, const QPointF& corner, double width) {
  const QPointF first = corner + QPointF(0, kLine - 1);
  PaintText(painter, first, field.label, kLabel, kCaptionInk);
  const double room = RoomOf(field, width);
  const double left = first.x() + TextWidthMm(field.label, kLabel) + kGap / 2;
  const QStringList lines = LinesOf(field, room);
  painter.setPen(QPen(kRuleInk, kRuleMm));
  for (qsizetype i = 0; i < lines.size(); ++i) {
    const double y = first.y() + static_cast<double>(i) * kLine;
    painter.drawLine(QPointF(left, y + 1), QPointF(left + room, y + 1));
    PaintText(painter, {left, y}, lines[i], SizeOf(field, room), kBlackInk);
  }
}

}  // namespace

double HeadingHeightMm(const Heading& heading, double widthMm) {
  if (!heading.shown) return 0;
  qsizetype lines = 1;
  for (const Field& field : FieldsOf(heading)) {
    lines = std::max(lines, LinesOf(field, RoomOf(field, widthMm)).size());
  }
  return static_cast<double>(lines) * kLine + kBelow;
}

void PaintHeading(QPainter& painter, const Heading& heading, const QPointF& corner,
                  double widthMm) {
  if (!heading.shown) return;
  painter.save();
  double x = corner.x();
  for (const Field& field : FieldsOf(heading)) {
    PaintField(painter, field, {x, corner.y()}, widthMm);
    x += field.part * widthMm;
  }
  painter.restore();
}

}  // namespace bramlee
