// The paper that printers have.
#pragma once

#include <QSizeF>

namespace bramlee {

/// kA4Mm, or kLetterMm in the countries that print on Letter: by the default locale.
QSizeF UsualPaperMm();

}  // namespace bramlee
