// The program.
#include <QApplication>
#include <QIcon>

#include "board/board.h"
#include "maths/maths.h"
#include "media/media.h"
#include "shell/forms.h"
#include "shell/shell.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("bramlee"));
  QApplication::setWindowIcon(QIcon(QStringLiteral(":/pictures/bramlee.png")));
  QApplication::setQuitOnLastWindowClosed(false);
  bramlee::RegisterShell();
  bramlee::RegisterMedia();
  bramlee::RegisterBoards();
  bramlee::RegisterMaths();
  bramlee::ShowForm(QStringLiteral("fbrmsta1"));
  const int status = QApplication::exec();
  bramlee::DestroyForms();
  return status;
}
