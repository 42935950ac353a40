#include "tools/sounds_maker/spoken_tables.h"

#include <QFile>
#include <QRegularExpression>

#include "tools/sounds_maker/number_words.h"

namespace bramlee {
namespace {

constexpr int kSlowest = 80;  ///< words a minute, what espeak-ng can do
constexpr int kFastest = 450;

/// Reads a table line by line; `voice` and `speed` hold until they are set anew.
class TableReader {
 public:
  explicit TableReader(QString prefix) : prefix_(std::move(prefix)) {}

  /// Returns what is wrong with the line, empty if nothing is.
  QString Take(const QString& line) {
    if (line.trimmed().isEmpty() || line.startsWith(u'#')) return {};
    const QStringList cells = line.split(u'\t');
    if (cells.size() == 2 && cells[0] == QStringLiteral("voice")) return TakeVoice(cells[1]);
    if (cells.size() == 2 && cells[0] == QStringLiteral("speed")) return TakeSpeed(cells[1]);
    if (cells.size() != 3) return QStringLiteral("three cells parted by tabs are wanted");
    return TakeSound(cells);
  }

  const QList<Spoken>& Rows() const { return rows_; }

 private:
  QString TakeVoice(const QString& voice) {
    static const QRegularExpression kVoice(QStringLiteral(R"(\A[A-Za-z][A-Za-z0-9+-]*\z)"));
    if (!kVoice.match(voice).hasMatch()) return QStringLiteral("no name of a voice");
    voice_ = voice;
    return {};
  }

  QString TakeSpeed(const QString& speed) {
    speed_ = speed.toInt();
    if (speed_ >= kSlowest && speed_ <= kFastest) return {};
    return QStringLiteral("a speed is %1 to %2").arg(kSlowest).arg(kFastest);
  }

  QString TakeSound(const QStringList& cells) {
    static const QRegularExpression kPart(QStringLiteral(R"(\A([a-z]|[0-9]{1,4})\z)"));
    if (!kPart.match(cells[0]).hasMatch()) return QStringLiteral("no letter or number of a tile");
    if (cells[2].trimmed().isEmpty()) return QStringLiteral("nothing to speak");
    if (voice_.isEmpty() || speed_ == 0) return QStringLiteral("no voice or speed above it");
    const QString file = prefix_ + cells[0];
    for (const Spoken& row : std::as_const(rows_)) {
      if (row.file == file) return QStringLiteral("this tile stands above already");
    }
    rows_.append({file, cells[1], voice_, speed_, cells[2].trimmed()});
    return {};
  }

  QString prefix_;
  QString voice_;
  int speed_ = 0;
  QList<Spoken> rows_;
};

}  // namespace

QList<Spoken> ReadSpokenTable(const SoundSet& set, const QString& folder, QString& error) {
  error.clear();
  QFile file(folder + QStringLiteral("/%1.tsv").arg(QString::fromLatin1(set.name)));
  if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
    error = QStringLiteral("%1: %2").arg(file.fileName(), file.errorString());
    return {};
  }
  TableReader reader(FilesOf(set));
  int number = 0;
  while (!file.atEnd()) {
    ++number;
    QString line = QString::fromUtf8(file.readLine());
    if (line.endsWith(u'\n')) line.chop(1);
    const QString wrong = reader.Take(line);
    if (wrong.isEmpty()) continue;
    error = QStringLiteral("%1:%2: %3").arg(file.fileName()).arg(number).arg(wrong);
    return {};
  }
  return reader.Rows();
}

QList<Spoken> SpokenNumbers(int first, int last) {
  QList<Spoken> rows;
  for (int number = first; number <= last; ++number) {
    const QString digits = QString::number(number);
    rows.append({FilesOf(kNumberSounds) + digits, digits, QStringLiteral("en-gb"), 120,
                 NumberWords(number)});
  }
  return rows;
}

}  // namespace bramlee
