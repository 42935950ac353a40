#include "card/load_picture.h"

#include <QFileInfo>
#include <QImageReader>

#include "files/drives.h"

namespace bramlee {
namespace {

constexpr QSize kScreenful(1024, 1024);
/// Some formats have to be read whole before they can be scaled.
constexpr qint64 kMostPixels = 100'000'000;

bool IsKnown(const QByteArray& format) {
  return format == "jpeg" || format == "png" || format == "bmp" || format == "gif";
}

}  // namespace

QPixmap LoadPicture(const QString& path) {
  const QString file = SystemPath(path);
  if (!QFileInfo(file).isFile()) return {};  // reading a pipe would wait
  QImageReader reader(file);
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(true);
  if (!IsKnown(reader.format())) return {};
  const QSize size = reader.size();
  if (size.isEmpty() || qint64{size.width()} * size.height() > kMostPixels) return {};
  const QSize shown = size.scaled(kScreenful, Qt::KeepAspectRatio);
  if (shown.width() < size.width()) reader.setScaledSize(shown.expandedTo({1, 1}));
  return QPixmap::fromImage(reader.read());
}

}  // namespace bramlee
