// The line below the buttons: what failed, and why.
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QAccessible>
#include <algorithm>
#include <cmath>

#include "tests/card/card_test.h"
#include "tests/files/faulty_disk.h"
#include "ui/screen.h"

namespace bramlee {
namespace {

class CardSays : public CardTest {
 protected:
  CardSays() {
    Put(Items(2));
    Open();
  }

  static const Label* Line() { return Card()->Named<Label>(QStringLiteral("lblsaid")); }
  /// A new item that waits to be saved.
  static void Kite() {
    New();
    TypeItem("Kite");
  }
  static void SaveWithDiskError(int error) {
    const auto calls = WithDisk({}, [] {
      std::int32_t recNo = 1;
      EXPECT_EQ(Card()->SaveCard(recNo, false), 0);
    });
    const auto write = std::find(calls.begin(), calls.end(), "pwrite") - calls.begin();
    WithDisk({.at = static_cast<int>(write) + 1, .error = error}, [] { Save(); });
  }
};

TEST_F(CardSays, NothingWhereNothingFailed) {
  EXPECT_EQ(Said(), QString());
  Save();
  EXPECT_EQ(Said(), QString());
  Kite();
  EXPECT_EQ(Said(), QString());
}

TEST_F(CardSays, WhatTheDiskCouldNotDo) {
  SaveWithDiskError(ENOSPC);
  EXPECT_EQ(Said(), QStringLiteral("Not saved: the disk is full"));
  SaveWithDiskError(EROFS);
  EXPECT_EQ(Said(), QStringLiteral("Not saved: the disk is read-only"));
  SaveWithDiskError(EIO);
  EXPECT_EQ(Said(), QStringLiteral("Not saved: the disk does not work"));
  SaveWithDiskError(ENOMEM);
  EXPECT_EQ(Said(), QStringLiteral("Not saved: the card's file cannot be used"));
  EXPECT_TRUE(boxes.isEmpty());
  EXPECT_EQ(File(), Items(2));
}

TEST_F(CardSays, ThatAnotherProgramHasTheCard) {
  const int held = open(QFile::encodeName(Place()).constData(), O_RDWR);
  ASSERT_EQ(flock(held, LOCK_EX), 0);
  Kite();
  Save();
  EXPECT_EQ(Said(), QStringLiteral("Not saved: another program has the card open"));
  Pick(0, 1);
  EXPECT_EQ(Said(), QString());
  Remove();
  EXPECT_EQ(Said(), QStringLiteral("Not removed: another program has the card open"));
  close(held);
  Remove();
  EXPECT_EQ(boxes, Texts({"Removed Successfully"}));
  EXPECT_EQ(Said(), QString());
}

TEST_F(CardSays, WhatIsInTheWay) {
  const QString place = Place() + QStringLiteral(".new");
  QDir().mkpath(place);
  Save();
  EXPECT_EQ(Said(), QStringLiteral("Not saved: a folder is in the place of brmstu1.dat.new"));
  QDir().rmdir(place);
  ASSERT_TRUE(QFile::link(On("c/id.png"), place));
  Save();
  EXPECT_EQ(Said(),
            QStringLiteral("Not saved: what is in the place of brmstu1.dat.new is no file"));
  QFile::remove(place);
  Save();
  EXPECT_EQ(boxes, Texts({"Saved Successfully"}));
  EXPECT_EQ(Said(), QString());
}

TEST_F(CardSays, WhatIsMissing) {
  QDir().rename(On("c/bramlee/dba"), On("c/bramlee/away"));
  Save();
  EXPECT_EQ(Said(), QStringLiteral("Not saved: the folder C:\\bramlee\\dba is not there"));
  QDir().rename(On("c"), On("away"));
  Save();
  EXPECT_EQ(Said(), QStringLiteral("Not saved: the drive C: is not there"));
  QDir().rename(On("away"), On("c"));
  QDir().rename(On("c/bramlee/away"), On("c/bramlee/dba"));
  QFile::remove(Place());
  Save();
  EXPECT_EQ(Said(), QStringLiteral("Not saved: the card's file is no longer there"));
  EXPECT_EQ(List(3), Texts({"Item 1", "Item 2"}));  // they stand here alone now
  Pick(0, 1);
  Remove();
  EXPECT_EQ(Said(), QStringLiteral("Not removed: the card's file is no longer there"));
}

TEST_F(CardSays, WhatIsReadOnly) {
  for (const char* open : {"", "c/bramlee", "c/bramlee/dba", "c/bramlee/dba/brmstu1.dat"}) {
    ASSERT_EQ(chmod(QFile::encodeName(On(open)).constData(), 0777), 0);
  }
  const uid_t user = geteuid();
  ASSERT_EQ(chmod(QFile::encodeName(Place()).constData(), 0444), 0);
  ASSERT_EQ(seteuid(user == 0 ? 65534 : user), 0);
  Save();
  ASSERT_EQ(seteuid(user), 0);
  EXPECT_EQ(Said(), QStringLiteral("Not saved: the file brmstu1.dat is read-only"));
  ASSERT_EQ(chmod(QFile::encodeName(On("c/bramlee/dba")).constData(), 0555), 0);
  ASSERT_EQ(seteuid(user == 0 ? 65534 : user), 0);
  Save();
  ASSERT_EQ(seteuid(user), 0);
  EXPECT_EQ(Said(), QStringLiteral("Not saved: the folder C:\\bramlee\\dba is read-only"));
  UnloadAll();
  ASSERT_EQ(chmod(QFile::encodeName(Place()).constData(), 0000), 0);
  ASSERT_EQ(seteuid(user == 0 ? 65534 : user), 0);
  Open();
  ASSERT_EQ(seteuid(user), 0);
  EXPECT_EQ(Said(), QStringLiteral("Not read: you may not read the file brmstu1.dat"));
  ASSERT_EQ(chmod(QFile::encodeName(On("c/bramlee/dba")).constData(), 0755), 0);
}

TEST_F(CardSays, ThatANumberIsTooLarge) {
  Type(5, "3000000000");
  Save();
  EXPECT_EQ(Said(), QStringLiteral("Not saved: a number is too large"));
  Kite();
  EXPECT_EQ(Said(), QString());
  Type(5, "3000000000");
  Save();
  EXPECT_EQ(Said(), QStringLiteral("Not saved: a number is too large"));
  Type(5, "3");
  Save();
  EXPECT_EQ(boxes, Texts({"Saved Successfully"}));
  EXPECT_EQ(Said(), QString());
}

TEST_F(CardSays, ItStillWhileAMessageAsksForANumber) {
  SaveWithDiskError(ENOSPC);
  Type(5, "x");
  Save();
  EXPECT_EQ(boxes, Texts({"Enter Numeric"}));
  EXPECT_EQ(Said(), QStringLiteral("Not saved: the disk is full"));
}

TEST_F(CardSays, ItToAScreenReader) {
  SaveWithDiskError(ENOSPC);
  QAccessibleInterface* line =
      QAccessible::queryAccessibleInterface(Card()->Named<QWidget>(QStringLiteral("lblsaid")));
  EXPECT_EQ(line->text(QAccessible::Name), QStringLiteral("Not saved: the disk is full"));
  EXPECT_FALSE(line->state().invisible);
}

/// How bright the colour is to the eye, from 0 to 1, as the rules for legible pages have it.
double Luminance(ColourWord word) {
  const auto part = [](int value) {
    const double share = value / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  const QColor colour = ColourOf(word);
  return 0.2126 * part(colour.red()) + 0.7152 * part(colour.green()) + 0.0722 * part(colour.blue());
}

TEST_F(CardSays, ItInPlainDarkLetters) {
  EXPECT_EQ(Line()->textFormat(), Qt::PlainText);
  const QImage picture = Card()->grab().toImage();
  const QPoint place = Line()->mapTo(Card(), QPoint(2, 2));
  const ColourWord ground = WordOf(picture.pixelColor(place));
  EXPECT_GT((Luminance(ground) + 0.05) / (Luminance(ForeColorOf(Line())) + 0.05), 7);
}

TEST_F(CardSays, ItWholeBelowTheButtonsOnEveryScreen) {
  struct On {
    QSize screen;
    int pixels;  ///< of the letters, at least
  };
  for (const On& on : {
           On{{800, 600},   7 },
           On{{1024, 768},  10},
           On{{1366, 768},  10},
           On{{1920, 1080}, 18},
           On{{3840, 2160}, 19}
  }) {
    UnloadAll();
    environment.screen =
        ScreenSize{.width = 15.0 * on.screen.width(), .height = 15.0 * on.screen.height()};
    Open();
    Pick(0, 1);
    Type(4, "77");
    Put(Items(1));
    Save();
    ASSERT_TRUE(Said().contains(QStringLiteral("another program changed the card")));
    Put(Items(2));
    for (const int titleBar : {0, 36}) {
      Card()->resize(Card()->size() - QSize(0, titleBar));
      const QRect place = Line()->geometry();
      EXPECT_TRUE(Card()->client()->rect().contains(place)) << on.screen.width();
      EXPECT_GT(place.top(), Sign(12)->geometry().bottom());
      const QFontMetrics metrics = Line()->fontMetrics();
      EXPECT_LE(metrics.height(), place.height()) << on.screen.width();
      EXPECT_LE(metrics.horizontalAdvance(Said()), place.width()) << on.screen.width();
      EXPECT_GE(Line()->font().pixelSize(), on.pixels) << on.screen.width();
    }
  }
}

}  // namespace
}  // namespace bramlee
