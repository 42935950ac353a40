// What tests of tracing share: boards with the companion, and a hand that draws along strokes.
#pragma once

#include <QTest>
#include <vector>

#include "board/strip.h"
#include "companions/trace/trace.h"
#include "companions/watch/watch.h"
#include "strokes/letter.h"
#include "tests/board/board_fixture.h"

namespace bramlee {

class TracedBoard : public BoardWith<AddWatching, AddTracing> {
 protected:
  /// A board that is shown, with tracing on.
  template <class Which>
  Board& OpenTracing(const Which& which) {
    Board& board = Open(which);
    board.Present();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&board));
    Press(board, "strip_trace");
    return board;
  }

  static StripButton* Button(const Board& board, const char* name) {
    return board.Named<StripButton>(Q(name));
  }
  static void Press(const Board& board, const char* name) { Button(board, name)->click(); }

  /// The points of a tile's stroke, as it stands in the book.
  static std::vector<QPoint> Way(std::string_view set, int tile, std::size_t stroke) {
    std::vector<QPoint> way;
    const Letter& letter = LetterOf({.set = set, .tile = tile, .form = {.book = true}});
    for (const Point& point : letter.Shape().strokes[stroke].points) {
      way.emplace_back(static_cast<int>(point.x), static_cast<int>(point.y));
    }
    return way;
  }
  static std::vector<QPoint> Backwards(std::vector<QPoint> way) {
    return {way.rbegin(), way.rend()};
  }

  /// Drags the left button along there.
  static void Draw(Board& board, const std::vector<QPoint>& way) {
    QTest::mousePress(&board.sheet(), Qt::LeftButton, {}, way.front());
    for (const QPoint& place : way) Move(board, place);
    QTest::mouseRelease(&board.sheet(), Qt::LeftButton, {}, way.back());
  }
  /// With the left button down; QTest::mouseMove has none.
  static void Move(Board& board, QPoint place, Qt::MouseButtons buttons = Qt::LeftButton) {
    QMouseEvent move(QEvent::MouseMove, place, board.sheet().mapToGlobal(place), Qt::NoButton,
                     buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(&board.sheet(), &move);
  }
  static void DrawStroke(Board& board, std::string_view set, int tile, std::size_t stroke) {
    Draw(board, Way(set, tile, stroke));
  }

  static QImage Dots(const Board& board) {
    return board.sheet().Dots().Picture(QRectF(0, 0, 1300, 700), 1, Qt::white);
  }
  /// The same tile's dots as the pen alone writes them.
  QImage Plain(const char* form, int tile) {
    Board& board = Open(form);
    board.pic_Click(tile);
    QImage dots = Dots(board);
    board.close();
    return dots;
  }
};

}  // namespace bramlee
