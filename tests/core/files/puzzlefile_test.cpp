// The collection line format, and writing, counting and reading puzzles.
#include "core/files/puzzlefile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/resource.h>

#include <tuple>

#include "core/model/text.h"
#include "support/tempfolder.h"

namespace combwise {
namespace {

using ::testing::ElementsAre;

// A puzzle of a size with a letter on every hexagon cell and a word with a
// meaning number in every slot.
PuzzleState filledPuzzle(int size, int seed) {
  Board board;
  PuzzleState state;
  setUpPuzzle(board, state, size);
  for (int row = 1; row <= state.GridRows; ++row) {
    for (int col = 1; col <= state.GridCols; ++col)
      state.Letters.at(row, col) = board.HexAt(row, col) ? std::string(1, char('A' + (seed + row * 7 + col) % 26)) : "";
  }
  for (int slot = 1; slot <= state.WordCount; ++slot) {
    state.WordSlots[slot] = "W" + NumberText(seed * 100 + slot);
    state.MeaningNumbers[slot] = slot % 3 + 1;
  }
  return state;
}

// Everything a load may change, and the player's entries, which it never does.
void expectSamePuzzle(const PuzzleState& a, const PuzzleState& b) {
  const auto fields = [](const PuzzleState& s) {
    return std::tie(s.PuzzleSize, s.Letters, s.WordSlots, s.MeaningNumbers, s.ClueTexts, s.CollectionPath,
                    s.PuzzleNumber, s.SelRow, s.UndoList, s.Entries);
  };
  EXPECT_TRUE(fields(a) == fields(b));
}

TEST(DotCodes, RunsAreCompactedLongestFirstAndTheIllustrativeLineRoundTrips) {
  const std::vector<std::pair<int, std::string>> table = {{1, "."},  {2, "*"},  {3, "&"},     {4, "^"},  {5, "%"},
                                                          {6, "%."}, {8, "%&"}, {20, "%%%%"}, {21, "#"}, {27, "#%."}};
  for (const auto& [run, code] : table) {
    EXPECT_EQ(compactDots(std::string(run, '.')), code) << run;
    EXPECT_EQ(expandDots(code), std::string(run, '.')) << run;
  }
  // A made-up size 2 on a 3 x 7 grid: the format alone, no board behind it.
  const PuzzleRecord record{2, "..AT....E..R.....S...", {{"SEAT", 1}, {"TEAR", 3}}};
  EXPECT_EQ(formatPuzzleLine(record), "2;*AT^E*R%S&;SEAT,1;TEAR,3;");
  EXPECT_EQ(parsePuzzleLine("2;*AT^E*R%S&;SEAT,1;TEAR,3;").record, record);
}

class CollectionFile : public ::testing::Test {
 protected:
  PuzzleReadResult read(const std::string& path, int n) {
    state.PuzzleCount = countPuzzles(path);
    return readPuzzle(path, n, board, state, {&meanings, folder.file("mean3456.txt"), {}});
  }
  TempFolder folder;
  Board board;
  PuzzleState state;
  Meanings meanings;
};

TEST_F(CollectionFile, WrittenPuzzlesReadBackAndTheBoardIsRebuiltOnlyOnASizeSwitch) {
  const std::string path = folder.file("set.txt");
  const PuzzleState small = filledPuzzle(7, 1);
  const PuzzleState large = filledPuzzle(22, 5);
  ASSERT_TRUE(writePuzzle(path, WriteMode::Append, large).ok());  // creates the file
  ASSERT_TRUE(writePuzzle(path, WriteMode::Truncate, small).ok());
  ASSERT_TRUE(writePuzzle(path, WriteMode::Append, large).ok());
  ASSERT_TRUE(writePuzzle(path, WriteMode::Append, small).ok());
  EXPECT_EQ(countPuzzles(path), 3);
  EXPECT_FALSE(writePuzzle(path, WriteMode::Append, PuzzleState{}).ok());  // no puzzle yet
  EXPECT_EQ(withDefaultExtension(folder.file("set")), path);
  EXPECT_EQ(withDefaultExtension("my.files/puz"), "my.files/puz");
  EXPECT_EQ(withDefaultExtension("/tmp/range", kPdfExtension), "/tmp/range.pdf");
  state.Entries.at(3, 6) = "Q";
  state.SelRow = 3;
  state.UndoList.push_front("record");

  using Step = std::tuple<int, const PuzzleState*, bool, int>;  // n, puzzle, board rebuilt, number
  for (const auto& [n, written, rebuilt, number] :
       {Step{1, &small, true, 1}, {2, &large, true, 2}, {3, &small, true, 3}, {-1, &small, false, 3}}) {
    const auto result = read(path, n);
    ASSERT_TRUE(result.loaded()) << result.message;
    EXPECT_EQ(result.rebuilt, rebuilt) << n;
    EXPECT_EQ(state.PuzzleNumber, number);
    EXPECT_EQ(state.CollectionPath, path);
    EXPECT_TRUE(std::tie(state.Letters, state.WordSlots, state.MeaningNumbers) ==
                std::tie(written->Letters, written->WordSlots, written->MeaningNumbers))
        << n;
  }
  EXPECT_EQ(state.Entries.at(3, 6), "Q");
  EXPECT_EQ(state.SelRow, 0);
  EXPECT_TRUE(state.UndoList.empty());
}

TEST_F(CollectionFile, BlankLinesCountAndNumbersOutsideTheCollectionLoadNothing) {
  const std::string path = folder.file("set.txt");
  ASSERT_TRUE(
      writeLines(path, {puzzleLine(filledPuzzle(7, 3)), "", puzzleLine(filledPuzzle(17, 4))}, WriteMode::Truncate));
  EXPECT_EQ(countPuzzles(path), 3);
  ASSERT_TRUE(read(path, 1).loaded());
  const PuzzleState before = state;

  EXPECT_EQ(read(path, 2).message, "blank line");
  EXPECT_EQ(read(path, 4).message, "there is no puzzle 4: N must be from 1 to 3, or -1 for the last");
  state.PuzzleCount = 5;  // the file shrank since it was counted
  EXPECT_EQ(readPuzzle(path, 5, board, state, {}).outcome, ReadOutcome::Unreadable);
  expectSamePuzzle(state, before);

  const std::string empty = folder.file("empty.txt");
  ASSERT_TRUE(writeLines(empty, {}, WriteMode::Truncate));
  EXPECT_EQ(countPuzzles(empty), 0);
  const auto none = read(empty, 1);
  EXPECT_EQ(none.outcome, ReadOutcome::NoPuzzles);
  EXPECT_EQ(none.message, empty + " does not appear to have any puzzles");
}

TEST_F(CollectionFile, MalformedLinesLeaveTheShownPuzzleUntouched) {
  ASSERT_TRUE(loadPuzzleLine(puzzleLine(filledPuzzle(7, 6)), board, state, {}).loaded());
  state.ClueTexts[1] = "kept";
  const PuzzleState before = state;
  std::string words14;
  for (int i = 0; i < 14; ++i) words14 += "TEAR,1;";
  const std::string tooLong = "10;" + std::string(100, 'A') + ";", fifteenWords = "7;A;" + words14 + "SEAT,1;";
  const std::vector<std::string> lines = {"8;A;TEAR,1;", "22;A;TEAR;", tooLong, fifteenWords, "7;", "22;;"};
  for (const std::string& line : lines) {
    EXPECT_EQ(loadPuzzleLine(line, board, state, {}).outcome, ReadOutcome::Malformed) << line;
    expectSamePuzzle(state, before);
    EXPECT_EQ(board.size(), 7);
  }
  EXPECT_EQ(loadPuzzleLine("7;", board, state, {}).message, "the line ends before its word fields");
  EXPECT_EQ(loadPuzzleLine("22;;", board, state, {}).message, "the line holds no words");
  EXPECT_TRUE(loadPuzzleLine("7;A;" + words14 + ";;", board, state, {}).loaded());  // empty extra fields are harmless
}

// A 20 MB line is refused before its dot codes are expanded (they would
// make it 420 MB), and many empty fields are not kept one by one.
TEST_F(CollectionFile, LinesTooLongForAnyPuzzleAreRefusedWithoutExpandingThem) {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  const long startKb = usage.ru_maxrss;
  const std::string huge = "7;" + std::string(20'000'000, '#') + ";TEAR,1;";
  EXPECT_EQ(loadPuzzleLine(huge, board, state, {}).message, "the line is too long for any puzzle");
  const std::string fields = "7;A;TEAR,1;" + std::string(60'000, ';');
  EXPECT_TRUE(loadPuzzleLine(fields, board, state, {}).loaded());
  getrusage(RUSAGE_SELF, &usage);
  EXPECT_LT(usage.ru_maxrss - startKb, 100'000);
}

TEST_F(CollectionFile, CluesComeFromTheMeaningsAndTheWordListsSkipEmptySlots) {
  ASSERT_TRUE(writeLines(folder.file("mean3456.txt"),
                         {"SEAT:to sit", "TEAR:a drop", "TEAR:to rip", "TEAR:a spree", "TEARS:drops"},
                         WriteMode::Truncate));
  const std::string path = folder.file("set.txt");
  ASSERT_TRUE(writeLines(path, {"7;%A;TEAR,3;SEAT,1;;TEARS,1;GONE,1;TEAR,4;"}, WriteMode::Truncate));
  const auto result = read(path, 1);
  ASSERT_TRUE(result.loaded());
  EXPECT_TRUE(result.clues.ok());
  EXPECT_THAT(std::vector<std::string>(state.ClueTexts.begin() + 1, state.ClueTexts.begin() + 7),
              ElementsAre("a spree", "to sit", "", "drops", "", ""));
  const WordListLines lists = wordListLines(state);
  EXPECT_THAT(lists.inside, ElementsAre(" WORDS INSIDE:", " 01. SEAT", " 02. TEARS", " 03. TEAR"));
  EXPECT_THAT(lists.outside, ElementsAre(" WORDS OUTSIDE:", " 01. TEAR", " 03. GONE"));

  Meanings none;
  const auto missing = readPuzzle(path, 1, board, state, {&none, folder.file("nomeanings.txt"), {}});
  EXPECT_TRUE(missing.loaded());
  EXPECT_FALSE(missing.clues.ok());
  EXPECT_EQ(state.ClueTexts[1], "");
  EXPECT_EQ(state.WordSlots[1], "TEAR");
}

}  // namespace
}  // namespace combwise
