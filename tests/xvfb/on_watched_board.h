// What tests on the watched board share: the program, its places, and what its sheet has to hold.
#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QHash>
#include <QPoint>
#include <QTemporaryDir>

#include "ink/ink.h"
#include "letters/letter_sets.h"
#include "tests/xvfb/desktop.h"

namespace bramlee {

/// A letter of this step would take most of a minute: it ends when the pen hurries, not before.
inline const QString kEndless = QStringLiteral("0.0001");

/// The capitals board as watched_board.cpp runs it.
class WatchedBoard : public Program {
 public:
  explicit WatchedBoard(const Desktop& desktop, const QString& step, const QString& size = {},
                        const QStringList& settings = {}, bool withStrip = false)
      : Program(desktop, QStringLiteral(BRAMLEE_PROGRAMS "/watched_board"),
                QStringList{step} + (size.isEmpty() ? QStringList() : QStringList{size}) +
                    (withStrip ? QStringList{QStringLiteral("strip")} : QStringList()),
                settings),
        desktop_(desktop) {
    WaitFor(QStringLiteral("ready"));
    for (const QString& line : Lines()) {
      const QStringList words = line.split(QStringLiteral(" at "));
      if (words.size() != 2) continue;
      places_[words[0]] =
          QPointF(words[1].section(u' ', 0, 0).toDouble(), words[1].section(u' ', 1).toDouble());
    }
    window_ = Lines().filter(QStringLiteral("window ")).first().section(u' ', 1).toUInt();
  }

  QPointF Place(const QString& name) const { return places_.value(name); }
  std::uint32_t Window() const { return window_; }

  void Click(const QString& name) const { desktop_.Click(Place(name).toPoint()); }
  void ClickTile(int tile) const { Click(Tile(tile)); }
  static QString Tile(int tile) { return QStringLiteral("tile %1").arg(tile); }

  /// Clicks tile 1 and waits until its letter has begun.
  void BeginLetter() {
    ClickTile(1);
    WaitFor(QStringLiteral("begins 1"));
  }

  /// The picture of the sheet's dots.
  QImage Dots() {
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("dots.png"));
    Tell(QStringLiteral("save ") + file);
    WaitFor(QStringLiteral("saved"));
    return QImage(file).convertToFormat(QImage::Format_RGB32);
  }

  /// Expects these lines in this order, others among them.
  void ExpectInOrder(const QStringList& beginnings) {
    qsizetype place = -1;
    for (const QString& beginning : beginnings) {
      const qsizetype next = PlaceOf(beginning, place + 1);
      EXPECT_GE(next, 0) << qPrintable(beginning) << " is not where it should be in:\n"
                         << qPrintable(Lines().join(u'\n'));
      if (next < 0) return;
      place = next;
    }
  }

  /// How many lines begin so between two others.
  qsizetype CountBetween(const QString& from, const QString& to, const QString& beginning) {
    const qsizetype first = PlaceOf(from);
    const qsizetype last = PlaceOf(to, first);
    qsizetype count = 0;
    for (qsizetype i = first; i < last; ++i) count += Lines()[i].startsWith(beginning) ? 1 : 0;
    return count;
  }

 private:
  const Desktop& desktop_;
  QHash<QString, QPointF> places_;
  std::uint32_t window_ = 0;
};

/// Capitals as the sheet of a board has to hold them.
inline Ink Capitals(double step, std::initializer_list<std::int16_t> letters) {
  Ink ink(step);
  for (const std::int16_t letter : letters) {
    StrokeRec rec = FillStrokeRec(SheetKind::Capitals, letter);
    WriteCapital(rec, ink);
  }
  return ink;
}

inline void ExpectSheetHolds(WatchedBoard& board, const Ink& ink, double ratio = 1) {
  const QImage dots = board.Dots();
  const QRectF area(QPointF(), QSizeF(dots.size()) / ratio);
  QImage wanted = ink.Picture(area, ratio, QColor(0xC0, 0xFF, 0xFF));
  wanted.setDevicePixelRatio(1);
  EXPECT_EQ(dots, wanted);
}

}  // namespace bramlee
