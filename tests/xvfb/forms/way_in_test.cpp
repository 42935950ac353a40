// The way in by hand: start, switch, home, drives, the biodata card and the ways out.
#include <QDate>
#include <QMdiSubWindow>

#include "tests/xvfb/forms/at_the_start.h"

namespace bramlee {
namespace {

const char* const kBoardForms[] = {"fbrmengc02", "fbrmengs01", "fbrmhinv01", "fbrmhinc01",
                                   "fbrmtelv01", "fbrmtelc01", "fbrmmat01"};

std::string LoadedNames() {
  return Ask([] {
    QStringList names;
    for (const Form* form : LoadedForms()) names.append(form->objectName());
    return names.join(u' ').toStdString();
  });
}

class WayIn : public AtTheStart {
 protected:
  static void Back(const char* name) {
    OpenForm board(name);
    const bool close = board.NeverPicked().contains(QStringLiteral("mnuclose"));
    board.Pick(close ? "mnuclose" : "mnuback");
    board.UntilGone();
  }
  void UntilEnded() const {
    Until(QStringLiteral("the end of the program"), [this] { return ends == 1; });
  }
};

TEST_F(WayIn, MovesTheTitleOnTheStartForm) {
  const OpenForm start("fbrmsta1");
  const QImage before = start.Seen();
  Until(QStringLiteral("the title elsewhere"), [&] { return start.Seen() != before; });
}

TEST_F(WayIn, GoesHomeByAClickAnywhereAndBackByTheMenu) {
  OpenForm("fbrmsta1").ClickGround();
  OpenForm home("fbrmhom1");
  home.Pick("mnuback");
  home.UntilGone();
  EXPECT_EQ(LoadedNames(), "MDIbrm fbrmsta1");
  OpenForm("fbrmsta1").Pick("mnustart");
  OpenForm("fbrmhom1");
}

TEST_F(WayIn, ShowsVerifyBehindTheSwitchAndStartsNevertheless) {
  OpenForm start("fbrmsta1");
  for (int i = 1; i <= 2; ++i) {
    start.Pick(Indexed("mnupp", i));
    EXPECT_EQ(start.Marks(), Indexed("mnupp", i).toStdString());
    EXPECT_EQ(OpenForm("fbrmsav1").Text("lbl1"), "     Loading... ");
    EXPECT_EQ(ReadBox(), "Verify Password Protection");
    OpenForm notice("fbrmsav1");
    TheDesktop().Click(Ask([&] {
      const QWidget* window = notice.Get()->SubWindow();
      return window->mapToGlobal(QPoint(window->width() - 12, 12));  // its close button
    }));
    notice.UntilGone();
  }
  start.Pick("mnustart");
  OpenForm("fbrmhom1");
  EXPECT_EQ(start.Marks(), "mnupp(2)");
}

TEST_F(WayIn, EndsFromTheStartForm) {
  OpenForm("fbrmsta1").Pick("mnuexit");
  UntilEnded();
}

TEST_F(WayIn, OpensEachBoardByTileAndLabel) {
  OpenForm home = GoHome();
  for (int i = 1; i <= 7; ++i) {
    for (const char* array : {"pic", "lbl1"}) {
      OpenForm("fbrmhom1").Click(Indexed(array, i));
      Back(kBoardForms[i - 1]);
    }
  }
  OpenForm("fbrmhom1").Click("lbl1(8)");
  home.Click("pic(7)");
  OpenForm maths("fbrmmat01");
  EXPECT_EQ(LoadedNames(), "MDIbrm fbrmsta1 fbrmhom1 fbrmmat01");
}

TEST_F(WayIn, HasOneOfAllDrivesMarkedAndForgetsItOnTheWayBack) {
  OpenForm home = GoHome();
  for (int i = 1; i <= 26; ++i) {
    home.Pick(Indexed("mnudrv", i));
    EXPECT_EQ(home.Marks(), Indexed("mnudrv", i).toStdString());
    EXPECT_EQ(home.Text("txtdrv"), std::string(1, static_cast<char>('A' + i - 1)) + ':');
  }
  home.Click("lbl1(1)");
  OpenBoard board("fbrmengc02");
  board.Pick("mnuaud");
  board.Click("pic(2)");
  EXPECT_EQ(ReadBox(), "Z:\\bramlee\\aud\\engc\\eng-b.wma Not Found: ");
  board.ExpectTile(2);
  EXPECT_GT(board.SeeSheet(), 100);
  Back("fbrmengc02");
  OpenForm("fbrmhom1").Pick("mnuback");
  home.UntilGone();
  EXPECT_EQ(GoHome().Marks(), "mnudrv(3)");
}

TEST_F(WayIn, UnloadsAllAndEndsFromTheHomeForm) {
  GoHome().Pick("mnuexit");
  UntilEnded();
  EXPECT_EQ(LoadedNames(), "");
}

class Card : public WayIn {
 protected:
  Card() : home_(GoHome()) { home_.Pick("mnubiodata"); }

