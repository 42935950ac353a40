// How a file gets to the hidden player.
#pragma once

#include <QString>

namespace bramlee {

/// Plays the file on PlayerForm, which it loads unseen if needed, and returns at once; cuts off a
/// sound that is still playing. For a missing file it shows "File Not Found: ( path )" and passes
/// the path on to the player as well. Does nothing while all forms are being unloaded. Ignores
/// errors. Tag "1207:220".
void PlayMediaFile(const QString& path);

}  // namespace bramlee
