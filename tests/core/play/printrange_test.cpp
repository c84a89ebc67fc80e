// Print ranges: the window's checks and messages, the ten-digit form, and
// the makers' tool's ranges.
#include "core/play/printrange.h"

#include <gtest/gtest.h>

namespace combwise {
namespace {

TEST(PrintRangeCheckTest, ValidRangesMayEndBeyondTheCount) {
  PrintRangeCheck check = checkPrintRange(" 5-10 ", 20);
  ASSERT_TRUE(check.ok());
  EXPECT_EQ(*check.range, (PrintRange{5, 10}));
  EXPECT_EQ(rangeTag(*check.range), "0000500010");
  EXPECT_TRUE(check.message.empty());

  EXPECT_EQ(*checkPrintRange("3-999", 20).range, (PrintRange{3, 999}));
  EXPECT_EQ(*checkPrintRange("20-20", 20).range, (PrintRange{20, 20}));
  EXPECT_EQ(*checkPrintRange("2.6 - 4", 20).range, (PrintRange{3, 4}));
  EXPECT_EQ(checkPrintRange("1-12345678", 20).range->last, kMaxRangeNumber);
}

TEST(PrintRangeCheckTest, TextWithoutADashAsksForARange) {
  for (const char* text : {"", "   ", "7", "5 10"}) EXPECT_EQ(checkPrintRange(text, 20).message, kSpecifyPrintRange);
}

TEST(PrintRangeCheckTest, ImpossibleRangesAreNotCorrect) {
  for (const char* text : {"10-5", "0-3", "3-0", "21-30", "-5", "a-b", "5--3", "4-"}) {
    const PrintRangeCheck check = checkPrintRange(text, 20);
    EXPECT_FALSE(check.ok()) << text;
    EXPECT_EQ(check.message, kPrintRangeNotCorrect) << text;
  }
  EXPECT_FALSE(checkPrintRange("1-1", 0).ok());
}

TEST(PrintRangeTag, ReadsBackOnlyTenDigits) {
  EXPECT_EQ(rangeFromTag("0000500010"), (PrintRange{5, 10}));
  EXPECT_EQ(rangeFromTag(rangeTag({99999, 99999})), (PrintRange{99999, 99999}));
  EXPECT_FALSE(rangeFromTag(""));
  EXPECT_FALSE(rangeFromTag("00005-0010"));
}

TEST(ToolRange, AllSingleAndPairsFollowTheWindowsRules) {
  EXPECT_EQ(*parseToolRange("all", 20).range, (PrintRange{1, 20}));
  EXPECT_EQ(*parseToolRange("ALL", 3).range, (PrintRange{1, 3}));
  EXPECT_EQ(*parseToolRange("7", 20).range, (PrintRange{7, 7}));
  EXPECT_EQ(*parseToolRange("5-10", 20).range, (PrintRange{5, 10}));
  EXPECT_EQ(parseToolRange("21", 20).message, kPrintRangeNotCorrect);
  EXPECT_EQ(parseToolRange("0", 20).message, kPrintRangeNotCorrect);
  EXPECT_EQ(parseToolRange("all", 0).message, kPrintRangeNotCorrect);
  EXPECT_EQ(parseToolRange("", 20).message, kSpecifyPrintRange);
}

}  // namespace
}  // namespace combwise
