// Which letters a tool's command line asks for.
#pragma once

#include <QCommandLineParser>
#include <QString>
#include <QStringList>
#include <charconv>
#include <optional>

#include "letters/letter_sets.h"
#include "strokes/pen_strokes.h"

namespace bramlee {

/// A number that takes up the whole text.
template <class Number>
std::optional<Number> NumberIn(const QString& text) {
  const QByteArray bytes = text.toUtf8();
  Number number{};
  const auto [end, error] = std::from_chars(bytes.begin(), bytes.end(), number);
  if (error != std::errc() || end != bytes.end()) return std::nullopt;
  return number;
}

/// The names of all letter sets, parted by blanks.
QString BoardNames();

/// Tiles of a set, all in one form.
struct LetterRequest {
  const LetterSet* set = nullptr;
  int firstTile = 1;
  int lastTile = 1;
  TileForm form;

  /// A tile of the set, in the form that is asked for.
  LetterId Tile(int tile) const { return {.set = set->name, .tile = tile, .form = form}; }
};

/// The arguments that the tools for letters share: a set, a tile, a range of them ("3-10") or none
/// for all of them, and the form.
class LetterArguments {
 public:
  /// Adds the options of the form. The arguments without a name are the tool's to describe.
  void AddTo(QCommandLineParser& parser) const { parser.addOptions({alt_, book_, place_}); }

  /// Reads a command line that was parsed; gives an error, or an empty text.
  QString Read(const QCommandLineParser& parser, LetterRequest& request) const;

 private:
  QString ReadForm(const QCommandLineParser& parser, LetterRequest& request) const;
  QString ReadPlace(const QCommandLineParser& parser, LetterRequest& request) const;

  const QCommandLineOption alt_{QStringLiteral("alt"),
                                QStringLiteral("The letters' alternative forms.")};
  const QCommandLineOption book_{
      QStringLiteral("book"),
      QStringLiteral("The letters as in the book, where they stand otherwise there.")};
  const QCommandLineOption place_{QStringLiteral("place"),
                                  QStringLiteral("A digit at place N, 1 to 5, of a typed number."),
                                  QStringLiteral("N")};
};

}  // namespace bramlee
