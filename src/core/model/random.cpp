// The program's random source: a draw is a strong hash of the clock reading,
// the source's salt and the running draw count.
#include "core/model/random.h"

#include <time.h>
#include <bit>
#include <chrono>
#include <ctime>

namespace combwise {
namespace {

// The finaliser of SplitMix64: a bijective 64-bit mix with full avalanche.
constexpr std::uint64_t mix64(std::uint64_t x) {
  x += 0x9e3779b97f4a7c15ULL;
  x = (x ^ (x >> 30)) * 0xbf58476d1ce4e5b9ULL;
  x = (x ^ (x >> 27)) * 0x94d049bb133111ebULL;
  return x ^ (x >> 31);
}

}  // namespace

namespace {

// The system clock's time of day. Local midnight is found once and then
// only the coarse real-time clock is read (a few nanoseconds; its ticks are
// milliseconds apart, which the draw count mixed into every draw covers);
// midnight is found again when a day has passed.
RandomSource::Clock timeOfDayClock() {
  return [midnight = std::time_t{0}, known = false]() mutable {
    timespec now{};
    clock_gettime(CLOCK_REALTIME_COARSE, &now);
    double seconds = static_cast<double>(now.tv_sec - midnight) + static_cast<double>(now.tv_nsec) * 1e-9;
    if (!known || seconds < 0.0 || seconds >= 86400.0) {
      seconds = RandomSource::timeOfDay();
      midnight = now.tv_sec - static_cast<std::time_t>(seconds);
      seconds = static_cast<double>(now.tv_sec - midnight) + static_cast<double>(now.tv_nsec) * 1e-9;
      known = true;
    }
    return seconds;
  };
}

}  // namespace

RandomSource::RandomSource() : m_clock(timeOfDayClock()) {}

RandomSource RandomSource::timed(std::uint64_t salt) { return RandomSource(timeOfDayClock(), mix64(salt)); }

RandomSource::RandomSource(Clock clock, std::uint64_t salt) : m_clock(std::move(clock)), m_salt(salt) {}

RandomSource RandomSource::seeded(std::uint64_t seed, std::uint64_t stream) {
  RandomSource source(Clock{}, 0);
  source.m_salt = mix64(mix64(seed) ^ mix64(stream + 0x632be59bd9b4e019ULL));
  return source;
}

double RandomSource::next() {
  const std::uint64_t reading = m_clock ? std::bit_cast<std::uint64_t>(m_clock()) : 0;
  // The seed follows the clock reading; the hash of one reading is kept,
  // since a reading lasts for many draws.
  if (reading != m_lastReading || !m_seedKnown) {
    m_lastReading = reading;
    m_seed = mix64(reading ^ m_salt);
    m_seedKnown = true;
  }
  // The draw count walks the seed along an odd constant (a full-period
  // sequence), and the mix spreads every step over all the bits.
  const std::uint64_t bits = mix64(m_seed + 0xd1b54a32d192ed03ULL * ++m_draws);
  return static_cast<double>(bits >> 11) * 0x1.0p-53;  // 53 random bits in [0, 1)
}

double RandomSource::timeOfDay() {
  using namespace std::chrono;
  const auto now = system_clock::now();
  const std::time_t t = system_clock::to_time_t(now);
  std::tm local{};
  localtime_r(&t, &local);
  const auto sinceSecond = duration<double>(now - system_clock::from_time_t(t)).count();
  return local.tm_hour * 3600.0 + local.tm_min * 60.0 + local.tm_sec + sinceSecond;
}

}  // namespace combwise
