// bramlee-sounds: fills a drive with the sounds of all boards.
#include <unistd.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <optional>
#include <thread>

#include "tools/sounds_maker/number_words.h"
#include "tools/sounds_maker/sound_maker.h"
#include "voice/media_tree.h"
#include "voice/own_sounds.h"

namespace bramlee {
namespace {

constexpr int kDone = 0;
constexpr int kSomeMissing = 1;
constexpr int kBadArguments = 2;

const QString kNumbers = QString::fromLatin1(kNumberSounds.name);
const QString kWorkFolder = QStringLiteral(".bramlee-sounds-");

void Say(const QString& text) {
  std::fprintf(stderr, "bramlee-sounds: %s\n", qPrintable(text));
}

/// What the command line asks for.
struct Wanted {
  QString drive;
  QString tables;
  QStringList sets;
  QStringList formats;
  QStringList numberFormats;
  int firstNumber = 0;
  int lastNumber = 0;
  int threads = 1;
  bool overwrite = false;
  bool quiet = false;
  bool phonemes = false;
};

QStringList AllSets() {
  QStringList names;
  for (const SoundSet& set : kSoundSets) names.append(QString::fromLatin1(set.name));
  return names << kNumbers;
}

/// The tables of an installed maker, or those of the checkout it was built from.
QString TablesFolder() {
  const QDir programs(QCoreApplication::applicationDirPath());
  const QString installed = programs.filePath(QStringLiteral("../share/bramlee/sounds"));
  return QFileInfo(installed).isDir() ? installed : QStringLiteral(BRAMLEE_SOUND_TABLES);
}

QStringList ListOf(const QString& text, const QStringList& known, QString& wrong) {
  QStringList list = text.split(u',', Qt::SkipEmptyParts);
  for (const QString& entry : std::as_const(list)) {
    if (!known.contains(entry)) wrong = entry;
  }
  if (list.isEmpty()) wrong = QStringLiteral("an empty list");
  return list;
}

bool TakeNumbers(const QString& text, Wanted& wanted) {
  const QStringList ends = text.split(u'-');
  bool first = false;
  bool last = false;
  wanted.firstNumber = ends.first().toInt(&first);
  wanted.lastNumber = ends.last().toInt(&last);
  return ends.size() <= 2 && first && last && wanted.firstNumber >= 0 &&
         wanted.firstNumber <= wanted.lastNumber && wanted.lastNumber <= kLargestSpelled;
}

std::optional<Wanted> ReadCommandLine() {
  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral(
      "Speaks the letters and numbers of all boards into sound files below DRIVE/bramlee/aud.\n"
      "Files that are there are kept, so it can be stopped and taken up again."));
  const auto option = [&parser](const char* name, const QString& help, const char* value,
                                const QString& standard) {
    const QCommandLineOption made(QString::fromLatin1(name), help, QString::fromLatin1(value),
                                  standard);
    parser.addOption(made);
    return made;
  };
  const QString all = AllSets().join(u',');
  const auto sets = option("sets", QStringLiteral("Sets to make, of %1.").arg(all), "list", all);
  const auto formats = option("formats", QStringLiteral("Formats of letters and tiles."), "list",
                              QStringLiteral("wma,mp3,wav"));
  const auto numbers = option("numbers", QStringLiteral("Whole numbers of the set matc, to 9999."),
                              "first-last", QStringLiteral("0-999"));
  const auto numberFormats = option("number-formats", QStringLiteral("Formats of whole numbers."),
                                    "list", QStringLiteral("wma"));
  const auto tables = option("tables", QStringLiteral("Folder of what is spoken, a table a set."),
                             "folder", TablesFolder());
  const auto jobs = option("jobs", QStringLiteral("Sounds made at once."), "number",
                           QString::number(std::max(1U, std::thread::hardware_concurrency())));
  const QCommandLineOption overwrite(QStringLiteral("overwrite"),
                                     QStringLiteral("Replaces files that are there."));
  const QCommandLineOption phonemes(
      QStringLiteral("phonemes"),
      QStringLiteral("Makes nothing; tells what is spoken, and how, for each file."));
  const QCommandLineOption quiet(QStringLiteral("quiet"), QStringLiteral("Tells errors only."));
  parser.addOptions({overwrite, phonemes, quiet});
  parser.addPositionalArgument(QStringLiteral("DRIVE"), QStringLiteral("The drive's folder."));
  parser.addHelpOption();
  parser.addVersionOption();
  if (!parser.parse(QCoreApplication::arguments())) {
    Say(parser.errorText());
    return {};
  }
  if (parser.isSet(QStringLiteral("help"))) parser.showHelp();
  if (parser.isSet(QStringLiteral("version"))) parser.showVersion();

