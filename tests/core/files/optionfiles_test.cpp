// The extra options and the print window's remembered choices.
#include "core/files/extraoptions.h"
#include "core/files/printchoices.h"

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

TEST(PrintChoices, RoundTripAndDamagedOrMissingFilesGiveTheDefaults) {
  TempFolder temp;
  const std::string path = temp.file(kPrintChoicesFile);
  EXPECT_EQ(readPrintChoices(path), PrintChoices{});
  const PrintChoices chosen{true, "/home/a/out folder", true, "Class 4b\r\nweek 2"};
  ASSERT_TRUE(writePrintChoices(path, chosen).ok());
  // A value keeps to its line.
  EXPECT_EQ(readPrintChoices(path), (PrintChoices{true, "/home/a/out folder", true, "Class 4b  week 2"}));
  EXPECT_EQ(parsePrintChoices("junk\nsave-as-pdf\r\nbooklet=maybe\ntitle=T=1\n"),
            (PrintChoices{false, "", false, "T=1"}));
}

}  // namespace
}  // namespace combwise
