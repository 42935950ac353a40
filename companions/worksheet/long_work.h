// Work that takes long, seen and ended by the user.
#pragma once

#include <QWidget>
#include <functional>

#include "paper/pdf_file.h"

class QProgressBar;
class QPushButton;

namespace bramlee {

/// A bar and a button to cancel, to be seen while work goes on and no longer.
class LongWork : public QWidget {
  Q_OBJECT
 public:
  explicit LongWork(QWidget* parent = nullptr);

  /// Shows itself, has `work` run with the progress that it is to follow, counted in that unit, and
  /// hides again. The windows live meanwhile: whoever calls it disables what must not be used in
  /// the middle.
  PaperError Run(const QString& unit,
                 const std::function<PaperError(const PageProgress& progress)>& work);

  bool IsRunning() const { return running_; }
  /// Has the work end at the next progress.
  void Cancel() { cancelled_ = true; }

 private:
  QProgressBar* bar_;
  QPushButton* cancel_;
  bool running_ = false;
  bool cancelled_ = false;
};

}  // namespace bramlee
