// The makers' command-line tool, run on small inputs with the game's data.
#include "cli/cli.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "core/files/textfile.h"
#include "support/tempfolder.h"

namespace combwise::cli {
namespace {

using ::testing::HasSubstr;

struct CliRun {
  int status = 0;
  std::string out;
  std::string err;
};

CliRun cli(std::vector<std::string> args, const std::string& home = COMBWISE_BIN_DIR) {
  args.insert(args.begin(), {"--home", home});
  std::ostringstream out;
  std::ostringstream err;
  const int status = runCli(args, out, err);
  return {status, out.str(), err.str()};
}

TEST(CliCreate, ASeedGivesTheSameFileWhateverTheJobsAndRunsAppend) {
  TempFolder temp;
  const std::string one = temp.file("one.txt");
  const std::string two = temp.file("two.txt");
  for (int round = 1; round <= 2; ++round) {
    EXPECT_EQ(cli({"create", "--size", "10", "--count", "5", "--seed", "77", "--jobs", "1", "--output", one}).status,
              0);
    EXPECT_EQ(cli({"create", "--size=10", "--count=5", "--seed=77", "--jobs=2", "--output", two}).status, 0);
  }
  EXPECT_EQ(TempFolder::contentOf(one), TempFolder::contentOf(two));
  // The second run makes the same five again: each puzzle depends on its seed and number only.
  const auto lines = *readLines(one);
  ASSERT_EQ(lines.size(), 10u);
  EXPECT_EQ(std::vector(lines.begin(), lines.begin() + 5), std::vector(lines.begin() + 5, lines.end()));
  EXPECT_NE(lines[0], lines[1]);
  EXPECT_EQ(cli({"check", one}).status, 0);
}

TEST(CliCreate, BadArgumentsAndUnreadableFilesAreRefusedClearly) {
  TempFolder temp;
  const std::string out = temp.file("x.txt");
  const CliRun noOutput = cli({"create", "--size", "7"});
  EXPECT_EQ(noOutput.status, 2);
  EXPECT_THAT(noOutput.err, HasSubstr("--output is required"));
  EXPECT_EQ(cli({"create", "--size", "9", "--output", out}).status, 2);
  EXPECT_EQ(cli({"create", "--size", "7", "--count", "0", "--output", out}).status, 2);
  EXPECT_EQ(cli({"create", "--size", "7", "--colour", "red", "--output", out}).status, 2);
  const CliRun noDictionary = cli({"create", "--size", "7", "--dictionary", temp.file("none.txt"), "--output", out});
  EXPECT_EQ(noDictionary.status, 1);
  EXPECT_THAT(noDictionary.err, HasSubstr("none.txt"));
  const CliRun refused = cli({"create", "--size", "22", "--dictionary", temp.file("ENGLISH2.TXT"), "--output", out});
  EXPECT_EQ(refused.status, 1);
  EXPECT_THAT(refused.err, HasSubstr("english1/2"));
  EXPECT_FALSE(std::filesystem::exists(out));
  EXPECT_EQ(cli({"frobnicate"}).status, 2);
  EXPECT_EQ(cli({"show", "--help"}).status, 0);
}

TEST(CliShowAndClues, ShowDrawsThePuzzleAndCluesWritesTheListing) {
  TempFolder temp;
  const std::string collection = temp.file("set.txt");
  ASSERT_EQ(cli({"create", "--size", "7", "--count", "2", "--seed", "3", "--output", collection}).status, 0);

  const CliRun shown = cli({"show", collection, "2"});
  EXPECT_EQ(shown.status, 0);
  EXPECT_TRUE(shown.out.starts_with("set.txt  p# 2 of 2")) << shown.out;  // the file's name, not its path
  // The centre hexagon's number stands on its top edge; blanks are the cells to fill.
  EXPECT_THAT(shown.out, ::testing::AllOf(HasSubstr("+---+04-+---+"), HasSubstr(" _ "), HasSubstr("  07. ")));
  EXPECT_THAT(cli({"show", collection, "-1", "--solution"}).out, ::testing::Not(HasSubstr(" _ ")));
  EXPECT_EQ(cli({"show", collection, "3"}).status, 1);
  EXPECT_EQ(cli({"show", collection, "zero"}).status, 2);

  const std::string listing = temp.file("clues.txt");
  ASSERT_EQ(cli({"clues", collection, "1", "--output", listing}).status, 0);
  const auto lines = *readLines(listing);
  ASSERT_EQ(lines.size(), 20u);  // two banner lines, a blank, 1 + 7 inside, a blank, 1 + 7 outside
  EXPECT_EQ(lines[1], " Puz# 1: " + collection);
  EXPECT_EQ(lines[3] + "|" + lines[12], " INSIDE CLUES:| OUTSIDE CLUES:");
  EXPECT_EQ(lines[4].substr(0, 5) + lines[19].substr(0, 5), " 01.  07. ");
}

TEST(CliCheck, ReportsEveryBrokenLineByNumber) {
  TempFolder temp;
  const std::string collection = temp.file("set.txt");
  ASSERT_EQ(cli({"create", "--size", "7", "--count", "1", "--seed", "5", "--output", collection}).status, 0);
  std::string good = (*readLines(collection))[0];
  std::string swapped = good;
  const auto letter = swapped.find_first_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ");
  swapped[letter] = swapped[letter] == 'Q' ? 'Z' : 'Q';  // a letter no longer matching its words
  std::string unknownWord = good;
  unknownWord.replace(unknownWord.rfind(';', unknownWord.size() - 2) + 1, 3, "QQQ");
  ASSERT_TRUE(writeLines(collection, {good, swapped, "", "7;abc;NOCOMMA;", unknownWord}, WriteMode::Truncate));

  const CliRun checked = cli({"check", collection});
  EXPECT_EQ(checked.status, 1);
  EXPECT_THAT(checked.out, ::testing::Not(HasSubstr(collection + ":1:")));
  for (const char* line : {":2: hexagon", ":3: blank line", ":4: word field 1 has no \",\"", ":5: slot 14: QQQ"})
    EXPECT_THAT(checked.out, HasSubstr(collection + line));
  EXPECT_THAT(checked.out, HasSubstr("5 puzzles checked, 4 have problems"));
}

TEST(CliCollections, RandomizeWritesBesideAndBatchAppendsToTheProgramFoldersFile) {
  TempFolder temp;
  const std::string collection = temp.file("set.txt");
  ASSERT_TRUE(writeLines(collection, {"7;A;", "7;a;", "8;B;", "8;B;", "9;C;"}, WriteMode::Truncate));
  EXPECT_EQ(cli({"randomize", collection, "--seed", "1"}).status, 0);
  EXPECT_EQ(countLines(temp.file("set-noduprandom.txt")), 3);

  // The batch reads the program folder's own dictionary and meanings.
  for (const char* name : {"english3.txt", "mean3456.txt"})
    std::filesystem::copy_file(std::string(COMBWISE_BIN_DIR) + "/" + name, temp.file(name));
  for (int round = 1; round <= 2; ++round) {
    const CliRun batch = cli({"batch", "--count", "3", "--seed", "9"}, temp.folder());
    EXPECT_EQ(batch.status, 0);
    EXPECT_THAT(batch.out, HasSubstr("done"));
  }
  const auto made = *readLines(temp.file("puz-18sepsize17D.txt"));
  ASSERT_EQ(made.size(), 6u);
  EXPECT_EQ(made[0].substr(0, 3), "17;");
}

}  // namespace
}  // namespace combwise::cli
