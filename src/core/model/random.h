// The program's random source. Before every draw it is re-seeded from the
// time of day (seconds since midnight, with fractions); the clock reading is
// mixed with a running draw count through a strong hash, so draws within one
// clock tick still differ. The clock can be replaced, and a seeded source
// replaces it by a fixed reading, which makes every draw reproducible.
#pragma once

#include <cstdint>
#include <functional>

namespace combwise {

class RandomSource {
 public:
  // Returns the time of day in seconds since midnight, with fractions.
  using Clock = std::function<double()>;

  // Draws from the system's time of day.
  RandomSource();
  // Draws from the system's time of day, told apart from other such
  // sources by `salt` (sources made in the same instant still differ).
  static RandomSource timed(std::uint64_t salt);
  // Draws from the given clock; `salt` tells apart sources sharing a clock.
  explicit RandomSource(Clock clock, std::uint64_t salt = 0);

  // A reproducible source: stream `stream` of seed `seed`. Two sources with
  // the same seed and stream give the same draws; different streams are
  // independent (puzzle i of a seeded batch uses stream i).
  static RandomSource seeded(std::uint64_t seed, std::uint64_t stream = 0);

  // A number in [0, 1).
  double next();

  // How many draws this source has made.
  std::uint64_t drawCount() const { return m_draws; }

  // The system's time of day in seconds since local midnight.
  static double timeOfDay();

 private:
  Clock m_clock;  // empty for seeded sources
  std::uint64_t m_salt = 0;
  std::uint64_t m_draws = 0;
  std::uint64_t m_lastReading = 0;
  std::uint64_t m_seed = 0;
  bool m_seedKnown = false;
};

}  // namespace combwise
