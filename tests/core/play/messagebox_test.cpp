// The message box's style keywords and its layout in twips.
#include "core/play/messagebox.h"

#include <gtest/gtest.h>

#include <utility>

namespace combwise {
namespace {

using Buttons = std::vector<MessageButton>;

std::vector<int> shownIcons(const MessageStyle& style) {
  std::vector<int> shown;
  for (int i = 0; i < kMessageIconCount; ++i)
    if (style.icons[i]) shown.push_back(i);
  return shown;
}

TEST(MessageStyleTest, CaseBlanksAndOrderDoNotMatterAndWithoutAButtonKeywordTheBoxHasOneOk) {
  for (const auto& [one, other] :
       {std::pair{"vbquestion+vbyesno", "vbQuestion + vbYesNo"}, std::pair{"vbok+vbcritical", "vbcritical+vbok"}}) {
    EXPECT_EQ(parseMessageStyle(one).icons, parseMessageStyle(other).icons) << other;
    EXPECT_EQ(parseMessageStyle(one).buttons, parseMessageStyle(other).buttons) << other;
  }
  for (const char* style : {"", "vbcritival+vbok", "+", "  ", "vbcritival", "vbtrash"}) {
    const MessageStyle parsed = parseMessageStyle(style);
    EXPECT_EQ(parsed.buttons, (Buttons{{"Ok", 1}})) << style;
    EXPECT_EQ(parsed.lastButtonIndex(), 0);
  }
  EXPECT_TRUE(shownIcons(parseMessageStyle("vbcritival+vbok")).empty());
}

// The keyword table itself is data; these are the rules of reading it.
TEST(MessageStyleTest, KeywordsAddUpToThreeButtonsAndIconsFromWholePiecesOnly) {
  EXPECT_EQ(parseMessageStyle("vbquestion+vbyesno").buttons, (Buttons{{"Yes", 6}, {"No", 7}}));
  EXPECT_EQ(parseMessageStyle("vbok+vbyesnocancel").buttons, (Buttons{{"Ok", 1}, {"Yes", 6}, {"No", 7}}));
  EXPECT_EQ(shownIcons(parseMessageStyle("vbquestion+vbexclamation+vbok")), (std::vector<int>{0, 1}));
  EXPECT_TRUE(shownIcons(parseMessageStyle("vbquestions+xvbhappy")).empty());
}

constexpr MessageBoxDesign kDesign{900, 240, 5100, 1200, 405};

TEST(ArrangeMessageBoxTest, TheFormKeepsItsWidthAndCentresItsTouchingButtons) {
  EXPECT_EQ(arrangeMessageBox(kDesign, 240, 0).formWidth, 2 * 900 + 5100);
  for (int last = 0; last < kMessageButtonPlaces; ++last) {
    const MessageBoxLayout layout = arrangeMessageBox(kDesign, 240, last);
    ASSERT_EQ(layout.visibleButtons, last + 1);
    for (int i = 1; i <= last; ++i) EXPECT_EQ(layout.buttonLefts[i], layout.buttonLefts[i - 1] + 1200);
    const int rightMargin = layout.formWidth - (layout.buttonLefts[last] + 1200);
    EXPECT_EQ(layout.buttonLefts[0], rightMargin) << last;
  }
}

}  // namespace
}  // namespace combwise
