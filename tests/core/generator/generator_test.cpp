// The generator: the puzzles it makes are sound, its known cases hold, and
// the fast form makes exactly the puzzles of the straightforward one.
#include "core/generator/generator.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>

#include "core/generator/letters.h"
#include "core/model/text.h"
#include "support/gamedata.h"
#include "support/tempfolder.h"

namespace combwise {
namespace {

using testing::gameDictionary;
using testing::gameMeanings;

struct Made {
  Board board;
  PuzzleState state;
};

Made makePuzzle(PuzzleGenerator& generator, int size, RandomSource& random) {
  Made made;
  setUpPuzzle(made.board, made.state, size);
  EXPECT_TRUE(generator.generate(made.board, made.state, random));
  return made;
}

bool inPool(const Dictionary& dictionary, const std::string& word) {
  const clsSimpleArray* pool = dictionary.pool(static_cast<int>(word.size()));
  return pool && pool->FindStringOnce(word) >= 0;
}

TEST(Generator, PuzzlesOfEverySizeAreSoundAndUseDictionaryWordsWithTheirClues) {
  PuzzleGenerator generator(gameDictionary(), gameMeanings());
  RandomSource random = RandomSource::seeded(7);
  for (int size : Board::kSizes) {
    for (int round = 0; round < 3; ++round) {
      const Made made = makePuzzle(generator, size, random);
      EXPECT_TRUE(invariantBreaches(made.board, made.state).empty()) << "size " << size;
      for (int slot = 1; slot <= made.state.WordCount; ++slot) {
        const std::string& word = made.state.WordSlots[slot];
        EXPECT_TRUE(inPool(gameDictionary(), word)) << word;
        EXPECT_GE(made.state.MeaningNumbers[slot], 1) << word;
        EXPECT_EQ(made.state.ClueTexts[slot], gameMeanings().clue(word, made.state.MeaningNumbers[slot]));
        EXPECT_FALSE(made.state.ClueTexts[slot].empty()) << word;
      }
      // Every cell of a hexagon carries a letter; none stands elsewhere.
      for (int row = 1; row <= made.board.rows(); ++row) {
        for (int col = 1; col <= made.board.cols(); ++col)
          EXPECT_EQ(made.state.Letters.at(row, col).size(), made.board.HexAt(row, col) ? 1u : 0u);
      }
    }
  }
}

TEST(Generator, SizeSevenCentreTakesASixLetterOutsideWordAndTheRimThreeLetterOnes) {
  PuzzleGenerator generator(gameDictionary(), gameMeanings());
  RandomSource random = RandomSource::seeded(11);
  const Made made = makePuzzle(generator, 7, random);
  for (int hex = 1; hex <= 7; ++hex) {
    EXPECT_EQ(made.state.WordSlots[2 * hex - 1].size(), hex == 4 ? 6u : 3u) << hex;
    EXPECT_EQ(made.state.WordSlots[2 * hex].size(), 6u) << hex;
  }
}

TEST(Generator, SummaryListsEachHexagonsOutsideLineBeforeItsInsideLineInHexagonOrder) {
  PuzzleGenerator generator(gameDictionary(), gameMeanings());
  RandomSource random = RandomSource::seeded(3);
  const Made made = makePuzzle(generator, 17, random);
  const auto& lines = generator.summaryLines();
  ASSERT_EQ(lines.size(), 34u);
  for (int hex = 1; hex <= 17; ++hex) {
    const std::string& outside = lines[static_cast<std::size_t>(2 * hex - 2)];
    const std::string& inside = lines[static_cast<std::size_t>(2 * hex - 1)];
    EXPECT_EQ(outside.substr(0, 4), Format00(hex) + "E ");
    EXPECT_EQ(inside.substr(0, 4), Format00(hex) + "I ");
    EXPECT_EQ(outside.substr(outside.rfind(' ') + 1), made.state.WordSlots[2 * hex - 1]);
    EXPECT_EQ(inside.substr(inside.rfind(' ') + 1), made.state.WordSlots[2 * hex]);
  }
}

// The straightforward form shuffles through sorted key texts and checks every
// hexagon after every placement; the fast form must make the same puzzles
// from the same draws, also when the pools carry their order from one
// puzzle to the next.
TEST(Generator, FastFormMakesTheSamePuzzlesAsTheStraightforwardForm) {
  PuzzleGenerator fast(gameDictionary(), gameMeanings(), GeneratorForm::Fast);
  PuzzleGenerator plain(gameDictionary(), gameMeanings(), GeneratorForm::Straightforward);
  RandomSource fastRandom = RandomSource::seeded(2024);
  RandomSource plainRandom = RandomSource::seeded(2024);
  for (int size : {7, 10, 17, 22, 7}) {
    const Made a = makePuzzle(fast, size, fastRandom);
    const Made b = makePuzzle(plain, size, plainRandom);
    EXPECT_EQ(a.state.Letters, b.state.Letters) << "size " << size;
    EXPECT_EQ(a.state.WordSlots, b.state.WordSlots);
    EXPECT_EQ(a.state.MeaningNumbers, b.state.MeaningNumbers);
    EXPECT_EQ(fast.summaryLines(), plain.summaryLines());
    EXPECT_EQ(fastRandom.drawCount(), plainRandom.drawCount());
  }
  EXPECT_EQ(fast.stats().attempts, plain.stats().attempts);
  EXPECT_EQ(fast.pool(5).orderedWords(), plain.pool(5).orderedWords());
}

class SmallFiles : public ::testing::Test {
 protected:
  std::string write(const std::string& name, const std::string& text) {
    const std::string path = m_temp.file(name);
    std::ofstream(path, std::ios::binary) << text;
    return path;
  }
  TempFolder m_temp;
};

TEST_F(SmallFiles, APoolOfOneWordNeverYieldsACandidateSoNothingIsDrawn) {
  Dictionary dictionary;
  ASSERT_TRUE(readDictionary(write("d.txt", "CAT\nDOG\nTEAR\nSEAT\nTEARS\nSTARE\nSEATED\n"), dictionary).ok());
  Meanings meanings;
  PuzzleGenerator generator(dictionary, meanings);
  EXPECT_FALSE(generator.canGenerate());
  Board board;
  PuzzleState state;
  setUpPuzzle(board, state, 7);
  RandomSource random = RandomSource::seeded(1);
  EXPECT_FALSE(generator.generate(board, state, random));
  EXPECT_EQ(random.drawCount(), 0u);
}

TEST_F(SmallFiles, CluesTakeTheOnlyMeaningWithoutADrawAndPickAmongSeveral) {
  Meanings meanings;
  ASSERT_TRUE(meanings.read(write("m.txt", "TEA:a drink\nTEAR:a rip\nTEAR:a drop from the eye\nTEAR:to rush\n")).ok());
  PuzzleState state;
  state.WordCount = 3;
  state.WordSlots[1] = "TEA";
  state.WordSlots[2] = "tear";  // looked up in upper case
  state.WordSlots[3] = "NONE";
  state.MeaningNumbers[3] = 9;
  std::set<int> chosen;
  RandomSource random = RandomSource::seeded(5);
  for (int round = 0; round < 60; ++round) {
    const auto before = random.drawCount();
    attachClues(state, meanings, random);
    EXPECT_EQ(random.drawCount(), before + 1);  // only the word with several meanings draws
    EXPECT_EQ(state.MeaningNumbers[1], 1);
    EXPECT_EQ(state.ClueTexts[1], "a drink");
    chosen.insert(state.MeaningNumbers[2]);
    EXPECT_EQ(state.ClueTexts[2], meanings.clue("TEAR", state.MeaningNumbers[2]));
    EXPECT_EQ(state.MeaningNumbers[3], 0);
    EXPECT_EQ(state.ClueTexts[3], "");
  }
  EXPECT_EQ(chosen, (std::set<int>{1, 2, 3}));
}

TEST(Letters, ShuffleKeepsTheLettersAndRemainingLettersTakesEachUsedLetterOnce) {
  RandomSource random = RandomSource::seeded(9);
  std::set<std::string> orders;
  for (int i = 0; i < 50; ++i) {
    const std::string shuffled = shuffleLetters("STARED", random);
    EXPECT_EQ(sortedLetters(shuffled), sortedLetters("STARED"));
    orders.insert(shuffled);
  }
  EXPECT_GT(orders.size(), 20u);
  EXPECT_EQ(random.drawCount(), 50u * 12u);  // two draws per letter
  EXPECT_EQ(remainingLetters("SEATED", "EEX"), "SATD");
  EXPECT_EQ(remainingLetters("TEA", ""), "TEA");
}

}  // namespace
}  // namespace combwise
