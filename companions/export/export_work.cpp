#include "companions/export/export_work.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace bramlee {
namespace {

constexpr int kLookMs = 50;

/// One processor stays for the windows.
int Threads() {
  return std::max(1, static_cast<int>(std::thread::hardware_concurrency()) - 1);
}

/// No error leaves the thread.
Exported RunCaught(FilmExport& films, const std::stop_token& stop) {
  try {
    return films.Run(Threads(), stop);
  } catch (const std::exception& error) {
    return {.written = {}, .left = {}, .error = QString::fromUtf8(error.what())};
  }
}

}  // namespace

ExportWork::ExportWork(QObject* parent) : QObject(parent) {
  look_.setInterval(kLookMs);
  connect(&look_, &QTimer::timeout, this, &ExportWork::Look);
}

void ExportWork::Start(std::unique_ptr<FilmExport> films) {
  films_ = std::move(films);
  ended_ = false;
  thread_ = std::jthread([this](const std::stop_token& stop) {
    exported_ = RunCaught(*films_, stop);
    ended_ = true;
  });
  look_.start();
}

void ExportWork::Cancel() {
  thread_.request_stop();
}

void ExportWork::Look() {
  Q_EMIT Progress(films_->FramesDone(), films_->Frames());
  if (!ended_) return;
  look_.stop();
  thread_.join();
  films_.reset();
  Q_EMIT Ended(exported_);
}

}  // namespace bramlee
