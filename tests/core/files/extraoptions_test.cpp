// The extra options file: defaults, reading back, damaged lines, and keys
// of other versions kept.
#include "core/files/extraoptions.h"

#include <gtest/gtest.h>

#include "support/tempfolder.h"

namespace combwise {
namespace {

TEST(ExtraOptions, ReadBackWhatWasWrittenAndKeepUnknownKeys) {
  TempFolder folder;
  const std::string path = extraOptionsPath(folder.folder());
  const ExtraOptionsRead none = readExtraOptions(path);  // the first run
  EXPECT_TRUE(none.options == ExtraOptions{} && none.problems.empty());

  ExtraOptions options;
  options.cleanBoardEachPuzzle = true;
  options.otherLines = {"sound=loud"};
  ASSERT_TRUE(writeExtraOptions(path, options).ok());
  EXPECT_EQ(TempFolder::contentOf(path), "clean-board=on\r\nno-word-twice=off\r\nsound=loud\r\n");
  const ExtraOptionsRead read = readExtraOptions(path);
  EXPECT_TRUE(read.options == options && read.problems.empty());
}

TEST(ExtraOptions, DamagedLinesAreReportedAndLeaveTheDefault) {
  const ExtraOptionsRead read =
      parseExtraOptions("# settings\r\n  no-word-twice = YES \r\nclean-board=maybe\r\nwhatever\r\n\r\n", "opts.txt");
  EXPECT_TRUE(read.options.noWordTwice);
  EXPECT_FALSE(read.options.cleanBoardEachPuzzle);
  EXPECT_EQ(read.problems, (std::vector<std::string>{"opts.txt line 3 left out: \"maybe\" is not on or off",
                                                     "opts.txt line 4 left out: not a key=value line"}));
}

}  // namespace
}  // namespace combwise
