// Loads the game's dictionary and meanings once per test run.
#include "support/gamedata.h"

#include <gtest/gtest.h>

namespace combwise::testing {

std::string gameDataPath(const std::string& fileName) { return std::string(COMBWISE_BIN_DIR) + "/" + fileName; }

const Dictionary& gameDictionary() {
  static const Dictionary dictionary = [] {
    Dictionary loaded;
    const Status status = readDictionary(gameDataPath("english3.txt"), loaded);
    EXPECT_TRUE(status.ok()) << status.error;
    return loaded;
  }();
  return dictionary;
}

const Meanings& gameMeanings() {
  static const Meanings meanings = [] {
    Meanings loaded;
    const Status status = loaded.read(gameDataPath("mean3456.txt"));
    EXPECT_TRUE(status.ok()) << status.error;
    return loaded;
  }();
  return meanings;
}

}  // namespace combwise::testing
