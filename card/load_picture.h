// Pictures from the user's drives.
#pragma once

#include <QPixmap>
#include <QString>

namespace bramlee {

/// The picture in the file that the path names ("C:\bramlee\idcard.jpg"), turned as its camera was
/// held and scaled down to what a screen can show. A JPEG that breaks off is shown as far as it
/// goes. Null for a file that is no picture (JPEG, PNG, BMP or GIF), is otherwise damaged, is gone
/// or is too large to take in: more than a hundred million pixels, or than Qt has memory for.
QPixmap LoadPicture(const QString& path);

}  // namespace bramlee
