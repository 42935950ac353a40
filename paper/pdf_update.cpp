#include "paper/pdf_update.h"

#include <QString>

namespace bramlee {
namespace {

/// An object of the document: its number, and what stands between "obj" and "endobj".
struct PdfObject {
  int number = 0;
  QByteArray body;
};

/// The number behind a name, as 12 in "/Root 12 0 R"; -1 when the name is not there.
int NumberBehind(const QByteArray& dictionary, const char* name) {
  const auto at = dictionary.indexOf(name);
  if (at < 0) return -1;
  const QByteArray rest = dictionary.mid(at + static_cast<qsizetype>(qstrlen(name))).trimmed();
  qsizetype digits = 0;
  while (digits < rest.size() && rest[digits] >= '0' && rest[digits] <= '9') ++digits;
  return digits == 0 ? -1 : rest.left(digits).toInt();
}

/// What is read of a document, by its own table of objects.
class PdfReader {
 public:
  explicit PdfReader(const QByteArray& pdf) : pdf_(pdf) {
    const auto behind = pdf.lastIndexOf("startxref");
    const auto trailer = pdf.lastIndexOf("trailer");
    if (behind < 0 || trailer < 0 || trailer > behind) return;
    table_ = NumberBehind(pdf.mid(behind), "startxref");
    trailer_ = pdf.mid(trailer, behind - trailer);
  }

  int Table() const { return table_; }
  int Size() const { return NumberBehind(trailer_, "/Size"); }

  std::optional<PdfObject> ObjectNamed(const char* name) const {
    const int number = NumberBehind(trailer_, name);
    const int from = PlaceOf(number);
    const QByteArray head = QByteArray::number(number) + " 0 obj";
    if (from < 0 || pdf_.mid(from, head.size()) != head) return std::nullopt;
    const auto end = pdf_.indexOf("endobj", from);
    if (end < 0) return std::nullopt;
    return PdfObject{.number = number,
                     .body = pdf_.mid(from + head.size(), end - from - head.size()).trimmed()};
  }

 private:
  /// Where an object begins; -1 for one that the table does not have. The table is one part, and
  /// each line of it 20 bytes, as the format has them.
  int PlaceOf(int number) const {
    constexpr qsizetype kTableLine = 20;
    constexpr char kHead[] = "xref\n0 ";
    if (number < 0 || table_ < 0 || pdf_.mid(table_, 7) != kHead) return -1;
    const auto lines = pdf_.indexOf('\n', table_ + 7) + 1;
    if (lines == 0 || number >= NumberBehind(pdf_.mid(table_, 40), kHead)) return -1;
    return pdf_.mid(lines + number * kTableLine, 10).toInt();
  }

  QByteArray pdf_;
  QByteArray trailer_;
  int table_ = -1;
};

/// A text of any script as a string of the format: in UTF-16.
QByteArray PdfString(const QString& text) {
  QByteArray bytes = "FEFF";
  for (const QChar unit : text)
    bytes += QByteArray::number(unit.unicode(), 16).rightJustified(4, '0');
  return '<' + bytes.toUpper() + '>';
}

/// The object with one entry more in its dictionary; empty when it has none.
QByteArray WithEntry(const PdfObject& object, const QByteArray& entry) {
  if (!object.body.startsWith("<<") || !object.body.endsWith(">>")) return {};
  return QByteArray::number(object.number) + " 0 obj\n" + object.body.chopped(2) + entry +
         "\n>>\nendobj\n";
}

QByteArray TableLine(qsizetype place) {
  return QByteArray::number(place).rightJustified(10, '0') + " 00000 n \n";
}

}  // namespace

std::optional<QByteArray> WithAuthorAndLanguage(const QByteArray& pdf, const DocumentInfo& info) {
  const PdfReader reader(pdf);
  const auto catalog = reader.ObjectNamed("/Root");
  const auto about = reader.ObjectNamed("/Info");
  if (!catalog || !about || reader.Size() < 0) return std::nullopt;
  const QByteArray newCatalog =
      WithEntry(*catalog, "\n/Lang (" + info.language.toLatin1() +
                              ")\n/ViewerPreferences <</DisplayDocTitle true>>");
  const QByteArray newAbout = WithEntry(*about, "\n/Author " + PdfString(info.author));
  if (newCatalog.isEmpty() || newAbout.isEmpty()) return std::nullopt;

  QByteArray whole = pdf;
  if (!whole.endsWith('\n')) whole += '\n';
  const qsizetype catalogAt = whole.size();
  whole += newCatalog;
  const qsizetype aboutAt = whole.size();
  whole += newAbout;
  const qsizetype tableAt = whole.size();
  whole += "xref\n" + QByteArray::number(catalog->number) + " 1\n" + TableLine(catalogAt) +
           QByteArray::number(about->number) + " 1\n" + TableLine(aboutAt);
  whole += "trailer\n<<\n/Size " + QByteArray::number(reader.Size()) + "\n/Info " +
           QByteArray::number(about->number) + " 0 R\n/Root " +
           QByteArray::number(catalog->number) + " 0 R\n/Prev " +
           QByteArray::number(reader.Table()) + "\n>>\nstartxref\n" + QByteArray::number(tableAt) +
           "\n%%EOF\n";
  return whole;
}

}  // namespace bramlee
