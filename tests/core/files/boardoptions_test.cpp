// Start-up board settings and the options samples' click rules.
#include "core/files/boardoptions.h"

#include <gtest/gtest.h>

namespace combwise {
namespace {

TEST(BoardOptions, StartupColoursStandOutFromTheHexagonFill) {
  const Settings settings = startupSettings();
  EXPECT_NE(settings.GivenLetterColour, settings.HexFillColour);
  EXPECT_NE(settings.EntryColour, settings.HexFillColour);
  EXPECT_NE(settings.OutlineColour, settings.HexFillColour);
  EXPECT_FALSE(settings.recentSeparatorShown());
}

// The border width wraps above twenty and stops at one; the font size is held
// between eight and thirty-two.
TEST(BoardOptions, SampleClicksStepWithinTheirLimits) {
  EXPECT_EQ(nextOutlineWidth(2, SampleClick::Left), 3);
  EXPECT_EQ(nextOutlineWidth(20, SampleClick::Left), 1);
  EXPECT_EQ(nextOutlineWidth(45, SampleClick::Left), 1);
  EXPECT_EQ(nextOutlineWidth(3, SampleClick::Right), 2);
  EXPECT_EQ(nextOutlineWidth(-7, SampleClick::Right), 1);
  EXPECT_EQ(nextBoardFontSize(10, SampleClick::Left), 11);
  EXPECT_EQ(nextBoardFontSize(32, SampleClick::Left), 32);
  EXPECT_EQ(nextBoardFontSize(8, SampleClick::Right), 8);
  EXPECT_EQ(nextBoardFontSize(0, SampleClick::Left), 8);
}

}  // namespace
}  // namespace combwise
