// Pages on the screen.
#include "companions/worksheet/page_preview.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>
#include <vector>

namespace bramlee {
namespace {

const QColor kColours[] = {Qt::red, Qt::green, Qt::blue};

class PagePreviewTest : public ::testing::Test {
 protected:
  PagePreviewTest() {
    preview.resize(300, 400);
    ShowPages(3);
    preview.show();
    painted.clear();
  }
  /// Pages of one colour each, twice as high as wide.
  void ShowPages(int pages) {
    preview.Show(pages, {50, 100}, [this](QPainter& painter, const QRectF& on, int page) {
      painted.push_back(page);
      painter.fillRect(on, kColours[page]);
    });
  }
  QColor Middle() { return preview.grab().toImage().pixelColor(preview.rect().center()); }
  void Wheel(int eighths) {
    QWheelEvent turn({10, 10}, {10, 10}, {}, {0, eighths}, Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&preview, &turn);
  }

  PagePreview preview;
  std::vector<int> painted;
};

TEST_F(PagePreviewTest, ShowsThePageInViewInItsShapeAndInTheMiddle) {
  const QRectF place = preview.PlaceOfPage();
  EXPECT_NEAR(place.height() / place.width(), 2, 0.02);
  EXPECT_TRUE(QRectF(preview.rect()).contains(place));
  EXPECT_NEAR(place.center().x(), 150, 1);
  EXPECT_EQ(Middle(), QColor(Qt::red));
  EXPECT_NE(preview.grab().toImage().pixelColor(5, 200), QColor(Qt::red));
  preview.TurnTo(2);
  EXPECT_EQ(Middle(), QColor(Qt::blue));
}

TEST_F(PagePreviewTest, PaintsAPageOnceAndOnlyWhenItIsToBeSeen) {
  Middle();
  Middle();
  EXPECT_EQ(painted, (std::vector<int>{0}));
  preview.TurnTo(1);
  preview.TurnTo(2);
  Middle();
  EXPECT_EQ(painted, (std::vector<int>{0, 2}));
  ShowPages(3);
  Middle();
  EXPECT_EQ(painted, (std::vector<int>{0, 2, 2}));
}

TEST_F(PagePreviewTest, StaysAtThePageInViewOrTheLast) {
  preview.TurnTo(2);
  ShowPages(3);
  EXPECT_EQ(preview.Page(), 2);
  ShowPages(2);
  EXPECT_EQ(preview.Page(), 1);
  preview.ShowWhyNot(QStringLiteral("no letter"));
  EXPECT_EQ(preview.Page(), 0);
  EXPECT_EQ(preview.Pages(), 0);
  EXPECT_TRUE(preview.PlaceOfPage().isEmpty());
  EXPECT_NE(Middle(), QColor(Qt::red));
}

TEST_F(PagePreviewTest, WithoutPagesSaysWhy) {
  preview.ShowWhyNot({});
  const QImage ground = preview.grab().toImage();
  preview.ShowWhyNot(QStringLiteral("no letter"));
  EXPECT_NE(preview.grab().toImage(), ground);
}

TEST_F(PagePreviewTest, KeysTurnPages) {
  const auto after = [&](Qt::Key key) {
    QTest::keyClick(&preview, key);
    return preview.Page();
  };
  EXPECT_EQ(after(Qt::Key_PageDown), 1);
  EXPECT_EQ(after(Qt::Key_End), 2);
  EXPECT_EQ(after(Qt::Key_PageDown), 2);
  EXPECT_EQ(after(Qt::Key_PageUp), 1);
  EXPECT_EQ(after(Qt::Key_Home), 0);
  EXPECT_EQ(after(Qt::Key_PageUp), 0);
}

TEST_F(PagePreviewTest, ANotchOfTheWheelTurnsAPage) {
  Wheel(-60);
  EXPECT_EQ(preview.Page(), 0);
  Wheel(-60);
  EXPECT_EQ(preview.Page(), 1);
  Wheel(120);
  EXPECT_EQ(preview.Page(), 0);
}

TEST_F(PagePreviewTest, SaysWhichPageIsInView) {
  const QSignalSpy turned(&preview, &PagePreview::Turned);
  preview.TurnTo(1);
  EXPECT_EQ(turned.size(), 1);
  EXPECT_EQ(preview.accessibleName(), QStringLiteral("Preview: page 2 of 3"));
  preview.TurnTo(1);
  EXPECT_EQ(turned.size(), 1);
  ShowPages(0);
  EXPECT_EQ(preview.accessibleName(), QStringLiteral("Preview: no page"));
}

}  // namespace
}  // namespace bramlee
