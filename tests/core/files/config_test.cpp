// The configuration file: saving and reading back, and damaged files
// keeping what could be read.
#include "core/files/config.h"

#include <gtest/gtest.h>

#include <filesystem>

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

TEST_F(ConfigFile, SavedSettingsReadBackTheSame) {
  Settings saved = defaults;
  saved.collectionPath = "/home/me/set 1.txt";
  saved.dictionaryPath = folder.file("words.txt");
  saved.PuzzleNumber = 7;
  saved.BoardFontSize = 10;
  saved.OutlineColour = 255;
  saved.HexNumberColour = 16777215;
  saved.EntryColour = -3;
  saved.OutlineWidth = 2;
  saved.schemeColour13 = 8421504;
  saved.recentFiles = {{{"/a/one.txt", true}, {"/b/two.txt", true}, {"", false}, {"", false}, {"", false}}};
  ASSERT_TRUE(SavecfgFile(folder.folder(), saved).ok());
  ASSERT_TRUE(SavecfgFile(folder.folder(), saved).ok());  // replaces, never appends

  const auto lines = *readLines(folder.file("combwise.cfg"));
  ASSERT_EQ(lines.size(), 10u);
  EXPECT_EQ(lines[4], " 7  10  255  0  16777215 -3  0  2  8421504 ");
  Settings settings = defaults;
  ReadcfgFile(folder.folder(), settings);
  EXPECT_EQ(settings, saved);

  std::filesystem::create_directory(folder.file("sub"));
  std::filesystem::create_directory(folder.file("sub/combwise.cfg"));  // a folder where the file should go
  EXPECT_FALSE(SavecfgFile(folder.file("sub/"), saved).ok());
  EXPECT_FALSE(std::filesystem::exists(folder.file("sub/combwise.cfg.new")));
}

TEST_F(ConfigFile, ReadingStopsAtTheFirstFailureKeepingWhatWasRead) {
  Settings settings = readBack({});
  EXPECT_EQ(settings.dictionaryPath, defaultDictionary);
  EXPECT_EQ(settings.schemeName, "default.col");

  settings = readBack({"blue.col", "/c/set.txt", folder.file("words.txt")});
  EXPECT_EQ(settings.collectionPath, "/c/set.txt");
  EXPECT_EQ(settings.dictionaryPath, folder.file("words.txt"));
  EXPECT_EQ(settings.boardFontName, "Sans");

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
  EXPECT_EQ(settings.schemeColour13, 9);
  EXPECT_EQ(settings.recentFiles[0], (RecentFile{"/old/caption.txt", false}));  // written as it stood on the next save
  EXPECT_EQ(settings.recentFiles[1], (RecentFile{"/a/1.txt", true}));
  EXPECT_FALSE(settings.recentFiles[2].shown || settings.recentFiles[3].shown);
  EXPECT_EQ(settings.recentFiles[4], (RecentFile{"/e/5.txt", true}));
}

}  // namespace
}  // namespace combwise
