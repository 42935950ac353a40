#include "paper/pdf_file.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <algorithm>

#include "paper/pdf_update.h"

namespace bramlee {
namespace {

constexpr double kMmPerInch = 25.4;
constexpr int kPdfDotsPerInch = 1200;

PaperError Cancelled() {
  return {.kind = PaperError::Kind::Cancelled, .text = QStringLiteral("cancelled")};
}

/// From millimetres of the pages to the device's own pixels: in the middle of its paper, and
/// smaller where that is smaller.
QTransform OnPaper(const PrintedPages& pages, const QPagedPaintDevice& device) {
  const QPageLayout layout = device.pageLayout();
  const QRectF paper = layout.fullRect(QPageLayout::Millimeter);
  // Device pixels are counted from the corner of what can be painted on.
  const QPointF painted = layout.mode() == QPageLayout::FullPageMode
                              ? QPointF()
                              : layout.paintRect(QPageLayout::Millimeter).topLeft();
  const QSizeF size = pages.SizeMm();
  const double scale =
      std::min({1.0, paper.width() / size.width(), paper.height() / size.height()});
  QTransform on;
  on.scale(device.logicalDpiX() / kMmPerInch, device.logicalDpiY() / kMmPerInch);
  on.translate(-painted.x(), -painted.y());
  on.translate((paper.width() - scale * size.width()) / 2,
               (paper.height() - scale * size.height()) / 2);
  on.scale(scale, scale);
  return on;
}

PaperError PrinterFailed() {
  return {.kind = PaperError::Kind::CannotPrint,
          .text = QStringLiteral("the printer does not take the pages")};
}

PaperError PaintAll(const PrintedPages& pages, QPagedPaintDevice& device, int first, int last,
                    const PageProgress& progress) {
  const int count = last - first + 1;
  const auto goesOn = [&](int done) { return !progress || progress(done, count); };
  if (!goesOn(0)) return Cancelled();
  QPainter painter;
  if (!painter.begin(&device)) return PrinterFailed();
  const QTransform on = OnPaper(pages, device);
  for (int i = 0; i < count; ++i) {
    if (i > 0 && !goesOn(i)) return Cancelled();
    if (i > 0 && !device.newPage()) return PrinterFailed();
    painter.setTransform(on);
    pages.Paint(painter, first + i);
  }
  if (!painter.end()) return PrinterFailed();
  return goesOn(count) ? PaperError() : Cancelled();
}

void SetUp(QPdfWriter& writer, const PrintedPages& pages, const DocumentInfo& info) {
  writer.setTitle(info.title);
  writer.setCreator(QStringLiteral("BRAM LEE"));
  writer.setResolution(kPdfDotsPerInch);
  const QSizeF size = pages.SizeMm();
  const bool landscape = size.width() > size.height();
  writer.setPageLayout(
      QPageLayout(QPageSize(landscape ? size.transposed() : size, QPageSize::Millimeter),
                  landscape ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF()));
}

PaperError CannotWrite(const QString& text) {
  return {.kind = PaperError::Kind::CannotWrite, .text = text};
}

}  // namespace

PaperError WritePdf(const PrintedPages& pages, const DocumentInfo& info, const QString& file,
                    const PageProgress& progress) {
  QSaveFile saved(file);
  const auto failed = [&saved] {
    return CannotWrite(QStringLiteral("%1: %2").arg(saved.fileName(), saved.errorString()));
  };
  if (!saved.open(QIODevice::WriteOnly)) return failed();
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  SetUp(writer, pages, info);
  PaperError error = PaintAll(pages, writer, 0, pages.Count() - 1, progress);
  if (!error.IsNone()) return error;
  const auto pdf = WithAuthorAndLanguage(buffer.data(), info);
  if (!pdf) return CannotWrite(QStringLiteral("%1: the pages did not become a PDF").arg(file));
  if (saved.write(*pdf) != pdf->size() || !saved.commit()) return failed();
  return {};
}

PaperError PrintPages(const PrintedPages& pages, QPagedPaintDevice& device, int first, int last,
                      const PageProgress& progress) {
  return PaintAll(pages, device, first, last, progress);
}

}  // namespace bramlee
