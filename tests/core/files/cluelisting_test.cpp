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
  const std::string fresh = temp.file("fresh.txt"), old = temp.file("old.txt");
  ASSERT_TRUE(writeClueListing(old, state).ok());
  const std::string before = TempFolder::contentOf(old);
  {
    const FileSizeLimit full(40);
    EXPECT_EQ(writeClueListing(fresh, state).error, "Cannot write " + fresh + ": File too large");
    EXPECT_FALSE(writeClueListing(old, state).ok());
  }
  EXPECT_FALSE(std::filesystem::exists(fresh));
  EXPECT_EQ(TempFolder::contentOf(old), before);
  EXPECT_EQ(temp.entries(), 1);  // no temporary left
}

}  // namespace
}  // namespace combwise
