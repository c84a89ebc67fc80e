// The generator: the puzzles it makes are sound, its known cases hold, and
// the fast form makes exactly the puzzles of the straightforward one.
#include "core/generator/generator.h"

#include <gtest/gtest.h>

#include <climits>

#include "core/files/textfile.h"
#include "core/generator/batch.h"
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

// A dictionary read from `words`, written to a file in `folder`.
Dictionary dictionaryOf(const TempFolder& folder, const std::vector<std::string>& words) {
  Dictionary dictionary;
  EXPECT_TRUE(writeLines(folder.file("words.txt"), words, WriteMode::Truncate));
  EXPECT_TRUE(readDictionary(folder.file("words.txt"), dictionary).ok());
  return dictionary;
}

// Two words of every length: the pools pass the first check, yet no
// puzzle can ever be made from them.
const std::vector<std::string> kHandful{"TEA", "EAT", "SEAT", "EATS", "TEARS", "STARE", "MASTER", "STREAM"};

Made makePuzzle(PuzzleGenerator& generator, int size, RandomSource& random) {
  Made made;
  setUpPuzzle(made.board, made.state, size);
  EXPECT_TRUE(generator.generate(made.board, made.state, random));
  return made;
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
        const clsSimpleArray* pool = gameDictionary().pool(static_cast<int>(word.size()));
        EXPECT_TRUE(pool && pool->FindStringOnce(word) >= 0) << word;
        EXPECT_EQ(made.state.ClueTexts[slot], gameMeanings().clue(word, made.state.MeaningNumbers[slot]));
      }
    }
  }
}

// Batch puzzles from both forms: many streams, pools back in the
// dictionary's order before each.
void expectBothFormsAgreeOnStreams(const Dictionary& dictionary, std::uint64_t seed, std::uint64_t streams) {
  PuzzleGenerator fast(dictionary, gameMeanings(), GeneratorForm::Fast);
  PuzzleGenerator plain(dictionary, gameMeanings(), GeneratorForm::Straightforward);
  for (std::uint64_t stream = 1; stream <= streams; ++stream) {
    fast.resetPools();
    plain.resetPools();
    RandomSource one = RandomSource::seeded(seed, stream);
    RandomSource two = RandomSource::seeded(seed, stream);
    const int size = Board::kSizes[stream % 4];
    EXPECT_EQ(makePuzzle(fast, size, one).state.Letters, makePuzzle(plain, size, two).state.Letters) << stream;
    EXPECT_EQ(fast.summaryLines(), plain.summaryLines());
    EXPECT_EQ(fast.stats().attempts, plain.stats().attempts);
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
    EXPECT_EQ(a.state.MeaningNumbers, b.state.MeaningNumbers);
    EXPECT_EQ(fast.summaryLines(), plain.summaryLines());
    EXPECT_EQ(fastRandom.drawCount(), plainRandom.drawCount());
  }
  expectBothFormsAgreeOnStreams(gameDictionary(), 99, 12);
}

// Words of mixed case sort differently before and after upper-casing, which
// the fast check must notice and still agree with the straightforward one.
TEST(Generator, FastFormAgreesOnADictionaryOfMixedCase) {
  TempFolder folder;
  std::vector<std::string> lines;
  for (int length = 3; length <= 6; ++length) {
    const auto& words = gameDictionary().pool(length)->items();
    for (std::size_t i = 0; i < words.size(); ++i) lines.push_back(i % 3 == 0 ? toLower(words[i]) : words[i]);
  }
  expectBothFormsAgreeOnStreams(dictionaryOf(folder, lines), 5, 4);
}

TEST(Generator, APoolOfOneWordNeverYieldsACandidateSoNothingIsDrawn) {
  TempFolder temp;
  const Dictionary dictionary = dictionaryOf(temp, {"CAT", "DOG", "TEAR", "SEAT", "TEARS", "STARE", "SEATED"});
  PuzzleGenerator generator(dictionary, gameMeanings());
  EXPECT_FALSE(generator.canGenerate());
  Made made;
  setUpPuzzle(made.board, made.state, 7);
  RandomSource random = RandomSource::seeded(1);
  EXPECT_FALSE(generator.generate(made.board, made.state, random));
  EXPECT_EQ(random.drawCount(), 0u);
}

