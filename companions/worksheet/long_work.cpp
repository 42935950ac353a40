#include "companions/worksheet/long_work.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QProgressBar>
#include <QPushButton>
#include <QScopeGuard>

#include "companions/worksheet/panes.h"

namespace bramlee {

LongWork::LongWork(QWidget* parent)
    : QWidget(parent),
      bar_(NamedControl(new QProgressBar(this), "progress", QStringLiteral("How much is done"))),
      cancel_(MakeButton("cancel", QStringLiteral("Cancel"), QStringLiteral("Cancel"), this)) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(bar_, 1);
  row->addWidget(cancel_);
  connect(cancel_, &QPushButton::clicked, this, &LongWork::Cancel);
  hide();
}

PaperError LongWork::Run(const QString& unit,
                         const std::function<PaperError(const PageProgress& progress)>& work) {
  bar_->setFormat(unit + QStringLiteral(" %v of %m"));
  running_ = true;
  cancelled_ = false;
  show();
  cancel_->setFocus();
  const auto done = qScopeGuard([this] {
    running_ = false;
    hide();
  });
  return work([this](int pages, int of) {
    bar_->setRange(0, of);
    bar_->setValue(pages);
    QCoreApplication::processEvents();
    return !cancelled_;
  });
}

}  // namespace bramlee
