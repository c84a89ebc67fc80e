// Every reader and writer refuses a named pipe at once with the cause.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "core/files/atomicfile.h"
#include "core/files/collectiontools.h"
#include "core/files/colourscheme.h"
#include "core/files/config.h"
#include "core/files/dictionary.h"
#include "core/files/puzzlefile.h"
#include "core/files/textfile.h"
#include "support/fifo.h"
#include "support/tempfolder.h"

namespace combwise {
namespace {

TEST(Pipes, EveryReaderAndWriterRefusesAPipeWithoutWaitingOnIt) {
  TempFolder temp;
  const Fifo pipe(temp.file("pipe.txt"));
  const Fifo config(temp.file("combwise.cfg"));
  ASSERT_TRUE(pipe.made() && config.made());
  const std::string& path = pipe.path();
  const std::string refused = "Cannot open " + path + ": it is not a regular file";
  const std::string unwritable = "Cannot write " + path + ": it is not a regular file";
  Board board;
  PuzzleState state;
  state.PuzzleCount = 0;  // as counted: a pipe is refused, not taken for an empty collection
  Dictionary dictionary;
  Meanings meanings;
  RandomSource random = RandomSource::seeded(1);
  ColourScheme scheme;
  struct Use {
    const char* what;
    std::function<std::string()> run;
    std::string expected;  // empty where the use gives no message, only a failure
  } const uses[] = {
      {"line reader", [&] { return LineReader(path).error(); }, refused},
      {"count", [&] { return std::to_string(countLines(path) + countPuzzles(path)); }, "0"},
      {"reason", [&] { return unreadableReason(path).value_or(""); }, refused},
      {"dictionary", [&] { return readDictionary(path, dictionary).error; }, refused},
      {"meanings", [&] { return meanings.read(path).error; }, refused},
      {"collection", [&] { return readPuzzle(path, 1, board, state, {}).message; }, refused},
      {"randomize", [&] { return randomizeCollection(path, random).status.error; }, refused},
      {"scheme", [&] { return loadStartupScheme(path, "blue.col", scheme, DesignedColours{}).detail; }, refused},
      {"append", [&] { return appendLines(path, {"x"}).error; }, unwritable},
      // With no reader at the other end a plain write fails at once.
      {"write", [&] { return writeLines(path, {"x"}, WriteMode::Truncate) ? "written" : ""; }, ""},
      {"atomic write", [&] { return writeFileAtomically(path, "x").error; }, unwritable},
  };
  for (const Use& use : uses) {
    SCOPED_TRACE(use.what);
    std::string result;
    EXPECT_TRUE(pipe.returnsWithoutWaiting([&] { result = use.run(); }));
    EXPECT_EQ(result, use.expected);
  }

  ConfigRead configRead;
  Settings settings;
  EXPECT_TRUE(config.returnsWithoutWaiting([&] { configRead = ReadcfgFile(temp.folder(), settings); }));
  EXPECT_THAT(configRead.notes,
              ::testing::Contains(::testing::HasSubstr(config.path() + ": it is not a regular file")));
}

}  // namespace
}  // namespace combwise
