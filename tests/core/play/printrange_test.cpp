// Print ranges: the window's checks and messages, the ten-digit form, and
// the makers' tool's ranges.
#include "core/play/printrange.h"

#include <gtest/gtest.h>

#include <tuple>
#include <utility>

namespace combwise {
namespace {

TEST(PrintRangeCheckTest, ValidRangesMayEndBeyondTheCount) {
  EXPECT_TRUE(checkPrintRange(" 5-10 ", 20).ok());
  for (const auto& [text, range] : {std::pair{" 5-10 ", PrintRange{5, 10}}, std::pair{"3-999", PrintRange{3, 999}},
                                    std::pair{"20-20", PrintRange{20, 20}}, std::pair{"2.6 - 4", PrintRange{3, 4}}})
    EXPECT_EQ(checkPrintRange(text, 20).range, range) << text;
  EXPECT_EQ(checkPrintRange("1-12345678", 20).range->last, kMaxRangeNumber);
}

TEST(PrintRangeCheckTest, TextWithoutADashAsksForARangeAndImpossibleRangesAreNotCorrect) {
  for (const char* text : {"", "   ", "7", "5 10"}) EXPECT_EQ(checkPrintRange(text, 20).message, kSpecifyPrintRange);
  for (const char* text : {"10-5", "0-3", "3-0", "21-30", "-5", "a-b", "5--3", "4-"}) {
    const PrintRangeCheck check = checkPrintRange(text, 20);
    EXPECT_FALSE(check.ok()) << text;
    EXPECT_EQ(check.message, kPrintRangeNotCorrect) << text;
  }
  EXPECT_FALSE(checkPrintRange("1-1", 0).ok());
}

TEST(PrintRangeTag, TenDigitsReadBackAndNothingElseDoes) {
  EXPECT_EQ(rangeTag({5, 10}), "0000500010");
  EXPECT_EQ(rangeFromTag("0000500010"), (PrintRange{5, 10}));
  EXPECT_FALSE(rangeFromTag("") || rangeFromTag("00005-0010"));
}

TEST(ToolRange, AllSingleAndPairsFollowTheWindowsRules) {
  for (const auto& [text, count, range] :
       {std::tuple{"all", 20, PrintRange{1, 20}}, std::tuple{"ALL", 3, PrintRange{1, 3}},
        std::tuple{"7", 20, PrintRange{7, 7}}, std::tuple{"5-10", 20, PrintRange{5, 10}}})
    EXPECT_EQ(*parseToolRange(text, count).range, range) << text;
  for (const auto& [text, count] : {std::pair{"21", 20}, std::pair{"0", 20}, std::pair{"all", 0}})
    EXPECT_EQ(parseToolRange(text, count).message, kPrintRangeNotCorrect) << text;
  EXPECT_EQ(parseToolRange("", 20).message, kSpecifyPrintRange);
}

}  // namespace
}  // namespace combwise
