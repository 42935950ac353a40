// The maths board in a real form, and what operates its controls.
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QString>
#include <QStringList>
#include <QTest>

#include "board/board.h"
#include "files/environment.h"
#include "maths/result_box.h"

/// QStrings in failure messages; where gtest looks for it.
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << text.toStdString() << '"';
}

namespace bramlee {

class MathsTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  // --- what a user does
  void Pick(const char* item) { Find<QAction>(item)->trigger(); }
  void Click(const char* control) { QTest::mouseClick(Find<QWidget>(control), Qt::LeftButton); }
  void ClickTile(int tile) { QTest::mouseClick(board->Tile(tile), Qt::LeftButton); }
  /// Types the text over what stands in the combo; Return comes only if asked for.
  void Type(const char* combo, const char* text);
  void TypeAndEnter(const char* combo, const char* text);
  /// Picks that entry from the combo's open list.
  void PickEntry(const char* combo, const char* entry);

  // --- what stands there
  template <class Control>
  Control* Find(const char* name) const {
    return board->Named<Control>(QString::fromLatin1(name));
  }
  bool Shown(const char* control) const { return !Find<QWidget>(control)->isHidden(); }
  bool MenuShown(const char* menu) const { return Find<QMenu>(menu)->menuAction()->isVisible(); }
  bool Checked(const char* item) const { return Find<QAction>(item)->isChecked(); }
  QString TextOf(const char* box) const { return Find<QLineEdit>(box)->text(); }
  QString EntryOf(const char* combo) const { return Find<QComboBox>(combo)->currentText(); }
  QString Result() const { return Find<ResultBox>("txtval(20)")->Text(); }
  TwipsRect Place(const char* control) const { return PlaceOf(Find<QWidget>(control)); }
  /// Tiles that can be seen, as "1 3 4".
  QString ShownTiles() const;
  QStringList CheckedMathsItems() const;
  /// Whether anything is written within that part of the sheet's digit rows, in sheet pixels.
  bool InkBetween(int left, int right) const;
  bool InkAt(int x, int y) const;

  Environment environment;
  Board* board = nullptr;
  QStringList messages;
};

}  // namespace bramlee
