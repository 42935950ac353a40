// The program.
#include <QApplication>

#include "board/board.h"
#include "maths/maths.h"
#include "shell/forms.h"
#include "shell/shell.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("bramlee"));
  QApplication::setQuitOnLastWindowClosed(false);
  bramlee::RegisterShell();
  bramlee::RegisterBoards();
  bramlee::RegisterMaths();
  bramlee::ShowForm(QStringLiteral("fbrmengc02"));
  return QApplication::exec();
}
