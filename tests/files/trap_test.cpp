#include "files/trap.h"

#include <gtest/gtest.h>

#include "tests/files/trap_log.h"

namespace bramlee {
namespace {

TEST(TrapOf, HasItsTagAndAnEmptyTextOnEntry) {
  const bool done = Trap(QStringLiteral("601:03"), [](ErrInfo& err) {
    EXPECT_EQ(err.ErrTag, QStringLiteral("601:03"));
    EXPECT_EQ(err.ErrText, QString());
  });
  EXPECT_TRUE(done);
}

TEST(TrapOf, PassesWhatTheRoutineSetToItsHandler) {
  ErrInfo seen;
  const bool done = Trap(
      QStringLiteral("603:02"),
      [](ErrInfo& err) {
        err.ErrText = QStringLiteral("Error:Unload all");
        throw TrappedError(QStringLiteral("x"));
      },
      [&](ErrInfo& err) { seen = err; });
  EXPECT_FALSE(done);
  EXPECT_EQ(seen.ErrTag, QStringLiteral("603:02"));
  EXPECT_EQ(seen.ErrText, QStringLiteral("Error:Unload all"));
}

TEST(TrapOf, HandsWhatWasThrownToAHandlerThatTakesIt) {
  std::string seen;
  Trap(
      QStringLiteral("601:23"), [](ErrInfo&) { throw TrappedError(QStringLiteral("x")); },
      [&](ErrInfo& err, const std::exception& error) {
        seen = err.ErrTag.toStdString() + " " + error.what();
      });
  EXPECT_EQ(seen, "601:23 x");
}

TEST(TrapOf, DoesNotCallItsHandlerWithoutAnError) {
  bool asked = false;
  EXPECT_TRUE(Trap(
      {}, [](ErrInfo&) {}, [&](ErrInfo&) { asked = true; }));
  EXPECT_FALSE(asked);
}

TEST(TrapOf, LetsNothingThrough) {
  EXPECT_FALSE(Trap({}, [](ErrInfo&) { throw std::overflow_error("x"); }));
  EXPECT_FALSE(Trap({}, [](ErrInfo&) { throw std::bad_alloc(); }));
  EXPECT_FALSE(Trap(
      {}, [](ErrInfo&) { throw TrappedError(QStringLiteral("x")); },
      [](ErrInfo&) { throw TrappedError(QStringLiteral("y")); }));
}

TEST(TrapOf, LogsTheTagAndWhatFailed) {
  const TrapLog log;
  Trap(QStringLiteral("601:03"), [](ErrInfo&) { throw TrappedError(QStringLiteral("no form")); });
  EXPECT_EQ(TrapLog::Lines(), QStringList(QStringLiteral("[601:03] no form")));
}

TEST(TrapOf, LogsWhatItsHandlerThrowsToo) {
  const TrapLog log;
  Trap(
      QStringLiteral("601:03"), [](ErrInfo&) { throw TrappedError(QStringLiteral("x")); },
      [](ErrInfo&) { throw TrappedError(QStringLiteral("y")); });
  EXPECT_EQ(TrapLog::Lines(),
            QStringList({QStringLiteral("[601:03] x"), QStringLiteral("[601:03] y")}));
}

TEST(TrapOf, LogsNothingWithoutAnError) {
  const TrapLog log;
  Trap(QStringLiteral("601:03"), [](ErrInfo&) {});
  EXPECT_TRUE(TrapLog::Lines().isEmpty());
}

TEST(TrapOf, IsSilentUnlessItsMessagesAreAskedFor) {
  const TrapLog log;
  QLoggingCategory::setFilterRules({});
  Trap(QStringLiteral("601:03"), [](ErrInfo&) { throw TrappedError(QStringLiteral("x")); });
  EXPECT_TRUE(TrapLog::Lines().isEmpty());
}

}  // namespace
}  // namespace bramlee
