// Where the program reads and writes its own files and the user's.
#include "core/files/programfiles.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "core/files/programfolder.h"
#include "support/tempfolder.h"

namespace combwise {
namespace {

TEST(ProgramFolder, HomeOptionThenEnvironmentThenTheExecutableOrItsInstallationsDataFolder) {
  EXPECT_EQ(resolveProgramFolder("/opt/home", "/env/home", "/bin/dir/"), "/opt/home/");
  EXPECT_EQ(resolveProgramFolder(std::nullopt, "/env/home/", "/bin/dir/"), "/env/home/");
  EXPECT_EQ(resolveProgramFolder(std::nullopt, "", "/bin/dir"), "/bin/dir/");
  const std::string folder = executableFolder();
  EXPECT_TRUE(folder.back() == '/' && std::filesystem::equivalent(folder, COMBWISE_BIN_DIR));

  TempFolder prefix;
  std::filesystem::create_directories(prefix.file("bin"));
  std::filesystem::create_directories(prefix.file("share/combwise"));
  const std::string bin = prefix.file("bin");
  prefix.write("share/combwise/english3.txt", "CAT\n");
  EXPECT_EQ(dataFolderBeside(bin, "../share/combwise"), prefix.file("share/combwise") + "/");
  prefix.write("bin/english3.txt", "CAT\n");  // data beside the executable (the build's bin) wins
  EXPECT_EQ(dataFolderBeside(bin + "/", "../share/combwise"), bin + "/");
}

TEST(UserFolders, FollowTheXdgVariablesOnlyWhenTheyAreAbsolute) {
  const UserFolders set = userFoldersFrom("/cfg", "/data/", "/home/ann");
  EXPECT_EQ(set.config, "/cfg/combwise/");
  EXPECT_EQ(set.data, "/data/combwise/");
  for (const char* unusable : {static_cast<const char*>(nullptr), "", "relative/dir"}) {
    const UserFolders fallback = userFoldersFrom(unusable, unusable, "/home/ann");
    EXPECT_EQ(fallback.config, "/home/ann/.config/combwise/");
    EXPECT_EQ(fallback.data, "/home/ann/.local/share/combwise/");
  }
}

TEST(ProgramFiles, AWritableProgramFolderServesEveryFileAndCreatesNothingElse) {
  TempFolder program;
  TempFolder home;
  const ProgramFiles files(program.folder(), {home.file("cfg"), home.file("data")});
  EXPECT_FALSE(files.usesUserFolders());
  EXPECT_EQ(files.writePath("tempcombwisepuzzle.txt"), program.folder() + "tempcombwisepuzzle.txt");
  // A stray user copy does not shadow the program folder's file.
  std::filesystem::create_directories(home.file("cfg"));
  home.write("cfg/combwise.cfg", "user\n");
  EXPECT_EQ(files.readPath(kConfigFile), program.folder() + kConfigFile);
  EXPECT_FALSE(std::filesystem::exists(home.file("data")));
}

TEST(ProgramFiles, AReadOnlyProgramFolderSendsWritesToTheUserFoldersAndReadsThemFirst) {
  TempFolder program;
  TempFolder home;
  program.write("combwise.cfg", "shipped\n");
  program.write("puzzles.txt", "readymade\n");
  const ProgramFiles files(program.folder(), {home.file("cfg"), home.file("data")}, false);
  ASSERT_TRUE(files.usesUserFolders());
  // Until the user has a copy, reading falls back to the program folder.
  EXPECT_EQ(files.readPath(kConfigFile), program.folder() + kConfigFile);

  // Settings go to the config folder, everything else to the data folder.
  const std::string config = files.writePath(kConfigFile);
  EXPECT_EQ(config, home.file("cfg") + "/combwise.cfg");
  EXPECT_EQ(files.writePath(kErrorLogFile), home.file("data") + "/" + kErrorLogFile);

  // An empty user file counts as none; one with content is read first.
  home.write("cfg/combwise.cfg", "");
  EXPECT_EQ(files.readPath(kConfigFile), program.folder() + kConfigFile);
  home.write("cfg/combwise.cfg", "mine\n");
  EXPECT_EQ(files.readPath(kConfigFile), config);
  EXPECT_EQ(files.readFolder(kConfigFile), home.file("cfg") + "/");
  EXPECT_EQ(files.readPath("puzzles.txt"), program.folder() + "puzzles.txt");
}

}  // namespace
}  // namespace combwise
