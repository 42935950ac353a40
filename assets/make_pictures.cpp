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

/// Of a JPEG picture; any picture of no loss takes least room at 0.
constexpr int kQuality = 88;

void Keep(Album& album, const QString& name, const QImage& picture, int quality = kQuality) {
  album.folder.mkpath(QFileInfo(name).path());
  if (!picture.save(album.folder.filePath(name), nullptr, quality)) album.failed = true;
  album.names.append(name);
}

/// How many times as many pixels a large picture has, each way. A board that fits a window of 3840
/// by 2160 pixels is up to 3.7 times as large as designed; at a pixel ratio of 2 the picture of a
/// tile 60 by 55 pixels large then takes 400 by 363 of the screen's.
constexpr double kLarger = 1.75;

/// The colours of drawing in two inks on that ground: the inks, and what lies between each and the
/// ground at the edge of a line.
QList<QRgb> Palette(const QColor& ground, const QColor& ink, const QColor& otherInk) {
  constexpr int kShades = 64;
  QList<QRgb> colours;
  for (const QColor& drawn : {ink, otherInk}) {
    const auto mixed = [&](int from, int to, int shade) {
      return (from * (kShades - shade) + to * shade + kShades / 2) / kShades;
    };
    for (int shade = 0; shade <= kShades; ++shade) {
      colours.append(qRgb(mixed(ground.red(), drawn.red(), shade),
                          mixed(ground.green(), drawn.green(), shade),
                          mixed(ground.blue(), drawn.blue(), shade)));
    }
  }
  return colours;
}

/// Keeps a picture that stands on a board, drawn by `draw(larger)`, in both its sizes. The large
/// ones are for few windows: with a palette they take a third of the room.
template <class Draw>
void KeepBoth(Album& album, const QString& name, const Subject& subject, Draw draw) {
  Keep(album, name + QStringLiteral(".jpg"), draw(1.0));
  const QImage large = draw(kLarger);
  const QList<QRgb> palette = Palette(large.pixelColor(0, 0), subject.ink, kPrintColour);
  Keep(album, name + QStringLiteral("_large.png"),
       large.convertToFormat(QImage::Format_Indexed8, palette, Qt::ThresholdDither), 0);
}

Subject InTheBook(const Subject& subject) {
  Subject book = subject;
  book.book = true;
  return book;
}

void DrawTiles(Album& album) {
  for (const Subject& subject : Subjects()) {
    const QString set = QString::fromUtf8(subject.letterSet.data(),
                                          static_cast<qsizetype>(subject.letterSet.size()));
    for (int tile = 1; tile <= FindLetterSet(subject.letterSet)->tiles; ++tile) {
      if (ShowsLettering(subject.letterSet, tile)) continue;  // its picture lies on the sheet
      KeepBoth(album, QStringLiteral("%1/%2").arg(set).arg(tile), subject,
               [&](double larger) { return TilePicture(subject, tile, larger); });
      if (!HasBookForm(*FindLetterSet(subject.letterSet), tile)) continue;
      KeepBoth(album, QStringLiteral("book/%1/%2").arg(set).arg(tile), subject,
               [&](double larger) { return TilePicture(InTheBook(subject), tile, larger); });
    }
  }
  KeepBoth(album, QStringLiteral("hinv/0"), Subjects()[2], LetteringPicture);
  for (int set = 1; set <= 3; ++set) {
    KeepBoth(album, QStringLiteral("hinc/set%1").arg(set), Subjects()[3],
             [set](double larger) { return SetButtonPicture(set, larger); });
  }
  const Subject& maths = Subjects()[6];
  for (int sign = 11; sign <= 15; ++sign) {
    KeepBoth(album, QStringLiteral("mat/sign%1").arg(sign), maths,
             [sign](double larger) { return SignPicture(sign, larger); });
  }
  KeepBoth(album, QStringLiteral("mat/equal"), maths,
           [](double larger) { return SignPicture(16, larger); });
  KeepBoth(album, QStringLiteral("mat/table"), maths, TableButtonPicture);
}

void DrawForms(Album& album) {
  int number = 0;
  for (const Subject& subject : Subjects()) {
    Keep(album, QStringLiteral("home/%1.jpg").arg(++number), SubjectPicture(subject));
    const bool charted =
        subject.letterSet.starts_with("hin") || subject.letterSet.starts_with("tel");
    if (!charted) continue;
    const QString chart =
        QStringLiteral("charts/%1.jpg")
            .arg(QString::fromUtf8(subject.letterSet.data(),
                                   static_cast<qsizetype>(subject.letterSet.size())));
    Keep(album, chart, ChartPicture(subject));
    Keep(album, QStringLiteral("book/") + chart, ChartPicture(InTheBook(subject)));
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
