// Pictures from the user's drives.
#pragma once

#include <QPixmap>
#include <QString>

namespace bramlee {

/// The picture in the file that the path names ("C:\bramlee\idcard.jpg"), turned as its camera was
/// held and scaled down to what a screen can show. Null for a file that is no picture (JPEG, PNG,
/// BMP or GIF), is damaged, is gone or is too large to take in.
QPixmap LoadPicture(const QString& path);

}  // namespace bramlee
