#include "ui/report.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include "files/err_rep_rec.h"
#include "files/error_report.h"
#include "home/home.h"
#include "tests/files/faulty_disk.h"
#include "tests/files/temp_drives.h"
#include "tests/ui/real_boxes.h"
#include "ui/form.h"
#include "ui/screen.h"

namespace bramlee {
namespace {

const QString kNotice = QStringLiteral("fcomsav1");

QByteArray Padded(const char* text, int width) {
  return QByteArray(text).leftJustified(width, ' ');
}

/// A record of the file, byte by byte.
QByteArray Record(char count, const char* serial, const QByteArray& message) {
  QByteArray bytes(1, count);
  bytes += QByteArray(3, '\0');
  return bytes + Padded(serial, 20) + message.leftJustified(100, ' ', true) + Padded("", 26);
}

class Report : public TempDrives {
 protected:
  Report() {
    RegisterHome({});
    environment.screen = ScreenSize{.width = 15360, .height = 11520};
  }

  QString Place() const { return On("c/bramlee/dba/errrepv0.dat"); }
  QByteArray File() const { return BytesOf(Place()); }
  static void Append(const QString& text) {
    ErrInfo err{.ErrTag = QStringLiteral("603:01"), .ErrText = text};
    AppendErrorReport(err);
  }
  static void Tell(const QString& text) {
    ErrInfo err{.ErrTag = QStringLiteral("603:01"), .ErrText = text};
    ReportError(err);
  }
};

TEST_F(Report, TheFirstOneMakesTheFile) {
  MakeDataFolder();
  Append(QStringLiteral("  Error:Unload all "));
  EXPECT_EQ(File(), Record(1, "S.No:1:", "Error:Unload all"));
  EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(Report, CarriesTheSerialOfRecordOneAndTheNewCount) {
  MakeDataFolder();
  for (const char* text : {"one", "", "three", "four"}) Append(QString::fromLatin1(text));
  EXPECT_EQ(File(), Record(4, "S.No:1:", "one") + Record(2, "S.No:2:S.No:1:", "") +
                        Record(3, "S.No:3:S.No:1:", "three") + Record(4, "S.No:4:S.No:1:", "four"));
}

TEST_F(Report, CutsItsTexts) {
  MakeDataFolder();
  Append(QString(150, u'x'));
  EXPECT_EQ(File(), Record(1, "S.No:1:", QByteArray(100, 'x')));
  // A serial that fills its field leaves no room for the one it carries.
  WriteBytes(Place(), Record(1, "12345678901234567890", "x"));
  Append(QStringLiteral("y"));
  EXPECT_EQ(File().mid(150), Record(2, "S.No:2:1234567890123", "y"));
}

TEST_F(Report, IsStoredInTheFilesCodePage) {
  MakeDataFolder();
  Append(QStringLiteral("Caf\u00e9 \u20ac \u0905\U0001F600"));
  EXPECT_EQ(File(), Record(1, "S.No:1:", "Caf\xe9 \x80 ??"));
}

TEST_F(Report, WithoutTheFolderEndsInABox) {
  Append(QStringLiteral("x"));
  EXPECT_EQ(boxes, QStringList(QStringLiteral("ErrorReportNotResponding")));
  boxes.clear();
  Tell(QStringLiteral("x"));
  EXPECT_EQ(boxes, QStringList(QStringLiteral("ErrorReportNotResponding")));
  EXPECT_FALSE(QFile::exists(On("c/bramlee")));
  UnloadAll();
  const auto seen = WithRealBoxes([] { Tell(QStringLiteral("x")); });
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].text, QStringLiteral("ErrorReportNotResponding"));
  EXPECT_EQ(seen[0].spoken, seen[0].text);
  EXPECT_TRUE(seen[0].plain);
}

TEST_F(Report, OnAFileHeldByAnotherProgramEndsInABox) {
  MakeDataFolder();
  Append(QStringLiteral("one"));
  const int held = open(QFile::encodeName(Place()).constData(), O_RDWR);
  ASSERT_EQ(flock(held, LOCK_EX), 0);
  Tell(QStringLiteral("two"));
  close(held);
  EXPECT_EQ(boxes, QStringList(QStringLiteral("ErrorReportNotResponding")));
  EXPECT_EQ(File(), Record(1, "S.No:1:", "one"));
  Tell(QStringLiteral("two"));
  EXPECT_EQ(File().size(), 300);
}

TEST_F(Report, GoesBehindWhatIsThereWhenTheCountCannotBe) {
  MakeDataFolder();
  const QByteArray two = Record(0, "S.No:1:", "one") + Record(2, "S.No:2:S.No:1:", "two");
  for (const QByteArray& count :
       {QByteArray("\xff\xff\xff\x7f", 4), QByteArray("\xff\xff\xff\xff", 4),
        QByteArray("\x00\x00\x00\x80", 4), QByteArray("\x03\x00\x00\x00", 4)}) {
    WriteBytes(Place(), count + two.mid(4));
    Append(QStringLiteral("three"));
    EXPECT_EQ(File(),
              Record(3, "S.No:1:", "one") + two.mid(150) + Record(3, "S.No:3:S.No:1:", "three"));
  }
}

TEST_F(Report, ReadsACutFileAsFarAsItGoes) {
  MakeDataFolder();
  for (int length = 0; length < 300; ++length) {
    const QByteArray old =
        (Record(2, "S.No:1:", "one") + Record(2, "S.No:2:S.No:1:", "two")).left(length);
    WriteBytes(Place(), old);
    Append(QStringLiteral("new"));
    EXPECT_TRUE(boxes.isEmpty());
    EXPECT_EQ(File().size() % 150, 0);
    EXPECT_LE(File().size(), 450);
    EXPECT_TRUE(File().contains("new"));
    EXPECT_EQ(File().left(150).contains("one"), old.contains("one")) << length;
  }
}

TEST_F(Report, IsWrittenWholeOrNotAtAllWhereverTheProgramIsKilled) {
  MakeDataFolder();
  for (const QByteArray& old : {QByteArray(), Record(1, "S.No:1:", "one")}) {
    const auto putBack = [&] {
      QFile::remove(Place());
      if (!old.isNull()) WriteBytes(Place(), old);
    };
    putBack();
    const auto append = [] { Append(QStringLiteral("new")); };
    const int calls = static_cast<int>(WithDisk({}, append).size());
    const QByteArray saved = File();
    for (int n = 1; n <= calls; ++n) {
      putBack();
      ASSERT_TRUE(DiesWithDisk({.at = n, .kill = true}, append));
      if (!QFile::exists(Place())) {
        EXPECT_TRUE(old.isNull());
      } else {
        EXPECT_TRUE(File() == saved || (!old.isNull() && File() == old)) << "call " << n;
      }
      putBack();
      WithDisk({.at = n, .error = 28}, append);  // no space left
      EXPECT_EQ(!QFile::exists(Place()) ? QByteArray() : File(), boxes.isEmpty() ? saved : old);
      boxes.clear();
    }
  }
}

class Notice : public Report {
 protected:
  Notice() { MakeDataFolder(); }
  static QString Words() {
    return LoadedForm(kNotice)->Named<Label>(QStringLiteral("lbl1"))->text();
  }
  static QTimer* Timer() { return LoadedForm(kNotice)->Named<QTimer>(QStringLiteral("Timer1")); }
};

TEST_F(Notice, StandsForThreeSecondsFromItsLoad) {
  Form* notice = LoadForm(kNotice);
  EXPECT_EQ(notice->windowTitle(), QStringLiteral("SAVE"));
  EXPECT_EQ(Words(), QStringLiteral("     Saved "));
  EXPECT_EQ(notice->TextOf(QStringLiteral("txtmsg")), QString());
  EXPECT_EQ(notice->TextOf(QStringLiteral("txtpwd")), QString());
  EXPECT_TRUE(Timer()->isActive());
  EXPECT_EQ(Timer()->interval(), 3000);
  QMetaObject::invokeMethod(Timer(), "timeout");
  EXPECT_EQ(LoadedForm(kNotice), nullptr);
}

TEST_F(Notice, LaysItselfOutFromTheScreen) {
  const Form* notice = LoadForm(kNotice);
  const TwipsRect outer = notice->Outer();
  EXPECT_DOUBLE_EQ(outer.width, 9207);   // 15345 * 1.8 / 3
  EXPECT_DOUBLE_EQ(outer.height, 1918);  // 11508 / 6
  EXPECT_DOUBLE_EQ(outer.left, 3076.5);
  EXPECT_DOUBLE_EQ(outer.top, 4801);
  const TwipsRect words = PlaceOf(notice->Named<Label>(QStringLiteral("lbl1")));
  EXPECT_DOUBLE_EQ(words.width, 7365.6);
  EXPECT_DOUBLE_EQ(words.height, 479.5);
  EXPECT_DOUBLE_EQ(words.left, 920.7);
  EXPECT_DOUBLE_EQ(words.top, 719.25);
}

TEST_F(Notice, KeepsItsTextInTheMiddleOfWhatTheTitleBarLeaves) {
  Form* notice = LoadForm(kNotice);
  notice->show();
  notice->resize(notice->width() - 10, notice->height() - 30);
  const QRect words = notice->Named<QWidget>(QStringLiteral("lbl1"))->geometry();
  const QRect below = notice->client()->rect();
  EXPECT_NEAR(words.top(), below.bottom() - words.bottom(), 1);
  EXPECT_NEAR(words.left(), below.right() - words.right(), 1);
}

TEST_F(Notice, ShowsTheTrimmedTextAndThenTheFileHasIt) {
  Tell(QStringLiteral("  Error:Unload all "));
  EXPECT_TRUE(LoadedForm(kNotice)->isVisible());
  EXPECT_EQ(Words(), QStringLiteral("Error:Unload all"));
  EXPECT_EQ(File(), Record(1, "S.No:1:", "Error:Unload all"));
  EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(Notice, OfAnEmptyTextIsShownAndStored) {
  Tell({});
  EXPECT_TRUE(LoadedForm(kNotice)->isVisible());
  EXPECT_EQ(Words(), QString());
  EXPECT_EQ(File(), Record(1, "S.No:1:", ""));
}

TEST_F(Notice, IsCalledByWhatItSays) {
  EXPECT_EQ(LoadForm(kNotice)->accessibleName(), QStringLiteral("Saved"));
  Tell(QStringLiteral("  Error:Unload all "));
  EXPECT_EQ(LoadedForm(kNotice)->accessibleName(), QStringLiteral("Error:Unload all"));
  EXPECT_EQ(LoadForm(QStringLiteral("fbrmsav1"))->accessibleName(), QStringLiteral("Loading..."));
}

TEST_F(Notice, IsNotShownForAnErrorDuringAReport) {
  // The box of a report that cannot be written waits; another error comes meanwhile.
  QDir(On("c/bramlee")).removeRecursively();
  environment.tell = [this](const QString& text) {
    boxes.append(text);
    Tell(QStringLiteral("two"));
  };
  Tell(QStringLiteral("one"));
  EXPECT_EQ(boxes, QStringList(QStringLiteral("ErrorReportNotResponding")));
  EXPECT_EQ(Words(), QStringLiteral("one"));
}

TEST_F(Notice, IsUsedAgainByASecondReportWithoutALongerStay) {
  Tell(QStringLiteral("one"));
  Form* notice = LoadedForm(kNotice);
  QTimer* timer = Timer();
  timer->start(1'000'000);  // a restart would show
  Tell(QStringLiteral("two"));
  EXPECT_EQ(LoadedForm(kNotice), notice);
  EXPECT_EQ(timer->interval(), 1'000'000);
  EXPECT_EQ(Words(), QStringLiteral("two"));
  EXPECT_EQ(File().size(), 300);
}

TEST_F(Notice, ShowsItsTextPlain) {
  Tell(QStringLiteral("<b>C:\\x & y</b>"));
  const auto* label = LoadedForm(kNotice)->Named<Label>(QStringLiteral("lbl1"));
  EXPECT_EQ(label->textFormat(), Qt::PlainText);
  EXPECT_EQ(label->text(), QStringLiteral("<b>C:\\x & y</b>"));
}

TEST_F(Notice, ThatCannotBeLaidOutEndsTheReportInABox) {
  environment.screen = ScreenSize{.width = 1e15, .height = 11520};
  const auto seen = WithRealBoxes([] { Tell(QStringLiteral("x")); });
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].text, QStringLiteral("Message Box Routine: Error"));
  EXPECT_EQ(seen[0].title, QStringLiteral("BRAM LEE"));
  EXPECT_EQ(LoadedForm(kNotice), nullptr);
  EXPECT_FALSE(QFile::exists(Place()));
  environment.screen = ScreenSize{.width = 15360, .height = 11520};
  Tell(QStringLiteral("y"));
  EXPECT_EQ(File(), Record(1, "S.No:1:", "y"));
}

}  // namespace
}  // namespace bramlee
