#include "tests/maths/maths_fixture.h"

#include <QAbstractItemView>
#include <QCoreApplication>

#include "maths/maths.h"
#include "ui/forms.h"

namespace bramlee {

void MathsTest::SetUp() {
  environment.tell = [this](const QString& text) { messages.append(text); };
  RegisterMaths();
  ShowForm(QStringLiteral("fbrmmat01"));
  board = qobject_cast<Board*>(LoadedForm(QStringLiteral("fbrmmat01")));
  ASSERT_NE(board, nullptr);
  ASSERT_TRUE(QTest::qWaitForWindowActive(board));
  Pick("mnuspd(6)");  // written almost at once
  board->SetText(QStringLiteral("txtdrv"), QStringLiteral("Q:"));
}

void MathsTest::TearDown() {
  UnloadAll();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QCoreApplication::processEvents();
}

void MathsTest::Type(const char* combo, const char* text) {
  QLineEdit* edit = Find<QComboBox>(combo)->lineEdit();
  edit->setFocus();
  edit->selectAll();
  QTest::keyClick(edit, Qt::Key_Delete);
  QTest::keyClicks(edit, QString::fromLatin1(text));
}

void MathsTest::TypeAndEnter(const char* combo, const char* text) {
  Type(combo, text);
  QTest::keyClick(Find<QComboBox>(combo)->lineEdit(), Qt::Key_Return);
}

void MathsTest::PickEntry(const char* combo, const char* entry) {
  auto* box = Find<QComboBox>(combo);
  box->showPopup();
  QAbstractItemView* list = box->view();
  const int row = box->findText(QString::fromLatin1(entry));
  ASSERT_GE(row, 0);
  list->setCurrentIndex(list->model()->index(row, 0));
  QTest::keyClick(list, Qt::Key_Return);
}

QString MathsTest::ShownTiles() const {
  QStringList shown;
  for (int i = 1; i <= 17; ++i) {
    if (!board->Tile(i)->isHidden()) shown.append(QString::number(i));
  }
  return shown.join(u' ');
}

QStringList MathsTest::CheckedMathsItems() const {
  QStringList checked;
  for (const char* item : {"mnunum", "mnutbl", "mnuadd", "mnusub", "mnumul", "mnudiv", "mnuper"}) {
    if (Checked(item)) checked.append(QString::fromLatin1(item));
  }
  return checked;
}

bool MathsTest::InkBetween(int left, int right) const {
  constexpr int kTop = 300;
  constexpr int kBottom = 540;
  const QRect part = QRect(left, kTop, right - left, kBottom - kTop) & board->sheet().rect();
  const QImage picture = board->sheet().grab(part).toImage();
  const QRgb ground = ColourOf(board->record().backColor).rgb();
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.pixel(x, y) != ground) return true;
    }
  }
  return false;
}

bool MathsTest::InkAt(int x, int y) const {
  const QImage dot = board->sheet().grab(QRect(x, y, 1, 1)).toImage();
  return dot.pixelColor(0, 0) != ColourOf(board->record().backColor);
}

}  // namespace bramlee
