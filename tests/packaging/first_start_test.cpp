// What the script that users start lays out before the program runs. The program, the maker of
// sounds and its voice are stand-ins that only note how they were called.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <functional>

namespace bramlee {
namespace {

/// Long beyond any script: only a hang takes it.
constexpr int kHangMs = 60000;

class FirstStart : public ::testing::Test {
 protected:
  FirstStart() {
    // As an installed program lies.
    for (const char* folder : {"bin", "libexec/bramlee", "share/bramlee/card", "tools"}) {
      QDir().mkpath(In(folder));
    }
    QFile::copy(QStringLiteral(BRAMLEE_START_SCRIPT), In("bin/bramlee"));
    Script("libexec/bramlee/bramlee", "echo \"program $*\"; exit 3");
    QFile::link(QStringLiteral(BRAMLEE_BINARY_DIR "/tools/bramlee-path"),
                In("libexec/bramlee/bramlee-path"));
    Script("tools/espeak-ng", "exit 0");
    Maker("exit 0");
    for (const char* picture : {"idcard.jpg", "school.jpg"}) {
      Write("share/bramlee/card/" + QByteArray(picture), QByteArray("the pack's ") + picture);
    }
  }

  QString In(const QByteArray& place) const { return own_.filePath(QString::fromUtf8(place)); }
  void Write(const QByteArray& place, const QByteArray& bytes) const {
    QFile file(In(place));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << place.constData();
    file.write(bytes);
  }
  QByteArray Read(const QByteArray& place) const {
    QFile file(In(place));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  void Script(const char* place, const QByteArray& commands) const {
    Write(place, "#!/bin/sh\n" + commands + '\n');
    QFile::setPermissions(In(place), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  }
  /// The maker of sounds notes how it was called, once a line, and does that.
  void Maker(const QByteArray& commands) const {
    Script("bin/bramlee-sounds",
           "echo \"$*\" >>" + QFile::encodeName(In("made")) + "\n" + commands);
  }
  bool IsThere(const QByteArray& place) const { return QFile::exists(In(place)); }

  struct Told {
    int status;
    QByteArray text;
    QByteArray errors;
  };
  /// Starts it as a user does, and waits for the program's end.
  Told Start(const QStringList& more = {}) const {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("BRAMLEE_DRIVES"), In("drives"));
    environment.insert(QStringLiteral("PATH"),
                       In("tools") + u':' + environment.value(QStringLiteral("PATH")));
    for (const QString& variable : more) {
      environment.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));
    }
    process.setProcessEnvironment(environment);
    process.start(In("bin/bramlee"), {QStringLiteral("one"), QStringLiteral("two")});
    EXPECT_TRUE(process.waitForFinished(kHangMs));
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
  }

  /// What runs in the background has come that far.
  static void Await(const std::function<bool()>& done) {
    for (int ms = 0; ms < kHangMs && !done(); ms += 10) QThread::msleep(10);
    ASSERT_TRUE(done()) << "it hangs";
  }
  void AwaitSounds() const {
    Await([this] { return IsThere("drives/c/bramlee/aud/.complete"); });
  }

