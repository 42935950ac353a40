// What the program takes from the world around it and what tests put in its place.
#pragma once

#include <QString>
#include <functional>

namespace bramlee {

/// Set up by `main` before the first form is loaded.
struct Environment {
  /// Shows a plain text to the user and returns once it was read. Without windows there is
  /// nobody to show it to.
  std::function<void(const QString& text)> tell = [](const QString&) {};
};

/// The program's one environment.
Environment& TheEnvironment();

}  // namespace bramlee
