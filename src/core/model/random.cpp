// The program's random source: a draw is a strong hash of the clock reading,
// the source's salt and the running draw count.
#include "core/model/random.h"

#include <time.h>
#include <bit>
#include <chrono>
#include <ctime>

namespace combwise {
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

// Without a clock the reading is always 0, so the seed is known at once.
RandomSource::RandomSource(Clock clock, std::uint64_t salt)
    : m_clock(std::move(clock)), m_salt(salt), m_seed(mix64(salt)), m_seedKnown(!m_clock) {}

RandomSource RandomSource::seeded(std::uint64_t seed, std::uint64_t stream) {
  RandomSource source(Clock{}, 0);
  source.m_salt = mix64(mix64(seed) ^ mix64(stream + 0x632be59bd9b4e019ULL));
  source.m_seed = mix64(source.m_salt);
  return source;
}

double RandomSource::nextTimed() {
  const std::uint64_t reading = std::bit_cast<std::uint64_t>(m_clock());
  // The seed follows the clock reading; the hash of one reading is kept,
  // since a reading lasts for many draws.
  if (reading != m_lastReading || !m_seedKnown) {
    m_lastReading = reading;
    m_seed = mix64(reading ^ m_salt);
    m_seedKnown = true;
  }
  return unit(mix64(m_seed + kStep * ++m_draws));
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
