// The puzzle timer.
#include "core/play/puzzletimer.h"

namespace combwise {

PuzzleTimer::PuzzleTimer(Clock clock) : m_clock(std::move(clock)) {
  if (!m_clock) {
    m_clock = [] {
      return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now().time_since_epoch());
    };
  }
}

std::chrono::milliseconds PuzzleTimer::now() const { return m_clock(); }

void PuzzleTimer::start(std::chrono::milliseconds already, bool paused) {
  m_banked = already < std::chrono::milliseconds{0} ? std::chrono::milliseconds{0} : already;
  m_runningSince = now();
  m_state = paused ? State::Paused : State::Running;
}

void PuzzleTimer::pause() {
  if (m_state != State::Running) return;
  m_banked = elapsed();
  m_state = State::Paused;
}

void PuzzleTimer::resume() {
  if (m_state != State::Paused) return;
  m_runningSince = now();
  m_state = State::Running;
}

void PuzzleTimer::stop() {
  if (m_state == State::Idle || m_state == State::Stopped) return;
  m_banked = elapsed();
  m_state = State::Stopped;
}

void PuzzleTimer::reset() {
  m_state = State::Idle;
  m_banked = std::chrono::milliseconds{0};
}

std::chrono::milliseconds PuzzleTimer::elapsed() const {
  if (m_state != State::Running) return m_banked;
  const auto since = now() - m_runningSince;
  // A clock that steps back never takes time away.
  return m_banked + (since > std::chrono::milliseconds{0} ? since : std::chrono::milliseconds{0});
}

long long PuzzleTimer::elapsedSeconds() const {
  return static_cast<long long>(std::chrono::duration_cast<std::chrono::seconds>(elapsed()).count());
}

std::string formatElapsed(long long seconds) {
  if (seconds < 0) seconds = 0;
  const long long hours = seconds / 3600;
  const long long minutes = seconds / 60 % 60;
  const long long secs = seconds % 60;
  auto twoDigits = [](long long n) { return (n < 10 ? "0" : "") + std::to_string(n); };
  if (hours > 0) return std::to_string(hours) + ":" + twoDigits(minutes) + ":" + twoDigits(secs);
  return std::to_string(minutes) + ":" + twoDigits(secs);
}

}  // namespace combwise
