// Numbers and arrows over the sheet, with their button on the strip.
#include "companions/numbers/numbers.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <QTest>
#include <QToolButton>
#include <utility>
#include <vector>

#include "board/companions.h"
#include "companions/numbers/number_layer.h"
#include "ink/stroke_signs.h"
#include "tests/board/board_fixture.h"
#include "ui/choices.h"
#include "ui/form_ids.h"
#include "writing/page_numbers.h"

namespace bramlee {
namespace {

constexpr int kB = 2;  ///< has three strokes
constexpr int kI = 9;  ///< has one

class NumbersTest : public BoardTest {
 protected:
  void SetUp() override {
    BoardTest::SetUp();
    static const bool added = [] {
      AddCompanion(AddNumbers);
      return true;
    }();
    EXPECT_TRUE(added);
    Choices::Instance().Choose(Q("numbers/shown"), false);
    Choices::Instance().Choose(Q(kLeftHandChoice), false);
  }

  static QToolButton* Button(const Board& board) {
    return board.Named<QToolButton>(Q("strip_numbers"));
  }
  Board& Show(const char* form) {
    Board& board = Open(form);
    board.resize(1366, 768);
    board.show();
    board.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&board));
    return board;
  }

  /// The numbers of the page's letters as the board has to place them.
  static std::vector<PageNumber> Places(Board& board, Hand hand = Hand::Right) {
    return NumbersOf(board.pen().Letters(), {.discRadius = 12, .penHalfWidth = 5, .hand = hand});
  }

  /// For a disc's place whether its colour is to be seen there, at that scale.
  static bool IsShown(const QImage& image, const StrokeNumber& place, double scale = 1) {
    return image.pixelColor(static_cast<int>((place.centre.x - 0.75 * place.radius) * scale),
                            static_cast<int>(place.centre.y * scale)) == SignColours().sign;
  }

  /// How the sheet is seen without its tiles.
  static QImage Seen(Board& board) {
    QImage image(board.sheet().size(), QImage::Format_RGB32);
    board.sheet().render(&image, {}, {}, QWidget::DrawWindowBackground);
    return image;
  }

  /// For each of the numbers whether its disc is to be seen: nothing else has its colour.
  static std::vector<bool> ShownOf(Board& board, const std::vector<PageNumber>& numbers) {
    const QImage image = Seen(board);
    std::vector<bool> shown;
    for (const PageNumber& number : numbers) shown.push_back(IsShown(image, number.place));
    return shown;
  }

  /// How much is to be seen of discs and arrows.
  static int PixelsOfSigns(Board& board) {
    const QImage image = Seen(board);
    int pixels = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (image.pixelColor(x, y) == SignColours().sign) ++pixels;
      }
    }
    return pixels;
  }
};

using Shown = std::vector<bool>;

TEST_F(NumbersTest, HaveAButtonThatIsOffAtFirst) {
  const Board& board = Open(kCapitalsForm);
  const QToolButton* button = Button(board);
  EXPECT_TRUE(button->isCheckable());
  EXPECT_FALSE(button->isChecked());
  EXPECT_EQ(button->accessibleName(), Q("Numbers and arrows"));
  EXPECT_EQ(button->toolTip(), Q("Numbers and arrows (N)"));
  EXPECT_FALSE(button->icon().isNull());
}

TEST_F(NumbersTest, ShowOverTheLettersOnTheSheet) {
  Board& board = Open(kCapitalsForm);
  board.pic_Click(kB);
  const auto places = Places(board);
  ASSERT_EQ(places.size(), 3U);
  EXPECT_EQ(ShownOf(board, places), (Shown{false, false, false}));
  Button(board)->click();
  EXPECT_EQ(ShownOf(board, places), (Shown{true, true, true}));
  Button(board)->click();
  EXPECT_EQ(ShownOf(board, places), (Shown{false, false, false}));
  EXPECT_EQ(PixelsOfSigns(board), 0);
}

