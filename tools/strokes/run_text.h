// Runs and numbers in JSON.
#pragma once

#include <span>
#include <string>

#include "strokes/letter.h"

namespace bramlee {

/// "[1,2.5]", each number in its shortest text.
std::string NumbersAsJson(std::span<const double> numbers);

/// The letter's runs with their arguments and their dots at its step.
std::string RunsAsJson(const Letter& letter);

}  // namespace bramlee
