// The way in to the hidden player.
#pragma once

#include <QString>

namespace bramlee {

/// Hands the file to the player on PlayerForm, which is loaded unseen if need be, and returns at
/// once; a sound still playing is cut off. For a missing file it shows
/// "File Not Found: ( path )" and hands the address on all the same. While all forms
/// are being unloaded nothing is handed on. Never fails. Tag "1207:220".
void PlayMediaFile(const QString& path);

}  // namespace bramlee
