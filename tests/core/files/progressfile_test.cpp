// The progress file: round trip, damaged lines, bounded size.
#include "core/files/progressfile.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "core/files/textfile.h"
#include "support/tempfolder.h"

namespace combwise {
namespace {

struct Puzzle7 {
  Puzzle7() { setUpPuzzle(board, state, 7); }
  Board board;
  PuzzleState state;
};

TEST(ProgressFile, KeepsLettersAndSolvesAcrossASaveAndARead) {
  TempFolder folder;
  const std::string collection = folder.file("my puzzles.txt");
  Puzzle7 p;
  p.state.Entries.at(2, 7) = "A";
  p.state.Entries.at(3, 8) = "@";
  p.state.Entries.at(1, 5) = "G";  // a given cell: not the player's to keep
  p.state.Entries.at(0, 0) = "Z";  // outside the puzzle
  ProgressStore store;
  store.keepEntries(collection, 3, p.board, p.state, 53);
  store.keepEntries(folder.file("other.txt"), 1, p.board, p.state, 0);
  EXPECT_TRUE(store.keepSeconds(folder.file("other.txt"), 1, 7));
  EXPECT_FALSE(store.keepSeconds(folder.file("other.txt"), 1, 7));
  EXPECT_FALSE(store.keepSeconds(collection, 4, 7));  // no letters kept: no time either
  EXPECT_EQ(store.recordSolved(collection, 3, 125).bestSeconds, 125);
  EXPECT_EQ(store.recordSolved(collection, 3, 98).bestSeconds, 98);
  EXPECT_EQ(store.recordSolved(collection, 3, 140), (SolvedRecord{collection, 3, 140, 98}));

  const std::string path = progressPath(folder.folder());
  ASSERT_TRUE(writeProgressFile(path, store).ok());
  const std::string text = TempFolder::contentOf(path);
  EXPECT_EQ(text.substr(0, text.find("other")), "combwise progress 1\r\nentries 1 7 2.7=A,3.8=@ " + folder.folder());
  EXPECT_NE(text.find("entries 3 53 2.7=A,3.8=@ " + collection + "\r\n"), std::string::npos);
  EXPECT_NE(text.find("solved 3 140 98 " + collection + "\r\n"), std::string::npos);

  const ProgressRead read = readProgressFile(path);
  EXPECT_TRUE(read.problems.empty());
  EXPECT_EQ(read.store, store);

  Puzzle7 later;
  later.state.Entries.at(4, 7) = "Q";  // a letter left from another puzzle on this board
  EXPECT_EQ(read.store.restoreEntries(collection, 3, later.board, later.state), 53);
  const auto& entries = later.state.Entries;
  EXPECT_EQ(entries.at(2, 7) + entries.at(3, 8) + "|" + entries.at(4, 7) + entries.at(1, 5), "A@|");
  EXPECT_FALSE(read.store.restoreEntries(collection, 4, later.board, later.state));
  EXPECT_TRUE(read.store.solved(collection, 3) && !read.store.solved(collection, 4));
}

TEST(ProgressFile, DamagedLinesAreLeftOutAndReported) {
  std::vector<std::string> problems;
  const ProgressStore store = ProgressStore::parse(
      "combwise progress 1\n"
      "entries 2 1.5=A /a/b.txt\r\n"  // written before the time was kept
      "entries 4 61 2.7=B /a/b c.txt\n"
      "entries 0 1.5=A /a/b.txt\n"  // no puzzle 0
      "entries 2 1.6=B /a/b.txt\n"  // listed twice: the newer line counts
      "solved 2 10 20 /a/b.txt\n"   // best worse than the last time
      "\n# a comment\n"
      "solved 2 30 20 /a/b c.txt\n"
      "something else\n",
      "progress.txt", problems);
  ASSERT_EQ(store.entries().size(), 2u);
  EXPECT_EQ(store.entries()[0], (PuzzleEntries{"/a/b.txt", 2, {{1, 5, 'A'}}, 0}));
  EXPECT_EQ(store.entries()[1], (PuzzleEntries{"/a/b c.txt", 4, {{2, 7, 'B'}}, 61}));
  ASSERT_EQ(store.solvedRecords().size(), 1u);
  EXPECT_EQ(store.solvedRecords()[0], (SolvedRecord{"/a/b c.txt", 2, 30, 20}));
  ASSERT_EQ(problems.size(), 4u);
  EXPECT_EQ(problems[0], "progress.txt line 4 left out: the puzzle number, the time or the letters cannot be read");
  EXPECT_EQ(problems[2], "progress.txt line 6 left out: the puzzle number or the times cannot be read");
}

TEST(ProgressFile, StaysBoundedAndFailsWithTheFileNamed) {
  Puzzle7 p;
  p.state.Entries.at(2, 7) = "A";
  ProgressStore store;
  for (int n = 1; n <= static_cast<int>(kMaxEntryRecords) + 5; ++n) store.keepEntries("/c.txt", n, p.board, p.state, n);
  EXPECT_EQ(store.entries().size(), kMaxEntryRecords);
  EXPECT_EQ(store.entries().front().number, static_cast<int>(kMaxEntryRecords) + 5);  // the oldest went
  EXPECT_EQ(store.entriesOf("/c.txt", 5), nullptr);

  TempFolder folder;
  EXPECT_TRUE(readProgressFile(folder.file("none.txt")).problems.empty());  // the first run
  std::filesystem::create_directory(folder.file("dir"));
  const ProgressRead dir = readProgressFile(folder.file("dir"));
  ASSERT_EQ(dir.problems.size(), 1u);
  EXPECT_NE(dir.problems[0].find(folder.file("dir")), std::string::npos);
  EXPECT_NE(writeProgressFile(folder.file("dir"), store).error.find(folder.file("dir")), std::string::npos);

  writeLines(folder.file("long.txt"), {std::string(kMaxProgressLine + 10, 'x'), "solved 1 5 5 /d.txt"},
             WriteMode::Truncate);
  const ProgressRead longLine = readProgressFile(folder.file("long.txt"));
  EXPECT_EQ(longLine.problems.size(), 1u);
  EXPECT_EQ(longLine.store.solvedRecords().size(), 1u);
}

}  // namespace
}  // namespace combwise
