// Plain-text files: reading either line end, writing CR LF, counting lines,
// and replacing a file's content safely.
#include "core/files/textfile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

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

}  // namespace
}  // namespace combwise
