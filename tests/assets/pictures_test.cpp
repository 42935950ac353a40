#include "assets/pictures.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <algorithm>
#include <map>

#include "letters/letter_names.h"
#include "letters/letter_sets.h"

namespace bramlee {
namespace {

QString Path(const LetterSet& set, int tile) {
  return QStringLiteral(":/pictures/%1/%2.jpg").arg(QString::fromLatin1(set.name.data())).arg(tile);
}

/// Whether a part of the picture stands out clearly from its commonest shade.
bool HasInk(const QImage& picture) {
  int shades[256] = {};
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) ++shades[qGray(picture.pixel(x, y))];
  }
  const auto ground = std::ranges::max_element(shades) - std::begin(shades);
  int inked = 0;
  for (int shade = 0; shade < 256; ++shade) {
    if (std::abs(shade - ground) > 60) inked += shades[shade];
  }
  return inked > picture.width() * picture.height() / 200;
}

/// The box around all that is darker than the ground by far.
QRect InkBox(const QImage& picture) {
  const int ground = qGray(picture.pixel(0, 0));
  QRect box;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (ground - qGray(picture.pixel(x, y)) > 60) box |= QRect(x, y, 1, 1);
    }
  }
  return box;
}

/// How many words stand side by side: parts of ink that an upright gap parts.
int WordsIn(const QImage& line) {
  int words = 0;
  bool inked = false;
  for (int x = 0; x < line.width(); ++x) {
    const bool before = inked;
    inked = !InkBox(line.copy(x, 0, 1, line.height())).isEmpty();
    if (inked && !before) ++words;
  }
  return words;
}

/// How many pixels of two pictures of one size differ clearly: by more than saving may change.
int Differing(const QImage& one, const QImage& other) {
  EXPECT_EQ(one.size(), other.size());
  int differing = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      if (std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y))) > 60) ++differing;
    }
  }
  return differing;
}

QImage Named(const QString& name) {
  return QImage(QStringLiteral(":/pictures/%1.jpg").arg(name));
}

class TilePictures : public testing::TestWithParam<LetterSet> {};

TEST_P(TilePictures, AreThereInFourfoldSizeWithInkAndAllDiffer) {
  const LetterSet& set = GetParam();
  const QSize size = set.name == "engc" ? QSize(324, 164) : QSize(240, 220);
  std::map<QByteArray, int> seen;
  for (int tile = 1; tile <= set.tiles; ++tile) {
    if (set.name == "hinv" && tile == 14) continue;
    const QImage picture(Path(set, tile));
    ASSERT_EQ(picture.size(), size) << set.name << ' ' << tile;
    EXPECT_TRUE(HasInk(picture)) << set.name << ' ' << tile;
    const QByteArray bytes(reinterpret_cast<const char*>(picture.constBits()),
                           picture.sizeInBytes());
    const auto [twin, fresh] = seen.emplace(bytes, tile);
    EXPECT_TRUE(fresh) << set.name << ' ' << tile << " looks like " << twin->second;
  }
}

INSTANTIATE_TEST_SUITE_P(EverySet, TilePictures,
                         testing::ValuesIn(LetterSets().begin(), LetterSets().end()),
                         [](const auto& set) { return std::string(set.param.name); });

