// Operates the drills and reads their row.
#pragma once

#include "tests/maths/maths_fixture.h"

namespace bramlee {

inline constexpr ColourWord kPaleYellow = 0x80FFFF;
inline constexpr ColourWord kRed = 0xFF;

class Drills : public MathsTest {
 protected:
  /// The row of that drill, its operands typed, its equals picture clicked.
  QString Compute(const char* drill, const char* a, const char* b) {
    if (!Checked(drill)) Pick(drill);
    Type("cmb(16)", a);
    Type("cmb(18)", b);
    messages.clear();
    Click("picequal");
    return Result();
  }

  /// The sign pictures that can be seen, as "11 12".
  QString Signs() const {
    QStringList shown;
    for (int i = 11; i <= 15; ++i) {
      if (!board->Named<QWidget>(Indexed("pic1", i))->isHidden()) shown.append(QString::number(i));
    }
    return shown.join(u' ');
  }

  bool RowShown() const {
    return Shown("cmb(16)") && Shown("cmb(18)") && Shown("picequal") && Shown("txtval(20)");
  }

  bool RowHidden() const {
    return !Shown("cmb(16)") && !Shown("cmb(18)") && !Shown("picequal") && !Shown("txtval(20)");
  }

  /// The colour in which a combo's ground is painted.
  ColourWord PaintedGround(const char* combo) const {
    const QImage picture = Find<QWidget>(combo)->grab().toImage();
    return WordOf(picture.pixelColor(picture.width() / 2, 6));
  }

  const QString kAll = QStringLiteral("1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17");
};

}  // namespace bramlee
