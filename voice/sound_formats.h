// The formats of the boards' sounds, made by ffmpeg.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace bramlee {

/// Those of the boards' menus that a file can have: the fourth there names tracks of a disc.
inline constexpr const char* kSoundFormats[] = {"wma", "mp3", "wav"};

/// A wave to encode and what is to be made of it.
struct Encoding {
  QString wave;      ///< whole path of a .wav file
  QStringList made;  ///< whole paths; what they end in, wma or mp3, is the format
};

/// Why nothing can be encoded, a line for people that says what to install; empty when it can.
QString EncoderTrouble();

/// Encodes all in one call, since the encoder's start takes longer than its work. Empty when all of
/// them were made, else a line for people.
QString EncodeSounds(const QList<Encoding>& encodings);

}  // namespace bramlee
