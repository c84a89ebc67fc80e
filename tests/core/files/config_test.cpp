// The configuration file, saved and read back whole or damaged.
#include "core/files/config.h"

#include <gtest/gtest.h>

#include "core/files/textfile.h"
#include "support/tempfolder.h"

namespace combwise {
namespace {

class ConfigFile : public ::testing::Test {
 protected:
  ConfigFile() {
    writeLines(folder.file("words.txt"), {"TEA"}, WriteMode::Truncate);
    writeLines(folder.file("empty.txt"), {}, WriteMode::Truncate);
    defaults.schemeName = "default.col";
    defaults.boardFontName = "Sans";
  }
  Settings readBack(const std::vector<std::string>& lines) {
    writeLines(folder.file("combwise.cfg"), lines, WriteMode::Truncate);
    Settings settings = defaults;
    ReadcfgFile(folder.folder(), settings);
    return settings;
  }
  TempFolder folder;
  Settings defaults;
  const std::string defaultDictionary = folder.folder() + "english3.txt";
};

// Which line and field holds what is pinned by the reading tests below.
TEST_F(ConfigFile, SavingWritesTheTenLinesReadAndReplacesTheFile) {
  const std::string numbers = " 7  10  255  0  16777215  3  0  2  8421504 ";
  const std::vector<std::string> lines{
      "blue.col", "/s 1.txt", folder.file("words.txt"), "Sans", numbers, "/a/1.txt", "/b/2.txt", "", "", ""};
  const Settings saved = readBack(lines);
  EXPECT_EQ(saved.HexNumberColour, 16777215);
  ASSERT_TRUE(SavecfgFile(folder.folder(), saved).ok());
  ASSERT_TRUE(SavecfgFile(folder.folder(), saved).ok());  // replaces, never appends
  EXPECT_EQ(*readLines(folder.file("combwise.cfg")), lines);
  Settings settings = defaults;
  ReadcfgFile(folder.folder(), settings);
  EXPECT_EQ(settings, saved);

  EXPECT_EQ(SavecfgFile(folder.file("none/"), saved).error,
            "Cannot write " + folder.file("none/combwise.cfg") + ": No such file or directory");
}

TEST_F(ConfigFile, ReadingStopsAtTheFirstFailureKeepingWhatWasRead) {
  Settings settings = readBack({});
  EXPECT_EQ(settings.dictionaryPath, defaultDictionary);
  EXPECT_EQ(settings.schemeName, "default.col");

  settings = readBack({"blue.col", "/c/set.txt", folder.file("empty.txt"), "Serif", "7, 10 ,,255 x 1", "/a/1.txt"});
  EXPECT_EQ(settings.boardFontName, "Serif");
  EXPECT_EQ(settings.dictionaryPath, defaultDictionary);
  EXPECT_EQ(settings.OutlineColour, 255);
  EXPECT_EQ(settings.GivenLetterColour, 0);  // "x" ends the reading
  EXPECT_FALSE(settings.recentSeparatorShown());
}

TEST_F(ConfigFile, BlankRecentEntriesAreHiddenWithTheirCaptionKept) {
  defaults.recentFiles[0] = {"/old/caption.txt", true};
  const Settings settings =
      readBack({"a", "b", "c", "d", "1,2,3,4,5,6,7,8,9", "   ", "/a/1.txt", "", "\t", "/e/5.txt"});
  EXPECT_EQ(settings.recentFiles[0], (RecentFile{"/old/caption.txt", false}));  // written as it stood on the next save
  EXPECT_EQ(settings.recentFiles[1], (RecentFile{"/a/1.txt", true}));
  EXPECT_FALSE(settings.recentFiles[2].shown || settings.recentFiles[3].shown);
  EXPECT_EQ(settings.recentFiles[4], (RecentFile{"/e/5.txt", true}));
}

TEST_F(ConfigFile, ImplausibleNumbersAreHeldToTheOptionsRangesAndGarbageIsNoSchemeName) {
  writeLines(folder.file("combwise.cfg"),
             {"\x01\xff\xfe\x9b.col", "c", "d", "e", "4 2000 -1 16777216 5 6 7 500 -9", "", "", "", "", ""},
             WriteMode::Truncate);
  Settings settings = defaults;
  const ConfigRead read = ReadcfgFile(folder.folder(), settings);
  EXPECT_EQ(settings.schemeName, "default.col");
  EXPECT_EQ(settings.PuzzleNumber, 4);
  EXPECT_EQ(settings.BoardFontSize, 32);
  EXPECT_EQ(settings.OutlineColour, 0);
  EXPECT_EQ(settings.GivenLetterColour, 0xFFFFFF);
  EXPECT_EQ(settings.OutlineWidth, 20);
  EXPECT_EQ(settings.schemeColour13, 0);
  const std::string path = folder.file("combwise.cfg");
  ASSERT_EQ(read.notes.size(), 6u);
  EXPECT_EQ(read.notes[0], path + ": line 1 names no colour scheme; default.col is used");
  EXPECT_EQ(read.notes[1], path + ": the letter font size 2000 is not from 8 to 32; 32 is used");
  EXPECT_EQ(read.notes[5], path + ": the button colour -9 is not from 0 to 16777215; 0 is used");
  EXPECT_TRUE(ReadcfgFile(folder.file("none/"), settings).notes.empty());  // no file yet is no fault
}

}  // namespace
}  // namespace combwise
