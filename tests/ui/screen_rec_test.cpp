#include "ui/screen_rec.h"

#include "card/card.h"
#include "home/home.h"
#include "tests/files/temp_drives.h"
#include "tests/files/trap_log.h"
#include "ui/form.h"
#include "ui/screen.h"

namespace bramlee {
namespace {

class ScreenSizes : public TempDrives {
 protected:
  static ScreenRec Filled(double width, double height) {
    TheEnvironment().screen = ScreenSize{.width = width, .height = height};
    ScreenRec rec;
    FillScreenRec(rec);
    return rec;
  }
};

TEST_F(ScreenSizes, AreThoseOfAScreenOf1024By768) {
  const ScreenRec rec = Filled(15360, 11520);
  EXPECT_EQ(rec.ScrW, 15345);
  EXPECT_EQ(rec.ScrH, 11508);
  EXPECT_EQ(rec.UnitW, 77);
  EXPECT_EQ(rec.UnitH, 115);
  EXPECT_EQ(rec.WorkH, 9206);
  EXPECT_EQ(rec.MarginW, 270);  // 269.5: ties go to even
  EXPECT_EQ(rec.MarginH, 345);
  EXPECT_EQ(rec.WorkW, 12276);
  EXPECT_EQ(rec.ScaleFlag, 1);
}

TEST_F(ScreenSizes, RoundTiesToEven) {
  // A height that gives ScrH 23650 and 23750 has the ties 236.5 and 237.5.
  EXPECT_EQ(Filled(15360, 23650 / 0.999).UnitH, 236);
  EXPECT_EQ(Filled(15360, 23750 / 0.999).UnitH, 238);
}

TEST_F(ScreenSizes, OfAScreen900PixelsHighAreATie) {
  EXPECT_EQ(Filled(21600, 13500).ScrH, 13486);  // 13486.5
  EXPECT_EQ(Filled(21600, 10500).ScrH, 10490);  // 10489.5
}

TEST_F(ScreenSizes, ComeWithAFlagThatEachFormTakesOver) {
  RegisterHome({});
  RegisterCard();
  MakeDataFolder();
  TheEnvironment().screen = ScreenSize{.width = 15360, .height = 11520};
  for (const char* name : {"MDIbrm", "fbrmsta1", "fbrmhom1", "fbrminf1", "fcomsav1"}) {
    const Form* form = LoadForm(QString::fromLatin1(name));
    EXPECT_EQ(form->property("ScaleFlag"), QVariant(1)) << name;
  }
}

TEST_F(ScreenSizes, TooLargeAreReportedOnceWithoutALoop) {
  RegisterHome({});
  RegisterCard();
  MakeDataFolder();
  const TrapLog log;
  const ScreenRec rec = Filled(1e12, 11520);
  EXPECT_EQ(TrapLog::Tags().first(), QStringLiteral("com1:01"));
  EXPECT_EQ(rec.ScrW, 0);
  EXPECT_EQ(rec.ScaleFlag, 0);
  EXPECT_EQ(boxes, QStringList(QStringLiteral("Message Box Routine: Error")));
  EXPECT_EQ(LoadedForm(QStringLiteral("fcomsav1")), nullptr);
}

TEST_F(ScreenSizes, CheckTheirProductsForOverflow) {
  RegisterHome({});
  RegisterCard();
  MakeDataFolder();
  EXPECT_EQ(Filled(13'000'000, 11520).ScaleFlag, 1);
  EXPECT_EQ(Filled(14'000'000, 11520).ScaleFlag, 0);  // ScrW fits 32 bits, ScrW * 160 does not
  EXPECT_EQ(Filled(15360, 26'000'000).ScaleFlag, 1);
  EXPECT_EQ(Filled(15360, 28'000'000).ScaleFlag, 0);
}

}  // namespace
}  // namespace bramlee
