// Letter helpers of the generator.
#include "core/generator/letters.h"

#include <array>
#include <utility>

#include "core/model/text.h"

namespace combwise {

std::string shuffleLetters(std::string_view word, RandomSource& random) {
  constexpr std::size_t kCapacity = 144;
  const std::size_t length = std::min(word.size(), kCapacity);
  if (length == 0) return {};
  std::array<int, kCapacity + 1> buffer{};
  for (std::size_t i = 1; i <= length; ++i) buffer[i] = static_cast<int>(i);
  const double span = static_cast<double>(length);
  for (std::size_t i = 0; i < length; ++i) {
    const auto a = static_cast<std::size_t>(floorWhole(random.next() * span + 1));
    const auto b = static_cast<std::size_t>(floorWhole(random.next() * span + 1));
    std::swap(buffer[a], buffer[b]);
  }
  std::string shuffled(length, ' ');
  for (std::size_t i = 1; i <= length; ++i) shuffled[i - 1] = word[static_cast<std::size_t>(buffer[i]) - 1];
  return shuffled;
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
