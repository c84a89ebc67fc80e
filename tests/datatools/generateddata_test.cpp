// Checks of the data files the build puts in the program folder: the game
// relies on their format (CR LF, upper-case words, binary order for the
// meanings search) and on every clue keeping its answer hidden.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "core/files/dictionary.h"
#include "core/files/puzzlefile.h"
#include "core/generator/distinct.h"
#include "data/tools/glossrules.h"
#include "data/tools/wordconverter.h"
#include "support/gamedata.h"
#include "support/tempfolder.h"

namespace combwise {
namespace {

// The file's lines split at CR LF; fails the test when a line ends otherwise.
std::vector<std::string> crLfLines(const std::string& name) {
  const std::string text = TempFolder::contentOf(testing::gameDataPath(name));
  EXPECT_TRUE(text.ends_with("\r\n")) << name << " is missing, empty or not ended by CR LF";
  std::vector<std::string> lines;
  for (std::size_t start = 0, end = 0; (end = text.find("\r\n", start)) != std::string::npos; start = end + 2)
    lines.push_back(text.substr(start, end - start));
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), std::ssize(lines)) << name << ": a line ends in LF alone";
  return lines;
}

// Read once for all tests; a format fault shows in the first test to ask.
const std::vector<std::string>& dictionary() {
  static const std::vector<std::string> lines = crLfLines("english3.txt");
  return lines;
}

const std::vector<std::string>& meanings() {
  static const std::vector<std::string> lines = crLfLines("mean3456.txt");
  return lines;
}

TEST(GeneratedWords, MeaningsAreSortedPrintableCleanAndHideTheirAnswers) {
  EXPECT_TRUE(std::is_sorted(meanings().begin(), meanings().end()));
  const std::set<std::string> words(dictionary().begin(), dictionary().end());
  for (const std::string& line : meanings()) {
    const auto colon = line.find(':');
    ASSERT_NE(colon, std::string::npos) << line;
    std::string answer = line.substr(0, colon);
    EXPECT_TRUE(words.contains(answer)) << line;
    const std::string clue = line.substr(colon + 1);
    EXPECT_TRUE(!clue.empty() && clue.front() != ' ' && clue.back() != ' ' && clue.back() != ';' &&
                std::all_of(clue.begin(), clue.end(), [](char c) { return c >= ' ' && c <= '~'; }))
        << line;
    std::transform(answer.begin(), answer.end(), answer.begin(), [](char c) { return static_cast<char>(c | 0x20); });
    EXPECT_FALSE(wordconv::showsAnyForm(clue, wordconv::obviousForms(answer))) << line;
    for (const std::string& other : wordconv::lowerWords(clue))
      EXPECT_FALSE(wordconv::sharesRoot(answer, other)) << line;
    EXPECT_FALSE(wordconv::hasOffensiveMarker(clue) || clue.find("used as expletives") != std::string::npos) << line;
  }
  for (const char* crude : {"FUCKER", "FUCK", "BITCH", "DAMN", "SHIT", "WHORE", "CUNT"})
    EXPECT_FALSE(words.contains(crude)) << crude;
}

// Through the game's own reader and binary search.
TEST(GeneratedWords, EveryWordIsPlainAndFindsItsCluesThroughTheGamesSearch) {
  EXPECT_TRUE(dictionary().size() >= 8000 && dictionary().size() <= 15000) << dictionary().size();
  const Meanings& reader = testing::gameMeanings();
  ASSERT_EQ(reader.lineCount(), static_cast<int>(meanings().size()));
  for (const std::string& word : dictionary()) {
    EXPECT_TRUE(word.size() >= 3 && word.size() <= 6 &&
                std::all_of(word.begin(), word.end(), [](char c) { return c >= 'A' && c <= 'Z'; }))
        << "'" << word << "'";
    const std::string key = word + ":";
    const int first = reader.firstLine(key);
    ASSERT_GE(first, 0) << word;
    const int count = reader.countLines(key, first);
    EXPECT_TRUE(count >= 1 && count <= wordconv::kDefaultMaxClues) << word << " has " << count;
  }
}

TEST(GeneratedFiles, ReadymadePuzzlesHoldNoWordOrClueTwice) {
  const std::vector<std::string> lines = crLfLines("puzzles.txt");
  ASSERT_EQ(lines.size(), 800u);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    Board board;
    PuzzleState state;
    ASSERT_TRUE(loadPuzzleLine(lines[i], board, state, ClueSource{}).loaded()) << "puzzle " << i + 1;
    EXPECT_EQ(repeatProblems(state, &testing::gameMeanings()), std::vector<std::string>{}) << "puzzle " << i + 1;
  }
}

// The colours themselves are read and judged by the scheme contrast test.
TEST(GeneratedFiles, TheLicenceAndTheColourSchemesShipWithCrLfLines) {
  EXPECT_THAT(crLfLines("WordNet-LICENSE.txt"), ::testing::Contains(::testing::HasSubstr("Princeton University")));
  EXPECT_THAT(crLfLines("all.col"), ::testing::IsSupersetOf({"xp.col", "default.col"}));
}

}  // namespace
}  // namespace combwise
