#include "tools/letters/tool.h"

#include <cstdio>

namespace bramlee {
namespace {

const QString kHelp = QStringLiteral("help");
const QString kVersion = QStringLiteral("version");

}  // namespace

void Tool::Say(const QString& line) const {
  std::fprintf(stderr, "%s: %s\n", name_, qPrintable(line.simplified()));
}

ExitStatus Tool::Fail(ExitStatus status, const QString& error) const {
  Say(error);
  return status;
}

ExitStatus Tool::Print(std::string_view text) const {
  const bool printed =
      std::fwrite(text.data(), 1, text.size(), stdout) == text.size() && std::fflush(stdout) == 0;
  return printed ? kDone : Fail(kFailed, QStringLiteral("the output cannot be written"));
}

void Tool::AddHelpTo(QCommandLineParser& parser) {
  parser.addOption({
      {QStringLiteral("h"), kHelp},
      QStringLiteral("This help.")
  });
  parser.addOption({
      {QStringLiteral("v"), kVersion},
      QStringLiteral("The version.")
  });
}

std::optional<QString> Tool::TextAsked(const QCommandLineParser& parser) const {
  if (parser.isSet(kHelp)) return parser.helpText();
  if (!parser.isSet(kVersion)) return std::nullopt;
  return QStringLiteral("%1 " BRAMLEE_VERSION "\n").arg(QLatin1String(name_));
}

}  // namespace bramlee
