// The dictionary and meanings readers: only words of 3 to 6 letters A-Z
// reach the pools, each six-letter word has its anagram key, and the clue
// lookup of a sorted meanings file finds every word's first line.
#include "core/files/dictionary.h"
#include "fuzzsupport.h"

using namespace combwise;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string path = fuzz::scratchFile("words.txt", fuzz::asText(data, size));
  Dictionary dictionary;
  fuzz::require(readDictionary(path, dictionary).ok(), "any file reads as a dictionary");
  for (int length = 3; length <= 6; ++length) {
    for (const auto& word : dictionary.pool(length)->items()) {
      fuzz::require(word.size() == static_cast<std::size_t>(length), "a pool holds words of its length");
      fuzz::require(word.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ") == std::string::npos, "words are A-Z");
    }
  }
  fuzz::require(static_cast<int>(dictionary.SixLetterKeys.size()) == dictionary.Words6.ListCount(),
                "one anagram key per six-letter word");

  Meanings meanings;
  fuzz::require(meanings.read(path).ok(), "any file reads as meanings");
  fuzz::require(meanings.loaded() || !meanings.warning().empty(), "an empty meanings file is warned of");
  if (!meanings.warning().empty()) return 0;
  const auto& lines = meanings.lines().items();
  for (std::size_t i = 0; i < lines.size() && i < 64; ++i) {
    const auto colon = lines[i].find(':');
    if (colon == std::string::npos || colon == 0) continue;
    const std::string key = lines[i].substr(0, colon + 1);
    const int first = meanings.firstLine(key);
    fuzz::require(first >= 0 && first <= static_cast<int>(i), "a sorted file finds a word's first line");
    const std::string word = key.substr(0, colon);
    if (word.find(':') == std::string::npos && first == static_cast<int>(i))
      fuzz::require(meanings.clue(word, 1) == lines[i].substr(colon + 1), "meaning 1 is the first line's clue");
  }
  return 0;
}
