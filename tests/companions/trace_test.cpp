// A child traces letters with the mouse.
#include <memory>

#include "maths/maths.h"
#include "tests/companions/traced_board.h"
#include "ui/form_ids.h"
#include "ui/forms.h"

namespace bramlee {
namespace {

constexpr const char* kCapitals = "fbrmengc02";
constexpr int kB = 2;
constexpr int kC = 3;

class Traced : public TracedBoard {};

TEST_F(Traced, ATileIsLaidAsAPaleGuideAndWritesNoDot) {
  Board& board = OpenTracing(kCapitals);
  board.pic_Click(kB);
  EXPECT_EQ(board.sheet().Dots().KeptDots(), 0U);
  const QColor guide = ColourAt(board, 720, 350);  // on the lower bowl
  EXPECT_NE(guide, kRed);
  EXPECT_FALSE(IsBlank(board, 720, 350));
  EXPECT_FALSE(IsBlank(board, 625, 150));  // the start dot
}

TEST_F(Traced, AStrokeThatIsDoneIsWrittenAndTheNextIsOn) {
  Board& board = OpenTracing(kCapitals);
  board.pic_Click(kB);
  DrawStroke(board, "engc", kB, 0);
  EXPECT_EQ(board.pen().Stands(), (Player::Where{.letter = 0, .stroke = 1, .begun = false}));
  EXPECT_EQ(Dots(board).pixelColor(625, 250), kRed);
}

TEST_F(Traced, TheNextStrokeIsNotTakenBeforeThisOneIsDone) {
  Board& board = OpenTracing(kCapitals);
  board.pic_Click(kB);
  DrawStroke(board, "engc", kB, 2);
  EXPECT_EQ(board.sheet().Dots().KeptDots(), 0U);
}

TEST_F(Traced, ALetterThatIsDoneHasTheDotsOfThePen) {
  const QImage plain = Plain(kCapitals, kB);
  Board& board = OpenTracing(kCapitals);
  board.pic_Click(kB);
  for (std::size_t stroke = 0; stroke < 3; ++stroke) DrawStroke(board, "engc", kB, stroke);
  EXPECT_EQ(Dots(board), plain);
  EXPECT_FALSE(board.pen().IsPaused());
}

TEST_F(Traced, ALetterWithoutHelpEarnsItsTileAFullStar) {
  Board& board = OpenTracing(kCapitals);
  board.pic_Click(kC);
  EXPECT_EQ(board.Tile(kC)->accessibleDescription(), QString());
  DrawStroke(board, "engc", kC, 0);
  EXPECT_EQ(board.Tile(kC)->accessibleDescription(), Q("Written"));
  const auto* star = board.Tile(kC)->findChild<QWidget*>(Q("star"));
  ASSERT_NE(star, nullptr);
  EXPECT_LT(star->geometry().right(), board.Tile(kC)->width() / 2);  // the sign in print stays
  board.mnuclear1_Click();
  EXPECT_EQ(board.Tile(kC)->accessibleDescription(), Q("Written"));
}

TEST_F(Traced, TheFourthMissHasThePenWriteTheStroke) {
  Board& board = OpenTracing(kCapitals);
  board.pic_Click(kC);
  for (int miss = 1; miss <= 3; ++miss) {
    Draw(board, Backwards(Way("engc", kC, 0)));
    EXPECT_EQ(board.sheet().Dots().KeptDots(), 0U) << miss;
  }
  Draw(board, Backwards(Way("engc", kC, 0)));
  EXPECT_FALSE(board.pen().IsPaused());
  EXPECT_EQ(board.Tile(kC)->accessibleDescription(), Q("Written with help"));
  EXPECT_TRUE(Button(board, "strip_trace")->isChecked());
}

TEST_F(Traced, TheFirstMissHasTheStartDotPulse) {
  Board& board = OpenTracing(kCapitals);
  board.pic_Click(kC);
  const QPoint start = Way("engc", kC, 0).front();
  const QRect around(start - QPoint(20, 20), QSize(40, 40));
  Draw(board, {QPoint(1000, 600), QPoint(1000, 601)});
  const auto shown = [&] { return board.sheet().grab(around).toImage(); };
  const QImage still = shown();
  EXPECT_TRUE(QTest::qWaitFor([&] { return shown() != still; }, 20'000));
  EXPECT_TRUE(QTest::qWaitFor([&] { return shown() == still; }, 20'000));
}

TEST_F(Traced, TheSecondMissHasThePenShowTheStroke) {
  Board& board = OpenTracing(kCapitals);
  board.pic_Click(kC);
  const QPoint end = Way("engc", kC, 0).back();
  const QColor guide = ColourAt(board, end.x() - 2, end.y());
  for (int miss = 1; miss <= 2; ++miss) Draw(board, {QPoint(1000, 600), QPoint(1000, 601)});
  EXPECT_EQ(ColourAt(board, end.x() - 2, end.y()), guide);
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return ColourAt(board, end.x() - 2, end.y()) != guide; }, 20'000));
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return ColourAt(board, end.x() - 2, end.y()) == guide; }, 20'000));
  EXPECT_EQ(board.sheet().Dots().KeptDots(), 0U);
}

TEST_F(Traced, DigitsOfATypedNumberAreTracedOneAfterTheOther) {
  RegisterMaths();
  Board& board = OpenTracing(kMathsForm);
  auto* box = board.Named<QComboBox>(Q("cmb(0)"));
  box->setEditText(Q("17"));
  QTest::keyClick(box->lineEdit(), Qt::Key_Return);
  ASSERT_EQ(board.pen().Letters().Letters().size(), 2U);
  EXPECT_EQ(board.sheet().Dots().KeptDots(), 0U);
  for (int place = 1; place <= 2; ++place) {
    EXPECT_EQ(board.pen().Stands().letter, static_cast<std::size_t>(place - 1));
    while (board.pen().Stands().letter == static_cast<std::size_t>(place - 1)) {
      QTest::keyClick(&board, Qt::Key_Space);
    }
  }
  EXPECT_EQ(board.Tile(1)->accessibleDescription(), Q("Written with help"));
  EXPECT_EQ(board.Tile(7)->accessibleDescription(), Q("Written with help"));
  EXPECT_FALSE(board.pen().IsPaused());
}

TEST_F(Traced, AStarOnceFullStaysFull) {
  Board& board = OpenTracing(kCapitals);
  board.pic_Click(kC);
  DrawStroke(board, "engc", kC, 0);
  board.pic_Click(kC);
  QTest::keyClick(&board, Qt::Key_Space);
  EXPECT_EQ(board.Tile(kC)->accessibleDescription(), Q("Written"));
}

TEST_F(Traced, SpaceWritesTheNextStrokeForTheChild) {
  const QImage plain = Plain(kCapitals, kB);
  Board& board = OpenTracing(kCapitals);
  board.pic_Click(kB);
  QTest::keyClick(&board, Qt::Key_Space);
  EXPECT_EQ(board.pen().Stands(), (Player::Where{.letter = 0, .stroke = 1, .begun = false}));
  DrawStroke(board, "engc", kB, 1);
  QTest::keyClick(&board, Qt::Key_Space);
  EXPECT_EQ(Dots(board), plain);
  EXPECT_EQ(board.Tile(kB)->accessibleDescription(), Q("Written with help"));
}

TEST_F(Traced, HelpCountsForItsLetterAlone) {
  Board& board = OpenTracing(kCapitals);
  board.pic_Click(kB);
  for (int stroke = 0; stroke < 3; ++stroke) QTest::keyClick(&board, Qt::Key_Space);
  board.pic_Click(kC);
  DrawStroke(board, "engc", kC, 0);
  EXPECT_EQ(board.Tile(kC)->accessibleDescription(), Q("Written"));
}

TEST_F(Traced, APenThatIsLiftedGoesOnWhereItWas) {
  Board& board = OpenTracing(kCapitals);
  board.pic_Click(kC);
  const std::vector<QPoint> way = Way("engc", kC, 0);
  const auto middle = way.begin() + std::ssize(way) / 2;
  Draw(board, {way.begin(), middle});
  EXPECT_EQ(board.sheet().Dots().KeptDots(), 0U);
  Draw(board, {middle, way.end()});
  EXPECT_EQ(board.Tile(kC)->accessibleDescription(), Q("Written"));
}

TEST_F(Traced, AStrokeGoesOnThoughTheBoardIsScaledAndResizedMeanwhile) {
  Board& board = OpenTracing(kCapitals);
  board.pic_Click(kC);
  const std::vector<QPoint> way = Way("engc", kC, 0);
  QTest::mousePress(&board.sheet(), Qt::LeftButton, {}, way.front());
  for (std::size_t i = 0; i < way.size(); ++i) {
    if (i == way.size() / 3) board.SetFitsWindow(true);
    if (i == way.size() / 2) board.resize(1024, 700);
    QCoreApplication::processEvents();
    Move(board, board.sheet().FromSheet().map(way[i]));
  }
  EXPECT_FALSE(board.sheet().FromSheet().isIdentity());
  QTest::mouseRelease(&board.sheet(), Qt::LeftButton, {},
                      board.sheet().FromSheet().map(way.back()));
  EXPECT_EQ(board.Tile(kC)->accessibleDescription(), Q("Written"));
}

TEST_F(Traced, AFingerTracesALetterAndAnotherOneChangesNothing) {
  const QImage plain = Plain(kCapitals, kB);
  Board& board = OpenTracing(kCapitals);
  board.pic_Click(kB);
  const std::unique_ptr<QPointingDevice> device{QTest::createTouchDevice()};
  QPointingDevice* finger = device.get();
  for (std::size_t stroke = 0; stroke < 3; ++stroke) {
    const std::vector<QPoint> way = Way("engc", kB, stroke);
    QTest::touchEvent(&board.sheet(), finger).press(1, way.front(), &board.sheet());
    QTest::touchEvent(&board.sheet(), finger)
        .stationary(1)
        .press(2, QPoint(700, 600), &board.sheet());
    for (const QPoint& place : way) {
      QTest::touchEvent(&board.sheet(), finger).move(1, place, &board.sheet()).stationary(2);
    }
    QTest::touchEvent(&board.sheet(), finger)
        .release(2, QPoint(700, 600), &board.sheet())
        .stationary(1);
    QTest::touchEvent(&board.sheet(), finger).release(1, way.back(), &board.sheet());
  }
  EXPECT_EQ(Dots(board), plain);
  EXPECT_EQ(board.Tile(kB)->accessibleDescription(), Q("Written"));
}

TEST_F(Traced, AnotherTileLeavesWhatIsWrittenAndBeginsItsOwnLetter) {
  Board& board = OpenTracing(kCapitals);
  board.pic_Click(kB);
  DrawStroke(board, "engc", kB, 0);
  board.pic_Click(kC);
  EXPECT_EQ(Dots(board).pixelColor(625, 250), kRed);
  EXPECT_EQ(board.pen().Letters().Letters().size(), 1U);
  DrawStroke(board, "engc", kC, 0);
  EXPECT_EQ(board.Tile(kC)->accessibleDescription(), Q("Written"));
  EXPECT_EQ(board.Tile(kB)->accessibleDescription(), QString());
}

TEST_F(Traced, DrawAllEndsIt) {
  Board& board = OpenTracing(kCapitals);
  board.pic_Click(kB);
  Pick(board, "mnudall");
  EXPECT_FALSE(Button(board, "strip_trace")->isChecked());
  EXPECT_FALSE(board.pen().IsPaused());
  EXPECT_EQ(board.pen().Letters().Letters().size(), 2U);  // the last group, Y and Z
}

TEST_F(Traced, WatchingEndsIt) {
  for (const char* watching : {"strip_pause", "strip_again"}) {
    Board& board = OpenTracing(kCapitals);
    board.pic_Click(kB);
    DrawStroke(board, "engc", kB, 0);
    Press(board, watching);
    EXPECT_FALSE(Button(board, "strip_trace")->isChecked()) << watching;
    EXPECT_FALSE(board.pen().IsPaused()) << watching;
    UnloadForm(&board);
  }
}

TEST_F(Traced, AStrokeBackIsToBeTracedAnew) {
  Board& board = OpenTracing(kCapitals);
  board.pic_Click(kB);
  DrawStroke(board, "engc", kB, 0);
  Press(board, "strip_back");
  EXPECT_EQ(board.sheet().Dots().KeptDots(), 0U);
  EXPECT_TRUE(Button(board, "strip_trace")->isChecked());
  DrawStroke(board, "engc", kB, 0);
  EXPECT_EQ(Dots(board).pixelColor(625, 250), kRed);
}

TEST_F(Traced, SwitchedOffTheRestIsThePens) {
  Board& board = OpenTracing(kCapitals);
  board.pic_Click(kB);
  DrawStroke(board, "engc", kB, 0);
  Press(board, "strip_trace");
  EXPECT_TRUE(IsBlank(board, 770, 200));  // no guide
  Draw(board, Way("engc", kB, 1));
  EXPECT_EQ(board.pen().Stands().stroke, 1U);
  Press(board, "strip_pause");
  EXPECT_FALSE(board.pen().IsPaused());
  board.pic_Click(kC);
  EXPECT_EQ(Dots(board).pixelColor(825, 250), Dots(board).pixelColor(825, 250));
  EXPECT_FALSE(board.pen().IsPaused());
}

TEST_F(Traced, AGridComesBetweenAndTheLetterGoesOnBeneathIt) {
  Board& board = OpenTracing(kCapitals);
  board.pic_Click(kB);
  DrawStroke(board, "engc", kB, 0);
  Pick(board, "mnugrid");
  EXPECT_TRUE(Button(board, "strip_trace")->isChecked());
  EXPECT_EQ(Dots(board).pixelColor(625, 250), kBlue);
  for (const std::size_t stroke : {1U, 2U}) DrawStroke(board, "engc", kB, stroke);
  EXPECT_EQ(board.Tile(kB)->accessibleDescription(), Q("Written"));
  EXPECT_EQ(Dots(board).pixelColor(700, 250), kBlue);
}

TEST_F(Traced, AWipeTakesTheGuideAway) {
  Board& board = OpenTracing(kCapitals);
  board.pic_Click(kB);
  QTest::mousePress(&board.sheet(), Qt::LeftButton, {}, QPoint(625, 152));
  Move(board, QPoint(625, 200));
  board.mnuclear1_Click();
  EXPECT_TRUE(IsBlank(board, 720, 350));
  Move(board, QPoint(625, 250));
  QTest::mouseRelease(&board.sheet(), Qt::LeftButton, {}, QPoint(625, 350));
  EXPECT_TRUE(IsBlank(board, 625, 250));
  EXPECT_EQ(board.sheet().Dots().KeptDots(), 0U);
}

TEST_F(Traced, TheLettersSoundComesOnceMoreWhilePlayIsOn) {
  static int cues = 0;
  cues = 0;
  BoardRecord record = kCapitalsBoard;
  record.cue = [](Board&, const StrokeRec&) { ++cues; };
  Board& board = OpenTracing(record);
  board.pic_Click(kC);
  EXPECT_EQ(cues, 1);
  DrawStroke(board, "engc", kC, 0);
  EXPECT_EQ(cues, 1);  // Play is off
  board.SetChecked(Q("mnuaud"), true);
  board.pic_Click(kC);
  EXPECT_EQ(cues, 2);
  DrawStroke(board, "engc", kC, 0);
  EXPECT_EQ(cues, 3);
}

TEST_F(Traced, ADotIsTapped) {
  constexpr int kI = 9;
  Board& board = OpenTracing("fbrmengs01");
  board.pic_Click(kI);
  DrawStroke(board, "engs", kI, 0);
  QTest::mouseClick(&board.sheet(), Qt::LeftButton, {}, Way("engs", kI, 1).front());
  EXPECT_EQ(board.Tile(kI)->accessibleDescription(), Q("Written"));
}

TEST_F(Traced, LevelsGoRoundAndLast) {
  Board& board = OpenTracing(kCapitals);
  StripButton* level = Button(board, "strip_level");
  EXPECT_EQ(level->accessibleName(), Q("Level: normal"));
  for (const char* next : {"gentle", "toddler", "strict"}) {
    level->click();
    EXPECT_EQ(level->accessibleName(), Q("Level: ") + Q(next));
  }
  Board& other = Open("fbrmengs01");
  EXPECT_EQ(Button(other, "strip_level")->accessibleName(), Q("Level: strict"));
  level->click();
  EXPECT_EQ(Button(other, "strip_level")->accessibleName(), Q("Level: normal"));
}

TEST_F(Traced, ABoardThatGoesInTheMiddleOfAStrokeTakesItAlong) {
  Board& board = OpenTracing(kCapitals);
  board.pic_Click(kB);
  QTest::mousePress(&board.sheet(), Qt::LeftButton, {}, QPoint(625, 152));
  Move(board, QPoint(625, 200));
  UnloadForm(&board);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(LoadedForm(Q(kCapitals)), nullptr);
}

TEST_F(Traced, OptionsAreSeenWhileItIsOn) {
  Board& board = OpenTracing(kCapitals);
  EXPECT_FALSE(Button(board, "strip_hand")->isHidden());
  EXPECT_FALSE(Button(board, "strip_clicks")->isHidden());
  Press(board, "strip_trace");
  EXPECT_TRUE(Button(board, "strip_hand")->isHidden());
  EXPECT_TRUE(Button(board, "strip_clicks")->isHidden());
}

TEST_F(Traced, AlternativeFormsAreTracedToo) {
  Board& board = OpenTracing("fbrmhinc01");
  Pick(board, "mnudrawalt");
  const int tile = board.letters().secondForms[0];
  board.pic_Click(tile);
  ASSERT_EQ(board.pen().Letters().Letters().size(), 1U);
  EXPECT_TRUE(board.pen().Letters().Letters()[0].letter.Id().form.alternative);
  EXPECT_EQ(board.sheet().Dots().KeptDots(), 0U);
}

}  // namespace
}  // namespace bramlee
