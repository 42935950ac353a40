#include "companions/worksheet/rows_editor.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <algorithm>

#include "companions/worksheet/panes.h"

namespace bramlee {
namespace {

/// As many rows fit any page; more are a slip of the hand on Add.
constexpr int kMostRows = 20;

constexpr int kRowHeight = 30;  ///< in the list, in logical pixels
constexpr int kRowsInView = 10;

QShortcut* KeyOn(QWidget* widget, const QKeySequence& key) {
  auto* shortcut = new QShortcut(key, widget);
  shortcut->setContext(Qt::WidgetWithChildrenShortcut);
  return shortcut;
}

}  // namespace

RowsEditor::RowsEditor(const QList<OfferedRow>& offered, QWidget* parent)
    : QWidget(parent),
      offered_(offered),
      list_(NamedControl(new QListWidget(this), "rows", QStringLiteral("Rows of each letter"))),
      kind_(MakeChoice("kind", QStringLiteral("Kind of the row to add"), this)),
      add_(MakeButton("addrow", QStringLiteral("A&dd"), QStringLiteral("Add a row of that kind"),
                      this)),
      remove_(MakeButton("removerow", QStringLiteral("&Remove"),
                         QStringLiteral("Remove the marked row"), this)),
      up_(MakeButton("uprow", QStringLiteral("&Up"), QStringLiteral("Move the marked row up"),
                     this)),
      down_(MakeButton("downrow", QStringLiteral("D&own"),
                       QStringLiteral("Move the marked row down"), this)) {
  list_->setDragDropMode(QAbstractItemView::InternalMove);
  list_->setDefaultDropAction(Qt::MoveAction);
  list_->setMaximumHeight(kRowsInView * kRowHeight);
  auto* rows =
      new QLabel(QStringLiteral("Ro&ws of each letter, from the first to the last:"), this);
  rows->setBuddy(list_);
  for (const OfferedRow& row : offered_) kind_->addItem(row.text, row.name);
  ConnectButtons();

  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->addWidget(rows, 0, 0, 1, 2);
  grid->addWidget(list_, 1, 0, 4, 1);
  grid->addWidget(up_, 1, 1);
  grid->addWidget(down_, 2, 1);
  grid->addWidget(remove_, 3, 1);
  grid->setRowStretch(4, 1);
  grid->addWidget(kind_, 5, 0);
  grid->addWidget(add_, 5, 1);
  grid->setRowStretch(6, 1);
  setTabOrder(list_, up_);
  setTabOrder(up_, down_);
  setTabOrder(down_, remove_);
  setTabOrder(remove_, kind_);
  setTabOrder(kind_, add_);
  connect(list_, &QListWidget::currentRowChanged, this, &RowsEditor::FollowMark);
  connect(list_->model(), &QAbstractItemModel::rowsMoved, this, [this] {
    FollowMark();
    Q_EMIT Changed();
  });
  FollowMark();
}

void RowsEditor::ConnectButtons() {
  remove_->setToolTip(QStringLiteral("Del"));
  up_->setToolTip(QStringLiteral("Alt+Up"));
  down_->setToolTip(QStringLiteral("Alt+Down"));
  connect(add_, &QPushButton::clicked, this, &RowsEditor::AddRow);
  connect(remove_, &QPushButton::clicked, this, &RowsEditor::RemoveRow);
  connect(up_, &QPushButton::clicked, this, [this] { MoveRow(-1); });
  connect(down_, &QPushButton::clicked, this, [this] { MoveRow(1); });
  connect(KeyOn(list_, Qt::Key_Delete), &QShortcut::activated, remove_, &QPushButton::click);
  connect(KeyOn(list_, Qt::ALT | Qt::Key_Up), &QShortcut::activated, up_, &QPushButton::click);
  connect(KeyOn(list_, Qt::ALT | Qt::Key_Down), &QShortcut::activated, down_, &QPushButton::click);
}

QStringList RowsEditor::Rows() const {
  QStringList names;
  for (int i = 0; i < list_->count(); ++i) {
    names.append(list_->item(i)->data(Qt::UserRole).toString());
  }
  return names;
}

void RowsEditor::SetRows(const QStringList& names) {
  if (names == Rows()) return;
  list_->clear();
  for (const QString& name : names) {
    const auto row = std::ranges::find(offered_, name, &OfferedRow::name);
    if (row != offered_.end()) Insert(list_->count(), *row);
  }
  list_->setCurrentRow(0);
  FollowMark();
  Q_EMIT Changed();
}

void RowsEditor::Insert(int at, const OfferedRow& row) {
  auto* item = new QListWidgetItem(row.text);
  item->setData(Qt::UserRole, row.name);
  item->setSizeHint({0, kRowHeight});
  list_->insertItem(at, item);
}

void RowsEditor::AddRow() {
  const int at = list_->currentRow() + 1;
  Insert(at, offered_[kind_->currentIndex()]);
  list_->setCurrentRow(at);
  FollowMark();
  Q_EMIT Changed();
}

void RowsEditor::RemoveRow() {
  if (list_->currentRow() < 0) return;
  delete list_->takeItem(list_->currentRow());
  FollowMark();
  Q_EMIT Changed();
}

void RowsEditor::MoveRow(int by) {
  const int from = list_->currentRow();
  const int to = from + by;
  if (from < 0 || to < 0 || to >= list_->count()) return;
  list_->insertItem(to, list_->takeItem(from));
  list_->setCurrentRow(to);
  Q_EMIT Changed();
}

void RowsEditor::FollowMark() {
  const int row = list_->currentRow();
  add_->setEnabled(list_->count() < kMostRows);
  remove_->setEnabled(row >= 0);
  up_->setEnabled(row > 0);
  down_->setEnabled(row >= 0 && row + 1 < list_->count());
}

}  // namespace bramlee
