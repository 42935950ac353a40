// Sound files made by the tests.
#pragma once

#include <QByteArray>
#include <QFile>
#include <QtEndian>
#include <cmath>
#include <cstdint>

namespace bramlee {

/// A .wav file of one channel with a tone of that pitch (Hz) from its first sample, and silence
/// behind it.
inline QByteArray ToneWave(double pitch, int ms, int silenceMs = 0) {
  constexpr int kRate = 22050;
  const int sounding = static_cast<int>(std::int64_t{kRate} * ms / 1000);
  const int samples = sounding + static_cast<int>(std::int64_t{kRate} * silenceMs / 1000);
  QByteArray file;
  const auto append = [&file](auto number) {
    number = qToLittleEndian(number);
    file.append(reinterpret_cast<const char*>(&number), sizeof number);
  };
  file += "RIFF";
  append(static_cast<std::uint32_t>(36 + samples * 2));
  file += "WAVEfmt ";
  append(std::uint32_t{16});
  append(std::uint16_t{1});
  append(std::uint16_t{1});
  append(static_cast<std::uint32_t>(kRate));
  append(static_cast<std::uint32_t>(kRate * 2));
  append(std::uint16_t{2});
  append(std::uint16_t{16});
  file += "data";
  append(static_cast<std::uint32_t>(samples * 2));
  for (int i = 0; i < samples; ++i) {
    const double level = i < sounding ? 9000 * std::cos(6.283185307 * pitch * i / kRate) : 0;
    append(static_cast<std::int16_t>(std::lround(level)));
  }
  return file;
}

}  // namespace bramlee
