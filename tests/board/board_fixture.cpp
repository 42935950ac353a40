#include "tests/board/board_fixture.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPixmap>

#include "board/strip.h"
#include "home/home.h"
#include "ui/forms.h"

namespace bramlee {
namespace {

constexpr int kManyRecords = 8;

}  // namespace

QString Q(const char* latin) {
  return QString::fromLatin1(latin);
}

QString Q(const char* array, int index) {
  return Indexed(array, index);
}

void Pick(const Form& form, const QString& item) {
  form.Named<QAction>(item)->trigger();
}

std::vector<int> Marked(const Board& board, const char* array, int last) {
  std::vector<int> marked;
  for (int i = 1; i <= last; ++i) {
    if (board.Checked(Indexed(array, i))) marked.push_back(i);
  }
  return marked;
}

QColor ColourAt(const Board& board, int x, int y) {
  return board.sheet().grab(QRect(x, y, 1, 1)).toImage().pixelColor(0, 0);
}

bool IsBlank(const Board& board, int x, int y) {
  return ColourAt(board, x, y) == ColourOf(board.record().backColor);
}

std::string PlaceText(const Form& form, const QString& control) {
  const TwipsRect place = PlaceOf(form.Named<QWidget>(control));
  return QStringLiteral("%1 %2 %3 %4")
      .arg(place.left)
      .arg(place.top)
      .arg(place.width)
      .arg(place.height)
      .toStdString();
}

bool RestsWhileALetterIsWritten(Board& board, const char* button) {
  const auto* found = board.Named<StripButton>(Q(button));
  bool enabledMeanwhile = true;
  board.pen().SetFrameCall([&] { enabledMeanwhile = found->isEnabled(); });
  const bool enabledBefore = found->isEnabled();
  board.pic_Click(1);
  board.pen().SetFrameCall(nullptr);
  return enabledBefore && !enabledMeanwhile && found->isEnabled();
}

void BoardTest::SetUp() {
  records_.reserve(kManyRecords);  // forms refer to their records
  RegisterHome({});
  RegisterBoards();
  TheEnvironment().mediaDrive = [this] { return drive; };
}

void BoardTest::TearDown() {
  UnloadAll();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

Board& BoardTest::Open(const char* form) {
  auto& board = dynamic_cast<Board&>(*LoadForm(Q(form)));
  board.SetText(Q("txtspd"), Q("1"));
  return board;
}

Board& BoardTest::Open(const BoardRecord& record) {
  RegisterBoard(records_.emplace_back(record));
  return Open(record.form);
}

}  // namespace bramlee
