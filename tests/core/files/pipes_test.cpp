// Every reader of the program's files, handed a named pipe where a file
// should be: each refuses it at once with the cause, instead of waiting for
// a writer that never comes.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/files/collectiontools.h"
#include "core/files/colourscheme.h"
#include "core/files/config.h"
#include "core/files/dictionary.h"
#include "core/files/puzzlefile.h"
#include "core/model/board.h"
#include "core/model/puzzlestate.h"
#include "support/fifo.h"
#include "support/tempfolder.h"

namespace combwise {
namespace {

using ::testing::Contains;
using ::testing::HasSubstr;

TEST(Pipes, EveryReaderRefusesAPipeWithoutWaitingOnIt) {
  TempFolder temp;
  const Fifo pipe(temp.file("pipe.txt"));
  const Fifo config(temp.file("combwise.cfg"));
  ASSERT_TRUE(pipe.made() && config.made());
  const std::string refused = "Cannot open " + pipe.path() + ": it is not a regular file";

  Status status;
  Dictionary dictionary;
  EXPECT_TRUE(pipe.returnsWithoutWaiting([&] { status = readDictionary(pipe.path(), dictionary); }));
  EXPECT_EQ(status.error, refused);
  Meanings meanings;
  EXPECT_TRUE(pipe.returnsWithoutWaiting([&] { status = meanings.read(pipe.path()); }));
  EXPECT_EQ(status.error, refused);

  Board board;
  PuzzleState state;
  state.PuzzleCount = 3;
  PuzzleReadResult read;
  EXPECT_TRUE(pipe.returnsWithoutWaiting([&] {
    EXPECT_EQ(countPuzzles(pipe.path()), 0);
    read = readPuzzle(pipe.path(), 1, board, state, {});
  }));
  EXPECT_EQ(read.message, refused);
  RandomizeResult randomized;
  EXPECT_TRUE(pipe.returnsWithoutWaiting([&] {
    RandomSource random = RandomSource::seeded(1);
    randomized = randomizeCollection(pipe.path(), random);
  }));
  EXPECT_EQ(randomized.status.error, refused);

  ColourScheme scheme;
  SchemeLoad load;
  EXPECT_TRUE(pipe.returnsWithoutWaiting([&] {
    EXPECT_TRUE(schemeList(pipe.path()).empty());
    load = loadStartupScheme(pipe.path(), "blue.col", scheme, DesignedColours{});
  }));
  EXPECT_EQ(load.detail, refused);

  ConfigRead configRead;
  Settings settings;
  EXPECT_TRUE(config.returnsWithoutWaiting([&] { configRead = ReadcfgFile(temp.folder(), settings); }));
  EXPECT_THAT(configRead.notes, Contains(HasSubstr(config.path() + ": it is not a regular file")));
}

}  // namespace
}  // namespace combwise
