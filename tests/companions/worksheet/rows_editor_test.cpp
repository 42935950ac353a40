// The sequence of rows, by buttons, keys and dragging.
#include "companions/worksheet/rows_editor.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace bramlee {
namespace {

QString Q(const char* text) {
  return QString::fromLatin1(text);
}

class RowsEditorTest : public ::testing::Test {
 protected:
  RowsEditorTest() {
    editor.SetRows(Names("model dotted blank"));
    editor.show();
    changed.clear();
  }

  static QStringList Names(const char* names) { return Q(names).split(u' ', Qt::SkipEmptyParts); }
  std::string Rows() const { return editor.Rows().join(u' ').toStdString(); }
  void Click(const char* name) const { Button(name)->click(); }
  QPushButton* Button(const char* name) const { return editor.findChild<QPushButton*>(Q(name)); }
  QListWidget* List() const { return editor.findChild<QListWidget*>(); }

  RowsEditor editor{
      {{Q("model"), Q("Model")}, {Q("dotted"), Q("Dotted")}, {Q("blank"), Q("Blank")}}
  };
  QSignalSpy changed{&editor, &RowsEditor::Changed};
};

TEST_F(RowsEditorTest, ShowsTheRowsByTheirTexts) {
  EXPECT_EQ(Rows(), "model dotted blank");
  EXPECT_EQ(List()->item(1)->text(), Q("Dotted"));
  EXPECT_EQ(List()->currentRow(), 0);
}

TEST_F(RowsEditorTest, AddsTheKindBelowTheMarkAndMarksIt) {
  editor.findChild<QComboBox*>()->setCurrentIndex(2);
  Click("worksheet_addrow");
  EXPECT_EQ(Rows(), "model blank dotted blank");
  EXPECT_EQ(List()->currentRow(), 1);
  EXPECT_EQ(changed.size(), 1);
}

TEST_F(RowsEditorTest, AddsToAnEmptySequence) {
  editor.SetRows({});
  Click("worksheet_addrow");
  EXPECT_EQ(Rows(), "model");
}

TEST_F(RowsEditorTest, RemovesTheMarkedRow) {
  List()->setCurrentRow(1);
  Click("worksheet_removerow");
  EXPECT_EQ(Rows(), "model blank");
  EXPECT_EQ(changed.size(), 1);
}

TEST_F(RowsEditorTest, MovesTheMarkedRowAndItsMark) {
  Click("worksheet_downrow");
  EXPECT_EQ(Rows(), "dotted model blank");
  EXPECT_EQ(List()->currentRow(), 1);
  Click("worksheet_downrow");
  EXPECT_EQ(Rows(), "dotted blank model");
  Click("worksheet_uprow");
  EXPECT_EQ(Rows(), "dotted model blank");
  EXPECT_EQ(changed.size(), 3);
}

TEST_F(RowsEditorTest, OnlyWhatCanBeDoneIsOffered) {
  const auto offered = [&] {
    return std::vector<bool>{Button("worksheet_uprow")->isEnabled(),
                             Button("worksheet_downrow")->isEnabled(),
                             Button("worksheet_removerow")->isEnabled()};
  };
  EXPECT_EQ(offered(), (std::vector<bool>{false, true, true}));
  List()->setCurrentRow(1);
  EXPECT_EQ(offered(), (std::vector<bool>{true, true, true}));
  List()->setCurrentRow(2);
  EXPECT_EQ(offered(), (std::vector<bool>{true, false, true}));
  editor.SetRows({});
  EXPECT_EQ(offered(), (std::vector<bool>{false, false, false}));
}

TEST_F(RowsEditorTest, KeysRemoveAndMove) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(&editor));
  List()->setFocus();
  QTest::keyClick(List(), Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(Rows(), "dotted model blank");
  QTest::keyClick(List(), Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(Rows(), "model dotted blank");
  QTest::keyClick(List(), Qt::Key_Delete);
  EXPECT_EQ(Rows(), "dotted blank");
}

TEST_F(RowsEditorTest, ADraggedRowStandsWhereItWasDropped) {
  List()->model()->moveRow({}, 2, {}, 0);
  EXPECT_EQ(Rows(), "blank model dotted");
  EXPECT_EQ(changed.size(), 1);
}

TEST_F(RowsEditorTest, TwentyRowsAreTheMost) {
  for (int i = 0; i < 30; ++i) Click("worksheet_addrow");
  EXPECT_EQ(editor.Rows().size(), 20);
  EXPECT_FALSE(Button("worksheet_addrow")->isEnabled());
  Click("worksheet_removerow");
  EXPECT_TRUE(Button("worksheet_addrow")->isEnabled());
}

TEST_F(RowsEditorTest, NamesThatAreNotOfferedAreLeftOut) {
  editor.SetRows(Names("blank wavy model"));
  EXPECT_EQ(Rows(), "blank model");
}

}  // namespace
}  // namespace bramlee
