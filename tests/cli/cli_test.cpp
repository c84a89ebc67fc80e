// The makers' command-line tool, run on small inputs with the game's data,
// and its pdf command drawing the range printer's pages headless.
#include "cli/cli.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <sstream>

#include "core/files/config.h"
#include "core/files/textfile.h"
#include "support/fifo.h"
#include "support/filesizelimit.h"
#include "support/tempfolder.h"

namespace combwise::cli {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

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

// A collection the tool makes in `temp`.
std::string made(const TempFolder& temp, int size, int count, int seed) {
  const std::string path = temp.file("set.txt");
  using std::to_string;
  const CliRun run = cli({"create", "--size", to_string(size), "--count", to_string(count), "--seed", to_string(seed),
                          "--distinct", "--output", path});
  EXPECT_EQ(run.status, 0) << run.err;
  return path;
}

long filesIn(const std::string& folder) {
  return static_cast<long>(std::distance(std::filesystem::directory_iterator(folder), {}));
}

struct ShellRun {
  int status = -1;
  std::string output;  // standard output and error together
};

ShellRun shell(const std::string& command) {
  ShellRun run;
  FILE* pipe = popen((command + " 2>&1").c_str(), "r");
  if (!pipe) return run;
  char buffer[4096];
  while (fgets(buffer, sizeof buffer, pipe)) run.output += buffer;
  const int status = pclose(pipe);
  run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  return run;
}

// A PDF read back with poppler's tools.
int pages(const std::string& pdf) {
  const std::string info = shell("pdfinfo '" + pdf + "'").output;
  const auto at = info.find("Pages:");
  return at == std::string::npos ? 0 : std::stoi(info.substr(at + 6));
}
std::string textOf(const std::string& pdf) { return shell("pdftotext -layout '" + pdf + "' -").output; }

TEST(CliCreate, ASeedGivesTheSameFileWhateverTheJobsAndARunAppends) {
  TempFolder temp;
  const std::string one = temp.file("one.txt"), two = temp.file("two.txt");
  const std::vector<std::string> oneJob = {"create", "--size", "10", "--count",    "5",        "--seed",
                                           "77",     "--jobs", "1",  "--distinct", "--output", one};
  for (int round = 1; round <= 2; ++round) EXPECT_EQ(cli(oneJob).status, 0);
  EXPECT_EQ(cli({"create", "--size=10", "--count=5", "--seed=77", "--jobs=2", "--distinct", "--output", two}).status,
            0);
  const auto lines = *readLines(one);
  ASSERT_EQ(lines.size(), 10u);
  EXPECT_EQ(std::vector(lines.begin() + 5, lines.end()), *readLines(two));
  EXPECT_NE(lines[0], lines[1]);
  EXPECT_EQ(cli({"check", one}).status, 0);
}

TEST(CliArguments, BadArgumentsAndUnreadableFilesAreRefusedWithTheirCauseAndWriteNothing) {
  TempFolder temp;
  const std::string set = made(temp, 7, 2, 3), out = temp.file("x.pdf"), none = temp.file("none.txt");
  const std::string before = TempFolder::contentOf(set), tiny = temp.file("tiny.txt");
  ASSERT_TRUE(
      writeLines(tiny, {"TEA", "TEA", "SEAT", "SEAT", "TEARS", "TEARS", "STREAM", "STREAM"}, WriteMode::Truncate));
  struct Case {
    std::vector<std::string> args;
    int status;
    std::string said;
  };
  const Case cases[] = {
      {{"create", "--size", "7"}, 2, "--output is required"},
      {{"create", "--size", "9", "--output", out}, 2, "--size"},
      {{"create", "--size", "7", "--dictionary", none, "--output", out}, 1, none},
      {{"create", "--size", "7", "--max-tries", "40", "--dictionary", tiny, "--output", out},
       1,
       tiny + " cannot make puzzles of size 7: no puzzle after 40 tries"},
      {{"frobnicate"}, 2, "frobnicate"},
      {{"--frobnicate", "show"}, 2, "unknown option '--frobnicate'"},
      {{"show", ""}, 2, "an empty argument names no file"},
      {{"show", set, "900"}, 1, set + ": there is no puzzle 900"},
      {{"show", none}, 1, "combwise-cli show: Cannot open " + none + ": No such file or directory\n"},
      {{"check", temp.folder()}, 1, temp.folder() + ": it is a folder"},
      {{"pdf", set, "2-1", "--output", out}, 2, "Print range not correct"},
      {{"pdf", set, "1", "--output", set}, 1, "is an input of this command"},
      {{"pdf", set, "1", "--output", out, "--booklet", "--paper", "A5"}, 2, "A5"},
  };
  for (const Case& c : cases) {
    const CliRun run = cli(c.args);
    SCOPED_TRACE(c.args.front() + " " + c.args.back());
    EXPECT_EQ(run.status, c.status);
    EXPECT_THAT(run.err, HasSubstr(c.said));
  }
  EXPECT_EQ(cli({"show", "--help"}).status, 0);
  EXPECT_EQ(filesIn(temp.folder()), 2);
  EXPECT_EQ(TempFolder::contentOf(set), before);
}

TEST(CliShowAndClues, ShowDrawsThePuzzleAndCluesWritesTheListingAndReplacesItOnlyWithForce) {
  TempFolder temp;
  const std::string collection = made(temp, 7, 2, 3);
  const CliRun shown = cli({"show", collection, "2"});
  EXPECT_EQ(shown.status, 0);
  EXPECT_TRUE(shown.out.starts_with("set.txt  p# 2 of 2")) << shown.out;  // the file's name, not its path
  // The centre hexagon's number stands on its top edge; blanks are the cells to fill.
  EXPECT_THAT(shown.out, ::testing::AllOf(HasSubstr("+---+04-+---+"), HasSubstr(" _ "), HasSubstr("  07. ")));
  EXPECT_THAT(cli({"show", collection, "-1", "--solution"}).out, Not(HasSubstr(" _ ")));

  // The listing's layout is the clue listing's own test.
  const std::string listing = temp.file("clues.txt");
  ASSERT_EQ(cli({"clues", collection, "1", "--output", listing}).status, 0);
  EXPECT_EQ((*readLines(listing))[1], " Puz# 1: " + collection);
  const CliRun again = cli({"clues", collection, "2", "--output", listing});
  EXPECT_EQ(again.status, 1);
  EXPECT_THAT(again.err, HasSubstr(listing + " exists; give --force to replace it"));
  EXPECT_EQ(cli({"clues", collection, "2", "--output", listing, "--force"}).status, 0);
  EXPECT_THAT(TempFolder::contentOf(listing), HasSubstr("Puz# 2:"));
}

TEST(CliCheck, ReportsEveryBrokenLineByNumberAndADictionaryItCannotUse) {
  TempFolder temp;
  const std::string collection = made(temp, 7, 1, 5), sevens = temp.file("sevens.txt");
  const std::string good = (*readLines(collection))[0];
  std::string unknownWord = good;
  unknownWord.replace(unknownWord.rfind(';', unknownWord.size() - 2) + 1, 3, "QQQ");
  ASSERT_TRUE(writeLines(collection, {good, "7;abc;NOCOMMA;", unknownWord}, WriteMode::Truncate));
  const CliRun checked = cli({"check", collection});
  EXPECT_EQ(checked.status, 1);
  EXPECT_THAT(checked.out, Not(HasSubstr(collection + ":1:")));
  for (const char* line : {":2: word field 1 has no \",\"", ":3: slot 14: QQQ"})
    EXPECT_THAT(checked.out, HasSubstr(collection + line));
  EXPECT_THAT(checked.out, HasSubstr(" is not in the dictionary"));
  EXPECT_THAT(checked.out, HasSubstr("3 puzzles checked, 2 have problems"));

  // Words no puzzle can hold: said once, and the words go unchecked.
  ASSERT_TRUE(writeLines(sevens, {"SEVENTH", "LETTERS"}, WriteMode::Truncate));
  const CliRun unfit = cli({"check", collection, "--dictionary", sevens});
  EXPECT_THAT(unfit.err, HasSubstr(sevens + " holds no words of 3 to 6 letters (words not checked)"));
  EXPECT_THAT(unfit.out, Not(HasSubstr("is not in the dictionary")));
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
  const CliRun batch = cli({"batch", "--count", "3", "--seed", "9"}, temp.folder());
  EXPECT_EQ(batch.status, 0);
  EXPECT_THAT(batch.out, HasSubstr("done"));
  const auto made = *readLines(temp.file("puz-18sepsize17D.txt"));
  ASSERT_EQ(made.size(), 3u);
  EXPECT_EQ(made[0].substr(0, 3), "17;");
}

TEST(CliPdf, ARangeStopsAtTheEndCluesAddAPageAndABookletTakesItsTitleAndPaper) {
  TempFolder temp;
  const std::string collection = made(temp, 7, 3, 5), pdf = temp.file("p.pdf");
  const CliRun two = cli({"pdf", collection, "2-9", "--output", pdf, "--clues"});
  EXPECT_EQ(two.status, 0) << two.err;
  EXPECT_THAT(two.out, HasSubstr("2 puzzles printed"));
  EXPECT_EQ(pages(pdf), 4);
  EXPECT_THAT(textOf(pdf), ::testing::AllOf(HasSubstr("- Puz# 3:"), HasSubstr("OUTSIDE CLUES:")));

  const CliRun booklet =
      cli({"pdf", collection, "all", "--output", pdf, "--booklet", "--title", "Class 4b", "--paper", "Letter"});
  ASSERT_EQ(booklet.status, 0) << booklet.err;
  EXPECT_EQ(pages(pdf), 3 + 1);
  EXPECT_THAT(shell("pdfinfo '" + pdf + "'").output, HasSubstr("612 x 792 pts (letter)"));
  EXPECT_THAT(textOf(pdf), ::testing::AllOf(HasSubstr("Class 4b"), HasSubstr("Page 4 of 4")));
}

// Words only, so a clue wrapped over lines on paper compares with its
// one-line form in the text file.
std::string wordsOf(const std::string& text) {
  std::istringstream in(text);
  std::string words;
  for (std::string word; in >> word;) words += word + " ";
  return words;
}

TEST(CliPdf, ALargeFontListingOfTheBiggestPuzzleKeepsEveryClueOnA4AndLetter) {
  TempFolder home;
  for (const char* name : {"english3.txt", "mean3456.txt"})
    std::filesystem::copy_file(std::string(COMBWISE_BIN_DIR) + "/" + name, home.file(name));
  Settings settings;
  settings.boardFontName = "DejaVu Sans";
  settings.BoardFontSize = 14;
  ASSERT_TRUE(SavecfgFile(home.folder(), settings).ok());
  const std::string collection = made(home, 22, 1, 3), listing = home.file("clues.txt");
  ASSERT_EQ(cli({"clues", collection, "1", "--output", listing}, home.folder()).status, 0);
  const auto lines = *readLines(listing);
  ASSERT_GE(lines.size(), 48u);

  for (const auto& [paper, size] : {std::pair{"A4", "(A4)"}, std::pair{"Letter", "(letter)"}}) {
    const std::string pdf = home.file(std::string("clues-") + paper + ".pdf");
    const CliRun run = cli({"pdf", collection, "1", "--output", pdf, "--clues", "--paper", paper}, home.folder());
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_GE(pages(pdf), 3) << paper << ": the listing takes more than one page";
    EXPECT_THAT(shell("pdfinfo '" + pdf + "'").output, HasSubstr(size));
    // pdftotext drops text that lies below the paper's edge.
    const std::string printed = wordsOf(textOf(pdf));
    for (const std::string& line : lines) {
      if (line.find(". ") != 3) continue;  // the clue entries: " 01. clue"
      EXPECT_THAT(printed, HasSubstr(wordsOf(line))) << paper;
    }
  }
}

TEST(CliPipes, EveryCommandRefusesAPipeWithoutWaitingOnIt) {
  TempFolder temp;
  const std::string collection = made(temp, 7, 1, 3), output = temp.file("out.txt");
  const Fifo pipe(temp.file("pipe.txt"));
  ASSERT_TRUE(pipe.made());
  const std::string refused = "Cannot open " + pipe.path() + ": it is not a regular file\n";
  const std::vector<std::vector<std::string>> commands = {
      {"create", "--size", "7", "--dictionary", pipe.path(), "--output", output},
      {"create", "--size", "7", "--meanings", pipe.path(), "--output", output},
      {"check", collection, "--dictionary", pipe.path()},
      {"check", pipe.path()},
      {"randomize", pipe.path()},
  };
  for (const auto& command : commands) {
    CliRun run;
    EXPECT_TRUE(pipe.returnsWithoutWaiting([&] { run = cli(command); })) << command[0] << " " << command[1];
    EXPECT_EQ(run.status, 1) << command[0];
    EXPECT_EQ(run.err, "combwise-cli " + command[0] + ": " + refused) << command[0];
  }
  CliRun appended;
  EXPECT_TRUE(pipe.returnsWithoutWaiting([&] {
    appended = cli({"create", "--size", "7", "--seed", "1", "--output", pipe.path()});
  }));
  EXPECT_EQ(appended.err, "combwise-cli create: Cannot write " + pipe.path() + ": it is not a regular file\n");
  EXPECT_FALSE(std::filesystem::exists(output));
}

// A folder that takes a page or two more: printing over an older PDF and
// appending to the collection are both refused with the cause, and the
// folder stays as it was.
TEST(CliFullDisk, AFailedWriteLeavesThePdfAndTheCollectionAsTheyWereAndSaysWhy) {
  TempFolder temp;
  const std::string set = made(temp, 7, 3, 5), pdf = temp.file("p.pdf"), before = TempFolder::contentOf(set);
  ASSERT_TRUE(writeLines(pdf, {"old"}, WriteMode::Truncate));
  {
    const FileSizeLimit full(before.size() + 1000);
    const CliRun printed = cli({"pdf", set, "all", "--output", pdf, "--clues"});
    EXPECT_EQ(printed.status, 1);
    EXPECT_EQ(printed.out, "");
    EXPECT_EQ(printed.err, "combwise-cli pdf: Cannot write " + pdf + ": File too large\n");
    const CliRun created = cli({"create", "--size", "7", "--count", "60", "--seed", "6", "--output", set});
    EXPECT_EQ(created.status, 1);
    EXPECT_THAT(created.err, HasSubstr("Cannot write " + set + ": File too large; the "));
    EXPECT_THAT(created.err, HasSubstr(" lines added before it were taken back"));
  }
  EXPECT_EQ(TempFolder::contentOf(pdf), "old\r\n");
  EXPECT_EQ(TempFolder::contentOf(set), before);
  EXPECT_EQ(filesIn(temp.folder()), 2);

  // A folder the tool may not write to: the cause, and no word from Qt, so
  // the tool runs in a process of its own (as another user if need be).
  std::filesystem::create_directory(temp.file("ro"));
  std::filesystem::permissions(temp.file("ro"), std::filesystem::perms(0555));
  const bool root = ::geteuid() == 0;
  if (root && std::system("setpriv --help > /dev/null 2>&1") != 0) GTEST_SKIP() << "no setpriv to run as another user";
  const ShellRun refused = shell(std::string(root ? "setpriv --reuid=65534 --regid=65534 --clear-groups " : "") +
                                 "timeout 30 '" COMBWISE_BIN_DIR "/combwise-cli' --home '" COMBWISE_BIN_DIR "' pdf '" +
                                 set + "' 1 --output '" + temp.file("ro/c.pdf") + "'");
  EXPECT_EQ(refused.status, 1);
  EXPECT_THAT(refused.output,
              HasSubstr("combwise-cli pdf: Cannot write " + temp.file("ro/c.pdf") + ": Permission denied"));
  EXPECT_THAT(refused.output, Not(HasSubstr("QPainter")));
  EXPECT_EQ(filesIn(temp.file("ro")), 0);
}

}  // namespace
}  // namespace combwise::cli
