// The paper that a tool's command line names.
#pragma once

#include <QSizeF>
#include <QString>

namespace bramlee {

/// Reads "a4", "letter", or width and height of the upright paper in millimetres, such as
/// "148x210"; gives an error, or an empty text.
QString ReadPaper(const QString& text, QSizeF& paperMm);

}  // namespace bramlee
