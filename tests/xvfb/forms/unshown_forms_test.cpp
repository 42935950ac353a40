// The forms that no screen of the program shows: the player and the charts, by hand as well.
#include <QScreen>

#include "media/windows_media_player.h"
#include "tests/xvfb/forms/at_the_start.h"

namespace bramlee {
namespace {

class UnshownForms : public AtTheStart {
 protected:
  static void Show(const char* name) {
    Ask([name] { ShowForm(QString::fromLatin1(name)); });
  }
  static WindowsMediaPlayer& Player(const OpenForm& form) {
    return *form.Get()->Named<WindowsMediaPlayer>(QStringLiteral("WindowsMediaPlayer1"));
  }
};

TEST_F(UnshownForms, DoWhatEachItemOfThePlayersMenuSays) {
  Show("f1207vid");
  OpenForm form("f1207vid");
  const auto place = [&] { return Ask([&] { return Player(form).geometry(); }); };
  const auto size = Ask([&] { return form.Get()->frameGeometry().size(); });
  const QRect first = place();

  EXPECT_FALSE(form.Shows("cmbavi"));
  form.Pick("mnulist");
  Until(QStringLiteral("the list"), [&] { return form.Shows("cmbavi"); });
  form.Pick("mnulist");
  Until(QStringLiteral("no list"), [&] { return !form.Shows("cmbavi"); });

  constexpr double kShares[] = {0.25, 0.5, 1, 2};
  for (int i = 1; i <= 4; ++i) {
    form.Pick(Indexed("mnudsize", i));
    EXPECT_NEAR(place().width(), size.width() * kShares[i - 1], 1);
    EXPECT_NEAR(place().height(), size.height() * kShares[i - 1], 1);
  }
  form.Pick("mnudsize(0)");
  EXPECT_EQ(place().width(), first.width());
  EXPECT_LT(place().height(), first.height());

  for (int i = 1; i <= 20; ++i) {
    if (i == 4) continue;
    form.Pick(Indexed("mnuspd", i));
    EXPECT_EQ(Ask([&] { return Player(form).Rate(); }), i / 10.0);
  }

  const auto counts = [&] {
    return Ask([&] { return form.Get()->Named<QTimer>(QStringLiteral("Timerete"))->isActive(); });
  };
  const auto ground = [&] {
    return Ask([&] { return BackColorOf(form.Get()->Named<QWidget>(QStringLiteral("txtete"))); });
  };
  form.Pick("mnucdown(2)");
  EXPECT_FALSE(counts());
  EXPECT_EQ(ground(), 0xFFFFFFU);
  form.Pick("mnucdown(1)");
  EXPECT_TRUE(counts());
  EXPECT_EQ(ground(), 65535U);

  form.Pick("mnuplay");
  form.Pick("mnustop");
  Until(QStringLiteral("silence"), [&] { return !Ask([&] { return Player(form).Playing(); }); });
  EXPECT_EQ(form.NeverPicked(), QStringList{QStringLiteral("mnuback")});
  form.Pick("mnuback");
  form.UntilGone();
}

struct ChartCase {
  const char* chart;
  const char* board;
};

class Charts : public UnshownForms, public ::testing::WithParamInterface<ChartCase> {};

/// Where the middle of the chart's picture lies on the screen. On the forms' thread.
QPoint Middle(const OpenForm& chart) {
  const auto* picture = chart.Get()->Named<PictureBox>(QStringLiteral("pic(1)"));
  return picture->mapToGlobal(picture->rect().center());
}

TEST_P(Charts, LeadToTheirBoard) {
  Show(GetParam().chart);
  const OpenForm chart(GetParam().chart);
  // The Hindi charts' pictures lie off the screen: their forms' formulas put them there.
  if (Ask([&] { return chart.Get()->screen()->geometry().contains(Middle(chart)); })) {
    chart.Click("pic(1)");
  } else {
    TheDesktop().Key(QStringLiteral("Tab"));
    TheDesktop().Key(QStringLiteral("space"));
  }
  OpenForm board(GetParam().board);
  EXPECT_TRUE(Ask([&] { return chart.Get() != nullptr; }));
}

INSTANTIATE_TEST_SUITE_P(Each, Charts,
                         ::testing::Values(ChartCase{"fbrmhinv00", "fbrmhinv01"},
                                           ChartCase{"fbrmtelv00", "fbrmtelv01"},
                                           ChartCase{"fbrmtelc00", "fbrmtelc01"}),
                         [](const auto& tried) { return std::string(tried.param.chart); });

TEST_F(UnshownForms, OpenTheTeluguVowelsBesideTheirChartToo) {
  Show("fbrmtelv00");
  const OpenForm chart("fbrmtelv00");
  TheDesktop().Click(Ask([&] { return chart.Get()->client()->mapToGlobal(QPoint(5, 5)); }));
  OpenForm("fbrmtelv01");
}

TEST_F(UnshownForms, TakeTheNoticeAwayByThemselves) {
  Show("fcomsav1");
  const OpenForm notice("fcomsav1");
  EXPECT_EQ(notice.Text("lbl1"), "     Saved ");
  notice.UntilGone();
}

}  // namespace
}  // namespace bramlee
