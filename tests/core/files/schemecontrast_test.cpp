// Every shipped scheme and the start-up board keep the board readable.
#include <gtest/gtest.h>

#include "core/files/boardoptions.h"
#include "core/files/contrast.h"
#include "core/play/boardscene.h"
#include "support/tempfolder.h"

namespace combwise {
namespace {

void expectReadable(const std::string& what, const SchemeBoardColours& c) {
  const int highlighted = blendColours(c.highlight, c.fill, kHighlightOpacity);
  for (const auto& [ground, name] : {std::pair{c.fill, "hexagon"}, std::pair{highlighted, "highlighted hexagon"}}) {
    EXPECT_GE(contrastRatio(c.given, ground), kTextContrast) << what << ": given letters on the " << name;
    EXPECT_GE(contrastRatio(c.entries, ground), kTextContrast) << what << ": typed letters on the " << name;
    EXPECT_GE(contrastRatio(c.numbers, ground), kGraphicContrast) << what << ": numbers and lines on the " << name;
  }
  EXPECT_GE(contrastRatio(c.outline, c.fill), kGraphicContrast) << what << ": outlines";
}

TEST(SchemeContrast, RatiosFollowTheGuidelines) {
  EXPECT_DOUBLE_EQ(contrastRatio(rgb(0, 0, 0), rgb(255, 255, 255)), 21.0);
  EXPECT_NEAR(contrastRatio(rgb(255, 255, 255), rgb(118, 118, 118)), 4.54, 0.01);
  EXPECT_EQ(blendColours(rgb(255, 0, 100), rgb(0, 255, 100), 0.5), rgb(128, 128, 100));
}

TEST(SchemeContrast, EveryShippedSchemeIsReadable) {
  const std::string file = COMBWISE_BIN_DIR "/all.col";  // the shipped copy of data/all.col
  const std::string text = TempFolder::contentOf(file);
  const std::vector<std::string> names = schemeList(file);
  ASSERT_GE(names.size(), 6u);
  for (const auto& name : names) {
    ColourScheme scheme;
    ASSERT_EQ(readSchemeText(text, name + ".col", scheme.colours), SchemeSearch::Complete) << name;
    expectReadable(name, SchemeBoardColours::of(scheme));
  }
}

TEST(SchemeContrast, TheBoardBeforeAnySettingsIsReadable) {
  const Settings start = startupSettings();
  const SchemeBoardColours colours{.fill = start.HexFillColour,
                                   .outline = start.OutlineColour,
                                   .numbers = start.HexNumberColour,
                                   .given = start.GivenLetterColour,
                                   .entries = start.EntryColour,
                                   .highlight = ColourScheme{}[SchemeBoardColours::kHighlight]};
  expectReadable("start-up board", colours);
}

}  // namespace
}  // namespace combwise