  const QStringList knownFormats{QStringLiteral("wma"), QStringLiteral("mp3"),
                                 QStringLiteral("wav")};
  QString wrong;
  Wanted wanted;
  wanted.sets = ListOf(parser.value(sets), AllSets(), wrong);
  wanted.formats = ListOf(parser.value(formats), knownFormats, wrong);
  wanted.numberFormats = ListOf(parser.value(numberFormats), knownFormats, wrong);
  wanted.tables = parser.value(tables);
  wanted.overwrite = parser.isSet(overwrite);
  wanted.quiet = parser.isSet(quiet);
  wanted.phonemes = parser.isSet(phonemes);
  wanted.threads = parser.value(jobs).toInt();
  if (!TakeNumbers(parser.value(numbers), wanted)) wrong = parser.value(numbers);
  if (wanted.threads < 1) wrong = parser.value(jobs);
  const QStringList places = parser.positionalArguments();
  if (places.size() != (wanted.phonemes ? 0 : 1)) {
    Say(wanted.phonemes ? QStringLiteral("--phonemes takes no DRIVE")
                        : QStringLiteral("one DRIVE is wanted; --help tells more"));
    return {};
  }
  if (!wrong.isEmpty()) {
    Say(QStringLiteral("not understood: ") + wrong);
    return {};
  }
  wanted.drive = wanted.phonemes ? QString() : places.first();
  return wanted;
}

/// A sound and its formats.
struct Entry {
  Spoken spoken;
  QStringList formats;
};

std::optional<QList<Entry>> ReadTables(const Wanted& wanted) {
  QList<Entry> entries;
  for (const SoundSet& set : kSoundSets) {
    if (!wanted.sets.contains(QString::fromLatin1(set.name))) continue;
    QString error;
    for (const Spoken& spoken : ReadSpokenTable(set, wanted.tables, error)) {
      entries.append({spoken, wanted.formats});
    }
    if (!error.isEmpty()) {
      Say(error);
      return {};
    }
  }
  if (wanted.sets.contains(kNumbers)) {
    for (const Spoken& spoken : SpokenNumbers(wanted.firstNumber, wanted.lastNumber)) {
      entries.append({spoken, wanted.numberFormats});
    }
  }
  return entries;
}

bool HasProgram(const char* name) {
  if (!QStandardPaths::findExecutable(QString::fromLatin1(name)).isEmpty()) return true;
  Say(QStringLiteral("the program %1 is needed; install the package of that name")
          .arg(QString::fromLatin1(name)));
  return false;
}

int TellPhonemes(const QList<Entry>& entries) {
  for (const Entry& entry : entries) {
    const Spoken& spoken = entry.spoken;
    const QString line =
        QStringList{spoken.file, spoken.shows, spoken.text, PhonemesOf(spoken)}.join(u'\t');
    std::printf("%s\n", line.toUtf8().constData());
  }
  return kDone;
}

/// The sounds that are missing, or all but those in a voice of one's own.
std::optional<QList<SoundJob>> JobsFor(const QList<Entry>& entries, const OwnSounds& own,
                                       MediaTree& tree, bool overwrite) {
  QList<SoundJob> jobs;
  for (const Entry& entry : entries) {
    if (own.IsRecorded(entry.spoken.file)) continue;
    SoundJob job{.spoken = entry.spoken, .targets = {}};
    for (const QString& format : entry.formats) {
      const QString path = tree.PathOf(entry.spoken.file + u'.' + format);
      if (path.isEmpty()) return {};
      if (overwrite || !MediaTree::IsThere(path)) job.targets.append(path);
    }
    if (!job.targets.isEmpty()) jobs.append(job);
  }
  return jobs;
}

/// Removes what a stopped maker left behind.
void RemoveOldWork(const QString& root) {
  const QDir folder(root);
  for (const QString& old :
       folder.entryList({kWorkFolder + u'*'}, QDir::Dirs | QDir::Hidden | QDir::NoSymLinks)) {
    QDir(folder.filePath(old)).removeRecursively();
  }
}

int Fill(const Wanted& wanted, const QList<Entry>& entries) {
  if (!QFileInfo(wanted.drive).isDir()) {
    Say(QStringLiteral("no such folder: ") + wanted.drive);
    return kBadArguments;
  }
  MediaTree tree(wanted.drive);
  const auto noFolder = [&wanted] {
    Say(QStringLiteral("no folder can be made in ") + wanted.drive);
    return kSomeMissing;
  };
  if (tree.Root().isEmpty()) return noFolder();
  const OwnSounds own(wanted.drive);
  own.Finish();
  const SoundsLock lock(tree.Root());
  if (!lock.Holds()) {
    Say(lock.IsHeldByAnother() ? QStringLiteral("another maker is at work there")
                               : QStringLiteral("nothing can be written in ") + tree.Root());
    return kSomeMissing;
  }
  const auto jobs = JobsFor(entries, own, tree, wanted.overwrite);
  if (!jobs) return noFolder();
  RemoveOldWork(tree.Root());
  const QTemporaryDir work(tree.Root() + u'/' + kWorkFolder + QStringLiteral("XXXXXX"));
  const bool onScreen = isatty(STDERR_FILENO) != 0;
  const auto progress = [&](qsizetype done) {
    if (wanted.quiet) return;
    const QString line = QStringLiteral("bramlee-sounds: %1 of %2").arg(done).arg(jobs->size());
    std::fprintf(stderr, "%s%s%s", onScreen ? "\r" : "", qPrintable(line),
                 onScreen && done < jobs->size() ? "" : "\n");
  };
  const SoundMaker maker(work.path(), wanted.overwrite);
  const QStringList failed = maker.Make(*jobs, wanted.threads, progress);
  if (failed.isEmpty()) return kDone;
  Say(QStringLiteral("%1 could not be made, the first is %2").arg(failed.size()).arg(failed[0]));
  return kSomeMissing;
}

int Main() {
  const auto wanted = ReadCommandLine();
  if (!wanted) return kBadArguments;
  const auto entries = ReadTables(*wanted);
  if (!entries) return kBadArguments;
  if (!HasProgram("espeak-ng")) return kSomeMissing;
  if (wanted->phonemes) return TellPhonemes(*entries);
  if (!HasProgram("ffmpeg")) return kSomeMissing;
  return Fill(*wanted, *entries);
}

}  // namespace
}  // namespace bramlee

int main(int argc, char** argv) {
  const QCoreApplication app(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("bramlee-sounds"));
  QCoreApplication::setApplicationVersion(QStringLiteral(BRAMLEE_VERSION));
  return bramlee::Main();
}