  /// The item's nine texts as the card shows them.
  static std::string Item(const OpenForm& card) {
    std::string item;
    for (int i = 0; i <= 8; ++i) {
      item += (i > 0 ? "|" : "") + card.Text(Indexed("cmb", i).toLatin1());
    }
    return item;
  }
  static std::string Sums(const OpenForm& card) {
    std::string sums;
    for (int i = 5; i <= 8; ++i) sums += card.Text(Indexed("txt", i).toLatin1()) + ' ';
    return sums;
  }
  static void EnterItem(const OpenForm& card) {
    card.Click("lbl(12)");
    Until(QStringLiteral("room for an item"), [&] { return card.Text("cmb(4)") == "?..."; });
    card.Type("cmb(0)", QStringLiteral("7"));
    card.Type("cmb(1)", QStringLiteral("3"));
    card.Type("cmb(2)", QStringLiteral("2024"));
    card.Type("cmb(3)", QStringLiteral("Pencil"));
    int number = 10;
    for (int i = 4; i <= 8; ++i) card.Type(Indexed("cmb", i).toLatin1(), QString::number(number++));
  }

  OpenForm home_;
};

TEST_F(Card, StoresANewItemAndRemovesIt) {
  {
    const OpenForm card("fbrminf1");
    EXPECT_EQ(Sums(card), "1 100 100 0 ");
    card.Type("txt(0)", QStringLiteral("Asha"));
    EnterItem(card);
    card.Click("lbl(13)");
  }
  EXPECT_EQ(ReadBox(), "Saved Successfully");
  {
    const OpenForm card("fbrminf1");
    EXPECT_EQ(card.Text("txt(0)"), "Asha");
    EXPECT_EQ(Item(card), "7|3|2024|Pencil|10|11|12|13|14");
    EXPECT_EQ(Sums(card), "12 112 113 14 ");
    card.PickFromList("cmb(3)", 0);
    EXPECT_EQ(card.Text("cmb(4)"), "100");
    card.Click("lbl(14)");
    EXPECT_EQ(ReadBox(), "First Record Cannot be Removed");
    card.PickFromList("cmb(8)", 1);
    EXPECT_EQ(card.Text("cmb(3)"), "Pencil");
    card.Click("lbl(14)");
  }
  EXPECT_EQ(ReadBox(), "Removed Successfully");
  EXPECT_EQ(Sums(OpenForm("fbrminf1")), "1 100 100 0 ");
}

TEST_F(Card, AsksForNumbers) {
  const OpenForm card("fbrminf1");
  card.Click("lbl(12)");
  Until(QStringLiteral("room for an item"), [&] { return card.Text("cmb(4)") == "?..."; });
  EXPECT_EQ(card.Text("cmb(2)"), std::to_string(QDate::currentDate().year()));
  card.Click("lbl(13)");
  EXPECT_EQ(ReadBox(), "Enter Numeric");
  EXPECT_EQ(Ask([&] { return BackColorOf(card.Get()->Named<Combo>(QStringLiteral("cmb(4)"))); }),
            0xFFU);
}

TEST_F(Card, ShowsAMissingPictureRed) {
  const OpenForm card("fbrminf1");
  card.Type("txt(3)", QStringLiteral("C:\\none.jpg"));
  card.Click("lbl(13)");
  EXPECT_EQ(ReadBox(), "Saved Successfully");
  OpenForm("fbrminf1");
}

TEST_F(Card, GoesBackToTheHomeForm) {
  OpenForm card("fbrminf1");
  card.Pick("mnufile(1)");
  card.UntilGone();
  OpenForm("fbrmhom1");
}

TEST_F(Card, EndsTheProgram) {
  OpenForm card("fbrminf1");
  card.Pick("mnufile(2)");
  UntilEnded();
  EXPECT_EQ(LoadedNames(), "");
}

}  // namespace
}  // namespace bramlee
