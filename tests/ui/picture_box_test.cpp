// Pictures that answer the mouse and the keyboard.
#include "ui/picture_box.h"

#include <gtest/gtest.h>

#include <QEnterEvent>
#include <QTest>
#include <vector>

#include "ui/scale.h"

namespace bramlee {
namespace {

constexpr QSize kTile(60, 50);

/// Two rows of three pictures, 0 to 2 above 3 to 5, on a window that has the focus.
class PictureBoxes : public testing::Test {
 protected:
  void SetUp() override {
    for (int i = 0; i < 6; ++i) {
      auto* box = new PictureBox(&window_);
      box->setGeometry(QRect(QPoint(10 + i % 3 * 70, 10 + i / 3 * 60), kTile));
      QObject::connect(box, &PictureBox::clicked, [this, i] { clicked.push_back(i); });
      boxes.push_back(box);
    }
    window_.resize(230, 130);
    window_.show();
    window_.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
    boxes[0]->setFocus();
  }

  /// The picture that has the focus, -1 for none.
  int Focused() const {
    for (int i = 0; i < 6; ++i) {
      if (boxes[static_cast<std::size_t>(i)]->hasFocus()) return i;
    }
    return -1;
  }

  /// Where the key leads from the picture.
  int From(int box, Qt::Key key) const {
    PictureBox* from = boxes[static_cast<std::size_t>(box)];
    from->setFocus();
    QTest::keyClick(from, key);
    return Focused();
  }

  static void Enter(PictureBox* box) {
    const QPointF middle(kTile.width() / 2.0, kTile.height() / 2.0);
    QEnterEvent enter(middle, middle, box->mapToGlobal(middle));
    box->setAttribute(Qt::WA_UnderMouse);  // as the window system does before it
    QCoreApplication::sendEvent(box, &enter);
  }

  static void Leave(PictureBox* box) {
    box->setAttribute(Qt::WA_UnderMouse, false);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(box, &leave);
  }

  static QImage Seen(PictureBox* box) { return box->grab().toImage(); }

  std::vector<PictureBox*> boxes;
  std::vector<int> clicked;

 private:
  QWidget window_;
};

TEST_F(PictureBoxes, AreReachedByTabInTheirOrder) {
  for (const int next : {1, 2, 3, 4, 5, 0}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(Focused(), next);
  }
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
  EXPECT_EQ(Focused(), 5);
}

TEST_F(PictureBoxes, PassTheFocusToTheNeighbourInTheArrowsDirection) {
  EXPECT_EQ(From(0, Qt::Key_Right), 1);
  EXPECT_EQ(From(1, Qt::Key_Down), 4);
  EXPECT_EQ(From(4, Qt::Key_Left), 3);
  EXPECT_EQ(From(3, Qt::Key_Up), 0);
}

TEST_F(PictureBoxes, KeepTheFocusWhereNothingLiesInTheArrowsDirection) {
  EXPECT_EQ(From(0, Qt::Key_Left), 0);
  EXPECT_EQ(From(2, Qt::Key_Right), 2);  // and not on to the next row
  EXPECT_EQ(From(2, Qt::Key_Up), 2);
  EXPECT_EQ(From(5, Qt::Key_Down), 5);
}

TEST_F(PictureBoxes, SkipHiddenAndDisabledOnes) {
  boxes[1]->hide();
  EXPECT_EQ(From(0, Qt::Key_Right), 2);
  boxes[4]->setEnabled(false);
  EXPECT_EQ(From(3, Qt::Key_Right), 5);
  boxes[0]->setFocus();
  QTest::keyClick(boxes[0], Qt::Key_Tab);
  EXPECT_EQ(Focused(), 2);
}

TEST_F(PictureBoxes, KeepToTheRowThoughAnotherOneLiesNearer) {
  boxes[1]->hide();
  boxes[4]->move(40, 70);
  EXPECT_EQ(From(0, Qt::Key_Right), 2);
}

TEST_F(PictureBoxes, ArePressedBySpaceReturnAndEnter) {
  QTest::keyClick(boxes[0], Qt::Key_Space);
  QTest::keyClick(boxes[1], Qt::Key_Return);
  QTest::keyClick(boxes[2], Qt::Key_Enter);
  EXPECT_EQ(clicked, (std::vector<int>{0, 1, 2}));
}

TEST_F(PictureBoxes, ArePressedOnceByAKeyThatIsHeld) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    clicked.clear();
    for (const bool repeated : {false, true, true}) {
      QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(), repeated);
      QCoreApplication::sendEvent(boxes[3], &press);
    }
    QTest::keyRelease(boxes[3], key);
    EXPECT_EQ(clicked, std::vector<int>{3}) << key;
  }
}

