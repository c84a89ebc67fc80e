// Files written whole or not at all.
#include "core/files/atomicfile.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

#include "support/tempfolder.h"

namespace combwise {
namespace {

// A disk with room for `room` more bytes.
AtomicFile::WriteFunction diskWithRoom(std::size_t room) {
  return [room](int fd, const char* data, std::size_t size) mutable -> ssize_t {
    if (room == 0) {
      errno = ENOSPC;
      return -1;
    }
    const std::size_t taken = std::min(size, room);
    room -= taken;
    return ::write(fd, data, taken);
  };
}

TEST(AtomicFile, ReplacesTheTargetWholeAndWritesThroughALink) {
  TempFolder temp;
  const std::string path = temp.file("p.pdf");
  ASSERT_TRUE(writeFileAtomically(path, "old").ok());
  AtomicFile file(path);
  ASSERT_TRUE(file.open().ok());
  const std::string big(200000, 'x');  // more than one buffer
  EXPECT_TRUE(file.write("head ") && file.write(big) && file.write(" tail"));
  EXPECT_EQ(TempFolder::contentOf(path), "old");  // nothing shows until the commit
  ASSERT_TRUE(file.commit().ok());
  EXPECT_EQ(TempFolder::contentOf(path), "head " + big + " tail");

  const std::string link = temp.file("link.pdf");
  std::filesystem::create_symlink(path, link);
  ASSERT_TRUE(writeFileAtomically(link, "new").ok());
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  EXPECT_EQ(TempFolder::contentOf(path), "new");
  EXPECT_EQ(temp.entries(), 2);
}

TEST(AtomicFile, AFullDiskAtAnyWriteLeavesTheOldFileAndSaysWhy) {
  TempFolder temp;
  const std::string path = temp.file("p.pdf");
  const std::string content(150000, 'y');
  for (const std::size_t room : {std::size_t{0}, std::size_t{1000}, content.size() - 1}) {
    SCOPED_TRACE(room);
    ASSERT_TRUE(writeFileAtomically(path, "old").ok());
    AtomicFile file(path, diskWithRoom(room));
    ASSERT_TRUE(file.open().ok());
    file.write(content);
    EXPECT_EQ(file.commit().error, "Cannot write " + path + ": No space left on device");
    EXPECT_EQ(TempFolder::contentOf(path), "old");
    EXPECT_EQ(temp.entries(), 1);
  }
  // A file abandoned before its commit leaves nothing either.
  { AtomicFile(temp.file("new.pdf")).write("partial"); }
  EXPECT_EQ(temp.entries(), 1);
}

// Pipes are refused with every other writer's in the pipes test.
TEST(AtomicFile, TargetsThatCannotBeWrittenAreRefusedWithTheirCause) {
  TempFolder temp;
  EXPECT_EQ(writeFileAtomically(temp.folder(), "x").error, "Cannot write " + temp.folder() + ": it is a folder");
  EXPECT_EQ(temp.entries(), 0);
  if (::geteuid() != 0) {  // root writes anywhere
    std::filesystem::create_directory(temp.file("ro"));
    ASSERT_EQ(::chmod(temp.file("ro").c_str(), 0555), 0);
    EXPECT_EQ(writeFileAtomically(temp.file("ro/p.pdf"), "x").error,
              "Cannot write " + temp.file("ro/p.pdf") + ": Permission denied");
    EXPECT_TRUE(std::filesystem::is_empty(temp.file("ro")));
  }
}

}  // namespace
}  // namespace combwise
