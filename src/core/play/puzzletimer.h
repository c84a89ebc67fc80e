// The time spent on the puzzle shown: started when a puzzle is shown,
// paused while the window is inactive or minimised, stopped when the
// puzzle is solved. Time comes from an injected clock, so the window uses
// the system's steady clock and tests a hand-driven one.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>

namespace combwise {

class PuzzleTimer {
 public:
  using Clock = std::function<std::chrono::milliseconds()>;

  // Without a clock the system's steady clock is used.
  explicit PuzzleTimer(Clock clock = {});

  // Starts afresh for a newly shown puzzle, counting from `already` (time
  // spent on it before), running unless `paused`.
  void start(std::chrono::milliseconds already = {}, bool paused = false);
  // Pausing a paused or stopped timer, or resuming a running or stopped
  // one, changes nothing.
  void pause();
  void resume();
  // Stops for good (the puzzle is solved): the time stays as it is until
  // the next start.
  void stop();
  // Back to the state before any start: no time, not running.
  void reset();

  std::chrono::milliseconds elapsed() const;
  long long elapsedSeconds() const;
  bool started() const { return m_state != State::Idle; }
  bool running() const { return m_state == State::Running; }
  bool stopped() const { return m_state == State::Stopped; }

 private:
  enum class State { Idle, Running, Paused, Stopped };
  std::chrono::milliseconds now() const;

  Clock m_clock;
  State m_state = State::Idle;
  std::chrono::milliseconds m_banked{0};  // time up to the last pause
  std::chrono::milliseconds m_runningSince{0};
};

// Whole seconds as the status bar shows them: "m:ss" ("0:07", "12:34"),
// and "h:mm:ss" from one hour on ("1:02:03"). Negative values show as 0.
std::string formatElapsed(long long seconds);

}  // namespace combwise