TEST_F(PictureBoxes, DoNotAnswerWhileDisabled) {
  boxes[1]->setEnabled(false);
  const QImage before = Seen(boxes[1]);
  Enter(boxes[1]);
  EXPECT_EQ(Seen(boxes[1]), before);
  QTest::mouseClick(boxes[1], Qt::LeftButton);
  EXPECT_TRUE(clicked.empty());
}

TEST_F(PictureBoxes, ShowThatTheMouseIsOverThem) {
  const QImage before = Seen(boxes[4]);
  Enter(boxes[4]);
  EXPECT_NE(Seen(boxes[4]), before);
  Leave(boxes[4]);
  EXPECT_EQ(Seen(boxes[4]), before);
}

TEST_F(PictureBoxes, ShowThatTheyHaveTheFocus) {
  const QImage before = Seen(boxes[4]);
  boxes[4]->setFocus();
  EXPECT_NE(Seen(boxes[4]), before);
}

TEST_F(PictureBoxes, ShowAPress) {
  QPixmap picture(40, 40);
  picture.fill(Qt::white);
  boxes[4]->SetPicture(picture);
  boxes[4]->setFocus();
  const QImage before = Seen(boxes[4]);
  QTest::mousePress(boxes[4], Qt::LeftButton);
  const QImage pressed = Seen(boxes[4]);
  QTest::mouseRelease(boxes[4], Qt::LeftButton);
  EXPECT_NE(pressed.pixelColor(5, 25), before.pixelColor(5, 25));  // the card beside the picture
  EXPECT_EQ(Seen(boxes[4]), before);
  EXPECT_EQ(clicked, std::vector<int>{4});
}

TEST_F(PictureBoxes, ShowTheirPictureWithoutDistortionOnItsOwnGround) {
  QImage picture(400, 100, QImage::Format_RGB32);
  picture.fill(QColor(0xFF, 0xF3, 0xE0));
  for (int y = 40; y < 60; ++y) {
    for (int x = 190; x < 210; ++x) picture.setPixelColor(x, y, Qt::black);
  }
  boxes[4]->SetPicture(QPixmap::fromImage(picture));
  const QImage seen = Seen(boxes[4]);
  EXPECT_EQ(seen.pixelColor(30, 25), QColor(Qt::black));
  EXPECT_EQ(seen.pixelColor(30, 8), QColor(0xFF, 0xF3, 0xE0));  // above what the picture takes
}

TEST_F(PictureBoxes, ReadTheLargePictureOnceThePictureHasTooFewPixels) {
  const QString small = QStringLiteral(":/pictures/engc/1.jpg");  // 324 by 164 pixels
  const QString large = QStringLiteral(":/pictures/engc/1_large.png");
  const struct {
    QSize room;
    QString read;
  } kRooms[] = {
      {{81, 41},   small},
      {{324, 300}, small},
      {{326, 300}, large},
      {{900, 900}, large},
  };
  for (const auto& expected : kRooms) {
    for (const int box : {4, 5}) {
      boxes[static_cast<std::size_t>(box)]->resize(expected.room + QSize(6, 6));
    }
    boxes[4]->SetPicture(small);
    boxes[5]->SetPicture(QPixmap(expected.read));
    EXPECT_EQ(Seen(boxes[4]), Seen(boxes[5])) << expected.room.width();
  }
}

TEST_F(PictureBoxes, HaveAFrameAsLargeAsTheirGroundsScale) {
  QPixmap picture(40, 40);
  picture.fill(Qt::black);
  boxes[0]->SetPicture(picture);
  boxes[0]->resize(106, 106);
  EXPECT_EQ(Seen(boxes[0]).pixelColor(53, 4), QColor(Qt::black));
  SetScale(boxes[0]->parentWidget(), {.factor = 3, .origin = {}});
  EXPECT_NE(Seen(boxes[0]).pixelColor(53, 8), QColor(Qt::black));
  EXPECT_EQ(Seen(boxes[0]).pixelColor(53, 10), QColor(Qt::black));
}

TEST_F(PictureBoxes, AreEmptyWhenTheirPictureCannotBeRead) {
  boxes[4]->SetPicture(QStringLiteral(":/there/is/none.jpg"));
  EXPECT_TRUE(boxes[4]->Picture().isNull());
  EXPECT_EQ(Seen(boxes[4]), Seen(boxes[5]));
}

}  // namespace
}  // namespace bramlee
