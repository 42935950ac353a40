// Changes of sounds beside the window.
#pragma once

#include <QObject>
#include <QTimer>
#include <atomic>
#include <functional>
#include <thread>

#include "voice/stick.h"

namespace bramlee {

/// Runs one change in a thread of its own and says in the window's thread how it goes. Its end asks
/// what runs to stop and waits for it, which takes as long as one sound does.
class SoundsWork : public QObject {
  Q_OBJECT
 public:
  using Work = std::function<Copied(const CopyProgress& progress, const std::stop_token& stop)>;

  explicit SoundsWork(QObject* parent = nullptr);

  /// Begins; one at a time.
  void Start(const Work& work);
  bool IsRunning() const { return running_; }
  /// It ends after the present sound; Ended() comes then.
  void Cancel() { thread_.request_stop(); }

 Q_SIGNALS:
  void Progress(int done, int of);
  void Ended(const bramlee::Copied& copied);

 private:
  void Look();

  QTimer look_;
  bool running_ = false;
  Copied copied_;
  std::atomic<int> done_ = 0;
  std::atomic<int> of_ = 0;
  std::atomic<bool> ended_ = false;
  std::jthread thread_;  ///< the last member: it ends before what it uses goes
};

}  // namespace bramlee
