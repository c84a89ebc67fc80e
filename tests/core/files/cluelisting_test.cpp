// The clue listing written to a text file.
#include "core/files/cluelisting.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <filesystem>

#include "support/tempfolder.h"

namespace combwise {
namespace {

// Files may grow to `bytes` while it lives, as on a full disk.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) {
    m_signal = std::signal(SIGXFSZ, SIG_IGN);  // a write past it fails instead
    getrlimit(RLIMIT_FSIZE, &m_old);
    rlimit limited = m_old;
    limited.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &limited);
  }
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &m_old);
    std::signal(SIGXFSZ, m_signal);
  }

 private:
  rlimit m_old{};
  void (*m_signal)(int) = nullptr;
};

TEST(ClueListingFile, AFailedWriteLeavesNoFileAndKeepsAnOldListingWhole) {
  TempFolder temp;
  PuzzleState state;
  state.WordCount = 14;
  for (int k = 1; k <= 14; ++k) state.ClueTexts[static_cast<std::size_t>(k)] = "a clue of some length";
  const std::string fresh = temp.file("fresh.txt");
  const std::string old = temp.file("old.txt");
  ASSERT_TRUE(writeClueListing(old, state).ok());
  const std::string before = TempFolder::contentOf(old);
  {
    const FileSizeLimit full(40);
    const Status failed = writeClueListing(fresh, state);
    EXPECT_FALSE(failed.ok());
    EXPECT_NE(failed.error.find("Cannot write " + fresh), std::string::npos) << failed.error;
    EXPECT_FALSE(writeClueListing(old, state).ok());
  }
  EXPECT_FALSE(std::filesystem::exists(fresh));
  EXPECT_EQ(TempFolder::contentOf(old), before);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(temp.folder()), {}), 1);  // no temporary left
  // Once there is room again, the same name is written.
  ASSERT_TRUE(writeClueListing(fresh, state).ok());
  EXPECT_EQ(TempFolder::contentOf(fresh), before);
}

}  // namespace
}  // namespace combwise
