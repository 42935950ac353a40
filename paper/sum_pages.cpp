#include <QPainter>
#include <algorithm>
#include <utility>

#include "paper/heading.h"
#include "paper/print_ink.h"
#include "paper/print_text.h"
#include "paper/sums.h"
#include "paper/vector_letter.h"
#include "strokes/word.h"

namespace bramlee {
namespace {

// In millimetres.
constexpr double kNumber = 3.2;      ///< size of a sum's own number
constexpr double kNumberRoom = 9;    ///< before its first digit
constexpr double kAnswersTitle = 7;  ///< the line that says so, on an answer page
constexpr double kColumnGap = 5;

// As parts of the digits' height.
constexpr double kRowPitch = 2.2;
constexpr double kPen = 0.06;
constexpr double kAnswerRoom = 2.2;  ///< a line as long as the largest result

QString SignOf(SumKind kind) {
  switch (kind) {
    case SumKind::Add:
      return QStringLiteral("+");
    case SumKind::Subtract:
      return QStringLiteral("-");
    case SumKind::Multiply:
      return QStringLiteral("×");
    case SumKind::Divide:
      return QStringLiteral("÷");
    case SumKind::PerCent:
      return QStringLiteral("%");
  }
  return {};
}

Word Written(const QString& text) {
  return LayWord(text.toStdString());
}

Word QuestionOf(const Sum& sum) {
  return Written(QStringLiteral("%1 %2 %3 =").arg(sum.first).arg(SignOf(sum.kind)).arg(sum.second));
}

double ScaleOf(const SumSheet& sheet) {
  return sheet.digitMm / (kWordBase - kWordHead);
}

double WidestQuestion(const SumSheet& sheet) {
  double widest = 0;
  for (const Sum& sum : sheet.sums) widest = std::max(widest, QuestionOf(sum).width);
  return widest * ScaleOf(sheet);
}

/// How sums stand on a page.
struct Grid {
  int columns = 0;
  int rows = 0;
  double left = 0;
  double top = 0;
  double columnWidth = 0;
  double rowPitch = 0;
  double question = 0;  ///< the room of the widest one

  int OnAPage() const { return columns * rows; }
};

Grid GridOf(const SumSheet& sheet) {
  const QSizeF size = sheet.page.SizeMm();
  const double width = size.width() - 2 * kMarginMm;
  const double top = kMarginMm + HeadingHeightMm(sheet.heading, width) + kAnswersTitle;
  const double height = size.height() - kMarginMm - top;
  const double pitch = kRowPitch * sheet.digitMm;
  const double question = WidestQuestion(sheet);
  const double widest = kNumberRoom + question + kAnswerRoom * sheet.digitMm;
  const int columns = static_cast<int>((width + kColumnGap) / (widest + kColumnGap));
  return {.columns = std::min(2, columns),
          .rows = static_cast<int>(std::max(0.0, height) / pitch),
          .left = kMarginMm,
          .top = top,
          .columnWidth = columns == 0 ? 0 : width / std::min(2, columns),
          .rowPitch = pitch,
          .question = question};
}

class SumPages : public PrintedPages {
 public:
  explicit SumPages(SumSheet sheet) : sheet_(std::move(sheet)), grid_(GridOf(sheet_)) {}

  int Count() const override { return sheet_.answers ? 2 * SheetsOfSums() : SheetsOfSums(); }
  QSizeF SizeMm() const override { return sheet_.page.SizeMm(); }
  QStringList Notes() const override { return {}; }

  void Paint(QPainter& painter, int page) const override {
    painter.save();
    PaintHeading(painter, sheet_.heading, {kMarginMm, kMarginMm}, SizeMm().width() - 2 * kMarginMm);
    const bool answers = page >= SheetsOfSums();
    const int first = page % SheetsOfSums() * grid_.OnAPage();
    const int count = static_cast<int>(sheet_.sums.size());
    for (int i = first; i < std::min(count, first + grid_.OnAPage()); ++i) {
      PaintSum(painter, i, i - first, answers);
    }
    if (answers) {
      PaintText(painter, {grid_.left, grid_.top - kAnswersTitle + kNumber},
                QStringLiteral("Answers"), kNumber, kCaptionInk);
    }
    painter.restore();
  }

 private:
  int SheetsOfSums() const {
    const int count = static_cast<int>(sheet_.sums.size());
    return (count + grid_.OnAPage() - 1) / grid_.OnAPage();
  }

  void PaintWord(QPainter& painter, const Word& word, const QPointF& base) const {
    const double scale = ScaleOf(sheet_);
    painter.save();
    painter.translate(base);
    painter.scale(scale, scale);
    painter.translate(0, -kWordBase);
    PaintLetter(painter, word.letter, {.penWidth = kPen * sheet_.digitMm / scale});
    painter.restore();
  }

  /// Sums run down a column.
  void PaintSum(QPainter& painter, int index, int place, bool answered) const {
    const Sum& sum = sheet_.sums[static_cast<std::size_t>(index)];
    const int column = place / grid_.rows;
    const double x = grid_.left + column * grid_.columnWidth;
    const double base = grid_.top + (place % grid_.rows + 0.75) * grid_.rowPitch;
    PaintText(painter, {x, base}, QStringLiteral("%1.").arg(index + 1), kNumber, kCaptionInk);
    const Word question = QuestionOf(sum);
    const double end = x + kNumberRoom + grid_.question;
    PaintWord(painter, question, {end - question.width * ScaleOf(sheet_), base});
    const double answer = end + sheet_.digitMm / 4;
    if (answered) {
      PaintWord(painter, Written(QString::number(sum.Result())), {answer, base});
    } else {
      painter.setPen(QPen(kRuleInk, kRuleMm));
      painter.drawLine(QPointF(answer, base),
                       QPointF(answer + (kAnswerRoom - 0.3) * sheet_.digitMm, base));
    }
  }

  SumSheet sheet_;
  Grid grid_;
};

}  // namespace

int SumsOnAPage(const SumSheet& sheet) {
  return GridOf(sheet).OnAPage();
}

LaidOut LayOut(const SumSheet& sheet) {
  if (sheet.sums.empty()) {
    return {
        .pages = nullptr,
        .error = {.kind = PaperError::Kind::NothingToPrint,
                  .text = QStringLiteral("there are no such sums")}
    };
  }
  if (SumsOnAPage(sheet) == 0) {
    return {
        .pages = nullptr,
        .error = {.kind = PaperError::Kind::RowTooHigh,
                  .text = QStringLiteral("the page has no room for a sum of digits %1 mm high")
                              .arg(sheet.digitMm)}
    };
  }
  return {.pages = std::make_shared<SumPages>(sheet), .error = {}};
}

}  // namespace bramlee
