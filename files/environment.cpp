#include "files/environment.h"

#include <QCoreApplication>
#include <utility>

namespace bramlee {
namespace {

Environment* newest = nullptr;

}  // namespace

Environment::Environment()
    : endProgram([] { QCoreApplication::exit(0); }), before_(std::exchange(newest, this)) {}

Environment::~Environment() {
  newest = before_;
}

Environment& TheEnvironment() {
  Q_ASSERT(newest != nullptr);
  return *newest;
}

}  // namespace bramlee
