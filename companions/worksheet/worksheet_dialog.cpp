#include "companions/worksheet/worksheet_dialog.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHideEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>

#include "board/board.h"
#include "companions/worksheet/heading_pane.h"
#include "companions/worksheet/long_work.h"
#include "companions/worksheet/matter_pane.h"
#include "companions/worksheet/page_preview.h"
#include "companions/worksheet/panes.h"
#include "companions/worksheet/paper_pane.h"
#include "companions/worksheet/rows_editor.h"
#include "ui/return_key.h"

namespace bramlee {
namespace {

/// As large as it is useful, in logical pixels; a smaller screen has it smaller.
constexpr QSize kUsualSize(980, 700);
constexpr QSize kLargestSize(1240, 940);
/// What of a screen is left around it, for a title bar and to see that it is a dialog.
constexpr QSize kLeftOfScreen(24, 60);
constexpr int kTabsWidth = 430;

struct NamedRow {
  RowKind kind;
  const char* text;
};
constexpr NamedRow kRowTexts[] = {
    {RowKind::Model,   "Model: numbers and arrows" },
    {RowKind::BuiltUp, "Built up, stroke by stroke"},
    {RowKind::Dotted,  "Dotted, to trace"          },
    {RowKind::Grey,    "Grey, to write over"       },
    {RowKind::Hollow,  "Hollow, to write in"       },
    {RowKind::Blank,   "Blank lines"               },
};

QList<OfferedRow> OfferedRows() {
  QList<OfferedRow> rows;
  for (const NamedRow& row : kRowTexts) {
    rows.append({QString::fromLatin1(NameOf(row.kind)), QString::fromLatin1(row.text)});
  }
  return rows;
}

QStringList NamesOf(const std::vector<RowKind>& rows) {
  QStringList names;
  for (const RowKind kind : rows) names.append(QString::fromLatin1(NameOf(kind)));
  return names;
}

std::vector<RowKind> RowsNamed(const QStringList& names) {
  std::vector<RowKind> rows;
  for (const QString& name : names) {
    if (const auto kind = RowKindNamed(name)) rows.push_back(*kind);
  }
  return rows;
}

/// A pane that scrolls where the dialog is too low for it.
QScrollArea* Scrolled(QWidget* pane) {
  auto* scroller = new QScrollArea;
  scroller->setWidgetResizable(true);
  scroller->setFrameShape(QFrame::NoFrame);
  scroller->setFocusPolicy(Qt::NoFocus);
  scroller->setWidget(pane);
  return scroller;
}

/// The painter's unit becomes the page's millimetre.
void PaintPageOn(QPainter& painter, const QRectF& on, const PrintedPages& pages, int page) {
  const QSizeF size = pages.SizeMm();
  painter.translate(on.topLeft());
  painter.scale(on.width() / size.width(), on.height() / size.height());
  pages.Paint(painter, page);
}

/// What is missing, in words that say what to do; empty for nothing.
QString MissingIn(const WorksheetRecord& record) {
  const bool letters = record.matter == WorksheetMatter::Letters;
  if (letters && record.tiles.value_or(QList<int>()).isEmpty()) {
    return QStringLiteral("Choose a letter first: click its picture.");
  }
  if (record.matter == WorksheetMatter::TypedWords && WordsOf(record.words).isEmpty()) {
    return QStringLiteral("Type a word or a name first.");
  }
  if (record.matter != WorksheetMatter::Sums && record.style.rows.empty()) {
    return QStringLiteral("Add a row first, on the tab Rows.");
  }
  return {};
}

QString InOneLine(const QStringList& notes) {
  if (notes.size() < 2) return notes.value(0);
  return QStringLiteral("%1 (and %2 more)").arg(notes[0]).arg(notes.size() - 1);
}

}  // namespace

WorksheetDialog::WorksheetDialog(Board& board)
    : QDialog(&board),
      source_(SourceOf(board)),
      matter_(new MatterPane(source_)),
      rows_(new RowsEditor(OfferedRows())),
      paper_(new PaperPane),
      heading_(new HeadingPane),
      tabs_(MakeTabs()) {
  setObjectName(QStringLiteral("worksheet"));
  setWindowTitle(QStringLiteral("Worksheet: ") + source_.title);
  setAttribute(Qt::WA_DeleteOnClose);
  setModal(true);
  auto* grid = new QGridLayout(this);
  grid->addWidget(tabs_, 0, 0);
  grid->addWidget(MakePreview(), 0, 1);
  grid->addWidget(MakeActions(), 1, 0, 1, 2);
  grid->setColumnStretch(1, 1);
  grid->setRowStretch(0, 1);
  PressByReturn(*this);
  refresh_.setObjectName(QStringLiteral("worksheet_refresh"));
  refresh_.setSingleShot(true);
  connect(&refresh_, &QTimer::timeout, this, &WorksheetDialog::Refresh);
  const auto refreshSoon = [this] { refresh_.start(0); };
  connect(matter_, &MatterPane::Changed, this, refreshSoon);
  connect(rows_, &RowsEditor::Changed, this, refreshSoon);
  connect(paper_, &PaperPane::Changed, this, refreshSoon);
  connect(heading_, &HeadingPane::Changed, this, refreshSoon);
  ShowRecord();
  FollowPreview();
  refreshSoon();
  const QSize room = screen()->availableSize() - kLeftOfScreen;
  resize((room * 0.85).boundedTo(kLargestSize).expandedTo(kUsualSize).boundedTo(room));
}

QTabWidget* WorksheetDialog::MakeTabs() {
  auto* tabs = NamedControl(new QTabWidget(this), "tabs", QStringLiteral("Parts of the choice"));
  tabs->setMinimumWidth(kTabsWidth);
  tabs->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
  auto* rows = new QWidget;
  auto* column = new QVBoxLayout(rows);
  column->addWidget(rows_);
  tabs->addTab(Scrolled(matter_), QStringLiteral("What"));
  tabs->addTab(Scrolled(rows), QStringLiteral("Rows"));
  tabs->addTab(Scrolled(paper_), QStringLiteral("Paper"));
  tabs->addTab(Scrolled(heading_), QStringLiteral("Name"));
  return tabs;
}

QWidget* WorksheetDialog::MakePreview() {
  auto* part = new QWidget(this);
  preview_ = new PagePreview(part);
  preview_->setObjectName(QStringLiteral("worksheet_preview"));
  back_ = MakeButton("pageback", QStringLiteral("◀"), QStringLiteral("Page back"), part);
  on_ = MakeButton("pageon", QStringLiteral("▶"), QStringLiteral("Page on"), part);
  back_->setToolTip(QStringLiteral("Page back (Page Up in the preview)"));
  on_->setToolTip(QStringLiteral("Page on (Page Down in the preview)"));
  page_ = NamedControl(new QLabel(part), "page", {});
  page_->setTextFormat(Qt::PlainText);
  page_->setAlignment(Qt::AlignCenter);
  auto* row = new QHBoxLayout;
  row->addWidget(back_);
  row->addWidget(page_, 1);
  row->addWidget(on_);
  auto* column = new QVBoxLayout(part);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(preview_, 1);
  column->addLayout(row);
  connect(back_, &QPushButton::clicked, this, [this] { preview_->TurnTo(preview_->Page() - 1); });
  connect(on_, &QPushButton::clicked, this, [this] { preview_->TurnTo(preview_->Page() + 1); });
  connect(preview_, &PagePreview::Turned, this, &WorksheetDialog::FollowPreview);
  return part;
}

QWidget* WorksheetDialog::MakeActions() {
  auto* part = new QWidget(this);
  said_ = NamedControl(new QLabel(part), "said", {});
  said_->setTextFormat(Qt::PlainText);
  said_->setWordWrap(true);
  said_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);  // a long path widens nothing
  work_ = new LongWork(part);
  folder_ = MakeButton("folder", QStringLiteral("Show fo&lder"),
                       QStringLiteral("Show the folder of the saved file"), part);
  print_ = MakeButton("print", QStringLiteral("&Print..."), QStringLiteral("Print"), part);
  pdf_ = MakeButton("pdf", QStringLiteral("&Save as PDF..."), QStringLiteral("Save as PDF"), part);
  close_ = MakeButton("close", QStringLiteral("&Close"), QStringLiteral("Close"), part);
  folder_->hide();
  auto* row = new QHBoxLayout(part);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(said_, 1);
  row->addWidget(work_, 1);
  for (QPushButton* button : {folder_, print_, pdf_, close_}) row->addWidget(button);
  connect(print_, &QPushButton::clicked, this, &WorksheetDialog::Print);
  connect(pdf_, &QPushButton::clicked, this, &WorksheetDialog::SaveAsPdf);
  connect(folder_, &QPushButton::clicked, this, &WorksheetDialog::ShowFolder);
  connect(close_, &QPushButton::clicked, this, &WorksheetDialog::close);
  return part;
}

