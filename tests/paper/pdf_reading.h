// Documents read back, by programs that are not ours.
#pragma once

#include <gtest/gtest.h>

#include <QImage>
#include <QString>
#include <QStringList>

namespace bramlee {

/// What a program prints on its standard output; nothing when it fails.
QByteArray OutputOf(const QString& program, const QStringList& arguments);

/// What pages are looked at with.
inline constexpr int kDotsPerInch = 300;
inline constexpr double kDotsPerMm = kDotsPerInch / 25.4;

/// A page of a document, from 1, in grey, at so many dots an inch.
QImage PageOfPdf(const QString& file, int page = 1, int dotsPerInch = kDotsPerInch);

/// All text of a document, or of one page, from 1.
QString TextOfPdf(const QString& file, int page = 0);

/// The line of what pdfinfo says that begins with the name, without it; empty when there is none.
QString InfoOfPdf(const QString& file, const QString& name);

/// All bytes of a file; none when it cannot be read.
QByteArray BytesOf(const QString& name);

/// Whether a program of poppler is there.
bool HasPdfTools();

#define SKIP_WITHOUT_PDF_TOOLS() \
  if (!HasPdfTools()) GTEST_SKIP() << "poppler-utils is not installed"

}  // namespace bramlee
