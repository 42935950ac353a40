// What the program takes from the world around it and what tests put in its place.
#pragma once

#include <QString>
#include <functional>
#include <optional>

namespace bramlee {

/// Set up by `main` before the first form is loaded.
struct Environment {
  /// Shows a plain text to the user and returns once it was read. Without windows there is
  /// nobody to show it to.
  std::function<void(const QString& text)> tell = [](const QString&) {};

  /// The drive that was chosen for the media: "C:". Nothing where there is no place to choose one.
  /// What goes wrong on the way comes through.
  std::function<std::optional<QString>()> mediaDrive = [] { return std::optional<QString>(); };
};

/// The program's one environment.
Environment& TheEnvironment();

}  // namespace bramlee
