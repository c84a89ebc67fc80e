// The number and text conventions at their boundaries.
#include "core/model/text.h"

#include <gtest/gtest.h>

namespace combwise {
namespace {

TEST(NumberForms, StrPutsABlankWhereTheSignOfANonNegativeNumberWouldBe) {
  EXPECT_EQ(Str(0), " 0");
  EXPECT_EQ(Str(12), " 12");
  EXPECT_EQ(Str(-3), "-3");
  EXPECT_EQ(NumberText(12), "12");
  EXPECT_EQ(NumberText(-3), "-3");
}

TEST(NumberForms, ZeroPaddedKeepsLongerNumbersWhole) {
  EXPECT_EQ(Format00(1), "01");
  EXPECT_EQ(Format00(25), "25");
  EXPECT_EQ(Format00(100), "100");
  EXPECT_EQ(zeroPadded(42, 5), "00042");
  EXPECT_EQ(zeroPadded(99988, 5), "99988");
  EXPECT_EQ(zeroPadded(-7, 3), "-007");
}

TEST(LeadingValue, ReadsTheLeadingNumberAndZeroWhenThereIsNone) {
  EXPECT_EQ(leadingValue("17"), 17);
  EXPECT_EQ(leadingValue("  22;abc"), 22);
  EXPECT_EQ(leadingValue("1 2x"), 12);
  EXPECT_EQ(leadingValue("-4.5rest"), -4.5);
  EXPECT_EQ(leadingValue("3e2"), 300);
  EXPECT_EQ(leadingValue("3e"), 3);
  EXPECT_EQ(leadingValue("abc"), 0);
  EXPECT_EQ(leadingValue(""), 0);
  EXPECT_EQ(leadingValue("-"), 0);
  EXPECT_EQ(leadingValue(".5"), 0.5);
  EXPECT_EQ(leadingWhole("2.5"), 2);
  EXPECT_EQ(leadingWhole("3.5"), 4);
}

TEST(Rounding, HalvesGoToTheEvenNeighbourAndIntegerPartRoundsDown) {
  EXPECT_EQ(roundHalfEven(0.5), 0);
  EXPECT_EQ(roundHalfEven(1.5), 2);
  EXPECT_EQ(roundHalfEven(2.5), 2);
  EXPECT_EQ(roundHalfEven(2.51), 3);
  EXPECT_EQ(roundHalfEven(-2.5), -2);
  EXPECT_EQ(roundHalfEven(-3.5), -4);
  EXPECT_EQ(floorWhole(1.99), 1);
  EXPECT_EQ(floorWhole(-1.5), -2);
  EXPECT_EQ(floorWhole(0.99999999 * 99988 + 1), 99988);
}

TEST(TextHelpers, CaseAndPathHelpers) {
  EXPECT_TRUE(equalsIgnoreCase("Tea", "tEA"));
  EXPECT_FALSE(equalsIgnoreCase("Tea", "Teas"));
  EXPECT_TRUE(startsWithIgnoreCase("TEARS:a clue", "tears:"));
  EXPECT_FALSE(startsWithIgnoreCase("TEA", "TEAR"));
  EXPECT_EQ(trimmed("  a b \t"), "a b");
  EXPECT_EQ(fileNameOf("/home/me/set1.txt"), "set1.txt");
  EXPECT_EQ(fileNameOf("C:\\puz\\set1.txt"), "set1.txt");
  EXPECT_EQ(fileNameOf("set1.txt"), "set1.txt");
}

}  // namespace
}  // namespace combwise
