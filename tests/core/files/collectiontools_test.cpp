// Randomize: de-duplication, the output path and the seeded shuffle.
#include "core/files/collectiontools.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "core/files/textfile.h"
#include "core/model/text.h"
#include "support/tempfolder.h"

namespace combwise {
namespace {

TEST(RandomizedPath, CutsAtTheLastDotOfTheWholePathAndFailsWithoutOne) {
  EXPECT_EQ(randomizedPath("/home/me/set1.txt"), "/home/me/set1-noduprandom.txt");
  EXPECT_EQ(randomizedPath("/home/my.files/set1"), "/home/my-noduprandom.txt");
  EXPECT_EQ(randomizedPath("/home/me/set1"), std::nullopt);
}

TEST(Randomize, DropsRepeatsCaseVariantsAndBeginningsOfEarlierLines) {
  TempFolder folder;
  const std::string source = folder.file("set1.txt");
  const std::vector<std::string> lines = {"7;ABC;TEA,1;",  "7;ABC;TEA,1;", "7;abc;tea,1;", "7;AB",
                                          "7;ABC;TEA,1;X", "10;Z;",        "7;ABC;TEA,1;"};
  ASSERT_TRUE(writeLines(source, lines, WriteMode::Truncate));
  ASSERT_TRUE(writeLines(folder.file("set1-noduprandom.txt"), {"old", "old"}, WriteMode::Truncate));
  std::vector<std::string> progress;
  RandomSource random = RandomSource::seeded(42);
  const auto result = randomizeCollection(source, random, [&](const std::string& text) { progress.push_back(text); });

  ASSERT_TRUE(result.status.ok()) << result.status.error;
  EXPECT_EQ(result.outputPath, folder.file("set1-noduprandom.txt"));
  EXPECT_EQ(result.message, result.outputPath + " randomized");
  EXPECT_EQ(result.readCount, 7);
  EXPECT_EQ(result.distinctCount, 3);
  EXPECT_THAT(*readLines(result.outputPath), ::testing::UnorderedElementsAre("7;ABC;TEA,1;", "7;ABC;TEA,1;X", "10;Z;"));
  EXPECT_EQ(*readLines(source), lines);
  EXPECT_EQ(progress.front() + "|" + progress.back(), "source 1 1|random 3");
  EXPECT_THAT(progress, ::testing::IsSupersetOf({"source 7 3", "no dup 3"}));
}

// The program finds the kept lines by an ordered lookup; the rule as stated
// checks one line against every kept line.
TEST(Randomize, RandomCollectionsKeepExactlyTheLinesTheRuleKeepsShuffledAsTheSeedFixes) {
  TempFolder folder;
  std::mt19937 engine(11);
  const std::string alphabet = "aAbB;";
  for (int round = 0; round < 40; ++round) {
    std::vector<std::string> lines, kept;
    for (int i = 0; i < 150; ++i) {
      std::string line;
      for (std::size_t n = engine() % 7; n > 0; --n) line += alphabet[engine() % alphabet.size()];
      if (std::none_of(kept.begin(), kept.end(), [&](const std::string& k) { return startsWithIgnoreCase(k, line); }))
        kept.push_back(line);
      lines.push_back(line);
    }
    ASSERT_TRUE(writeLines(folder.file("r.txt"), lines, WriteMode::Truncate));
    const auto randomized = [&](std::uint64_t seed) {
      RandomSource random = RandomSource::seeded(seed);
      EXPECT_EQ(randomizeCollection(folder.file("r.txt"), random).distinctCount, static_cast<long long>(kept.size()));
      return *readLines(folder.file("r-noduprandom.txt"));
    };
    const auto shuffled = randomized(round);
    EXPECT_THAT(shuffled, ::testing::UnorderedElementsAreArray(kept));
    EXPECT_EQ(randomized(round), shuffled);
  }
}

}  // namespace
}  // namespace combwise
