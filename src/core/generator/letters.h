// Letter helpers of the generator: the random letter shuffle, and the
// removal of used letters from a word.
#pragma once

#include <string>
#include <string_view>

#include "core/model/random.h"

namespace combwise {

// The word's letters in a random order: positions 1..L start in order, then
// L times two positions are drawn (each the integer part of random x L + 1)
// and swapped. Words of more than 144 letters are cut to 144.
std::string shuffleLetters(std::string_view word, RandomSource& random);

inline constexpr std::size_t kShuffleCapacity = 144;

// The same shuffle written to `out` (room for kShuffleCapacity letters);
// returns the number of letters written.
std::size_t shuffleLettersInto(std::string_view word, RandomSource& random, char* out);

// The word with each character of `used` removed once (first occurrence,
// left to right); characters of `used` not in the word are ignored.
std::string remainingLetters(std::string_view word, std::string_view used);

}  // namespace combwise
