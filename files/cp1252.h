// Texts as the data files hold them: code page 1252, one byte a character. Qt 6 has no codec for
// it without ICU.
#pragma once

#include <QByteArray>
#include <QString>

namespace bramlee {

/// One byte for each character, "?" for what the code page lacks.
QByteArray ToCp1252(const QString& text);

/// Any byte is a character: the five that the code page leaves open are the control characters
/// of the same number.
QString FromCp1252(QByteArrayView bytes);

/// Whether the files can hold every character of the text.
bool FitsCp1252(const QString& text);

}  // namespace bramlee
