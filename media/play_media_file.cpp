#include "media/play_media_file.h"

namespace bramlee {

void PlayMediaFile(const QString& /*path*/) {}

}  // namespace bramlee
