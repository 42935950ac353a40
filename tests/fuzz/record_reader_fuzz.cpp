// The record reader's fuzz target.
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>

#include "files/environment.h"
#include "tests/fuzz/record_reader.h"

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size);

int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
  // In memory where there is such a folder: a disk would take its time at each save.
  const QString memory = QStringLiteral("/dev/shm");
  static const QTemporaryDir drives((QDir(memory).exists() ? memory : QDir::tempPath()) +
                                    QStringLiteral("/bramlee-fuzz-XXXXXX"));
  QDir().mkpath(drives.filePath(QStringLiteral("c/bramlee/dba")));
  qputenv("BRAMLEE_DRIVES", QFile::encodeName(drives.path()));
  static const bramlee::Environment environment;  // which shows and asks nothing
  return 0;
}

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  const QByteArray input(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const QString failure = bramlee::TryAsDataFiles(input);
  if (failure.isEmpty()) return 0;
  std::fprintf(stderr, "%s\n", qPrintable(failure));
  std::abort();
}