TEST_F(NumbersTest, AreNoPartOfTheInk) {
  Board& board = Open(kCapitalsForm);
  board.pic_Click(kB);
  const auto picture = [&] {
    return board.sheet().Dots().Picture(QRectF(400, 0, 400, 400), 1, kWhite);
  };
  const QImage plain = picture();
  Button(board)->click();
  EXPECT_GT(PixelsOfSigns(board), 0);
  EXPECT_EQ(picture(), plain);
}

TEST_F(NumbersTest, ShowOverEachLetterThatStands) {
  Board& board = Open(kCapitalsForm);
  Button(board)->click();
  board.pic_Click(1);
  EXPECT_EQ(ShownOf(board, Places(board)), Shown(3, true));
  board.pic_Click(2);
  EXPECT_EQ(ShownOf(board, Places(board)), Shown(6, true));
}

TEST_F(NumbersTest, AreClearedWithTheSheet) {
  Board& board = Open(kCapitalsForm);
  Button(board)->click();
  board.pic_Click(kB);
  EXPECT_GT(PixelsOfSigns(board), 0);
  Pick(board, "mnuclear1");
  EXPECT_EQ(PixelsOfSigns(board), 0);
  EXPECT_TRUE(Button(board)->isChecked());
}

TEST_F(NumbersTest, AreThoseOfTheLetterThatCameAfterAWipe) {
  Board& board = Open(kCapitalsForm);
  Button(board)->click();
  board.pic_Click(kB);
  EXPECT_GT(PixelsOfSigns(board), 0);
  Pick(board, "mnuclear1");
  board.pic_Click(kI);
  EXPECT_EQ(ShownOf(board, Places(board)), (Shown{true}));
}

TEST_F(NumbersTest, StandOverTheGrid) {
  Board& board = Open(kCapitalsForm);
  Button(board)->click();
  board.pic_Click(kB);
  Pick(board, "mnugrid");
  EXPECT_EQ(ShownOf(board, Places(board)), (Shown{true, true, true}));
}

TEST_F(NumbersTest, FollowStepsBackAndOn) {
  Board& board = Open(kCapitalsForm);
  Button(board)->click();
  board.pic_Click(kB);
  const auto places = Places(board);
  board.pen().StrokeBack();
  EXPECT_EQ(ShownOf(board, places), (Shown{false, false, true}));
  board.pen().StrokeBack();
  EXPECT_EQ(ShownOf(board, places), (Shown{false, true, true}));
  board.pen().StrokeOn();
  EXPECT_EQ(ShownOf(board, places), (Shown{false, false, true}));
  board.pen().GoOn();
  EXPECT_EQ(ShownOf(board, places), (Shown{true, true, true}));
}

TEST_F(NumbersTest, ShowTheStrokesToComeWhileALetterIsWritten) {
  Board& board = Show(kCapitalsForm);
  board.pic_Click(kI);
  board.SetText(Q("txtspd"), Q("0.01"));
  Button(board)->click();
  std::vector<Shown> seen;
  board.pen().SetFrameCall([&] {
    const Shown shown = ShownOf(board, Places(board));
    if (seen.empty() || seen.back() != shown) seen.push_back(shown);
  });
  board.pic_Click(kB);
  EXPECT_EQ(seen, (std::vector<Shown>{
                      {false, false, true,  true },
                      {false, false, false, true },
                      {false, false, false, false},
                      {true,  true,  true,  true }
  }));
}

TEST_F(NumbersTest, AreAskedForByTheKeyN) {
  Board& board = Show(kCapitalsForm);
  QTest::keyClick(&board, Qt::Key_N);
  EXPECT_TRUE(Button(board)->isChecked());
  QTest::keyClick(&board, Qt::Key_N);
  EXPECT_FALSE(Button(board)->isChecked());
}

