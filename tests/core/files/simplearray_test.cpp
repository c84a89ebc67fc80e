// The word list: upkeep, the searches, and index errors going to the log.
#include "core/files/simplearray.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <initializer_list>
#include <set>

#include "core/files/textfile.h"
#include "support/tempfolder.h"

namespace combwise {
namespace {

using ::testing::ElementsAre;

clsSimpleArray listOf(std::initializer_list<const char*> words) {
  clsSimpleArray list;
  for (const char* word : words) list.AddItem(word);
  return list;
}

TEST(WordListUpkeep, InsertionAndRemovals) {
  clsSimpleArray list = listOf({"TEAR", "SEAT"});
  EXPECT_EQ(list.NewIndex(), 1);
  list.setItemData(1, 11);
  list.AddItem("EAST", 1);  // item data moves up with its item
  EXPECT_THAT(list.items(), ElementsAre("TEAR", "EAST", "SEAT"));
  EXPECT_EQ(list.Text(), "EAST");
  EXPECT_EQ(list.FindItemData(11), 2);
  EXPECT_EQ(list.FindItemData(12), -1);
  EXPECT_EQ(list.NewIndex(), -1);

  list = listOf({"Tea", "eat", "TEA", "ate", "eat"});
  list.RemoveDuplicates();
  list.RemoveItemsMatching("tEa");
  list.setItemData(1, 7);
  list.RemoveItemDataMatching(7);
  EXPECT_THAT(list.items(), ElementsAre("eat"));
  EXPECT_EQ(list.FindItem("EAT"), 0);
  EXPECT_EQ(list.FindItem("EATS"), -1);
}

TEST(WordListSearch, ExactPrefixPatternSubstringAndLetterSearches) {
  clsSimpleArray list = listOf({"EAST", "TEAR", "SEAT", "TEARS"});
  for (int i = 0; i < 4; ++i) list.setItemData(i, 99);
  EXPECT_EQ(list.FindString("?EA?"), 1);  // TEAR and SEAT: their indexes land in item data 0 and 1
  EXPECT_EQ(list.ItemData(0) * 10000 + list.ItemData(1) * 100 + list.ItemData(2), 10299);
  EXPECT_EQ(list.FindStringOnce("TEARS"), 3);
  list.FindItem("SEAT");
  EXPECT_EQ(list.FindStringLeftOne("TEA"), 1);
  EXPECT_EQ(list.NewIndex(), -1);
  EXPECT_EQ(list.FindStringOnceWild("*S"), 3);
  EXPECT_EQ(list.FindStringOnceAny("EAT"), 2);
  EXPECT_EQ(list.FindStringAll("AET", 3), 0);
  EXPECT_EQ(list.FindStringAll("EET", 3), -1);  // one E in each word
  EXPECT_EQ(list.FindStringAll("RSEE", 2), 3);  // only the first two letters count

  EXPECT_EQ(clsSimpleArray().FindWordInDict("TEA"), -1);
  const clsSimpleArray words = listOf({"ALE", "BEE", "EAT", "SEA", "TEA", "TEAR", "ZOO"});
  EXPECT_EQ(words.FindWordInDict("ALE"), 0);
  EXPECT_EQ(words.FindWordInDict("ZOO"), 6);
  EXPECT_EQ(words.FindWordInDict("TEARS"), -1);
  // Middles round halves to even: (0 + 3) / 2 gives 2, (0 + 5) / 2 gives 2.
  EXPECT_EQ(listOf({"AA", "AB", "AC", "AD"}).FindWordInDict("A"), 2);
  EXPECT_EQ(listOf({"AA", "AB", "AC", "AD", "AE", "AF"}).FindWordInDict("A"), 2);
}

// Which texts a pattern matches is the wildcard fuzz target's work. Trying
// every split of every "*" took 13 s for ten stars and 90 s for twelve;
// with thirty stars such a matcher would not end at all.
TEST(WordListSearch, ManyStarsMatchWithoutTryingEverySplit) {
  const std::string text(200, 'A');
  std::string pattern;
  for (int i = 0; i < 30; ++i) pattern += "*A";
  EXPECT_FALSE(matchesWildcard(text, pattern + "*B"));
  EXPECT_TRUE(matchesWildcard(text + "B", pattern + "*B"));
}

TEST(WordListErrors, OutOfRangeAccessChangesNothingReadsEmptyAndIsLogged) {
  TempFolder temp;
  const ErrorLog log(temp.folder());
  clsSimpleArray list(&log);
  list.AddItem("TEAR");
  list.setItemData(0, 4);
  EXPECT_EQ(list.list(1), "");
  EXPECT_EQ(list.ItemData(-1), 0);
  list.setList(1, "X");
  list.setItemData(5, 9);
  list.RemoveItem(1);
  list.AddItem("X", 2);
  EXPECT_THAT(list.items(), ElementsAre("TEAR"));
  EXPECT_EQ(list.ItemData(0), 4);

  const auto lines = readLines(log.path());
  ASSERT_TRUE(lines && lines->size() == 6);
  EXPECT_THAT(lines->back(), ::testing::HasSubstr(std::string("\"-1\",\"") + clsSimpleArray::kIndexError +
                                                  "\",\"clsSimpleArray\",\"AddItem\""));
}

TEST(WordListGrowth, StorageGrowsByAFactorSoLongListsLoadInLinearTime) {
  clsSimpleArray list;
  std::set<std::size_t> capacities;
  for (int i = 0; i < 300000; ++i) {
    list.AddItem("WORD:clue");
    capacities.insert(list.items().capacity());
  }
  EXPECT_LT(capacities.size(), 30u);  // steps of 100 would copy the list 3000 times
}

}  // namespace
}  // namespace combwise
