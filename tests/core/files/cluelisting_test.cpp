// The clue listing written to a text file.
#include "core/files/cluelisting.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/filesizelimit.h"
#include "support/tempfolder.h"

namespace combwise {
namespace {

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
