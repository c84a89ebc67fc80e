// The sorted key list: case-blind order and the first entry with a prefix.
#include "core/files/sortedkeylist.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace combwise {
namespace {

TEST(SortedKeyList, KeepsCaseBlindOrderAndFindsTheFirstEntryWithAPrefix) {
  SortedKeyList keys;
  EXPECT_EQ(keys.firstWithPrefix("A"), -1);
  for (const char* key : {"beta", "Alpha", "alphabet", "gamma", "ALPHA", "Zed"}) keys.insert(key);
  EXPECT_THAT(keys.items(), ::testing::ElementsAre("Alpha", "ALPHA", "alphabet", "beta", "gamma", "Zed"));
  EXPECT_EQ(keys.firstWithPrefix("al"), 0);
  EXPECT_EQ(keys.firstWithPrefix("ALPHAB"), 2);
  EXPECT_EQ(keys.firstWithPrefix("z"), 5);
  EXPECT_EQ(keys.firstWithPrefix("alphas"), -1);
  EXPECT_EQ(keys.firstWithPrefix("delta"), -1);
}

}  // namespace
}  // namespace combwise
