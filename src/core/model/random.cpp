// The program's random source: a draw is a strong hash of the clock reading,
// the source's salt and the running draw count.
#include "core/model/random.h"

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

RandomSource::RandomSource() : m_clock(&RandomSource::timeOfDay) {}

RandomSource::RandomSource(Clock clock, std::uint64_t salt) : m_clock(std::move(clock)), m_salt(salt) {}

RandomSource RandomSource::seeded(std::uint64_t seed, std::uint64_t stream) {
  RandomSource source(Clock{}, 0);
  source.m_salt = mix64(mix64(seed) ^ mix64(stream + 0x632be59bd9b4e019ULL));
  return source;
}

double RandomSource::next() {
  const double reading = m_clock ? m_clock() : 0.0;
  const std::uint64_t seed = mix64(std::bit_cast<std::uint64_t>(reading) ^ m_salt);
  const std::uint64_t bits = mix64(seed ^ mix64(m_draws++));
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