TEST(Clues, TheOnlyMeaningIsTakenWithoutADrawAndOneOfSeveralIsPicked) {
  TempFolder temp;
  ASSERT_TRUE(writeLines(temp.file("m.txt"), {"TEA:a drink", "TEAR:a rip", "TEAR:a drop from the eye", "TEAR:to rush"},
                         WriteMode::Truncate));
  Meanings meanings;
  ASSERT_TRUE(meanings.read(temp.file("m.txt")).ok());
  PuzzleState state;
  state.WordCount = 3;
  state.WordSlots = {"", "TEA", "tear", "NONE"};  // tear is looked up in upper case
  state.MeaningNumbers[3] = 9;
  RandomSource random = RandomSource::seeded(5);
  attachClues(state, meanings, random);
  EXPECT_EQ(random.drawCount(), 1u);  // only the word with several meanings draws
  EXPECT_TRUE(state.MeaningNumbers[2] >= 1 && state.MeaningNumbers[2] <= 3);
  EXPECT_EQ(state.ClueTexts[2], meanings.clue("TEAR", state.MeaningNumbers[2]));
  EXPECT_EQ(std::vector({state.ClueTexts[1], state.ClueTexts[3]}), std::vector<std::string>({"a drink", ""}));
  EXPECT_EQ(state.MeaningNumbers[3], 0);
}

TEST(Generator, ADictionaryThatCanNeverMakeTheSizeGivesUpAfterMaxTries) {
  TempFolder folder;
  const Dictionary dictionary = dictionaryOf(folder, kHandful);
  PuzzleGenerator generator(dictionary, gameMeanings());
  ASSERT_TRUE(generator.canGenerate());
  Board board;
  PuzzleState state;
  setUpPuzzle(board, state, 7);
  RandomSource random = RandomSource::seeded(1);
  std::string lastReset;
  GeneratorHooks hooks;
  hooks.status = [&](const std::string& text) {
    if (text.starts_with("Reset")) lastReset = text;
  };
  hooks.maxTries = 30;
  EXPECT_FALSE(generator.generate(board, state, random, hooks));
  EXPECT_EQ(generator.lastEnd(), GenerateEnd::GaveUp);
  EXPECT_EQ(lastReset, "Reset ... 30");
}

TEST(PuzzleLines, RunsStreamWhateverTheCount) {
  LineRunOptions options;
  options.size = 7;
  options.count = INT_MAX;  // a line slot per puzzle would be tens of gigabytes
  options.jobs = 2;
  options.seed = 3;
  std::vector<std::string> lines;
  const Status stopped = makePuzzleLines(gameDictionary(), gameMeanings(), options, [&](int, const std::string& line) {
    lines.push_back(line);
    return lines.size() < 3;
  });
  EXPECT_EQ(stopped.error, "Stopped after 3 puzzles");
  EXPECT_EQ(lines.size(), 3u);
}

// Eight words repeated to a million lines: every try shuffles a million
// pool entries, so the try bound alone would run for hours. The work bound
// gives up long before, with the same message.
TEST(PuzzleLines, AHugeDictionaryThatCannotMakeTheSizeGivesUpOnItsWorkBound) {
  TempFolder folder;
  std::vector<std::string> lines;
  for (int i = 0; i < 1000000; ++i) lines.push_back(kHandful[static_cast<std::size_t>(i) % kHandful.size()]);
  const Dictionary dictionary = dictionaryOf(folder, lines);

  LineRunOptions options;
  options.size = 7;
  options.maxTries = kDefaultMaxTries;
  options.maxWork = kDefaultMaxWork;
  options.dictionaryPath = "million.txt";
  const std::string output = folder.file("out.txt");
  const Status gaveUp = appendPuzzleLines(output, dictionary, gameMeanings(), options);
  EXPECT_EQ(gaveUp.error, gaveUpMessage("million.txt", 7, kDefaultMaxWork / 1000000));
  EXPECT_FALSE(std::filesystem::exists(output));  // no empty file left behind
}

}  // namespace
}  // namespace combwise
