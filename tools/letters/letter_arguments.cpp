#include "tools/letters/letter_arguments.h"

#include <algorithm>

namespace bramlee {
namespace {

QString SetName(const LetterSet& set) {
  return QString::fromUtf8(set.name.data(), static_cast<qsizetype>(set.name.size()));
}

QString ReadBoard(const QStringList& arguments, LetterRequest& request) {
  if (arguments.isEmpty()) return QStringLiteral("no board is named: %1").arg(BoardNames());
  if (arguments.size() > 2) return QStringLiteral("one argument too many: %1").arg(arguments.at(2));
  request.set = FindLetterSet(arguments.at(0).toStdString());
  if (request.set != nullptr) return {};
  return QStringLiteral("no board \"%1\": %2").arg(arguments.at(0), BoardNames());
}

QString ReadTile(const QStringList& arguments, LetterRequest& request) {
  request.lastTile = request.set->tiles;
  if (arguments.size() < 2) return {};
  const QStringList ends = arguments.at(1).split(u'-');
  const auto first = NumberIn<int>(ends.constFirst());
  const auto last = NumberIn<int>(ends.constLast());
  const bool isRange = first && last && ends.size() <= 2 && *first <= *last;
  if (!isRange || *first < 1 || *last > request.set->tiles) {
    return QStringLiteral("no tile \"%1\": %2 has tiles 1 to %3")
        .arg(arguments.at(1), SetName(*request.set))
        .arg(request.set->tiles);
  }
  request.firstTile = *first;
  request.lastTile = *last;
  return {};
}

}  // namespace

QString BoardNames() {
  QStringList names;
  for (const LetterSet& set : LetterSets()) names.append(SetName(set));
  return names.join(u' ');
}

QString LetterArguments::Read(const QCommandLineParser& parser, LetterRequest& request) const {
  const QStringList arguments = parser.positionalArguments();
  QString error = ReadBoard(arguments, request);
  if (request.set == nullptr) return error;
  error = ReadTile(arguments, request);
  if (error.isEmpty()) error = ReadForm(parser, request);
  if (error.isEmpty()) error = ReadPlace(parser, request);
  return error;
}

QString LetterArguments::ReadForm(const QCommandLineParser& parser, LetterRequest& request) const {
  request.form.book = parser.isSet(book_);
  request.form.alternative = parser.isSet(alt_);
  if (!request.form.alternative || !request.set->secondForms.empty()) return {};
  return QStringLiteral("--alt: %1 has no alternative forms").arg(SetName(*request.set));
}

QString LetterArguments::ReadPlace(const QCommandLineParser& parser, LetterRequest& request) const {
  if (!parser.isSet(place_)) return {};
  const QString text = parser.value(place_);
  const int digits = request.set->digits;
  if (digits == 0) return QStringLiteral("--place: %1 has no digits").arg(SetName(*request.set));
  if (request.firstTile > digits) {
    return QStringLiteral("--place: tile %1 is no digit, these are 1 to %2")
        .arg(request.firstTile)
        .arg(digits);
  }
  const auto place = NumberIn<int>(text);
  if (!place || *place < 1 || *place > 5) {
    return QStringLiteral("--place: \"%1\" is no place from 1 to 5").arg(text);
  }
  request.form.place = *place;
  request.lastTile = std::min(request.lastTile, digits);
  return {};
}

}  // namespace bramlee
