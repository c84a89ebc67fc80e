// The puzzle timer against a hand-driven clock, and its m:ss text.
#include "core/play/puzzletimer.h"

#include <gtest/gtest.h>

namespace combwise {
namespace {

using std::chrono::milliseconds;

// Pausing while inactive, stopping when solved and going on across runs
// are the session's timer test; here the edges of the clock itself.
TEST(PuzzleTimer, CountsOnlyWhileRunningAndNeverBackwards) {
  milliseconds now{1'000'000};
  PuzzleTimer timer([&now] { return now; });
  timer.resume();  // nothing to resume before a start
  now += milliseconds{5000};
  EXPECT_EQ(timer.elapsedSeconds(), 0);

  timer.start();
  now += milliseconds{2500};
  timer.pause();
  timer.pause();
  now += milliseconds{60'000};
  timer.resume();
  timer.resume();
  now += milliseconds{1000};
  EXPECT_EQ(timer.elapsed(), milliseconds{3500});
  timer.stop();
  timer.resume();
  now += milliseconds{9000};
  EXPECT_TRUE(timer.stopped());
  EXPECT_EQ(timer.elapsed(), milliseconds{3500});

  timer.start(milliseconds{10'000}, true);  // the next puzzle, shown while inactive
  now += milliseconds{4000};
  EXPECT_EQ(timer.elapsedSeconds(), 10);
  timer.resume();
  now -= milliseconds{500};  // a clock stepping back takes nothing away
  EXPECT_EQ(timer.elapsedSeconds(), 10);
}

TEST(PuzzleTimer, ShowsMinutesAndSeconds) {
  EXPECT_EQ(formatElapsed(7), "0:07");
  EXPECT_EQ(formatElapsed(3723), "1:02:03");
  EXPECT_EQ(formatElapsed(-4), "0:00");
}

}  // namespace
}  // namespace combwise
