// Pages as a PDF file and on a printer.
#pragma once

#include <QString>
#include <functional>

#include "paper/printed_pages.h"

class QPagedPaintDevice;

namespace bramlee {

/// Follows long work: pages done, of how many. Returns whether to go on. Called before each page,
/// so at first with 0, and when all are done; it may let the windows live.
using PageProgress = std::function<bool(int done, int of)>;

/// Writes the pages to a file: vectors, text that can be searched in embedded fonts, title, author
/// and language. The file stands there whole or, on an error and when it is cancelled, not at all,
/// and one that was there before stays as it was.
PaperError WritePdf(const PrintedPages& pages, const DocumentInfo& info, const QString& file,
                    const PageProgress& progress = {});

/// Prints the pages `first` to `last`, from 0, on a device that is set up: a printer. Pages larger
/// than its paper are made smaller. CannotPrint when the device fails at any page.
PaperError PrintPages(const PrintedPages& pages, QPagedPaintDevice& device, int first, int last,
                      const PageProgress& progress = {});

}  // namespace bramlee
