// Draws all pictures of the program into a folder, with the list that puts them into it.
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QTextStream>

#include "assets/pictures.h"
#include "letters/letter_names.h"
#include "letters/letter_sets.h"

namespace bramlee {
namespace {

/// The folder and the list of what has been drawn into it.
struct Album {
  QDir folder;
  QStringList names;
  bool failed = false;
};

void Keep(Album& album, const QString& name, const QImage& picture) {
  constexpr int kQuality = 88;
  album.folder.mkpath(QFileInfo(name).path());
  if (!picture.save(album.folder.filePath(name), nullptr, kQuality)) album.failed = true;
  album.names.append(name);
}

void DrawTiles(Album& album) {
  for (const Subject& subject : Subjects()) {
    const QString set = QString::fromUtf8(subject.letterSet.data(),
                                          static_cast<qsizetype>(subject.letterSet.size()));
    for (int tile = 1; tile <= FindLetterSet(subject.letterSet)->tiles; ++tile) {
      if (ShowsLettering(subject.letterSet, tile)) continue;  // its picture lies on the sheet
      Keep(album, QStringLiteral("%1/%2.jpg").arg(set).arg(tile), TilePicture(subject, tile));
    }
  }
  Keep(album, QStringLiteral("hinv/0.jpg"), LetteringPicture());
  for (int set = 1; set <= 3; ++set) {
    Keep(album, QStringLiteral("hinc/set%1.jpg").arg(set), SetButtonPicture(set));
  }
  for (int sign = 11; sign <= 15; ++sign) {
    Keep(album, QStringLiteral("mat/sign%1.jpg").arg(sign), SignPicture(sign));
  }
  Keep(album, QStringLiteral("mat/equal.jpg"), SignPicture(16));
  Keep(album, QStringLiteral("mat/table.jpg"), TableButtonPicture());
}

void DrawForms(Album& album) {
  int number = 0;
  for (const Subject& subject : Subjects()) {
    Keep(album, QStringLiteral("home/%1.jpg").arg(++number), SubjectPicture(subject));
    const bool charted =
        subject.letterSet.starts_with("hin") || subject.letterSet.starts_with("tel");
    if (!charted) continue;
    Keep(album,
         QStringLiteral("charts/%1.jpg")
             .arg(QString::fromUtf8(subject.letterSet.data(),
                                    static_cast<qsizetype>(subject.letterSet.size()))),
         ChartPicture(subject));
  }
  Keep(album, QStringLiteral("card/idcard.jpg"), IdCardPicture());
  Keep(album, QStringLiteral("card/school.jpg"), SchoolPicture());
  Keep(album, QStringLiteral("bramlee.png"), IconPicture());
}

bool WriteList(const Album& album) {
  QFile list(album.folder.filePath(QStringLiteral("pictures.qrc")));
  if (!list.open(QIODevice::WriteOnly)) return false;
  QTextStream out(&list);
  out << "<RCC><qresource prefix=\"/pictures\">\n";
  for (const QString& name : album.names) out << "<file>" << name << "</file>\n";
  out << "</qresource></RCC>\n";
  out.flush();
  return out.status() == QTextStream::Ok;
}

}  // namespace
}  // namespace bramlee

int main(int argc, char** argv) {
  QGuiApplication app(argc, argv);
  if (argc != 2) {
    QTextStream(stderr) << "usage: bramlee_make_pictures FOLDER\n";
    return 2;
  }
  bramlee::Album album{.folder = QDir(QString::fromLocal8Bit(argv[1])), .names = {}};
  bramlee::DrawTiles(album);
  bramlee::DrawForms(album);
  const bool listed = bramlee::WriteList(album);
  if (album.failed || !listed) {
    QTextStream(stderr) << "a picture could not be written to " << argv[1] << "\n";
    return 1;
  }
  return 0;
}
