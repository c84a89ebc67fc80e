// The game's own dictionary and meanings, as the build makes them in the
// program folder, loaded once for the tests that generate puzzles.
#pragma once

#include <string>

#include "core/files/dictionary.h"

namespace combwise::testing {

std::string gameDataPath(const std::string& fileName);
const Dictionary& gameDictionary();
const Meanings& gameMeanings();

}  // namespace combwise::testing
