// Plain-text files: reading either line end, writing CR LF, counting lines,
// and replacing a file's content safely.
#include "core/files/textfile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <fstream>

#include "support/fifo.h"
#include "support/filesizelimit.h"
#include "support/tempfolder.h"

namespace combwise {
namespace {

using ::testing::ElementsAre;

void putFile(const std::string& path, const std::string& content) { std::ofstream(path, std::ios::binary) << content; }

TEST(TextFile, ReadsCrLfAndLfAndCountsAnUnendedLastLine) {
  TempFolder temp;
  const std::string path = temp.file("mixed.txt"), missing = temp.file("missing.txt");
  const std::string longLine(10000, 'x');  // longer than any read buffer
  putFile(path, "one\r\ntwo\n\r\n" + longLine + "\r\nlast");
  EXPECT_THAT(*readLines(path), ElementsAre("one", "two", "", longLine, "last"));
  EXPECT_EQ(countLines(path), 5);
  LineReader reader(path);
  for (int i = 0; i < 4; ++i) EXPECT_TRUE(reader.skip());
  EXPECT_EQ(reader.next(), "last");
  EXPECT_FALSE(reader.next() || reader.skip() || reader.failed());

  putFile(path, "");
  EXPECT_EQ(countLines(path) + countLines(missing), 0);
  EXPECT_THAT(*readLines(path), ElementsAre());
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
  EXPECT_FALSE(writeLines(temp.file("no/folder.txt"), {"x"}, WriteMode::Append));

  ASSERT_TRUE(replaceFileContent(path, "new\r\n"));
  EXPECT_EQ(TempFolder::contentOf(path), "new\r\n");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(temp.folder()), {}), 1);
  EXPECT_FALSE(replaceFileContent(temp.file("no/folder.txt"), "x"));
}

TEST(TextFileAppend, EndsAnUnendedLastLineFirstAndAFailedWriteLeavesTheFileAsItWas) {
  TempFolder temp;
  const std::string path = temp.file("set.txt");
  putFile(path, "one\r\ntwo");
  ASSERT_TRUE(appendLines(path, {"three"}).ok());
  ASSERT_TRUE(appendLines(path, {"four"}).ok());
  EXPECT_EQ(TempFolder::contentOf(path), "one\r\ntwo\r\nthree\r\nfour\r\n");

  const std::string before = TempFolder::contentOf(path);
  const std::string fresh = temp.file("fresh.txt");
  {
    const FileSizeLimit full(before.size() + 10);
    const Status failed = appendLines(path, {std::string(100, 'x')});
    EXPECT_EQ(failed.error, "Cannot write " + path + ": File too large");
    // A long run is taken back whole: the file is as it was before the run.
    LineAppender appender(path);
    EXPECT_TRUE(appender.add("five").ok());
    EXPECT_EQ(appender.add(std::string(100, 'y')).error,
              "Cannot write " + path + ": File too large; the line added before it was taken back");
    LineAppender created(fresh);
    EXPECT_TRUE(created.add("short").ok());
    EXPECT_FALSE(created.add(std::string(100, 'y')).ok());
  }
  EXPECT_EQ(TempFolder::contentOf(path), before);
  EXPECT_FALSE(std::filesystem::exists(fresh));

  // A run that writes nothing leaves no new file behind.
  LineAppender unused(temp.file("unused.txt"));
  ASSERT_TRUE(unused.open().ok());
  EXPECT_TRUE(unused.close().ok());
  EXPECT_FALSE(std::filesystem::exists(temp.file("unused.txt")));
  EXPECT_EQ(appendLines(temp.folder(), {"x"}).error, "Cannot write " + temp.folder() + ": it is a folder");
  EXPECT_EQ(appendLines(temp.file("no/set.txt"), {"x"}).error,
            "Cannot write " + temp.file("no/set.txt") + ": No such file or directory");
}

TEST(TextFileErrors, UnreadablePathsAreNamedWithTheirCause) {
  TempFolder temp;
  const std::string file = temp.file("set.txt");
  const Fifo pipe(temp.file("pipe"));
  ASSERT_TRUE(pipe.made());
  putFile(file, "x\r\n");
  EXPECT_EQ(unreadableReason(temp.file("none.txt")),
            "Cannot open " + temp.file("none.txt") + ": No such file or directory");
  EXPECT_EQ(unreadableReason(temp.folder()), "Cannot open " + temp.folder() + ": it is a folder");
  EXPECT_EQ(unreadableReason(pipe.path()), "Cannot open " + pipe.path() + ": it is not a regular file");
  EXPECT_EQ(unreadableReason(""), "Cannot open a file without a name");
  if (geteuid() != 0) {  // root reads anything
    ASSERT_EQ(chmod(file.c_str(), 0), 0);
    EXPECT_EQ(unreadableReason(file), "Cannot open " + file + ": Permission denied");
  }
  EXPECT_TRUE(sameFile(file, temp.folder() + "./set.txt"));
  EXPECT_FALSE(sameFile(file, temp.file("none.txt")));
}

TEST(TextFileErrors, AnOutputIsAnInputUnderAnyOtherSpelling) {
  TempFolder temp;
  const std::string input = temp.file("set.txt"), other = temp.file("other.txt");
  putFile(input, "x\r\n");
  putFile(other, "y\r\n");
  std::filesystem::create_directory(temp.file("sub"));
  std::filesystem::create_symlink(input, temp.file("link.txt"));
  const std::vector<std::string> inputs{other, input};
  EXPECT_TRUE(outputIsAnInput(input, inputs));
  EXPECT_TRUE(outputIsAnInput(temp.folder() + "sub/../set.txt", inputs));
  EXPECT_TRUE(outputIsAnInput(temp.file("link.txt"), inputs));
  EXPECT_FALSE(outputIsAnInput(temp.file("new.txt"), inputs));  // not there yet
  EXPECT_FALSE(outputIsAnInput(temp.file("sub"), inputs));
  EXPECT_FALSE(outputIsAnInput(input, {}));
}

TEST(TextFileErrors, APipeIsRefusedWithoutWaitingForItsOtherEnd) {
  TempFolder temp;
  const Fifo pipe(temp.file("pipe"));
  ASSERT_TRUE(pipe.made());
  const std::string refused = "Cannot open " + pipe.path() + ": it is not a regular file";
  std::string error;
  EXPECT_TRUE(pipe.returnsWithoutWaiting([&] {
    LineReader reader(pipe.path());
    error = reader.error();
    EXPECT_FALSE(reader.isOpen() || reader.next());
  }));
  EXPECT_EQ(error, refused);
  EXPECT_TRUE(pipe.returnsWithoutWaiting([&] { EXPECT_FALSE(readLines(pipe.path())); }));
  EXPECT_TRUE(pipe.returnsWithoutWaiting([&] { EXPECT_EQ(countLines(pipe.path()), 0); }));
  EXPECT_TRUE(pipe.returnsWithoutWaiting([&] { error = appendLines(pipe.path(), {"x"}).error; }));
  EXPECT_EQ(error, "Cannot write " + pipe.path() + ": it is not a regular file");
  // With no reader at the other end a plain write fails at once.
  EXPECT_TRUE(pipe.returnsWithoutWaiting([&] { EXPECT_FALSE(writeLines(pipe.path(), {"x"}, WriteMode::Truncate)); }));
}

}  // namespace
}  // namespace combwise
