// Boards in windows of any size.
#pragma once

#include <QScrollArea>
#include <QTest>
#include <string>
#include <vector>

#include "tests/board/board_fixture.h"
#include "ui/forms.h"

namespace bramlee {

inline constexpr QSize kWindows[] = {
    {1024, 768 },
    {1366, 768 },
    {1920, 1080},
    {3840, 2160},
    {800,  1200}
};

inline std::string Text(const char* form, QSize window) {
  return std::string(form) + " in " + std::to_string(window.width()) + "x" +
         std::to_string(window.height());
}

/// What stands otherwise in the second list, line by line; empty for nothing.
inline std::string Changes(const QStringList& before, const QStringList& after) {
  QStringList changes;
  if (before.size() != after.size()) changes.append(QStringLiteral("another number of controls"));
  for (qsizetype i = 0; i < std::min(before.size(), after.size()); ++i) {
    if (before[i] != after[i]) changes.append(before[i] + QStringLiteral(" -> ") + after[i]);
  }
  return changes.join(u'\n').toStdString();
}

class Fit : public BoardTest {
 protected:
  /// That board in a window of that size.
  Board& OpenIn(const char* form, QSize window) {
    Board& board = Open(form);
    board.Named<QTimer>(Q("Timer1"))->stop();  // a title that blinks stands otherwise each time
    board.show();
    Resize(board, window);
    return board;
  }
  Board& OpenFitted(const char* form, QSize window) {
    Board& board = OpenIn(form, window);
    board.SetFitsWindow(true);
    QCoreApplication::processEvents();
    return board;
  }
  static void Resize(Board& board, QSize window) {
    board.resize(window);
    QCoreApplication::processEvents();
  }
  /// At once, with the large pictures that it keeps.
  static void Close(Board& board) {
    UnloadForm(&board);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  static QScrollArea* Scroller(const Board& board) { return board.findChild<QScrollArea*>(); }

  static std::vector<QWidget*> Controls(const Board& board) {
    std::vector<QWidget*> controls;
    for (QObject* child : board.sheet().children()) {
      if (auto* control = qobject_cast<QWidget*>(child)) controls.push_back(control);
    }
    return controls;
  }

  /// Where each control stands, seen or not, and in which letters.
  static QStringList Standing(const Board& board) {
    QStringList standing;
    for (const QWidget* control : Controls(board)) {
      const QRect place = control->geometry();
      standing.append(QStringLiteral("%1 %2 %3 %4 %5 %6 %7")
                          .arg(control->objectName())
                          .arg(place.x())
                          .arg(place.y())
                          .arg(place.width())
                          .arg(place.height())
                          .arg(control->isHidden())
                          .arg(control->font().toString()));
    }
    standing.append(board.sheet().font().toString());
    const QSize least = board.sheet().minimumSize();
    standing.append(QStringLiteral("%1 %2").arg(least.width()).arg(least.height()));
    return standing;
  }

  /// Clicks in the window where that tile's picture can be seen.
  static void ClickTile(Board& board, int tile) {
    const QWidget* picture = board.Tile(tile);
    QTest::mouseClick(board.windowHandle(), Qt::LeftButton, {},
                      picture->mapTo(&board, picture->rect().center()));
  }

  static QImage Dots(const Board& board) {
    return board.sheet().Dots().Picture(QRectF(0, 0, 1300, 700), 1, Qt::white);
  }
};

}  // namespace bramlee
