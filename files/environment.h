// What the program takes from the world around it and what tests put in its place.
#pragma once

#include <QDate>
#include <QString>
#include <functional>
#include <optional>

namespace bramlee {

/// A screen's size in twips.
struct ScreenSize {
  double width;
  double height;
};

/// `main` makes one before the first form is loaded; a test makes one of its own. The newest is
/// the program's: when it goes, the one before it is back.
struct Environment {
  Environment();
  ~Environment();
  Environment(const Environment&) = delete;
  Environment& operator=(const Environment&) = delete;

  /// Shows a plain text to the user and returns once it was read. Without windows there is
  /// nobody to show it to.
  std::function<void(const QString& text)> tell = [](const QString&) {};

  /// Asks the user a question and waits; true when the user picked `yes`. Without windows nobody
  /// picks it.
  std::function<bool(const QString& text, const QString& yes, const QString& no)> ask =
      [](const QString&, const QString&, const QString&) { return false; };

  /// The day that it is.
  std::function<QDate()> today = [] { return QDate::currentDate(); };

  /// The screen that forms lay themselves out for; the primary screen while this is empty.
  std::optional<ScreenSize> screen;

  /// The drive that was chosen for the media: "C:". Nothing where there is no place to choose one.
  /// What goes wrong on the way comes through.
  std::function<std::optional<QString>()> mediaDrive = [] { return std::optional<QString>(); };

  /// Ends the program with status 0 when the running handler returns.
  std::function<void()> endProgram;

 private:
  Environment* before_;
};

/// The program's environment. There has to be one.
Environment& TheEnvironment();

}  // namespace bramlee
