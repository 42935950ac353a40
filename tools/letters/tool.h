// What the tools for letters have in common on the command line.
#pragma once

#include <QCommandLineParser>
#include <QString>
#include <optional>
#include <string_view>

namespace bramlee {

enum ExitStatus { kDone = 0, kFailed = 1, kBadArguments = 2 };

/// How a tool speaks: each line begins with its name.
class Tool {
 public:
  /// The name is that of its program.
  explicit constexpr Tool(const char* name) : name_(name) {}

  /// A line on the standard error.
  void Say(const QString& line) const;
  /// Says the error and returns the status.
  ExitStatus Fail(ExitStatus status, const QString& error) const;
  /// Prints a text, UTF-8, on the standard output at once; kFailed where it cannot be written.
  ExitStatus Print(std::string_view text) const;

  /// Adds the options for help and version, which come last in the help.
  static void AddHelpTo(QCommandLineParser& parser);
  /// Of a line that was parsed: the help or version that it asks for.
  std::optional<QString> TextAsked(const QCommandLineParser& parser) const;

 private:
  const char* name_;
};

}  // namespace bramlee
