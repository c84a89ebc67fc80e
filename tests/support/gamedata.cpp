// Loads the game's dictionary and meanings once per test run.
#include "support/gamedata.h"

#include <gtest/gtest.h>

#include <fstream>

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

std::vector<std::string> readymadeSevens(std::size_t count) {
  std::vector<std::string> lines;
  std::ifstream in(gameDataPath("puzzles.txt"), std::ios::binary);
  std::string line;
  while (lines.size() < count && std::getline(in, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.rfind("7;", 0) == 0) lines.push_back(line);
  }
  return lines;
}

}  // namespace combwise::testing
