// The dictionary pools, the anagram keys and the meanings.
#include "core/files/dictionary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "core/files/textfile.h"
#include "support/tempfolder.h"

namespace combwise {
namespace {

using ::testing::ElementsAre;

TEST(DictionaryFile, WordsGoToThePoolOfTheirLengthInUpperCaseAndOtherLinesAreCounted) {
  TempFolder folder;
  const std::string first = folder.file("first.txt");
  // Lower case is taken as upper case; which other words are refused is
  // the word-file fuzz target's work.
  ASSERT_TRUE(writeLines(first, {"TEA", "TEA ", "SEAT", "tears", "STREAM", "ABCDEF", "MASTER", "ab", "SEVENTH", "A#B"},
                         WriteMode::Truncate));
  Dictionary dictionary;
  int pumped = 0;
  ASSERT_TRUE(readDictionary(first, dictionary, [&] { ++pumped; }).ok());
  EXPECT_EQ(pumped, 10);
  EXPECT_EQ(skippedLinesWarning(dictionary),
            "4 lines of " + first + " are not words of 3 to 6 letters A-Z and were skipped");
  EXPECT_THAT(dictionary.Words3.items(), ElementsAre("TEA"));
  EXPECT_THAT(dictionary.Words4.items(), ElementsAre("SEAT"));
  EXPECT_THAT(dictionary.Words5.items(), ElementsAre("TEARS"));
  EXPECT_THAT(dictionary.Words6.items(), ElementsAre("STREAM", "ABCDEF", "MASTER"));
  EXPECT_THAT(dictionary.SixLetterKeys.items(), ElementsAre("ABCDEFABCDEF", "AEMRSTMASTER", "AEMRSTSTREAM"));
  EXPECT_EQ(dictionary.SixLetterKeys.firstWithPrefix("aemrst"), 1);  // case-blind
  EXPECT_EQ(dictionary.SixLetterKeys.firstWithPrefix("ABD"), -1);

  const std::string second = folder.file("second.txt");
  ASSERT_TRUE(writeLines(second, {"SEVENTH", "LETTERS", "EIGHTEEN"}, WriteMode::Truncate));
  ASSERT_TRUE(readDictionary(second, dictionary).ok());  // replaces, never merges
  EXPECT_TRUE(dictionary.empty());
  EXPECT_TRUE(dictionary.SixLetterKeys.empty());
}

TEST(MeaningsFile, TheMeaningNumberPicksTheLineAndAnythingElseGivesNoClue) {
  TempFolder folder;
  const std::string path = folder.file("mean3456.txt");
  ASSERT_TRUE(writeLines(
      path, {"SEAT:a chair", "TEA:a drink", "TEAR:a drop", "TEAR:to rip", "TEAR:a spree", "TEARS:drops", "TEAS:drinks"},
      WriteMode::Truncate));
  Meanings meanings;
  ASSERT_TRUE(meanings.read(path).ok());
  EXPECT_EQ(meanings.clue("TEAR", 3), "a spree");
  // The next line belongs to TEARS, and TEAS has no line past the last.
  for (const auto& [word, number] : {std::pair{"TEAR", 4}, {"TEAR", 0}, {"TEAS", 2}, {"GONE", 1}})
    EXPECT_EQ(meanings.clue(word, number), "") << word << number;

  // Read once: a second read keeps the lines even when the file is gone.
  std::filesystem::remove(path);
  EXPECT_TRUE(meanings.read(path).ok());
  EXPECT_EQ(meanings.lineCount(), 7);
  EXPECT_FALSE(meanings.reload(path).ok());
  EXPECT_FALSE(meanings.loaded());
}

TEST(MeaningsFile, AnEmptyUnsortedOrClueLessFileGivesOneWarning) {
  TempFolder folder;
  const std::string path = folder.file("mean3456.txt");
  const auto warningFor = [&](const std::vector<std::string>& lines) {
    EXPECT_TRUE(writeLines(path, lines, WriteMode::Truncate));
    Meanings meanings;
    EXPECT_TRUE(meanings.read(path).ok());
    return meanings.warning();
  };
  EXPECT_EQ(warningFor({}), path + " holds no meanings: every clue will be empty");
  EXPECT_EQ(warningFor({"just", "words"}), path + " holds no WORD:clue lines: every clue will be empty");
  EXPECT_EQ(warningFor({"TEA:a drink", "SEAT:a chair", "ZOO:a park"}),
            path + " is not sorted (line 2 belongs before line 1): clues may not be found");
  EXPECT_EQ(warningFor({"SEAT:a chair", "TEA:a drink", "TEA:leaves"}), "");
}

TEST(MeaningsFile, RunningOutOfMemoryIsAnErrorThatNamesTheFile) {
#if defined(__SANITIZE_ADDRESS__)
  GTEST_SKIP() << "the address sanitizer reserves more address space than the limit allows";
#else
  TempFolder folder;
  // One line of a gigabyte, made without writing it (the file is sparse).
  const std::string path = folder.write("mean3456.txt", "");
  std::filesystem::resize_file(path, 1LL << 30);
  EXPECT_EXIT(
      {
        rlimit limit{};
        getrlimit(RLIMIT_AS, &limit);
        limit.rlim_cur = 256LL << 20;
        setrlimit(RLIMIT_AS, &limit);
        Meanings meanings;
        const Status read = meanings.read(path);
        std::fprintf(stderr, "%s\n", read.error.c_str());
        std::exit(read.ok() || meanings.loaded() ? 1 : 0);
      },
      ::testing::ExitedWithCode(0), "Cannot read .*mean3456.txt: there is not enough memory");
#endif
}

}  // namespace
}  // namespace combwise
