// The program.
#include <QApplication>
#include <QIcon>
#include <QTimer>

#include "app/subjects.h"
#include "board/board.h"
#include "board/companions.h"
#include "card/card.h"
#include "companions/book/book.h"
#include "companions/export/export.h"
#include "companions/fit/fit.h"
#include "companions/numbers/numbers.h"
#include "companions/trace/trace.h"
#include "companions/voice/voice.h"
#include "companions/watch/watch.h"
#include "companions/words/words.h"
#include "companions/worksheet/worksheet.h"
#include "files/environment.h"
#include "home/home.h"
#include "maths/maths.h"
#include "media/media.h"
#include "ui/form_ids.h"
#include "ui/forms.h"
#include "ui/message_box.h"

namespace {

/// After so long the first window stands, and no letter can have been asked for yet.
constexpr int kFirstWindowMs = 500;

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("bramlee"));
  QApplication::setWindowIcon(QIcon(QStringLiteral(":/pictures/bramlee.png")));
  QApplication::setQuitOnLastWindowClosed(false);
  bramlee::Environment environment;
  bramlee::UseMessageBoxes(environment);
  bramlee::RegisterHome(bramlee::HomeSubjects());
  bramlee::RegisterCard();
  bramlee::RegisterMedia();
  bramlee::RegisterBoards();
  bramlee::RegisterMaths();
  bramlee::AddCompanion(bramlee::AddWatching);
  bramlee::AddCompanion(bramlee::AddTracing);
  bramlee::AddCompanion(bramlee::AddNumbers);
  bramlee::AddCompanion(bramlee::AddFitting);
  bramlee::AddCompanion(bramlee::AddBookSwitch);
  bramlee::AddCompanion(bramlee::AddWords);
  bramlee::AddCompanion(bramlee::AddWorksheets);
  bramlee::AddCompanion(bramlee::AddExport);
  bramlee::AddCompanion(bramlee::AddOwnVoice);
  bramlee::ShowForm(bramlee::kStartForm);
  QTimer::singleShot(kFirstWindowMs, &app, bramlee::ScanSoundLibrary);
  const int status = QApplication::exec();
  bramlee::DestroyForms();
  return status;
}
