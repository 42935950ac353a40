// The options of bramlee-strokes for moving pictures, steps and flash cards.
#pragma once

#include <QCommandLineParser>
#include <QString>
#include <optional>

#include "film/film_file.h"
#include "paper/printed_pages.h"
#include "tools/letters/letter_arguments.h"

namespace bramlee {

/// Letters that are to be written to files.
struct FilmRequest {
  std::optional<FilmKind> kind;  ///< nothing for none
  bool cards = false;            ///< flash cards, instead of a kind
  QString output;                ///< a file for one letter or for cards, else a folder
  int pixels = 400;
  double rate = 1;
  QString ink = {};     ///< a colour as text; empty for the board's
  QString ground = {};  ///< the same, or "none"
  bool numbers = false;
  Hand hand = Hand::Right;
  QString soundDrive = {};  ///< the drive of the sounds, such as "C:"; empty for none
  bool replaces = false;    ///< files that are there already
  QSizeF paperMm = kA4Mm;   ///< of cards

  bool IsAsked() const { return kind.has_value() || cards; }
};

class FilmOptions {
 public:
  void AddTo(QCommandLineParser& parser) const;
  /// Reads a command line that was parsed; gives an error, or an empty text. `letters` has no set
  /// where a word is asked for.
  QString Read(const QCommandLineParser& parser, const LetterRequest& letters,
               FilmRequest& film) const;

 private:
  QString ReadKind(const QCommandLineParser& parser, FilmRequest& film) const;
  QString ReadCards(const QCommandLineParser& parser, FilmRequest& film) const;
  QString ReadOutput(const QCommandLineParser& parser, const LetterRequest& letters,
                     FilmRequest& film) const;
  QString ReadLook(const QCommandLineParser& parser, FilmRequest& film) const;
  QString ReadSound(const QCommandLineParser& parser, const LetterRequest& letters,
                    FilmRequest& film) const;

  const QCommandLineOption animate_{
      QStringLiteral("animate"),
      QStringLiteral("Write the letters as moving pictures: KIND is svg, gif, webm or mp4."),
      QStringLiteral("KIND")};
  const QCommandLineOption steps_{
      QStringLiteral("steps"),
      QStringLiteral("Write the letters as PNG pictures, in each one stroke more.")};
  const QCommandLineOption cards_{
      QStringLiteral("cards"),
      QStringLiteral("Write the letters as flash cards to print, eight a page: a PDF.")};
  const QCommandLineOption output_{
      {QStringLiteral("o"), QStringLiteral("output")},
      QStringLiteral(
          "Write to PATH: a file for one letter and for cards, a folder for steps and for "
          "several."),
      QStringLiteral("PATH")
  };
  const QCommandLineOption size_{
      QStringLiteral("size"),
      QStringLiteral("Width and height in pixels, %1 to %2. Without it 400.")
          .arg(kLeastPixels)
          .arg(kMostPixels),
      QStringLiteral("N")};
  const QCommandLineOption rate_{
      QStringLiteral("rate"), QStringLiteral("The pen goes R times as fast as usual, 0.01 to 100."),
      QStringLiteral("R")};
  const QCommandLineOption ink_{QStringLiteral("ink"),
                                QStringLiteral("The letters' colour, as red or #cc0000."),
                                QStringLiteral("COLOUR")};
  const QCommandLineOption ground_{QStringLiteral("ground"),
                                   QStringLiteral("The colour behind them, or none for no ground."),
                                   QStringLiteral("COLOUR")};
  const QCommandLineOption numbers_{QStringLiteral("numbers"),
                                    QStringLiteral("Show the strokes' numbers and arrows.")};
  const QCommandLineOption leftHand_{QStringLiteral("left-hand"),
                                     QStringLiteral("Place them for who writes with the left.")};
  const QCommandLineOption sound_{
      QStringLiteral("sound"),
      QStringLiteral("Put the letters' sounds of that drive, such as C:, into the videos."),
      QStringLiteral("DRIVE")};
  const QCommandLineOption paper_{
      QStringLiteral("paper"),
      QStringLiteral("The cards' paper: a4, letter, or its size in millimetres, such as 148x210."),
      QStringLiteral("NAME"), QStringLiteral("a4")};
  const QCommandLineOption force_{QStringLiteral("force"),
                                  QStringLiteral("Replace files that are there already.")};
};

}  // namespace bramlee
