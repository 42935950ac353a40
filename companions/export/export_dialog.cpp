#include "companions/export/export_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QUrl>
#include <memory>
#include <utility>

#include "board/board.h"
#include "companions/export/export_letters.h"
#include "files/trap.h"
#include "film/flash_cards.h"
#include "paper/letter_book.h"
#include "paper/pdf_file.h"
#include "paper/usual_paper.h"
#include "ui/message_box.h"
#include "ui/named.h"
#include "ui/return_key.h"

namespace bramlee {
namespace {

constexpr int kSaidPixels = 420;  ///< width of the line below, which breaks there

QComboBox* ListOf(std::initializer_list<const char*> texts) {
  auto* list = new QComboBox;
  for (const char* text : texts) list->addItem(QString::fromLatin1(text));
  return list;
}

QComboBox* ListOfColours(std::initializer_list<const char*> first) {
  QComboBox* list = ListOf(first);
  for (const NamedColour& each : kNamedColours) list->addItem(QString::fromLatin1(each.name));
  return list;
}

QString SetNameOf(const LetterSet& set) {
  return QString::fromUtf8(set.name.data(), static_cast<qsizetype>(set.name.size()));
}

QString FilesText(qsizetype files) {
  return files == 1 ? QStringLiteral("1 file") : QStringLiteral("%1 files").arg(files);
}

}  // namespace

ExportDialog::ExportDialog(Board& board)
    : QDialog(&board),
      board_(board),
      which_(Named(ListOf({"This letter", "The sheet's letters", "The whole board"}),
                   "export_which", "Letters")),
      kind_(Named(ListOf({"Moving picture (SVG)", "Moving picture (GIF)", "Video (WebM)",
                          "Video (MP4)", "Steps (PNG)", "Flash cards (PDF)"}),
                  "export_kind", "Kind")),
      pixels_(Named(new QSpinBox, "export_size", "Size")),
      ink_(Named(ListOfColours({kAsOnTheBoard}), "export_colour", "Letters' colour")),
      ground_(Named(ListOfColours({kAsOnTheBoard, kNoGround}), "export_ground", "Background")),
      numbers_(Named(new QCheckBox(QStringLiteral("&Numbers and arrows")), "export_numbers",
                     "Numbers and arrows")),
      sound_(Named(new QCheckBox(QStringLiteral("So&und")), "export_sound", "Sound")),
      folder_(Named(new QLineEdit, "export_folder", "Folder")),
      questions_(new QWidget),
      progress_(Named(new QProgressBar, "export_progress", "Progress")),
      said_(Named(new QLabel, "export_said", "What came of it")),
      begin_(Named(new QPushButton(QStringLiteral("&Export")), "export_begin", "Export")),
      show_(Named(new QPushButton(QStringLiteral("&Open the folder")), "export_show",
                  "Open the folder")),
      close_(Named(new QPushButton, "export_close", "Close")) {
  setObjectName(QStringLiteral("export"));
  setWindowTitle(QStringLiteral("Export letters to files"));
  pixels_->setRange(kLeastPixels, kMostPixels);
  pixels_->setSuffix(QStringLiteral(" pixels"));
  said_->setTextFormat(Qt::PlainText);
  said_->setWordWrap(true);
  said_->setMinimumSize(kSaidPixels, 2 * said_->fontMetrics().lineSpacing());  // buttons stay
  questions_->setLayout(MakeQuestions());
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(questions_);
  layout->addWidget(progress_);
  layout->addWidget(said_);
  layout->addWidget(MakeButtons());
  connect(kind_, &QComboBox::currentIndexChanged, this, &ExportDialog::FollowKind);
  connect(numbers_, &QCheckBox::clicked, this, [this](bool on) { numbersChosen_ = on; });
  connect(&work_, &ExportWork::Progress, this, &ExportDialog::ShowProgress);
  connect(&work_, &ExportWork::Ended, this, &ExportDialog::Finish);
  PressByReturn(*this);
  ShowChoices(LastExportChoices());
  FollowKind();
  FollowWork();
  show_->hide();
}

QFormLayout* ExportDialog::MakeQuestions() {
  auto* questions = new QFormLayout;
  questions->setContentsMargins({});
  questions->addRow(QStringLiteral("&Letters"), which_);
  questions->addRow(QStringLiteral("&Kind"), kind_);
  questions->addRow(QStringLiteral("&Size"), pixels_);
  questions->addRow(QStringLiteral("&Colour"), ink_);
  questions->addRow(QStringLiteral("&Background"), ground_);
  questions->addRow(QString(), numbers_);
  questions->addRow(QString(), sound_);
  questions->addRow(QStringLiteral("&Folder"), MakeFolderRow());
  return questions;
}

QWidget* ExportDialog::MakeFolderRow() {
  auto* row = new QWidget;
  auto* browse =
      Named(new QPushButton(QStringLiteral("&Pick...")), "export_browse", "Pick the folder");
  browse->setAutoDefault(false);
  connect(browse, &QPushButton::clicked, this, &ExportDialog::Browse);
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins({});
  layout->addWidget(folder_);
  layout->addWidget(browse);
  row->setFocusProxy(folder_);
  return row;
}

QWidget* ExportDialog::MakeButtons() {
  auto* row = new QWidget;
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins({});
  layout->addWidget(show_);
  layout->addStretch();
  layout->addWidget(begin_);
  layout->addWidget(close_);
  begin_->setDefault(true);
  show_->setAutoDefault(false);
  close_->setAutoDefault(false);
  connect(begin_, &QPushButton::clicked, this,
          [this] { Trap(QStringLiteral("exp:01"), [this](ErrInfo&) { Begin(); }); });
  connect(close_, &QPushButton::clicked, this, &ExportDialog::reject);
  connect(show_, &QPushButton::clicked, this,
          [this] { QDesktopServices::openUrl(QUrl::fromLocalFile(folder_->text())); });
  return row;
}

void ExportDialog::ShowChoices(const ExportChoices& choices) {
  const bool written = HasLetters(board_, choices.which);
  which_->setCurrentIndex(static_cast<int>(written ? choices.which : Which::WholeBoard));
  kind_->setCurrentIndex(choices.kind ? static_cast<int>(*choices.kind) : kind_->count() - 1);
  pixels_->setValue(choices.pixels);
  ink_->setCurrentText(choices.ink);
  ground_->setCurrentText(choices.ground);
  numbersChosen_ = choices.numbers;
  sound_->setChecked(choices.sound);
  folder_->setText(QDir::toNativeSeparators(choices.folder));
}

/// The last of the list are the cards.
std::optional<FilmKind> ExportDialog::Kind() const {
  const int index = kind_->currentIndex();
  if (index == kind_->count() - 1) return std::nullopt;
  return static_cast<FilmKind>(index);
}

ExportChoices ExportDialog::Chosen() const {
  return {.which = static_cast<Which>(which_->currentIndex()),
          .kind = Kind(),
          .pixels = pixels_->value(),
          .ink = ink_->currentText(),
          .ground = ground_->currentText(),
          .numbers = numbersChosen_,
          .sound = sound_->isChecked(),
          .folder = QDir::fromNativeSeparators(folder_->text())};
}

/// Steps always have their numbers; cards are as large as paper is, and as white.
void ExportDialog::FollowKind() {
  const std::optional<FilmKind> kind = Kind();
  pixels_->setEnabled(kind.has_value());
  ground_->setEnabled(kind.has_value());
  sound_->setEnabled(kind && CanSpeak(*kind));
  numbers_->setEnabled(kind != FilmKind::Steps);
  numbers_->setChecked(numbersChosen_ || kind == FilmKind::Steps);
}

void ExportDialog::ShowProgress(int done, int of) {
  progress_->setMaximum(of);
  progress_->setValue(done);
}

void ExportDialog::FollowWork() {
  const bool running = IsRunning();
  questions_->setEnabled(!running);
  begin_->setEnabled(!running);
  progress_->setVisible(running);
  const QString text = running ? QStringLiteral("Cancel") : QStringLiteral("Close");
  close_->setText(text);
  close_->setAccessibleName(text);
}

void ExportDialog::Browse() {
  const QString folder = QFileDialog::getExistingDirectory(
      this, QStringLiteral("Folder for the files"), folder_->text());
  if (!folder.isEmpty()) folder_->setText(QDir::toNativeSeparators(folder));
}

void ExportDialog::Say(const QString& text) {
  said_->setText(text);
}

void ExportDialog::Begin() {
  if (IsRunning()) return;
  const ExportChoices choices = Chosen();
  KeepExportChoices(choices);
  show_->hide();
  if (!HasLetters(board_, choices.which)) {
    return Say(
        QStringLiteral("No letter is written yet: click a tile first, or take the whole "
                       "board."));
  }
  if (!QDir(choices.folder).exists() || choices.folder.isEmpty()) {
    return Say(QStringLiteral("There is no folder of that name."));
  }
  if (choices.kind) {
    BeginFilms(*choices.kind, choices);
  } else {
    WriteCards(choices);
  }
}

bool ExportDialog::MayReplace(qsizetype files) {
  const bool may =
      files == 0 ||
      AskBox(QStringLiteral("%1 in that folder would be replaced.").arg(FilesText(files)),
             QStringLiteral("Replace"), QStringLiteral("Cancel"));
  if (!may) Say(QStringLiteral("Nothing was written."));
  return may;
}

void ExportDialog::BeginFilms(FilmKind kind, const ExportChoices& choices) {
  auto films = std::make_unique<FilmExport>(choices.folder, kind, LettersToExport(board_, choices));
  if (!MayReplace(films->Replaced().size())) return;
  Say(QStringLiteral("The files are being made."));
  ShowProgress(0, 0);
  work_.Start(std::move(films));
  FollowWork();
  close_->setFocus();
}

/// In this thread, to which fonts belong: the window lives between two pages, which take a few
/// hundredths of a second each.
void ExportDialog::WriteCards(const ExportChoices& choices) {
  std::vector<ExportedLetter> letters = LettersToExport(board_, choices);
  const QString name = letters.size() == 1 ? letters.front().name : SetNameOf(board_.letters());
  const QString file = QDir(choices.folder).filePath(name + QStringLiteral("-cards.pdf"));
  if (!MayReplace(QFileInfo::exists(file) ? 1 : 0)) return;
  std::vector<LetterFilm> films;
  films.reserve(letters.size());
  for (ExportedLetter& letter : letters) films.push_back(std::move(letter.film));
  const FlashCards cards(std::move(films), {.paperMm = UsualPaperMm()});
  if (cards.Letters() == 0) return Say(cards.Notes().join(u' '));
  const DocumentInfo info{.title = QString::fromLatin1(board_.record().title),
                          .author = {},
                          .language = LanguageOfSet(board_.letters().name)};
  Say(QStringLiteral("The cards are being made."));
  makesCards_ = true;
  cardsCancelled_ = false;
  FollowWork();
  close_->setFocus();
  const QPointer<ExportDialog> here(this);  // the board may close in between
  const PaperError error = WritePdf(cards, info, file, [&here](int done, int of) {
    here->ShowProgress(done, of);
    QCoreApplication::processEvents();
    return here && !here->cardsCancelled_;
  });
  if (!here) return;
  makesCards_ = false;
  Finish({.written = error.IsNone() ? QStringList{file} : QStringList(),
          .left = cards.Notes(),
          .error = error.text,
          .cancelled = error.kind == PaperError::Kind::Cancelled});
}

void ExportDialog::Finish(const Exported& exported) {
  FollowWork();
  begin_->setFocus();
  if (exported.cancelled) return Say(QStringLiteral("Cancelled: nothing was written."));
  if (!exported.error.isEmpty()) return Say(exported.error);
  show_->show();
  show_->setFocus();
  QString said = FilesText(exported.written.size()) + QStringLiteral(" written.");
  for (const QString& left : exported.left) said += QStringLiteral(" Left out: %1.").arg(left);
  Say(said);
}

void ExportDialog::reject() {
  cardsCancelled_ = true;
  if (work_.IsRunning()) work_.Cancel();
  if (!IsRunning()) QDialog::reject();
}

}  // namespace bramlee
