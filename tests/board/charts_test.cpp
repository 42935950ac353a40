#include "board/charts.h"

#include <QCoreApplication>
#include <QMouseEvent>

#include "tests/board/board_fixture.h"
#include "ui/forms.h"
#include "ui/screen.h"

namespace bramlee {
namespace {

class Charts : public BoardTest {
 protected:
  void SetUp() override {
    BoardTest::SetUp();
    environment.screen = ScreenSize{.width = 15360, .height = 11520};
  }
};

void ClickGround(Form& chart) {
  const QPointF place(3, 3);
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    QMouseEvent event(type, place, chart.client()->mapToGlobal(place), Qt::LeftButton,
                      type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(chart.client(), &event);
  }
}

std::string Outer(const Form& form) {
  const TwipsRect outer = form.Outer();
  return QStringLiteral("%1 %2 %3 %4")
      .arg(outer.left)
      .arg(outer.top)
      .arg(outer.width)
      .arg(outer.height)
      .toStdString();
}

TEST_F(Charts, OfHindiLieWhereTheirFormulasPutThemUnclamped) {
  for (const char* name : {"fbrmhinv00", "fbrmhinc00"}) {
    const Form* chart = LoadForm(Q(name));
    EXPECT_EQ(Outer(*chart), "15206.4 11404.8 15360 11520") << name;
    // 0.224 by 0.08 of the screen, in its middle.
    const TwipsRect picture = PlaceOf(chart->Named<PictureBox>(Q("pic(1)")));
    EXPECT_DOUBLE_EQ(picture.width, 15360 - 0.776 * 15360);
    EXPECT_DOUBLE_EQ(picture.height, 11520 - 0.92 * 11520);
    EXPECT_NEAR(picture.left, 5959.68, 1e-6);
    EXPECT_NEAR(picture.top, 5299.2, 1e-6);
    EXPECT_FALSE(chart->Named<PictureBox>(Q("pic(1)"))->isHidden());
  }
}

TEST_F(Charts, HavePicturesWithTheirTitlesForNames) {
  const auto name = [](const char* form) {
    return LoadForm(Q(form))->Named<QWidget>(Q("pic(1)"))->accessibleName();
  };
  EXPECT_EQ(name("fbrmhinv00"), Q("Chart: Hindi Vowels"));
  EXPECT_EQ(name("fbrmhinc00"), Q("Chart: Hindi Consonants"));
  EXPECT_EQ(name("fbrmtelv00"), Q("Chart: TELUGU-VOWELS"));
  EXPECT_EQ(name("fbrmtelc00"), Q("Chart: TELUGU-CONSONANTS"));
}

TEST_F(Charts, OfTeluguAreAsLargeAsABoardWithThePictureInTheMiddle) {
  for (const char* name : {"fbrmtelv00", "fbrmtelc00"}) {
    Form* chart = LoadForm(Q(name));
    EXPECT_EQ(Outer(*chart), "0 0 15360 11520") << name;
    const TwipsRect picture = PlaceOf(chart->Named<PictureBox>(Q("pic(1)")));
    EXPECT_DOUBLE_EQ(picture.left, (15360 - picture.width) / 2);
    EXPECT_DOUBLE_EQ(picture.top, (11520 - picture.height) / 2);
    EXPECT_GT(picture.width, 10000);
    EXPECT_GT(picture.height, 8000);
    ShowForm(Q(name));
    EXPECT_TRUE(chart->isMaximized());
  }
}

TEST_F(Charts, LeadToTheirBoardsByTheirPictures) {
  for (const char* set : {"hinv", "telv", "telc"}) {
    const QString chart = Q("fbrm") + Q(set) + Q("00");
    const QString board = Q("fbrm") + Q(set) + Q("01");
    Form* form = LoadForm(chart);
    EXPECT_EQ(LoadedForm(board), nullptr);
    form->Named<PictureBox>(Q("pic(1)"))->click();
    ASSERT_NE(LoadedForm(board), nullptr) << set;
    EXPECT_TRUE(LoadedForm(board)->isVisible());
    EXPECT_NE(LoadedForm(chart), nullptr);
  }
}

TEST_F(Charts, TheHindiConsonantsChartLeadsNowhere) {
  const Form* chart = LoadForm(Q("fbrmhinc00"));
  chart->Named<PictureBox>(Q("pic(1)"))->click();
  EXPECT_EQ(LoadedForms().size(), 1);
}

TEST_F(Charts, OnlyTheTeluguVowelsAnswerAClickBesideThePicture) {
  for (const char* name : {"fbrmhinv00", "fbrmhinc00", "fbrmtelc00"}) {
    ClickGround(*LoadForm(Q(name)));
  }
  EXPECT_EQ(LoadedForms().size(), 3);
  ClickGround(*LoadForm(Q("fbrmtelv00")));
  EXPECT_NE(LoadedForm(Q("fbrmtelv01")), nullptr);
}

TEST_F(Charts, NoFormOfTheBoardsOpensOne) {
  for (const char* name : {"fbrmhinv01", "fbrmhinc01", "fbrmtelv01", "fbrmtelc01"}) {
    Board& board = Open(name);
    for (const QAction* item : board.findChildren<QAction*>()) {
      if (item->objectName().startsWith(Q("mnu")) && item->text() != Q("&Back") &&
          item->objectName() != Q("mnudall")) {
        const_cast<QAction*>(item)->trigger();
      }
    }
  }
  for (const Form* form : LoadedForms()) {
    EXPECT_FALSE(form->objectName().endsWith(Q("00"))) << form->objectName().toStdString();
  }
}

}  // namespace
}  // namespace bramlee
