// Where home's tiles, labels and title stand on screens of each size.
#include <QMdiArea>
#include <vector>

#include "tests/home/home_fixture.h"

namespace bramlee {
namespace {

/// Where home is laid out for a screen, in its units u (width) and v (height).
struct HomeOn {
  ScreenSize screen;
  double u;
  double v;
  double bandLeft;
};

const HomeOn kHomeOn[] = {
    {{.width = 15360, .height = 11520}, 77,  115, 3052 }, // 3052.5, to the even one
    {{.width = 20490, .height = 11520}, 102, 115, 4115 },
    {{.width = 28800, .height = 16200}, 144, 162, 5746 }, // 5745.5
    {{.width = 15360, .height = 9000},  77,  90,  3052 },
    {{.width = 57600, .height = 32400}, 288, 324, 11491},
};

class HomeLayout : public Home, public ::testing::WithParamInterface<HomeOn> {
 protected:
  HomeLayout() {
    environment.screen = GetParam().screen;
    home = TheForm();
    QCoreApplication::processEvents();
  }
  TwipsRect At(const QString& name) const { return PlaceOf(home->Named<QWidget>(name)); }

  /// Where the words or the picture of a control are, on the client.
  QRect Readable(const QWidget* control) const {
    QRect room = control->geometry();
    if (const auto* label = qobject_cast<const QLabel*>(control)) {
      const QSize words(label->fontMetrics().horizontalAdvance(label->text().trimmed()),
                        label->fontMetrics().height());
      QRect there({}, words);
      there.moveCenter(room.center());
      if (label->alignment().testFlag(Qt::AlignLeft)) there.moveLeft(room.left());
      if (label->alignment().testFlag(Qt::AlignRight)) {
        const QString trailing = label->text().mid(label->text().trimmed().size() +
                                                   label->text().indexOf(label->text().trimmed()));
        there.moveRight(room.right() - label->fontMetrics().horizontalAdvance(trailing));
      }
      return there;
    }
    return room;
  }
  std::vector<const QWidget*> AllReadable() const {
    std::vector<const QWidget*> all;
    for (int i = 0; i < 3; ++i) all.push_back(home->Named<Label>(Indexed("lblsol", i)));
    for (int i = 1; i <= 8; ++i) all.push_back(Subject(home, i));
    for (int i = 1; i <= 7; ++i) all.push_back(Tile(home, i));
    return all;
  }

  const Form* home;
};

TEST_P(HomeLayout, TheTitleBandIsInTheMiddle) {
  const HomeOn& on = GetParam();
  for (int i = 0; i < 3; ++i) {
    const TwipsRect line = At(Indexed("lblsol", i));
    EXPECT_EQ(line.left, on.bandLeft);
    EXPECT_EQ(line.top, (2 + 9 * i) * on.u);
    EXPECT_EQ(line.width, 120 * on.u);
    EXPECT_EQ(line.height, 8 * on.u);
  }
}

TEST_P(HomeLayout, TilesStandInTwoColumnsFlushWithTheBand) {
  const HomeOn& on = GetParam();
  const double height = At(QStringLiteral("pic(1)")).height;
  const double width = At(QStringLiteral("pic(2)")).width;
  for (int i = 1; i <= 7; ++i) {
    const TwipsRect tile = At(Indexed("pic", i));
    EXPECT_EQ(tile.left, i % 2 == 1 ? on.bandLeft : on.bandLeft + 120 * on.u - width);
    EXPECT_EQ(tile.top, 28 * on.u + 5 * on.v + (i - 1) / 2 * (2 * on.u + height));
    EXPECT_EQ(tile.height, height);
    EXPECT_EQ(tile.width, width);
  }
}

TEST_P(HomeLayout, LabelsStandAtTheirDesignPlaces) {
  constexpr double kTops[] = {1560, 2280, 3000, 3600};
  for (int i = 1; i <= 8; ++i) {
    const TwipsRect label = At(Indexed("lbl1", i));
    EXPECT_EQ(label.left, i % 2 == 1 ? 240 : 4440);
    EXPECT_EQ(label.top, kTops[(i - 1) / 2]);
    EXPECT_EQ(label.width, 3885);
    EXPECT_EQ(label.height, 495);
  }
}

TEST_P(HomeLayout, NothingReadableCoversAnother) {
  const auto all = AllReadable();
  for (std::size_t i = 0; i < all.size(); ++i) {
    for (std::size_t j = i + 1; j < all.size(); ++j) {
      EXPECT_FALSE(Readable(all[i]).intersects(Readable(all[j])))
          << qPrintable(all[i]->objectName()) << " and " << qPrintable(all[j]->objectName());
    }
  }
}

TEST_P(HomeLayout, WordsFitTheirLabels) {
  for (const QWidget* control : AllReadable()) {
    EXPECT_TRUE(control->geometry().contains(Readable(control)))
        << qPrintable(control->objectName());
  }
}

TEST_P(HomeLayout, NothingTakesAClickFromASubject) {
  for (int i = 1; i <= 8; ++i) {
    EXPECT_EQ(home->client()->childAt(Readable(Subject(home, i)).center()), Subject(home, i)) << i;
  }
  for (int i = 1; i <= 7; ++i) {
    EXPECT_EQ(home->client()->childAt(Tile(home, i)->geometry().center()), Tile(home, i)) << i;
    EXPECT_EQ(home->client()->childAt(Tile(home, i)->geometry().topLeft()), Tile(home, i)) << i;
  }
}

TEST_P(HomeLayout, AllOfItIsSeen) {
  // On the screen, what the window manager's title takes is not seen either.
  constexpr int kTitle = 30;
  const QWidget* client = home->client();
  const QWidget* area = Loaded("MDIbrm")->findChild<QMdiArea*>();
  const QRect seen = area->rect().adjusted(0, 0, 0, -kTitle);
  for (const QWidget* control : AllReadable()) {
    const QRect there = Readable(control).translated(client->mapTo(area, QPoint()));
    EXPECT_TRUE(seen.contains(there)) << qPrintable(control->objectName());
  }
}

INSTANTIATE_TEST_SUITE_P(On, HomeLayout, ::testing::ValuesIn(kHomeOn), [](const auto& param) {
  return std::to_string(static_cast<int>(param.param.screen.width / 15)) + "x" +
         std::to_string(static_cast<int>(param.param.screen.height / 15));
});

}  // namespace
}  // namespace bramlee
