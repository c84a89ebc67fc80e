// Distinct puzzles: the option only filters the puzzles made without it,
// and what it lets through has no word and no clue text twice.
#include "core/generator/distinct.h"

#include <gtest/gtest.h>

#include "core/files/puzzlefile.h"
#include "core/generator/batch.h"
#include "core/generator/generator.h"
#include "support/gamedata.h"

namespace combwise {
namespace {

using testing::gameDictionary;
using testing::gameMeanings;

std::vector<std::string> repeatsOfLine(const std::string& line) {
  Board board;
  PuzzleState state;
  EXPECT_TRUE(loadPuzzleLine(line, board, state, ClueSource{}).loaded()) << line;
  return repeatProblems(state, &gameMeanings());
}

TEST(Distinct, APuzzleWithoutRepeatsIsTheSameWithOrWithoutTheOptionAndNoneHasARepeat) {
  PuzzleGenerator plain(gameDictionary(), gameMeanings());
  PuzzleGenerator distinct(gameDictionary(), gameMeanings());
  GeneratorHooks hooks;
  hooks.distinct = true;
  int unchanged = 0;
  for (std::uint64_t stream = 1; stream <= 40; ++stream) {
    const int size = Board::kSizes[stream % 3];  // 7, 10 and 17: most have no repeat
    Board board;
    PuzzleState a;
    PuzzleState b;
    setUpPuzzle(board, a, size);
    setUpPuzzle(board, b, size);
    plain.resetPools();
    distinct.resetPools();
    RandomSource one = RandomSource::seeded(31, stream);
    RandomSource two = RandomSource::seeded(31, stream);
    ASSERT_TRUE(plain.generate(board, a, one));
    ASSERT_TRUE(distinct.generate(board, b, two, hooks));
    EXPECT_TRUE(repeatProblems(b, nullptr).empty()) << stream;
    if (!repeatProblems(a, nullptr).empty()) continue;
    ++unchanged;
    EXPECT_EQ(a.Letters, b.Letters) << stream;
    EXPECT_EQ(a.WordSlots, b.WordSlots);
    EXPECT_EQ(a.MeaningNumbers, b.MeaningNumbers);
  }
  EXPECT_GT(unchanged, 10);
}

TEST(Distinct, TwoHundredPuzzlesOfEachSizeHoldNoRepeat) {
  for (int size : Board::kSizes) {
    LineRunOptions options;
    options.size = size;
    options.count = 200;
    options.seed = 77;
    options.distinct = true;
    int made = 0;
    const Status status = makePuzzleLines(gameDictionary(), gameMeanings(), options, [&](int, const std::string& line) {
      ++made;
      EXPECT_EQ(repeatsOfLine(line), std::vector<std::string>{}) << line;
      return true;
    });
    EXPECT_TRUE(status.ok()) << status.error;
    EXPECT_EQ(made, 200);
  }
}

TEST(Distinct, RepeatsAreNamedWithTheirWordsAndClues) {
  PuzzleState state;
  state.WordCount = 4;
  state.WordSlots = {"", "CHANGE", "BANDIT", "change", "BRIGAND"};
  state.ClueTexts = {"", "a shift", "an armed thief", "a shift", "an armed thief"};
  EXPECT_EQ(repeatProblems(state, nullptr),
            (std::vector<std::string>{"word CHANGE stands 2 times", "clue \"a shift\" stands for CHANGE and CHANGE",
                                      "clue \"an armed thief\" stands for BANDIT and BRIGAND"}));
}

}  // namespace
}  // namespace combwise