void WorksheetDialog::ShowRecord() {
  const WorksheetRecord record = KeptWorksheet(source_.set);
  matter_->Show(record);
  rows_->SetRows(NamesOf(record.style.rows));
  paper_->Show(record);
  heading_->Show(record);
}

WorksheetRecord WorksheetDialog::Record() const {
  WorksheetRecord record;
  matter_->Read(record);
  record.style.rows = RowsNamed(rows_->Rows());
  paper_->Read(record);
  heading_->Read(record);
  return record;
}

void WorksheetDialog::hideEvent(QHideEvent* event) {
  QDialog::hideEvent(event);
  if (event->spontaneous()) return;
  WorksheetRecord record = Record();
  const bool wordsAreOfElsewhere =
      beforeWords_ && record.words == printedWords_ && record.matter == WorksheetMatter::TypedWords;
  if (wordsAreOfElsewhere) {
    record.matter = beforeWords_->matter;
    record.words = beforeWords_->words;
  }
  KeepWorksheet(source_.set, record);
}

LaidOut WorksheetDialog::MakePages(const WorksheetRecord& record) {
  if (record.matter == WorksheetMatter::Book && !IsBookPrepared(record.given)) {
    const PaperError error = RunLong(QStringLiteral("Letter"), [&](const PageProgress& progress) {
      return PrepareBook(record.given, progress);
    });
    if (!error.IsNone()) return {.pages = nullptr, .error = error};
  }
  return LayOut(source_, record);
}

