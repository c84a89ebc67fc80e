// The game's own dictionary and meanings, as the build makes them in the
// program folder, loaded once for the tests that generate puzzles.
#pragma once

#include <string>
#include <vector>

#include "core/files/dictionary.h"

namespace combwise::testing {

std::string gameDataPath(const std::string& fileName);
const Dictionary& gameDictionary();
const Meanings& gameMeanings();
// The first `count` puzzles of size 7 of the readymade collection, in file order.
std::vector<std::string> readymadeSevens(std::size_t count);

}  // namespace combwise::testing
