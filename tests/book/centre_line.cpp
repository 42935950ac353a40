#include "tests/book/centre_line.h"

#include <QImage>
#include <QPainter>
#include <QRawFont>
#include <algorithm>
#include <array>
#include <cmath>
#include <ranges>
#include <set>
#include <span>
#include <utility>

#include "strokes/run_lines.h"

namespace bramlee {
namespace {

/// A ring up to this radius is a dot, in sheet pixels.
constexpr double kDot = 8;

/// How large a sign is drawn: its height, or half its width if that is more, in pixels.
constexpr double kSignSize = 200;
constexpr double kMostScale = 5;  ///< of a small sign
constexpr int kFrame = 4;

bool IsDot(const Run& run) {
  const auto& values = run.values;
  return run.primitive == Primitive::ArcStroke && values[5] <= kDot &&
         std::abs(values[2] - values[1]) >= 300;
}

/// Signs that have no body of their own: print puts them on a letter.
bool StandsOnALetter(const QString& sign) {
  return !sign.isEmpty() && sign.at(0).isMark();
}

/// Characters that say how their neighbours join, and the blank that a sign is put on.
bool IsSilent(QChar character) {
  return character == QChar(0x200C) || character == QChar(0x200D) || character == QChar::Nbsp;
}

bool Covers(const QFont& font, const QString& text) {
  const QRawFont raw = QRawFont::fromFont(font, QFontDatabase::Any);
  return std::ranges::all_of(text, [&raw](QChar character) {
    return IsSilent(character) || raw.supportsCharacter(character);
  });
}

bool IsInk(uchar pixel) {
  return pixel < 128;
}

/// The ink of a picture as a grid with an empty frame.
class Ink {
 public:
  explicit Ink(const QImage& picture)
      : width_(picture.width()),
        height_(picture.height()),
        cells_(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_)) {
    for (int y = 1; y + 1 < height_; ++y) {
      const uchar* row = picture.constScanLine(y);
      for (int x = 1; x + 1 < width_; ++x) {
        if (!IsInk(row[x])) continue;
        inked_.push_back(y * width_ + x);
        cells_[static_cast<std::size_t>(inked_.back())] = 1;
      }
    }
  }

  /// Takes away the ink's border, as Zhang and Suen do, until a line is left.
  void Thin() {
    while (ThinHalf(false) + ThinHalf(true) > 0) {
    }
  }

  CentreLine Points() const {
    CentreLine points;
    for (const std::ptrdiff_t cell : inked_) {
      points.push_back(
          {.x = static_cast<double>(cell % width_), .y = static_cast<double>(cell / width_)});
    }
    return points;
  }

 private:
  /// From the cell above, clockwise.
  std::array<bool, 8> Around(std::ptrdiff_t cell) const {
    const auto at = [&](std::ptrdiff_t off) {
      return cells_[static_cast<std::size_t>(cell + off)] != 0;
    };
    return {at(-width_), at(1 - width_), at(1),  at(1 + width_),
            at(width_),  at(width_ - 1), at(-1), at(-width_ - 1)};
  }

  static bool IsBorder(const std::array<bool, 8>& p, bool second) {
    int inked = 0;
    int turns = 0;
    for (std::size_t i = 0; i < p.size(); ++i) {
      inked += p[i];
      turns += !p[i] && p[(i + 1) % p.size()];
    }
    if (inked < 2 || inked > 6 || turns != 1) return false;
    return second ? !(p[0] && p[2] && p[6]) && !(p[0] && p[4] && p[6])
                  : !(p[0] && p[2] && p[4]) && !(p[2] && p[4] && p[6]);
  }

  int ThinHalf(bool second) {
    std::vector<std::ptrdiff_t> left;
    std::vector<std::ptrdiff_t> gone;
    for (const std::ptrdiff_t cell : inked_) {
      (IsBorder(Around(cell), second) ? gone : left).push_back(cell);
    }
    for (const std::ptrdiff_t cell : gone) cells_[static_cast<std::size_t>(cell)] = 0;
    inked_ = std::move(left);
    return static_cast<int>(gone.size());
  }

  std::ptrdiff_t width_;
  std::ptrdiff_t height_;
  std::vector<unsigned char> cells_;   ///< 1 with ink
  std::vector<std::ptrdiff_t> inked_;  ///< the indices of those, row by row
};

/// The text in that size, with room around it for whatever stands out of its line.
QImage PictureOf(const QString& text, QFont font, double size) {
  font.setPixelSize(static_cast<int>(std::lround(size)));
  const int em = font.pixelSize();
  QImage picture(QSize(6, 4) * em, QImage::Format_Grayscale8);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(font);
  painter.setPen(Qt::black);
  painter.drawText(QPoint(2, 2) * em, text);
  return picture;
}

/// Around all ink; empty without any.
QRect InkOf(const QImage& picture) {
  QRect ink;
  for (int y = 0; y < picture.height(); ++y) {
    const std::span row(picture.constScanLine(y), static_cast<std::size_t>(picture.width()));
    const auto first = std::ranges::find_if(row, IsInk);
    if (first == row.end()) continue;
    const auto last = std::ranges::find_if(row | std::views::reverse, IsInk).base();
    ink |= QRect(static_cast<int>(first - row.begin()), y, static_cast<int>(last - first), 1);
  }
  return ink;
}

}  // namespace

CentreLine LineOf(const Letter& letter) {
  CentreLine line;
  for (const Run& run : letter.Runs()) {
    if (IsDot(run)) {
      line.push_back({.x = run.values[3], .y = run.values[4]});
      continue;
    }
    for (const Lines& piece : LinesOf(run, {.step = 1, .spacing = 0})) {
      line.insert(line.end(), piece.begin(), piece.end());
    }
  }
  return line;
}

std::optional<CentreLine> LineOf(const QString& sign, const QString& family) {
  QFont font(family);
  font.setStyleStrategy(QFont::NoFontMerging);
  font.setHintingPreference(QFont::PreferNoHinting);
  const QString text = StandsOnALetter(sign) ? QChar(QChar::Nbsp) + sign : sign;
  if (!Covers(font, text)) return std::nullopt;
  const QSizeF rough = InkOf(PictureOf(text, font, kSignSize)).size();
  if (rough.isEmpty()) return std::nullopt;
  const double scale = kSignSize / std::max(rough.height(), rough.width() / 2);
  const QImage picture = PictureOf(text, font, kSignSize * std::min(scale, kMostScale));
  const QMargins frame(kFrame, kFrame, kFrame, kFrame);
  Ink grid(picture.copy(InkOf(picture).marginsAdded(frame)));
  grid.Thin();
  return grid.Points();
}

double SizeOf(const CentreLine& line) {
  const auto [left, right] = std::ranges::minmax(line, {}, &Point::x);
  const auto [top, bottom] = std::ranges::minmax(line, {}, &Point::y);
  return std::max({bottom.y - top.y, (right.x - left.x) / 2, 1.0});
}

CentreLine Thinned(const CentreLine& line, std::size_t most) {
  for (double cell = SizeOf(line) / 100;; cell *= 1.12) {
    std::set<std::pair<int, int>> taken;
    CentreLine kept;
    for (const Point& point : line) {
      const std::pair place(static_cast<int>(point.x / cell), static_cast<int>(point.y / cell));
      if (taken.insert(place).second) kept.push_back(point);
    }
    if (kept.size() <= most) return kept;
  }
}

}  // namespace bramlee
