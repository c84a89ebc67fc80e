// The create-puzzle flow: a new puzzle always comes back through the
// temporary collection file, and the large-puzzle refusal changes nothing.
#include "core/generator/puzzlemaker.h"

#include <gtest/gtest.h>

#include "core/files/textfile.h"
#include "support/gamedata.h"
#include "support/tempfolder.h"

namespace combwise {
namespace {

using testing::gameDataPath;

class PuzzleMaking : public ::testing::Test {
 protected:
  CreateResult create(int size, const std::string& dictionary, const GeneratorHooks& hooks = {}) {
    return maker.create(size, dictionary, gameDataPath("mean3456.txt"), random, hooks, temp.file("temp.txt"));
  }
  TempFolder temp;
  Board board;
  PuzzleState state;
  Dictionary dictionary;
  Meanings meanings;
  PuzzleMaker maker{board, state, dictionary, meanings};
  RandomSource random = RandomSource::seeded(4);
};

TEST_F(PuzzleMaking, CreatesThroughTheTemporaryFileReadingTheWordsOnFirstNeed) {
  state.Entries.at(2, 5) = "Q";
  std::vector<std::string> statuses;
  GeneratorHooks hooks;
  hooks.status = [&statuses](const std::string& text) { statuses.push_back(text); };
  for (int size : {7, 10}) {
    const CreateResult made = create(size, gameDataPath("english3.txt"), hooks);
    ASSERT_TRUE(made.created()) << made.message;
    EXPECT_EQ(countLines(temp.file("temp.txt")), 1);  // written anew, never appended
    EXPECT_EQ(state.PuzzleSize, size);
    EXPECT_EQ(state.CollectionPath, temp.file("temp.txt"));
    EXPECT_EQ(state.PuzzleNumber, 1);
    EXPECT_EQ(state.PuzzleCount, 1);
    EXPECT_TRUE(invariantBreaches(board, state).empty());
    EXPECT_FALSE(state.ClueTexts[1].empty());
  }
  EXPECT_EQ(state.Entries.at(2, 5), "Q");
  EXPECT_EQ(statuses.front(), "Creating a puzzle ...");
  EXPECT_EQ(std::count(statuses.begin(), statuses.end(), "Reading Dictionary ..."), 1);
  EXPECT_EQ(statuses.back(), "Puzzle created ...");
}

TEST_F(PuzzleMaking, RefusesSize22WithTheEnglish1And2DictionariesOnly) {
  EXPECT_TRUE(PuzzleMaker::refuses("/words/English2.txt", 22));
  EXPECT_FALSE(PuzzleMaker::refuses("/words/english3.txt", 22));

  const CreateResult refused = create(22, "english2.txt");
  EXPECT_EQ(refused.outcome, CreateOutcome::Refused);
  EXPECT_EQ(refused.message, "Creating a large puzzle with english1/2 dictionaries will take long time");
  EXPECT_EQ(state.PuzzleSize, -1);
  EXPECT_EQ(random.drawCount(), 0u);

  const CreateResult missing = create(7, "/nonexistent/words.txt");
  EXPECT_EQ(missing.outcome, CreateOutcome::NoDictionary);
  EXPECT_NE(missing.message.find("/nonexistent/words.txt"), std::string::npos);
}

}  // namespace
}  // namespace combwise
