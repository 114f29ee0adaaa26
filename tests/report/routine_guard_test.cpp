#include "report/routine_guard.h"

#include <new>
#include <stdexcept>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/fake_services.h"

namespace quorvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The failure that somebody above waits for.
struct Awaited : std::runtime_error {
  using std::runtime_error::runtime_error;
};

struct MoreAwaited : Awaited {
  using Awaited::Awaited;
};

/// A message box that keeps its kind.
class KindOfBox : public UserMessages {
 public:
  void ShowBox(std::string_view, std::string_view, BoxKind shown) override { kind = shown; }
  void Note(std::string_view) override {}

  std::optional<BoxKind> kind;
};

TEST(GuardRoutine, LetsARoutineRun) {
  RecordingMessages messages;
  int runs = 0;
  EXPECT_TRUE(GuardRoutine<Awaited>(messages, "CheckFieldOrder", [&] { ++runs; }));
  EXPECT_EQ(runs, 1);
  EXPECT_THAT(messages.boxes, IsEmpty());
}

TEST(GuardRoutine, NamesTheRoutineThatFailed) {
  RecordingMessages messages;
  EXPECT_FALSE(GuardRoutine<Awaited>(messages, "CheckFieldOrder",
                                     [] { throw std::runtime_error("out of cells"); }));
  EXPECT_THAT(messages.boxes,
              ElementsAre("Quorvane Error: Error in CheckFieldOrder: out of cells"));
  EXPECT_THAT(messages.notes, IsEmpty());
}

TEST(GuardRoutine, ShowsACriticalBox) {
  KindOfBox messages;
  GuardRoutine<Awaited>(messages, "CheckFieldOrder", [] { throw std::logic_error("wrong"); });
  EXPECT_EQ(messages.kind, BoxKind::Critical);
}

TEST(GuardRoutine, CatchesWhatTheLanguageItselfThrows) {
  RecordingMessages messages;
  EXPECT_FALSE(GuardRoutine<Awaited>(messages, "X", [] {
    const std::string text = "ab";
    return text.at(7) == 'a';
  }));
  EXPECT_EQ(messages.boxes.size(), 1U);
}

TEST(GuardRoutine, SaysWhenThereIsNotEnoughMemory) {
  RecordingMessages messages;
  EXPECT_FALSE(GuardRoutine<Awaited>(messages, "X", [] { throw std::bad_alloc(); }));
  EXPECT_THAT(messages.boxes, ElementsAre("Quorvane Error: Error in X: Not enough memory"));
}

TEST(GuardRoutine, LetsAwaitedFailuresThrough) {
  RecordingMessages messages;
  EXPECT_THROW(GuardRoutine<Awaited>(messages, "X", [] { throw Awaited("gone"); }), Awaited);
  EXPECT_THROW(GuardRoutine<Awaited>(messages, "X", [] { throw MoreAwaited("gone"); }),
               MoreAwaited);
  EXPECT_THAT(messages.boxes, IsEmpty());
}

TEST(GuardRoutine, LetsTheInnermostGuardSpeak) {
  RecordingMessages messages;
  EXPECT_TRUE(GuardRoutine<Awaited>(messages, "Outer", [&] {
    GuardRoutine<Awaited>(messages, "Inner", [] { throw std::runtime_error("wrong"); });
  }));
  EXPECT_THAT(messages.boxes, ElementsAre("Quorvane Error: Error in Inner: wrong"));
}

}  // namespace
}  // namespace quorvane::test
