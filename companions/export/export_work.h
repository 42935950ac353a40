// An export beside the window.
#pragma once

#include <QObject>
#include <QTimer>
#include <atomic>
#include <functional>
#include <memory>
#include <thread>

#include "film/film_export.h"

namespace bramlee {

/// Runs one export in threads of its own and says in the window's thread how it goes. Its end
/// cancels what runs and waits for it, which takes a moment.
class ExportWork : public QObject {
  Q_OBJECT
 public:
  explicit ExportWork(QObject* parent = nullptr);

  /// Begins; at most one export runs at a time.
  void Start(std::unique_ptr<FilmExport> films);
  bool IsRunning() const { return films_ != nullptr; }
  /// The export ends at its next frame; Ended() comes then.
  void Cancel();

 Q_SIGNALS:
  void Progress(int done, int of);
  void Ended(const bramlee::Exported& exported);

 private:
  void Look();

  QTimer look_;
  std::unique_ptr<FilmExport> films_;
  Exported exported_;
  std::atomic<bool> ended_ = false;
  std::jthread thread_;  ///< the last member: it ends before what it uses goes
};

}  // namespace bramlee
