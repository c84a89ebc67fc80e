// Plain-text files: line ends, safe appends and replaces, read errors.
#include "core/files/textfile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "support/filesizelimit.h"
#include "support/tempfolder.h"

namespace combwise {
namespace {

using ::testing::ElementsAre;

TEST(TextFile, ReadsCrLfAndLfAndCountsAnUnendedLastLine) {
  TempFolder temp;
  const std::string missing = temp.file("missing.txt");
  const std::string longLine(10000, 'x');  // longer than any read buffer
  const std::string path = temp.write("mixed.txt", "one\r\ntwo\n\r\n" + longLine + "\r\nlast");
  EXPECT_THAT(*readLines(path), ElementsAre("one", "two", "", longLine, "last"));
  EXPECT_EQ(countLines(path), 5);

  temp.write("mixed.txt", "");
  EXPECT_EQ(countLines(path) + countLines(missing), 0);
  EXPECT_FALSE(readLines(missing));
  EXPECT_FALSE(fileHasContent(path) || fileHasContent(missing));
}

TEST(TextFile, WritesCrLfAppendsAndReplacesWithoutLeavingATemporaryFile) {
  TempFolder temp;
  const std::string path = temp.file("out.txt");
  ASSERT_TRUE(writeLines(path, {"old", "lines"}, WriteMode::Truncate));
  ASSERT_TRUE(writeLines(path, {"a", ""}, WriteMode::Truncate));
  ASSERT_TRUE(writeLines(path, {"b"}, WriteMode::Append));
  EXPECT_EQ(TempFolder::contentOf(path), "a\r\n\r\nb\r\n");

  ASSERT_TRUE(replaceFileContent(path, "new\r\n"));
  EXPECT_EQ(TempFolder::contentOf(path), "new\r\n");
  EXPECT_EQ(temp.entries(), 1);
}

TEST(TextFileAppend, EndsAnUnendedLastLineFirstAndAFailedAppendOrReplaceLeavesTheFileAsItWas) {
  TempFolder temp;
  const std::string path = temp.write("set.txt", "one\r\ntwo");
  ASSERT_TRUE(appendLines(path, {"three"}).ok());
  ASSERT_TRUE(appendLines(path, {"four"}).ok());
  EXPECT_EQ(TempFolder::contentOf(path), "one\r\ntwo\r\nthree\r\nfour\r\n");

  const std::string before = TempFolder::contentOf(path);
  const std::string fresh = temp.file("fresh.txt");
  {
    const FileSizeLimit full(before.size() + 10);
    EXPECT_EQ(appendLines(path, {std::string(100, 'x')}).error, "Cannot write " + path + ": File too large");
    // A long run is taken back whole: the file is as it was before the run.
    LineAppender appender(path);
    EXPECT_TRUE(appender.add("five").ok());
    EXPECT_EQ(appender.add(std::string(100, 'y')).error,
              "Cannot write " + path + ": File too large; the line added before it was taken back");
    LineAppender created(fresh);
    EXPECT_TRUE(created.add("short").ok());
    EXPECT_FALSE(created.add(std::string(100, 'y')).ok());
    // A replaced file (settings, progress, listings) keeps its old content.
    EXPECT_FALSE(replaceFileContent(path, std::string(100, 'z')));
    EXPECT_EQ(errno, EFBIG);
  }
  EXPECT_EQ(TempFolder::contentOf(path), before);
  EXPECT_EQ(temp.entries(), 1);  // no new or temporary file

  // A run that writes nothing leaves no new file behind.
  LineAppender unused(temp.file("unused.txt"));
  ASSERT_TRUE(unused.open().ok());
  EXPECT_TRUE(unused.close().ok());
  EXPECT_FALSE(std::filesystem::exists(temp.file("unused.txt")));
  EXPECT_EQ(appendLines(temp.folder(), {"x"}).error, "Cannot write " + temp.folder() + ": it is a folder");
}

// Pipes are refused with every other reader's in the pipes test.
TEST(TextFileErrors, UnreadablePathsAreNamedWithTheirCauseAndAnOutputIsAnInputUnderAnySpelling) {
  TempFolder temp;
  const std::string file = temp.write("set.txt", "x\r\n"), none = temp.file("none.txt");
  EXPECT_EQ(unreadableReason(none), "Cannot open " + none + ": No such file or directory");
  EXPECT_EQ(unreadableReason(temp.folder()), "Cannot open " + temp.folder() + ": it is a folder");
  EXPECT_EQ(unreadableReason(""), "Cannot open a file without a name");
  for (const std::string& path : {none, temp.folder()}) EXPECT_EQ(LineReader(path).error(), unreadableReason(path));
  EXPECT_TRUE(sameFile(file, temp.folder() + "./set.txt"));

  const std::vector<std::string> inputs{temp.write("other.txt", "y\r\n"), file};
  std::filesystem::create_directory(temp.file("sub"));
  std::filesystem::create_symlink(file, temp.file("link.txt"));
  EXPECT_TRUE(outputIsAnInput(file, inputs));
  EXPECT_TRUE(outputIsAnInput(temp.file("link.txt"), inputs));
  EXPECT_FALSE(outputIsAnInput(none, inputs));  // not there yet
  EXPECT_FALSE(outputIsAnInput(temp.file("sub"), inputs));
  if (geteuid() != 0) {  // root reads anything
    ASSERT_EQ(chmod(file.c_str(), 0), 0);
    EXPECT_EQ(unreadableReason(file), "Cannot open " + file + ": Permission denied");
  }
}

}  // namespace
}  // namespace combwise
