// Where the program finds its own files.
#include "core/files/programfolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace combwise {
namespace {

TEST(ProgramFolder, HomeOptionThenEnvironmentThenExecutableFolderAlwaysWithASeparator) {
  EXPECT_EQ(resolveProgramFolder("/opt/home", "/env/home", "/bin/dir/"), "/opt/home/");
  EXPECT_EQ(resolveProgramFolder(std::nullopt, "/env/home/", "/bin/dir/"), "/env/home/");
  EXPECT_EQ(resolveProgramFolder(std::nullopt, "", "/bin/dir"), "/bin/dir/");
  EXPECT_EQ(resolveProgramFolder(std::nullopt, nullptr, "/bin/dir"), "/bin/dir/");
  const std::string folder = executableFolder();
  EXPECT_EQ(folder.back(), '/');
  EXPECT_TRUE(std::filesystem::equivalent(folder, COMBWISE_BIN_DIR));
}

}  // namespace
}  // namespace combwise
