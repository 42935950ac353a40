#include "media/sound_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace bramlee {
namespace {

class SoundFile : public ::testing::Test {
 protected:
  QString At(const char* name) const { return folder.filePath(QString::fromLatin1(name)); }
  QString Made(const char* name, const QByteArray& bytes) const {
    QFile file(At(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return file.fileName();
  }

  QTemporaryDir folder;
};

TEST_F(SoundFile, IsPlainReadableAndNotEmpty) {
  EXPECT_TRUE(IsPlayableFile(Made("a.wav", "x")));
  EXPECT_FALSE(IsPlayableFile(Made("b.wav", "")));
  EXPECT_FALSE(IsPlayableFile(At("missing.wav")));
  EXPECT_FALSE(IsPlayableFile(folder.path()));
  EXPECT_FALSE(IsPlayableFile({}));
}

TEST_F(SoundFile, IsNoPipe) {
  ASSERT_EQ(mkfifo(QFile::encodeName(At("p.wav")).constData(), 0600), 0);
  EXPECT_FALSE(IsPlayableFile(At("p.wav")));
}

TEST_F(SoundFile, MayBeALinkButNotADanglingOne) {
  const QString file = Made("a.wav", "x");
  ASSERT_TRUE(QFile::link(file, At("link.wav")));
  ASSERT_TRUE(QFile::link(At("nothing"), At("dangling.wav")));
  EXPECT_TRUE(IsPlayableFile(At("link.wav")));
  EXPECT_FALSE(IsPlayableFile(At("dangling.wav")));
}

TEST_F(SoundFile, IsOneThatThisUserMayRead) {
  const QString file = Made("a.wav", "x");
  ASSERT_TRUE(QFile::setPermissions(file, QFile::WriteOwner));
  ASSERT_EQ(chmod(QFile::encodeName(folder.path()).constData(), 0755), 0);
  constexpr uid_t kNobody = 65534;
  const auto readAsNobody = [&] {
    if (geteuid() == 0 && setuid(kNobody) != 0) _exit(2);
    _exit(IsPlayableFile(file) ? 1 : 0);
  };
  GTEST_FLAG_SET(death_test_style, "threadsafe");  // this process has threads
  EXPECT_EXIT(readAsNobody(), ::testing::ExitedWithCode(0), "");
}

TEST_F(SoundFile, HasPicturesByItsName) {
  for (const char* name : {"x.wmv", "x.AVI", "x.mpg", "a.b.mp4"}) {
    EXPECT_TRUE(IsPictureFile(QString::fromLatin1(name))) << name;
  }
  for (const char* name : {"x.wma", "x.mp3", "x.WAV", "x.cda", "x", "wmv"}) {
    EXPECT_FALSE(IsPictureFile(QString::fromLatin1(name))) << name;
  }
}

}  // namespace
}  // namespace bramlee
