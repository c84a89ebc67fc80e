// Letter helpers of the generator.
#include "core/generator/letters.h"

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <utility>

#include "core/model/text.h"

namespace combwise {

namespace {

// Words of up to eight letters are shuffled in one register: the letters
// themselves are swapped, byte by byte, which gives the same order as
// swapping their positions and reading the letters afterwards.
std::size_t shuffleShortInto(std::string_view word, RandomSource& random, char* out) {
  const std::size_t length = word.size();
  std::uint64_t packed = 0;
  std::memcpy(&packed, word.data(), length);
  std::array<unsigned, 16> shift;
  const double span = static_cast<double>(length);
  std::size_t d = 0;
  // draw x length + 1 lies in [1, length + 1), so truncation is the floor.
  random.forEachDraw(2 * length, [&](double draw) { shift[d++] = 8 * (static_cast<unsigned>(draw * span + 1) - 1); });
  for (std::size_t i = 0; i < length; ++i) {
    const unsigned a = shift[2 * i];
    const unsigned b = shift[2 * i + 1];
    const std::uint64_t x = ((packed >> a) ^ (packed >> b)) & 0xff;
    packed ^= (x << a) | (x << b);
  }
  std::memcpy(out, &packed, length);
  return length;
}

}  // namespace

std::size_t shuffleLettersInto(std::string_view word, RandomSource& random, char* out) {
  if (std::endian::native == std::endian::little && word.size() <= 8) return shuffleShortInto(word, random, out);
  const std::size_t length = std::min(word.size(), kShuffleCapacity);
  // Only positions 1..length are ever read, so the rest stays unset.
  std::array<unsigned char, kShuffleCapacity + 1> buffer;
  for (std::size_t i = 1; i <= length; ++i) buffer[i] = static_cast<unsigned char>(i);
  // All positions are drawn first, so the draws run in one tight loop.
  std::array<unsigned char, 2 * kShuffleCapacity> drawn;
  const double span = static_cast<double>(length);
  std::size_t d = 0;
  random.forEachDraw(2 * length,
                     [&](double draw) { drawn[d++] = static_cast<unsigned char>(floorWhole(draw * span + 1)); });
  for (std::size_t i = 0; i < length; ++i) std::swap(buffer[drawn[2 * i]], buffer[drawn[2 * i + 1]]);
  for (std::size_t i = 1; i <= length; ++i) out[i - 1] = word[static_cast<std::size_t>(buffer[i]) - 1];
  return length;
}

std::string shuffleLetters(std::string_view word, RandomSource& random) {
  char letters[kShuffleCapacity];
  return std::string(letters, shuffleLettersInto(word, random, letters));
}

std::string remainingLetters(std::string_view word, std::string_view used) {
  std::string rest(word);
  for (char c : used) {
    const auto at = rest.find(c);
    if (at != std::string::npos) rest.erase(at, 1);
  }
  return rest;
}

}  // namespace combwise