TEST_F(NumbersTest, AreAskedForByTheKeyWhileALetterIsWritten) {
  Board& board = Show(kCapitalsForm);
  board.SetText(Q("txtspd"), Q("0.01"));
  bool pressed = false;
  Shown shown;
  board.pen().SetFrameCall([&] {
    if (!std::exchange(pressed, true)) {
      const auto press = [&] { QTest::keyClick(board.windowHandle(), Qt::Key_N); };
      QMetaObject::invokeMethod(QCoreApplication::instance(), press, Qt::QueuedConnection);
    } else if (shown.empty() && Button(board)->isChecked()) {
      shown = ShownOf(board, Places(board));
    }
  });
  board.pic_Click(kB);
  EXPECT_EQ(shown, (Shown{false, true, true}));
}

TEST_F(NumbersTest, AreChosenForAllBoardsAndThoseToCome) {
  Board& first = Open(kCapitalsForm);
  Board& second = Open(kSmallLettersForm);
  Button(first)->click();
  EXPECT_TRUE(Button(second)->isChecked());
  second.pic_Click(1);
  EXPECT_GT(PixelsOfSigns(second), 0);
  Board& third = Open(kHindiVowelsForm);
  EXPECT_TRUE(Button(third)->isChecked());
  Button(third)->click();
  EXPECT_FALSE(Button(first)->isChecked());
  EXPECT_EQ(PixelsOfSigns(second), 0);
}

TEST_F(NumbersTest, StandOnTheOtherSideForALeftHand) {
  Board& board = Open(kCapitalsForm);
  Button(board)->click();
  board.pic_Click(kI);
  const auto right = Places(board);
  const auto left = Places(board, Hand::Left);
  EXPECT_EQ(ShownOf(board, right), (Shown{true}));
  EXPECT_EQ(ShownOf(board, left), (Shown{false}));
  Choices::Instance().Choose(Q(kLeftHandChoice), true);
  EXPECT_EQ(ShownOf(board, right), (Shown{false}));
  EXPECT_EQ(ShownOf(board, left), (Shown{true}));
}

TEST_F(NumbersTest, AreAsLargeAsAChildCanReadAtEachScale) {
  Board& board = Open(kCapitalsForm);
  board.pic_Click(kI);
  NumberLayer layer(board.pen());
  layer.Show(true);
  const struct {
    double scale;
    double radius;  // in sheet pixels
  } kScales[] = {
      {1,    12 },
      {0.5,  14 },
      {1.25, 9.6},
      {3,    8  }
  };
  for (const auto& [scale, radius] : kScales) {
    QImage image(QSize(1000, 500) * scale, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    layer.Paint(painter);
    painter.end();
    const auto numbers = NumbersOf(board.pen().Letters(), {.discRadius = radius});
    EXPECT_TRUE(IsShown(image, numbers.at(0).place, scale)) << scale;
    const Point& centre = numbers[0].place.centre;
    const auto at = [&](double aside) {
      return image.pixelColor(static_cast<int>((centre.x - aside) * scale),
                              static_cast<int>(centre.y * scale));
    };
    EXPECT_EQ(at(radius + 1.5 / scale), kWhite) << scale;
    EXPECT_EQ(at(0.87 * radius - 1 / scale), SignColours().sign) << scale;
  }
}

TEST_F(NumbersTest, AskForARepaintOfTheSheet) {
  Board& board = Show(kCapitalsForm);
  board.pic_Click(kB);
  QTest::qWait(0);
  struct Counter : QObject {
    int paints = 0;
    bool eventFilter(QObject*, QEvent* event) override {
      if (event->type() == QEvent::Paint) ++paints;
      return false;
    }
  } counter;
  board.sheet().installEventFilter(&counter);
  Button(board)->click();
  QCoreApplication::processEvents();
  EXPECT_GT(counter.paints, 0);
  // while the pen writes, it shows the new dots alone
  board.sheet().SetShownByCaller(true);
  counter.paints = 0;
  Q_EMIT board.pen().Changed();
  QCoreApplication::processEvents();
  EXPECT_GT(counter.paints, 0);
}

}  // namespace
}  // namespace bramlee
