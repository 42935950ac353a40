// A letter's film as the bytes of files.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <cstdint>
#include <functional>
#include <stop_token>

#include "film/letter_film.h"

namespace bramlee {

/// What can be made of a letter. How near the last picture comes to the sheet's own, in levels of
/// 255: PNG is the same; a GIF with a ground within 9 at each pixel; a video within 24 in
/// brightness at each pixel and in colour in the mean, as colours have half its size; an SVG within
/// 9 in the mean of its edges, which browsers smooth coarsely.
enum class FilmKind : std::uint8_t {
  Svg,    ///< a picture that moves by itself in a browser
  Gif,    ///< the same wherever pictures are shown; its edges are rough without a ground
  Webm,   ///< a video, with the letter's sound if wanted
  Mp4,    ///< the same; without a ground it is white
  Steps,  ///< PNG pictures, in each one stroke more, the newest with its number
};

/// "svg", "gif", "webm", "mp4" or "png": how names of its files end.
QString SuffixOf(FilmKind kind);
/// Whether ffmpeg makes it.
bool NeedsFfmpeg(FilmKind kind);
/// Whether the letter's sound can be in it.
bool CanSpeak(FilmKind kind);

/// Pictures a second: a GIF tells time in hundredths.
inline constexpr int kGifRate = 25;
inline constexpr int kVideoRate = 30;

/// How many frames the making takes, for who shows how far it has come; at least 1.
int FramesOf(const LetterFilm& film, FilmKind kind);

/// What came of it: the bytes of the files, one or for steps one a stroke, or an error, a line for
/// people.
struct MadeFilm {
  QList<QByteArray> files;
  QString error;
};

/// How a film is to be made.
struct FilmOrder {
  FilmKind kind = FilmKind::Svg;
  QString sound = {};                       ///< a sound file of the system for a video, or none
  std::function<void()> frameDone = [] {};  ///< called FramesOf times at most
};

/// Makes the film within this thread, as fast as it goes. A stop that was asked for is an error at
/// the next frame. Neither the film's pixels nor its length are looked at: see FilmTrouble.
MadeFilm MakeFilm(const LetterFilm& film, const FilmOrder& order, const std::stop_token& stop = {});

/// Why no file of that kind can be made of the film, a line for people; empty when it can.
QString FilmTrouble(const LetterFilm& film);

}  // namespace bramlee
