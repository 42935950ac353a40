// Any bytes as the program's data files: what reading and saving them must keep to.
#pragma once

#include <QByteArray>
#include <QString>

namespace bramlee {

/// Takes the first byte as a record number and the others as the card's file, then as the error
/// report's; reads them, saves into them, reads them again. Needs BRAMLEE_DRIVES, with the data
/// folder on C:. Tells the first thing that went wrong; empty when nothing did.
QString TryAsDataFiles(const QByteArray& input);

}  // namespace bramlee
