#include "files/trap.h"

#include <QLoggingCategory>

namespace bramlee {
namespace {

Q_LOGGING_CATEGORY(TrapLog, "bramlee.trap", QtWarningMsg)

}  // namespace

void LogTrapped(const QString& tag, const std::exception& error) noexcept {
  try {
    qCDebug(TrapLog, "[%s] %s", qPrintable(tag), error.what());
  } catch (const std::exception&) {  // without memory there is no log
  }
}

}  // namespace bramlee
