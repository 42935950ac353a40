// A picture file of a few bytes that claims to be of any size.
#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QImage>
#include <QtEndian>

namespace bramlee {

/// The check sum of a chunk of a PNG file.
inline quint32 PngSum(const QByteArray& bytes) {
  quint32 sum = 0xFFFFFFFF;
  for (const char byte : bytes) {
    sum ^= static_cast<unsigned char>(byte);
    for (int bit = 0; bit < 8; ++bit) sum = (sum & 1) != 0 ? 0xEDB88320U ^ (sum >> 1) : sum >> 1;
  }
  return ~sum;
}

/// A PNG file that is whole but for its pixels, of which it has far too few.
inline QByteArray PngThatClaims(quint32 width, quint32 height) {
  QByteArray png;
  QBuffer file(&png);
  QImage image(4, 4, QImage::Format_RGB32);
  image.fill(Qt::white);
  image.save(&file, "PNG");
  qToBigEndian(width, png.data() + 16);
  qToBigEndian(height, png.data() + 20);
  qToBigEndian(PngSum(png.mid(12, 17)), png.data() + 29);
  return png;
}

}  // namespace bramlee
