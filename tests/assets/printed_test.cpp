// The letters in print on tiles and charts: whole, whatever their fonts say of their widths.
#include <gtest/gtest.h>

#include <QPainter>
#include <algorithm>
#include <vector>

#include "assets/pictures.h"
#include "letters/letter_names.h"
#include "letters/letter_sets.h"

namespace bramlee {
namespace {

int GreyOf(const QColor& colour) {
  return Blank({1, 1}, colour).convertToFormat(QImage::Format_Grayscale8).constScanLine(0)[0];
}

/// How much of the print's colour lies on the ground, in pixels that it would cover wholly.
double InkOn(const QImage& picture, const QColor& ground) {
  const QImage grey = picture.convertToFormat(QImage::Format_Grayscale8);
  const int pale = GreyOf(ground);
  int ink = 0;
  for (int y = 0; y < grey.height(); ++y) {
    const uchar* line = grey.constScanLine(y);
    for (int x = 0; x < grey.width(); ++x) ink += std::max(0, pale - line[x]);
  }
  return 1.0 * ink / (pale - GreyOf(kPrintColour));
}

/// The ink of the text in that font where nothing is near to cut it off. It is drawn threefold,
/// so that no pixel's rounding counts.
double WholeInk(const QString& text, const QFont& font, const QColor& ground) {
  constexpr int kLarger = 3;
  QFont large = font;
  large.setPixelSize(kLarger * font.pixelSize());
  QImage picture = Blank(QSize(6, 4) * large.pixelSize(), ground);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(large);
  painter.setPen(kPrintColour);
  painter.drawText(QPoint(2, 2) * large.pixelSize(), text);
  painter.end();
  return InkOn(picture, ground) / (kLarger * kLarger);
}

/// The subject with letters as pale as their ground: its pictures show the print alone.
Subject PrintAlone(const Subject& subject) {
  Subject pale = subject;
  pale.ink = pale.ground;
  return pale;
}

std::vector<Subject> SubjectsWithPrint() {
  std::vector<Subject> found;
  for (const Subject& subject : Subjects()) {
    const bool printed =
        subject.letterSet.starts_with("hin") || subject.letterSet.starts_with("tel");
    if (printed) found.push_back(subject);
  }
  return found;
}

class PrintedSigns : public testing::TestWithParam<Subject> {
 protected:
  /// Whether that part of the picture holds all ink of the tile's letter in print.
  static void ExpectWhole(const QImage& card, const QRectF& place, int tile) {
    const Subject& subject = GetParam();
    const QString sign = QString::fromStdString(PrintedLetter(subject.letterSet, tile));
    const QFont font = PrintedFont(sign, CornerPlace(place).size());
    const double whole = WholeInk(sign, font, subject.ground);
    const double shown = InkOn(card, subject.ground);
    EXPECT_GE(shown, 0.98 * whole) << tile << ' ' << sign.toStdString();
  }
};

TEST_P(PrintedSigns, LoseNoInkOnTheirTiles) {
  const Subject subject = PrintAlone(GetParam());
  for (int tile = 1; tile <= FindLetterSet(subject.letterSet)->tiles; ++tile) {
    ExpectWhole(TilePicture(subject, tile), QRectF(QPointF(0, 0), QSizeF(subject.tile)), tile);
  }
}

TEST_P(PrintedSigns, LoseNoInkOnTheChart) {
  const Subject subject = PrintAlone(GetParam());
  const QImage chart = ChartPicture(subject);
  for (int tile = 1; tile <= ChartTiles(subject); ++tile) {
    const QRectF card = ChartCard(subject, tile);
    ExpectWhole(chart.copy(card.toAlignedRect()), card, tile);
  }
}

INSTANTIATE_TEST_SUITE_P(EverySetInPrint, PrintedSigns, testing::ValuesIn(SubjectsWithPrint()),
                         [](const auto& set) { return std::string(set.param.letterSet); });

}  // namespace
}  // namespace bramlee