void WorksheetDialog::Refresh() {
  WorksheetRecord record = Record();
  record.heading = HeadingOf(record);
  const QString missing = MissingIn(record);
  made_ = missing.isEmpty() ? MakePages(record) : LaidOut{};
  rows_->setEnabled(record.matter != WorksheetMatter::Sums);
  print_->setEnabled(made_.pages != nullptr);
  pdf_->setEnabled(made_.pages != nullptr);
  if (made_.pages == nullptr) {
    const QString& why = missing.isEmpty() ? made_.error.text : missing;
    preview_->ShowWhyNot(why);
    return Say(why);
  }
  preview_->Show(made_.pages->Count(), made_.pages->SizeMm(),
                 [pages = made_.pages](QPainter& painter, const QRectF& on, int page) {
                   PaintPageOn(painter, on, *pages, page);
                 });
  Say(InOneLine(made_.pages->Notes()));
}

void WorksheetDialog::FollowPreview() {
  const int pages = preview_->Pages();
  const int page = preview_->Page();
  back_->setEnabled(page > 0);
  on_->setEnabled(page + 1 < pages);
  page_->setText(pages == 0 ? QStringLiteral("No page")
                            : QStringLiteral("Page %1 of %2").arg(page + 1).arg(pages));
}

void WorksheetDialog::Say(const QString& text) {
  said_->setText(text);
  said_->setToolTip(text);
  said_->setAccessibleName(text);
}

}  // namespace bramlee
