// bramlee-path PATH: prints the system's name of a path such as "C:\bramlee\aud", as the program
// itself finds it, for the script that lays out the drive.
#include <QFile>
#include <cstdio>

#include "files/drives.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "bramlee-path: one PATH is wanted\n");
    return 2;
  }
  const QString path = bramlee::SystemPath(QString::fromLocal8Bit(argv[1]));
  std::printf("%s\n", QFile::encodeName(path).constData());
  return std::fflush(stdout) == 0 ? 0 : 1;
}
