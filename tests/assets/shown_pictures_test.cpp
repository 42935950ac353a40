// Which picture stands where in the program's windows.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEvent>

#include "app/subjects.h"
#include "board/board.h"
#include "home/home.h"
#include "letters/letter_names.h"
#include "maths/maths.h"
#include "tests/files/temp_drives.h"
#include "ui/form_ids.h"

namespace bramlee {
namespace {

class ShownPictures : public TempDrives {
 protected:
  ShownPictures() {
    RegisterHome(HomeSubjects());
    RegisterBoards();
    RegisterMaths();
  }
  ~ShownPictures() override {
    UnloadAll();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  static Form& Open(const char* form) { return *LoadForm(QString::fromLatin1(form)); }

  static QImage Shown(const Form& form, const QString& control) {
    return form.Named<PictureBox>(control)->Picture().toImage();
  }

  /// Expects the resource of that name, without its ".jpg", in that control of the form.
  static void ExpectShown(const Form& form, const QString& control, const QString& name) {
    const QImage resource = QPixmap(QStringLiteral(":/pictures/%1.jpg").arg(name)).toImage();
    ASSERT_FALSE(resource.isNull()) << name.toStdString();
    EXPECT_TRUE(Shown(form, control) == resource)
        << form.objectName().toStdString() << ' ' << control.toStdString() << " does not show "
        << name.toStdString();
  }
};

TEST_F(ShownPictures, EachTileOfEachBoardShowsThePictureOfItsNumber) {
  const char* const boards[] = {
      kCapitalsForm,     kSmallLettersForm,     kHindiVowelsForm, kHindiConsonantsForm,
      kTeluguVowelsForm, kTeluguConsonantsForm, kMathsForm};
  for (const char* form : boards) {
    const auto& board = dynamic_cast<const Board&>(Open(form));
    const QString set = QString::fromLatin1(board.record().letterSet);
    for (int tile = 1; tile <= board.letters().tiles; ++tile) {
      if (ShowsLettering(board.letters().name, tile)) continue;
      ExpectShown(board, Indexed("pic", tile), QStringLiteral("%1/%2").arg(set).arg(tile));
    }
  }
}

TEST_F(ShownPictures, TheHindiVowelsShowTheLineAndLeaveItsTileAndTheSpareOnesEmpty) {
  const Form& board = Open(kHindiVowelsForm);
  ExpectShown(board, QStringLiteral("pic(0)"), QStringLiteral("hinv/0"));
  EXPECT_TRUE(Shown(board, QStringLiteral("pic(14)")).isNull());
  for (int tile = 29; tile <= 36; ++tile) {
    EXPECT_TRUE(Shown(board, Indexed("pic", tile)).isNull()) << tile;
  }
}

TEST_F(ShownPictures, HomeShowsEachSubjectOnItsTile) {
  const Form& home = Open(kHomeForm);
  for (int subject = 1; subject <= 7; ++subject) {
    ExpectShown(home, Indexed("pic", subject), QStringLiteral("home/%1").arg(subject));
  }
}

TEST_F(ShownPictures, SetButtonsShowTheirSets) {
  const Form& board = Open(kHindiConsonantsForm);
  for (int set = 1; set <= 3; ++set) {
    ExpectShown(board, Indexed("pic1", set), QStringLiteral("hinc/set%1").arg(set));
  }
}

TEST_F(ShownPictures, ChartsShowTheirSets) {
  ExpectShown(Open(kHindiVowelsChart), QStringLiteral("pic(1)"), QStringLiteral("charts/hinv"));
  ExpectShown(Open(kHindiConsonantsChart), QStringLiteral("pic(1)"), QStringLiteral("charts/hinc"));
  ExpectShown(Open(kTeluguVowelsChart), QStringLiteral("pic(1)"), QStringLiteral("charts/telv"));
  ExpectShown(Open(kTeluguConsonantsChart), QStringLiteral("pic(1)"),
              QStringLiteral("charts/telc"));
}

TEST_F(ShownPictures, DrillsShowTheirSignsAndTheTablesTheirRows) {
  const Form& board = Open(kMathsForm);
  for (int sign = 11; sign <= 15; ++sign) {
    ExpectShown(board, Indexed("pic1", sign), QStringLiteral("mat/sign%1").arg(sign));
  }
  ExpectShown(board, QStringLiteral("picequal"), QStringLiteral("mat/equal"));
  ExpectShown(board, QStringLiteral("pict"), QStringLiteral("mat/table"));
}

}  // namespace
}  // namespace bramlee
