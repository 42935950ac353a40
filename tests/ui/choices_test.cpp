// What a teacher chose beside the menus, and where it is kept.
#include "ui/choices.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

namespace bramlee {
namespace {

const QString kName = QStringLiteral("choices/tried");

/// A configuration of the test's own.
class ChoicesTest : public ::testing::Test {
 protected:
  ChoicesTest() {
    KeepIn(folder_.path());
    QObject::connect(&choices, &Choices::Changed, &context_,
                     [this](const QString& name) { changed.append(name); });
  }

  static void KeepIn(const QString& folder) {
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder);
  }
  QString File() const { return folder_.filePath(QStringLiteral("bramlee/bramlee.ini")); }

  Choices& choices = Choices::Instance();
  QStringList changed;

 private:
  QTemporaryDir folder_;
  QObject context_;
};

TEST_F(ChoicesTest, AreWhatTheCallerSaysUntilOneIsMade) {
  EXPECT_EQ(choices.Of(kName, 7), QVariant(7));
  EXPECT_FALSE(QFile::exists(File()));
}

TEST_F(ChoicesTest, AreInTheUsersFileOnceTheyAreMade) {
  choices.Choose(kName, 12);
  EXPECT_EQ(choices.Of(kName, 7).toInt(), 12);
  QFile file(File());
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll().trimmed(), "[choices]\ntried=12");
}

TEST_F(ChoicesTest, AreReadFromTheFile) {
  QSettings(File(), QSettings::IniFormat).setValue(kName, true);
  EXPECT_TRUE(choices.Of(kName, false).toBool());
}

TEST_F(ChoicesTest, SayWhenOneBecomesAnotherAndOnlyThen) {
  choices.Choose(kName, true);
  choices.Choose(kName, true);
  EXPECT_EQ(changed, QStringList{kName});
  choices.Choose(kName, false);
  EXPECT_EQ(changed.size(), 2);
}

TEST_F(ChoicesTest, ThatStandInTheFileAlreadyAreNoChange) {
  KeepIn(QStringLiteral(BRAMLEE_TEST_DATA "/choices"));
  ASSERT_EQ(choices.Of(kName, {}).typeId(), QMetaType::QString);  // as it is read from a file
  choices.Choose(kName, true);
  EXPECT_TRUE(changed.isEmpty());
}

TEST_F(ChoicesTest, LastAsLongAsTheProgramWhereTheyCannotBeWritten) {
  const QTemporaryDir folder;
  const QString notAFolder = folder.filePath(QStringLiteral("file"));
  ASSERT_TRUE(QFile(notAFolder).open(QIODevice::WriteOnly));
  KeepIn(notAFolder);
  choices.Choose(kName, 12);
  EXPECT_EQ(choices.Of(kName, 7).toInt(), 12);
  choices.Choose(kName, 12);
  EXPECT_EQ(changed, QStringList{kName});
  choices.Choose(kName, 13);
  EXPECT_EQ(choices.Of(kName, 7).toInt(), 13);
  KeepIn(folder.path());
  choices.Choose(kName, 14);  // now it can be written
  EXPECT_EQ(QSettings(folder.filePath(QStringLiteral("bramlee/bramlee.ini")), QSettings::IniFormat)
                .value(kName)
                .toInt(),
            14);
  EXPECT_EQ(choices.Of(kName, 7).toInt(), 14);
}

}  // namespace
}  // namespace bramlee
