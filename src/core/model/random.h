// The program's random source. Before every draw it is re-seeded from the
// time of day (seconds since midnight, with fractions); the clock reading is
// mixed with a running draw count through a strong hash, so draws within one
// clock tick still differ. The clock can be replaced, and a seeded source
// replaces it by a fixed reading, which makes every draw reproducible.
#pragma once

#include <cstddef>
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
  double next() {
    if (m_clock) return nextTimed();
    return unit(mix64(m_seed + kStep * ++m_draws));
  }

  // Calls f with each of the next n draws, as n calls of next() would give
  // them; a seeded source draws them in a tight loop.
  template <typename F>
  void forEachDraw(std::size_t n, F&& f) {
    if (m_clock) {
      for (std::size_t i = 0; i < n; ++i) f(nextTimed());
      return;
    }
    const std::uint64_t seed = m_seed;
    std::uint64_t draws = m_draws;
    for (std::size_t i = 0; i < n; ++i) f(unit(mix64(seed + kStep * ++draws)));
    m_draws = draws;
  }

  // How many draws this source has made.
  std::uint64_t drawCount() const { return m_draws; }

  // The system's time of day in seconds since local midnight.
  static double timeOfDay();

 private:
  // The finaliser of SplitMix64: a bijective 64-bit mix with full avalanche.
  static constexpr std::uint64_t mix64(std::uint64_t x) {
    x += 0x9e3779b97f4a7c15ULL;
    x = (x ^ (x >> 30)) * 0xbf58476d1ce4e5b9ULL;
    x = (x ^ (x >> 27)) * 0x94d049bb133111ebULL;
    return x ^ (x >> 31);
  }
  // The draw count walks the seed along this odd constant (a full-period
  // sequence), and the mix spreads every step over all the bits.
  static constexpr std::uint64_t kStep = 0xd1b54a32d192ed03ULL;
  static double unit(std::uint64_t bits) { return static_cast<double>(bits >> 11) * 0x1.0p-53; }  // 53 bits in [0, 1)

  double nextTimed();

  Clock m_clock;  // empty for seeded sources
  std::uint64_t m_salt = 0;
  std::uint64_t m_draws = 0;
  std::uint64_t m_lastReading = 0;
  std::uint64_t m_seed = 0;
  bool m_seedKnown = false;
};

}  // namespace combwise
