// What Qt's PDF writer cannot say of a document.
#pragma once

#include <QByteArray>
#include <optional>

#include "paper/printed_pages.h"

namespace bramlee {

/// Adds author and language to a document that QPdfWriter has written, in the way the format
/// provides for changes: new versions of two objects at the end, and a table of where they stand.
/// Nothing for bytes that are no such document.
std::optional<QByteArray> WithAuthorAndLanguage(const QByteArray& pdf, const DocumentInfo& info);

}  // namespace bramlee
