#include "tests/paper/pdf_reading.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>

namespace bramlee {

QByteArray OutputOf(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  const bool ended = process.waitForFinished(-1) && process.exitStatus() == QProcess::NormalExit;
  return ended && process.exitCode() == 0 ? process.readAllStandardOutput() : QByteArray();
}

QImage PageOfPdf(const QString& file, int page, int dotsPerInch) {
  const QString number = QString::number(page);
  const QByteArray picture =
      OutputOf(QStringLiteral("pdftoppm"),
               {QStringLiteral("-gray"), QStringLiteral("-r"), QString::number(dotsPerInch),
                QStringLiteral("-f"), number, QStringLiteral("-l"), number, file});
  return QImage::fromData(picture, "PGM").convertToFormat(QImage::Format_Grayscale8);
}

QString TextOfPdf(const QString& file, int page) {
  QStringList arguments{QStringLiteral("-layout")};
  if (page > 0) {
    const QString number = QString::number(page);
    arguments += {QStringLiteral("-f"), number, QStringLiteral("-l"), number};
  }
  arguments += {file, QStringLiteral("-")};
  return QString::fromUtf8(OutputOf(QStringLiteral("pdftotext"), arguments));
}

QString InfoOfPdf(const QString& file, const QString& name) {
  const QString text = QString::fromUtf8(OutputOf(QStringLiteral("pdfinfo"), {file}));
  for (const QString& line : text.split(u'\n')) {
    if (line.startsWith(name + u':')) return line.mid(name.size() + 1).trimmed();
  }
  return {};
}

bool HasPdfTools() {
  return !QStandardPaths::findExecutable(QStringLiteral("pdftoppm")).isEmpty();
}

QByteArray BytesOf(const QString& name) {
  QFile file(name);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace bramlee
