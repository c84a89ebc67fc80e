// Start-up board settings and the options samples' click rules.
#include "core/files/boardoptions.h"

#include <gtest/gtest.h>

namespace combwise {
namespace {

// The border width wraps above twenty and stops at one; the font size is held
// between eight and thirty-two.
TEST(BoardOptions, SampleClicksStepWithinTheirLimits) {
  EXPECT_EQ(nextOutlineWidth(20, SampleClick::Left), 1);
  EXPECT_EQ(nextOutlineWidth(1, SampleClick::Right), 1);
  EXPECT_EQ(nextBoardFontSize(32, SampleClick::Left), 32);
  EXPECT_EQ(nextBoardFontSize(8, SampleClick::Right), 8);
}

// An unset font, size or width (zero, empty) draws with the start-up values.
TEST(BoardOptions, TheLookFallsBackToTheStartupValuesAndAChoiceLandsInItsSettings) {
  Settings unset;
  unset.EntryColour = rgb(1, 2, 3);
  const BoardLook look = boardLook(unset);
  EXPECT_EQ(look.fontName, kDefaultBoardFontName);
  EXPECT_EQ(look.fontSize, kDefaultBoardFontSize);
  EXPECT_EQ(look.outlineWidth, kDefaultOutlineWidth);
  EXPECT_EQ(look.entries, rgb(1, 2, 3));

  // The choice's colours land in their settings, and the scheme's button
  // colour is settled before it is kept.
  OptionsChoice choice;
  choice.scheme.name = "night.col";
  choice.colours = {11, 22, 33, 44, 55};
  Settings settings = startupSettings();
  ColourScheme scheme;
  applyOptions(choice, settings, scheme);
  EXPECT_EQ(boardColours(settings), choice.colours);
  EXPECT_EQ(settings.OutlineColour, 11);
  EXPECT_EQ(settings.schemeColour13, scheme[ColourScheme::kButtons]);
}

}  // namespace
}  // namespace combwise