 private:
  QTemporaryDir own_;
};

TEST_F(FirstStart, LaysOutDriveCSaysSoAndRunsTheProgram) {
  const Told told = Start();
  EXPECT_EQ(told.status, 3) << "the program's own";
  EXPECT_EQ(told.text, "Laying out drive C: in " + QFile::encodeName(In("drives/c")) +
                           "\nMaking the sounds in the background (about two minutes); the "
                           "program can be used meanwhile.\nprogram one two\n");
  EXPECT_EQ(told.errors, "");
  EXPECT_TRUE(QDir(In("drives/c/bramlee/dba")).isEmpty());
  EXPECT_TRUE(IsThere("drives/c/bramlee/aud"));
  EXPECT_EQ(Read("drives/c/bramlee/idcard.jpg"), "the pack's idcard.jpg");
  EXPECT_EQ(Read("drives/c/bramlee/school.jpg"), "the pack's school.jpg");
  AwaitSounds();
  EXPECT_EQ(Read("made"), "--quiet " + QFile::encodeName(In("drives/c")) + '\n');
}

TEST_F(FirstStart, TheProgramRunsWhileTheSoundsAreMade) {
  Maker("while [ ! -e " + QFile::encodeName(In("heard")) + " ]; do sleep 0.1; done");
  EXPECT_TRUE(Start().text.endsWith("program one two\n"));
  Await([this] { return IsThere("made"); });
  EXPECT_FALSE(IsThere("drives/c/bramlee/aud/.complete"));
  Start();  // nor are they made twice at once
  Write("heard", "yes");
  AwaitSounds();
  EXPECT_EQ(Read("made").count('\n'), 1);
}

TEST_F(FirstStart, IsTheOnlyStartThatPrintsAndMakesAnything) {
  Start();
  AwaitSounds();
  EXPECT_EQ(Start().text, "program one two\n");
  EXPECT_EQ(Read("made").count('\n'), 1);
}

TEST_F(FirstStart, MissingSoundsAreMadeAtTheNextStart) {
  const QByteArray made = QFile::encodeName(In("made"));
  Maker("[ $(wc -l <" + made + ") -gt 1 ]");  // fails the first time
  Start();
  Await([this] { return Read("made").count('\n') == 1; });
  EXPECT_TRUE(Start().text.contains("Making the sounds"));
  // The first one's lock may have stood a moment longer than its note.
  Await([this] { return Read("made").count('\n') > 1 || (Start(), false); });
  AwaitSounds();
}

TEST_F(FirstStart, LeavesWhatIsThereAloneWhateverItsCase) {
  QDir().mkpath(In("drives/C/BRAMLEE/Dba"));
  QDir().mkpath(In("drives/C/BRAMLEE/AUD"));
  Write("drives/C/BRAMLEE/IDCARD.JPG", "my own");
  EXPECT_FALSE(Start().text.contains("Laying out"));
  Await([this] { return IsThere("drives/C/BRAMLEE/AUD/.complete"); });
  EXPECT_EQ(Start().text, "program one two\n");
  EXPECT_EQ(QDir(In("drives")).entryList(QDir::Dirs | QDir::NoDotAndDotDot),
            QStringList{QStringLiteral("C")});
  EXPECT_EQ(QDir(In("drives/C/BRAMLEE")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
            (QStringList{QStringLiteral("AUD"), QStringLiteral("Dba"), QStringLiteral("IDCARD.JPG"),
                         QStringLiteral("school.jpg")}));
  EXPECT_EQ(Read("drives/C/BRAMLEE/IDCARD.JPG"), "my own");
  EXPECT_EQ(Read("made"), "--quiet " + QFile::encodeName(In("drives/C")) + '\n');
}

TEST_F(FirstStart, TakesTheNamesThatTheProgramFindsWhereSomeDifferInCase) {
  for (const char* folder :
       {"BRAMLEE/aud", "bramlee/AUD", "bramlee/Aud", "bramlee/DBA", "bramlee/dba", "Bramlee"}) {
    QDir().mkpath(In("drives/c/") + QString::fromLatin1(folder));
  }
  Write("drives/c/BRAMLEE/idcard.jpg", "another folder's");
  Start();
  Await([this] { return IsThere("drives/c/bramlee/AUD/.complete"); });
  EXPECT_EQ(Read("drives/c/bramlee/idcard.jpg"), "the pack's idcard.jpg");
  EXPECT_FALSE(IsThere("drives/c/BRAMLEE/school.jpg"));
  EXPECT_EQ(QDir(In("drives/c/bramlee")).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 4);
}

TEST_F(FirstStart, RunsTheProgramEvenWhenNoPathIsFound) {
  QFile::remove(In("libexec/bramlee/bramlee-path"));
  const Told told = Start();
  EXPECT_EQ(told.status, 3);
  EXPECT_EQ(told.text, "program one two\n");
  EXPECT_TRUE(told.errors.endsWith(
      "Drive C: could not be laid out; the program starts without its files.\n"));
  EXPECT_FALSE(IsThere("made"));
}

TEST_F(FirstStart, MakesNoSoundsWhenTheyAreNotWanted) {
  const Told told = Start({QStringLiteral("BRAMLEE_SOUNDS=no")});
  EXPECT_FALSE(told.text.contains("sounds"));
  EXPECT_TRUE(told.text.endsWith("program one two\n"));
  EXPECT_FALSE(IsThere("made"));
  EXPECT_TRUE(IsThere("drives/c/bramlee/dba"));
}

TEST_F(FirstStart, AMissingDriveIsReportedAndTheProgramRuns) {
  QDir().mkpath(In("drives"));
  QFile::link(In("unplugged"), In("drives/c"));
  const Told gone = Start();
  EXPECT_EQ(gone.text, "program one two\n");
  EXPECT_EQ(gone.status, 3);
  EXPECT_TRUE(gone.errors.endsWith("Drive C: could not be laid out in " +
                                   QFile::encodeName(In("drives")) +
                                   "; the program starts without its files.\n"))
      << gone.errors.constData();
  EXPECT_FALSE(IsThere("made"));
  EXPECT_FALSE(IsThere("unplugged"));
}

TEST_F(FirstStart, AFileInAFoldersPlaceIsLeftAloneAndReported) {
  QDir().mkpath(In("drives/c/bramlee"));
  Write("drives/c/bramlee/aud", "mine");
  const Told told = Start();
  EXPECT_TRUE(told.text.endsWith("program one two\n"));
  EXPECT_TRUE(told.errors.contains("could not be laid out"));
  EXPECT_EQ(Read("drives/c/bramlee/aud"), "mine");
}

TEST_F(FirstStart, FindsTheFolderOfDrivesWhereTheProgramDoes) {
  Start({QStringLiteral("BRAMLEE_DRIVES="), QStringLiteral("XDG_DATA_HOME=") + In("data")});
  EXPECT_TRUE(IsThere("data/bramlee/drives/c/bramlee/dba"));
  Start({QStringLiteral("BRAMLEE_DRIVES="), QStringLiteral("XDG_DATA_HOME="),
         QStringLiteral("HOME=") + In("home")});
  EXPECT_TRUE(IsThere("home/.local/share/bramlee/drives/c/bramlee/dba"));
  Await([this] {
    return IsThere("data/bramlee/drives/c/bramlee/aud/.complete") &&
           IsThere("home/.local/share/bramlee/drives/c/bramlee/aud/.complete");
  });
}

}  // namespace
}  // namespace bramlee
