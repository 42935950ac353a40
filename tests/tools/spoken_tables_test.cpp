// The tables of what is spoken: whole, and spoken as the letters sound.
#include "tools/sounds_maker/spoken_tables.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <map>

#include "letters/letter_names.h"
#include "letters/letter_sets.h"
#include "tests/tools/run_tool.h"

namespace bramlee {
namespace {

const SoundSet& Set(const char* name) {
  for (const SoundSet& set : kSoundSets) {
    if (QLatin1StringView(set.name) == QLatin1StringView(name)) return set;
  }
  throw std::invalid_argument(name);
}

QList<Spoken> Table(const char* name) {
  QString error;
  QList<Spoken> rows = ReadSpokenTable(Set(name), QStringLiteral(BRAMLEE_SOUND_TABLES), error);
  EXPECT_EQ(error.toStdString(), "");
  return rows;
}

std::map<QString, Spoken> ByFile(const char* name) {
  std::map<QString, Spoken> rows;
  for (const Spoken& row : Table(name)) rows[row.file] = row;
  return rows;
}

TEST(SpokenTables, NameEveryTileOnce) {
  for (const char* name : {"hinv", "hinc", "telv", "telc", "mat"}) {
    const auto rows = ByFile(name);
    const int tiles = FindLetterSet(name)->tiles;
    for (int tile = 1; tile <= tiles; ++tile) {
      EXPECT_TRUE(rows.contains(FilesOf(Set(name)) + QString::number(tile))) << name << tile;
    }
    const std::size_t more = QLatin1StringView(name) == QLatin1StringView("hinv") ? 1 : 0;
    EXPECT_EQ(rows.size(), static_cast<std::size_t>(tiles) + more) << name;
  }
  for (const char* name : {"engc", "engs"}) {
    const auto rows = ByFile(name);
    EXPECT_EQ(rows.size(), 26U);
    for (char16_t letter = u'a'; letter <= u'z'; ++letter) {
      const QString file = QString::fromLatin1(name) + QStringLiteral("/eng-") + QChar(letter);
      ASSERT_TRUE(rows.contains(file)) << file.toStdString();
      EXPECT_EQ(rows.at(file).text, QString(QChar(letter)).toUpper());
    }
  }
}

TEST(SpokenTables, SpeakTheLineOfLetteringAsItIsShown) {
  const auto rows = ByFile("hinv");
  for (const int tile : {0, 14}) {
    Spoken row = rows.at(QStringLiteral("hin/hinv/hinv-%1").arg(tile));
    EXPECT_EQ(row.shows.toStdString(), kHindiLettering) << tile;
    EXPECT_EQ(row.text.remove(u',').toStdString(), kHindiLettering) << tile;
  }
}

TEST(SpokenTables, ShowWhatTheTilesShow) {
  for (const char* name : {"hinc", "telv", "telc"}) {
    const auto rows = ByFile(name);
    for (int tile = 1; tile <= FindLetterSet(name)->tiles; ++tile) {
      const QString file = FilesOf(Set(name)) + QString::number(tile);
      EXPECT_EQ(rows.at(file).shows.toStdString(), PrintedLetter(name, tile)) << name << tile;
    }
  }
}

TEST(SpokenTables, SpeakInTheLanguageOfTheirSet) {
  const std::map<std::string, std::string> kVoices = {
      {"engc", "en-gb"},
      {"engs", "en-gb"},
      {"hinv", "hi"   },
      {"hinc", "hi"   },
      {"telv", "te"   },
      {"telc", "te"   },
      {"mat",  "en-gb"}
  };
  for (const auto& [name, voice] : kVoices) {
    for (const Spoken& row : Table(name.c_str())) EXPECT_EQ(row.voice.toStdString(), voice);
  }
}

TEST(SpokenTables, TheLastFourHindiLettersSpeakWhatTheyShowInAllSets) {
  const auto rows = ByFile("hinc");
  const char* const kPhonemes[] = {"l.'V:", "ks.'V:", "tr'V:", "gj'V:"};
  for (int set = 0; set < 3; ++set) {
    for (int letter = 34; letter <= 37; ++letter) {
      const QString file = QStringLiteral("hin/hinc/hinc-%1").arg(letter + 37 * set);
      EXPECT_TRUE(rows.at(file).text.contains(QString::fromLatin1(kPhonemes[letter - 34])))
          << file.toStdString();
    }
  }
}

TEST(SpokenTables, NumbersAreSpelledUnderTheirDigits) {
  const QList<Spoken> rows = SpokenNumbers(998, 1001);
  ASSERT_EQ(rows.size(), 4);
  EXPECT_EQ(rows[0].file, QStringLiteral("mat/matc/mat-998"));
  EXPECT_EQ(rows[3].file, QStringLiteral("mat/matc/mat-1001"));
  EXPECT_EQ(rows[3].text, QStringLiteral("one thousand and one"));
}

class OwnTable : public ::testing::Test {
 protected:
  /// What is said of a table with these lines.
  std::string Error(const QByteArray& lines) {
    QFile file(folder.filePath(QStringLiteral("engc.tsv")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(lines);
    file.close();
    QString error;
    rows = ReadSpokenTable(Set("engc"), folder.path(), error);
    EXPECT_EQ(rows.isEmpty(), !error.isEmpty());
    return error.mid(file.fileName().size()).toStdString();
  }

  QTemporaryDir folder;
  QList<Spoken> rows;
};

TEST_F(OwnTable, LinesHaveTheVoiceAndSpeedAboveThem) {
  EXPECT_EQ(Error("# mine\nvoice\ten-gb\nspeed\t100\na\tA\tay\n\nvoice\thi\nspeed\t90\r\n"
                  "b\tB\t[[b'i:]] "),
            "");
  ASSERT_EQ(rows.size(), 2);
  EXPECT_EQ(rows[0].file, QStringLiteral("engc/eng-a"));
  EXPECT_EQ(rows[0].voice, QStringLiteral("en-gb"));
  EXPECT_EQ(rows[0].speed, 100);
  EXPECT_EQ(rows[1].voice, QStringLiteral("hi"));
  EXPECT_EQ(rows[1].speed, 90);
  EXPECT_EQ(rows[1].text, QStringLiteral("[[b'i:]]"));
}

TEST_F(OwnTable, AMistakeIsReportedWithItsLine) {
  const QByteArray head = "voice\ten-gb\nspeed\t100\n";
  EXPECT_EQ(Error(head + "a\tA"), ":3: three cells parted by tabs are wanted");
  EXPECT_EQ(Error(head + "a A ay"), ":3: three cells parted by tabs are wanted");
  EXPECT_EQ(Error(head + "../a\tA\tay"), ":3: no letter or number of a tile");
  EXPECT_EQ(Error(head + "a\tA\t "), ":3: nothing to speak");
  EXPECT_EQ(Error(head + "a\tA\tay\na\tA\tah"), ":4: this tile stands above already");
  EXPECT_EQ(Error("speed\t100\na\tA\tay"), ":2: no voice or speed above it");
  EXPECT_EQ(Error("speed\tfast\n"), ":1: a speed is 80 to 450");
  EXPECT_EQ(Error("voice\t-x\n"), ":1: no name of a voice");
}

TEST_F(OwnTable, AMissingTableIsReported) {
  QString error;
  EXPECT_TRUE(ReadSpokenTable(Set("engc"), folder.path(), error).isEmpty());
  EXPECT_TRUE(error.contains(QStringLiteral("engc.tsv")));
}

}  // namespace
}  // namespace bramlee
