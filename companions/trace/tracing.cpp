#include "companions/trace/tracing.h"

#include <QScreen>
#include <algorithm>
#include <iterator>
#include <utility>

#include "companions/trace/trace.h"
#include "companions/trace/trace_pictures.h"
#include "files/trap.h"
#include "ui/choices.h"

namespace bramlee {
namespace {

const QString kLevel = QStringLiteral("trace/level");
const QString kLeftHand = QString::fromLatin1(kLeftHandChoice);
const QString kByClicks = QStringLiteral("trace/byClicks");
const QString kGiven = QStringLiteral("trace/given");

constexpr double kMmPerInch = 25.4;
constexpr double kUsualDpi = 96;
constexpr double kLeastDpi = 40;  ///< some screens report nonsense
constexpr double kMostDpi = 600;

/// A tag for what cannot be written for lack of memory.
const QString kTag = QStringLiteral("tra:01");

Point PointOf(QPointF place) {
  return {place.x(), place.y()};
}

StrokePath PathOf(const GuideStroke& stroke) {
  StrokePath path{.points = stroke.points};
  for (std::size_t i = 1; i < path.points.size(); ++i) {
    path.length += DistanceBetween(path.points[i - 1], path.points[i]);
  }
  return path;
}

}  // namespace

void AddTracing(Board& board) {
  auto* tracing = new Tracing(board);
  tracing->setParent(&board);
}

Tracing::Tracing(Board& board)
    : board_(board),
      sheet_(board.sheet()),
      pen_(board.pen()),
      view_(sheet_),
      star_(sheet_, this),
      input_(sheet_,
             {.down = [this](QPointF place) { Down(place); },
              .move = [this](QPointF place) { Move(place); },
              .up = [this] { Trap(kTag, [this](ErrInfo&) { Up(); }); },
              .cancel = [this] { Cancel(); }},
             this) {
  MakeButtons();
  space_ = new QShortcut(Qt::Key_Space, &board);
  space_->setAutoRepeat(false);
  space_->setEnabled(false);
  connect(space_, &QShortcut::activated, this,
          [this] { Trap(kTag, [this](ErrInfo&) { WriteNextForChild(); }); });
  connect(&pen_, &BoardPen::Changed, this, [this] { FollowPen(); });
  connect(&pen_, &BoardPen::Wiped, this, [this] { view_.WipeInk(); });
  connect(&board_, &Board::DrawAllStarts, this, [this] { SwitchOn(false); });
  connect(&Choices::Instance(), &Choices::Changed, this, [this](const QString& name) {
    if (name == kLevel) FollowLevel();
    if (name == kLeftHand || name == kByClicks || name == kGiven) FollowChoices();
  });
  FollowLevel();
  FollowChoices();
}

// --- the strip

void Tracing::MakeButtons() {
  Strip& strip = board_.strip();
  constexpr auto kGroup = Strip::Group::Write;
  trace_ = strip.AddButton(kGroup,
                           {.name = "strip_trace",
                            .text = QStringLiteral("Trace"),
                            .key = Qt::Key_T,
                            .picture = TracePicture(),
                            .checkable = true},
                           [this] { SwitchOn(trace_->isChecked()); });
  level_ = strip.AddButton(
      kGroup, {.name = "strip_level", .text = {}, .key = {}, .picture = {}, .checkable = false},
      [this] { NextLevel(); });
  hand_ = strip.AddButton(kGroup,
                          {.name = "strip_hand",
                           .text = QStringLiteral("Left hand"),
                           .key = {},
                           .picture = LeftHandPicture(),
                           .checkable = true},
                          [this] { Choices::Instance().Choose(kLeftHand, hand_->isChecked()); });
  clicks_ =
      strip.AddButton(kGroup,
                      {.name = "strip_clicks",
                       .text = QStringLiteral("Click, move, click instead of dragging"),
                       .key = {},
                       .picture = ClicksPicture(),
                       .checkable = true},
                      [this] { Choices::Instance().Choose(kByClicks, clicks_->isChecked()); });
  given_ = strip.AddButton(kGroup,
                           {.name = "strip_given",
                            .text = QStringLiteral("Trace the letters as the board has them"),
                            .key = {},
                            .picture = GivenPicture(),
                            .checkable = true},
                           [this] { Choices::Instance().Choose(kGiven, given_->isChecked()); });
  for (StripButton* option : {hand_, clicks_, given_}) option->hide();
}

void Tracing::SwitchOn(bool on) {
  if (on_ == on) return;
  on_ = on;
  trace_->setChecked(on);
  for (StripButton* option : {hand_, clicks_, given_}) option->setVisible(on);
  board_.WantBookLetters(on && !given_->isChecked());
  input_.SwitchOn(on);
  pen_.SetTaker(on ? [] { return true; } : std::function<bool()>());
  if (!on) view_.WipeInk();
  Restart();
}

void Tracing::NextLevel() {
  const auto next = (static_cast<std::size_t>(tracer_.Level()) + 1) % std::size(kTraceLevels);
  Choices::Instance().Choose(kLevel, QString::fromLatin1(NameOf(kTraceLevels[next])));
}

void Tracing::FollowLevel() {
  const Choices& choices = Choices::Instance();
  const std::string name = choices.Of(kLevel, QStringLiteral("normal")).toString().toStdString();
  const TraceLevel level = TraceLevelNamed(name).value_or(TraceLevel::Normal);
  tracer_.SetLevel(level);
  const QString text = QStringLiteral("Level: ") + QString::fromLatin1(NameOf(level));
  level_->setAccessibleName(text);
  level_->setToolTip(text);
  level_->setIcon(LevelPicture(level));
}

void Tracing::FollowChoices() {
  const Choices& choices = Choices::Instance();
  hand_->setChecked(choices.Of(kLeftHand, false).toBool());
  clicks_->setChecked(choices.Of(kByClicks, false).toBool());
  given_->setChecked(choices.Of(kGiven, false).toBool());
  board_.WantBookLetters(on_ && !given_->isChecked());
  input_.SetByClicks(clicks_->isChecked());
  Restart();
}

// --- the pen and the page

void Tracing::FollowPen() {
  if (!on_ || writing_) return;
  const auto letters = pen_.Letters().Letters();
  const Player::Where stands = pen_.Stands();
  if (pen_.IsWriting()) {
    // Rules and grid are not watched.
    if (stands.letter < letters.size() && !letters[stands.letter].ruling) SwitchOn(false);
    return;
  }
  const bool same = stands == stands_ && edition_ == pen_.Letters().Edition();
  if (!same || letters.size() != letters_) Restart();
}

void Tracing::Restart() {
  if (stands_.letter != pen_.Stands().letter || edition_ != pen_.Letters().Edition()) helped_ = 0;
  stands_ = pen_.Stands();
  edition_ = pen_.Letters().Edition();
  letters_ = pen_.Letters().Letters().size();
  targets_.clear();
  numbers_.clear();
  std::vector<GuideStroke> strokes;
  for (std::size_t i = stands_.letter; on_ && i < letters_; ++i) {
    AddTargets(i, i == stands_.letter ? stands_.stroke : 0, strokes);
  }
  tracer_ = Tracer(std::move(strokes), tracer_.Level());
  space_->setEnabled(!tracer_.IsFinished());
  view_.Stop();
  view_.ShowGuide(tracer_.Strokes(), LetterColour(), ColourOf(board_.record().backColor));
  ShowWay();
}

void Tracing::AddTargets(std::size_t letter, std::size_t firstStroke,
                         std::vector<GuideStroke>& strokes) {
  const PlacedLetter& placed = pen_.Letters().Letters()[letter];
  if (placed.ruling) return;
  std::vector<GuideStroke> guide = GuideOf(placed.letter, placed.placing);
  std::vector<StrokePath> paths;
  std::ranges::transform(guide, std::back_inserter(paths), PathOf);
  const auto numbers = PlaceNumbers(paths, {.hand = hand_->isChecked() ? Hand::Left : Hand::Right});
  for (std::size_t i = firstStroke; i < guide.size(); ++i) {
    targets_.push_back({.letter = letter, .stroke = i});
    numbers_.push_back(numbers[i]);
    strokes.push_back(std::move(guide[i]));
  }
}

bool Tracing::IsWritten(Target target) {
  const Player::Where stands = pen_.Stands();
  return stands.letter > target.letter ||
         (stands.letter == target.letter && stands.stroke > target.stroke);
}

/// A stroke that plots nothing goes along with the next one.
void Tracing::WriteDoneStroke(Target target) {
  writing_ = true;
  while (!IsWritten(target) && pen_.WriteStrokeNow()) {
  }
  writing_ = false;
  EndStroke(target);
}

/// The pen writes it for all to see. It may be paused meanwhile, and the stroke is then on again.
void Tracing::WriteStrokeForChild(Target target) {
  writing_ = true;
  view_.HideGuide();
  view_.HideWay();
  do pen_.StrokeOn();
  while (!IsWritten(target) && !pen_.Stands().begun && on_);
  writing_ = false;
  if (!IsWritten(target)) return Restart();
  ++helped_;
  EndStroke(target);
}

void Tracing::EndStroke(Target target) {
  const int helped = helped_;
  const bool letterEnds = pen_.Stands().letter > target.letter;
  stands_.letter = pen_.Stands().letter;  // helped_ counts on
  Restart();
  helped_ = helped;
  if (letterEnds) EndLetter(target.letter);
}

void Tracing::EndLetter(std::size_t letter) {
  const PlacedLetter placed = pen_.Letters().Letters()[letter];
  const Box box = placed.letter.Bounds();
  const QPointF centre(box.x + box.width / 2, box.y + box.height / 2);
  star_.Draw(centre * placed.placing.scale + QPointF(placed.placing.right, placed.placing.down));
  if (placed.letter.Id().tile > 0) {
    tileStars_.Give(*board_.Tile(placed.letter.Id().tile), helped_ == 0);
  }
  helped_ = 0;
  pen_.Speak();
}

// --- the child's hand

void Tracing::Down(QPointF place) {
  if (tracer_.IsFinished()) return;
  view_.Stop();
  const QPointF onSheet = sheet_.ToSheet(place);
  view_.BeginInk(onSheet);
  tracer_.SetLeastRadius(LeastRadius());
  tracer_.Down(PointOf(onSheet));
}

void Tracing::Move(QPointF place) {
  const TracePen before = tracer_.Pen();
  if (before == TracePen::Up) return;
  const QPointF onSheet = sheet_.ToSheet(place);
  tracer_.Move(PointOf(onSheet));
  if (tracer_.Pen() != TracePen::Astray) {
    view_.GoOnWithInk(onSheet);
  } else if (before != TracePen::Astray) {
    ShowWay();  // where to go on
  }
}

void Tracing::Up() {
  const std::size_t stroke = tracer_.Stroke();
  const std::optional<TraceJudgement> judgement = tracer_.Up();
  if (!judgement) return;
  const bool isMiss =
      judgement->verdict != TraceVerdict::Done && judgement->verdict != TraceVerdict::Resume;
  view_.EndInk(isMiss);
  if (judgement->verdict == TraceVerdict::Done) return WriteDoneStroke(targets_[stroke]);
  if (judgement->help == TraceHelp::Written) return WriteStrokeForChild(targets_[stroke]);
  ShowWay();
  Help(*judgement);
}

void Tracing::Cancel() {
  if (tracer_.Pen() == TracePen::Up) return;
  tracer_.Cancel();
  view_.EndInk(true);
  ShowWay();
}

void Tracing::Help(const TraceJudgement& judgement) {
  switch (judgement.help) {
    case TraceHelp::Pulse:
    case TraceHelp::Wider:
      return view_.Pulse();
    case TraceHelp::Show:
      return view_.ShowStroke(tracer_.Strokes()[tracer_.Stroke()], LetterColour());
    default:
      return;
  }
}

void Tracing::WriteNextForChild() {
  if (!on_ || tracer_.IsFinished()) return;
  input_.Lift();
  if (tracer_.IsFinished()) return;
  WriteStrokeForChild(targets_[tracer_.Stroke()]);
}

// --- what is seen

void Tracing::ShowWay() {
  if (tracer_.IsFinished()) return view_.HideWay();
  const std::size_t stroke = tracer_.Stroke();
  view_.ShowWay(tracer_, static_cast<int>(targets_[stroke].stroke) + 1, numbers_[stroke],
                TheHand());
}

QColor Tracing::LetterColour() const {
  const auto letters = pen_.Letters().Letters();
  return ColourOf(targets_.empty() ? kPenColour : letters[targets_.front().letter].colour);
}

double Tracing::LeastRadius() const {
  const double dpi = sheet_.screen()->physicalDotsPerInch();
  const double sane = dpi >= kLeastDpi && dpi <= kMostDpi ? dpi : kUsualDpi;
  const QRectF one = sheet_.FromSheet().mapRect(QRectF(0, 0, 1, 1));
  return kLeastRadiusMm / kMmPerInch * sane / one.width();
}

}  // namespace bramlee