/// The same picture with more pixels, in the size of the usual one.
QImage Large(const QString& name) {
  const QImage usual(QStringLiteral(":/pictures/%1.jpg").arg(name));
  const QImage large(QStringLiteral(":/pictures/%1_large.png").arg(name));
  EXPECT_EQ(large.size(), usual.size() * 1.75) << name.toStdString();
  return large.scaled(usual.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// Drawn in another size, the edges of letters fall otherwise on their pixels.
constexpr int kFewPixels = 150;

TEST_P(TilePictures, AreThereLargeToo) {
  const LetterSet& set = GetParam();
  for (int tile = 1; tile <= set.tiles; ++tile) {
    if (ShowsLettering(set.name, tile)) continue;
    const QString name =
        QStringLiteral("%1/%2").arg(QString::fromLatin1(set.name.data())).arg(tile);
    EXPECT_LE(Differing(Large(name), Named(name)), kFewPixels) << name.toStdString();
  }
}

TEST(Pictures, OfLetteringSetsAndSignsAreThereLargeToo) {
  QStringList names{QStringLiteral("hinv/0"), QStringLiteral("mat/equal"),
                    QStringLiteral("mat/table")};
  for (int set = 1; set <= 3; ++set) names.append(QStringLiteral("hinc/set%1").arg(set));
  for (int sign = 11; sign <= 15; ++sign) names.append(QStringLiteral("mat/sign%1").arg(sign));
  for (const QString& name : names) {
    EXPECT_LE(Differing(Large(name), Named(name)), kFewPixels) << name.toStdString();
  }
}

TEST(Pictures, OfFewColoursHaveTheirSubjectsGround) {
  for (const Subject& subject : Subjects()) {
    const QString set =
        QString::fromUtf8(subject.letterSet.data(), qsizetype(subject.letterSet.size()));
    const QImage large(QStringLiteral(":/pictures/%1/1_large.png").arg(set));
    EXPECT_EQ(large.pixelColor(0, 0), subject.ground) << subject.letterSet;
  }
}

TEST(TilePictures, OfTwoSignsDrawBothLarge) {
  for (const int tile : {13, 14}) {
    const QRect ink = InkBox(QImage(Path(*FindLetterSet("mat"), tile)));
    EXPECT_GE(ink.height(), 80) << tile;  // four picture pixels to a pixel of the tile
    EXPECT_GE(ink.width(), 180) << tile;
  }
}

TEST(TilePictures, LeaveTheTileOfTheLetteringWithoutOne) {
  EXPECT_FALSE(QFile::exists(QStringLiteral(":/pictures/hinv/14.jpg")));
  const QImage lettering(QStringLiteral(":/pictures/hinv/0.jpg"));
  EXPECT_EQ(lettering.size(), QSize(952, 180));  // four times 238 by 45
  EXPECT_TRUE(HasInk(lettering));
}

TEST_P(TilePictures, HoldTheLetterOfTheirNumber) {
  const LetterSet& set = GetParam();
  for (const Subject& subject : Subjects()) {
    if (subject.letterSet != set.name) continue;
    for (int tile = 1; tile <= set.tiles; ++tile) {
      if (ShowsLettering(set.name, tile)) continue;
      EXPECT_EQ(Differing(QImage(Path(set, tile)), TilePicture(subject, tile)), 0)
          << set.name << ' ' << tile;
    }
  }
}

TEST(Pictures, OfSubjectsSetsSignsAndChartsHoldWhatTheirNamesSay) {
  int number = 0;
  for (const Subject& subject : Subjects()) {
    ++number;
    const QImage home = Named(QStringLiteral("home/%1").arg(number));
    EXPECT_EQ(Differing(home, SubjectPicture(subject)), 0) << number;
    const QImage chart = Named(QStringLiteral("charts/%1")
                                   .arg(QString::fromLatin1(subject.letterSet.data(),
                                                            qsizetype(subject.letterSet.size()))));
    if (chart.isNull()) continue;  // the English letters and the numbers have none
    EXPECT_EQ(Differing(chart, ChartPicture(subject)), 0) << number;
  }
  for (int set = 1; set <= 3; ++set) {
    const QImage button = Named(QStringLiteral("hinc/set%1").arg(set));
    EXPECT_EQ(Differing(button, SetButtonPicture(set)), 0) << set;
  }
  for (int sign = 11; sign <= 15; ++sign) {
    const QImage picture = Named(QStringLiteral("mat/sign%1").arg(sign));
    EXPECT_EQ(Differing(picture, SignPicture(sign)), 0) << sign;
  }
  EXPECT_EQ(Differing(Named(QStringLiteral("mat/equal")), SignPicture(16)), 0);
  EXPECT_EQ(Differing(Named(QStringLiteral("mat/table")), TableButtonPicture()), 0);
}

TEST(Lettering, HasSixSyllablesOnTheSheet) {
  EXPECT_EQ(WordsIn(QImage(QStringLiteral(":/pictures/hinv/0.jpg"))), 6);
}

TEST(Lettering, StandsOnItsCardOfTheChartInTwoRows) {
  const QImage chart(QStringLiteral(":/pictures/charts/hinv.jpg"));
  for (const Subject& subject : Subjects()) {
    if (subject.letterSet != "hinv") continue;
    QRect half = ChartCard(subject, 14).toAlignedRect().adjusted(20, 0, -20, 0);
    half.setHeight(half.height() / 2);
    EXPECT_EQ(WordsIn(chart.copy(half)), 3);
    EXPECT_EQ(WordsIn(chart.copy(half.translated(0, half.height()))), 3);
  }
}

TEST(Pictures, AreThereForSubjectsChartsSignsAndCard) {
  QStringList names;
  for (int subject = 1; subject <= 7; ++subject) {
    names.append(QStringLiteral("home/%1.jpg").arg(subject));
  }
  for (const char* set : {"hinv", "hinc", "telv", "telc"}) {
    names.append(QStringLiteral("charts/%1.jpg").arg(QString::fromLatin1(set)));
  }
  for (int button = 1; button <= 3; ++button) {
    names.append(QStringLiteral("hinc/set%1.jpg").arg(button));
  }
  for (int sign = 11; sign <= 15; ++sign) names.append(QStringLiteral("mat/sign%1.jpg").arg(sign));
  names.append({QStringLiteral("mat/equal.jpg"), QStringLiteral("mat/table.jpg"),
                QStringLiteral("card/idcard.jpg"), QStringLiteral("card/school.jpg"),
                QStringLiteral("bramlee.png")});
  for (const QString& name : names) {
    const QImage picture(QStringLiteral(":/pictures/") + name);
    ASSERT_FALSE(picture.isNull()) << name.toStdString();
    EXPECT_TRUE(HasInk(picture)) << name.toStdString();
  }
}

}  // namespace
}  // namespace bramlee
