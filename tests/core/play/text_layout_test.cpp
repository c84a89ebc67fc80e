// Word wrapping, the clue panel, and where the arrows lead (the session's
// start-up test covers the choice of the collection to start with).
#include <gtest/gtest.h>

#include "core/files/browsing.h"
#include "core/model/puzzlestate.h"
#include "core/play/cluepanel.h"
#include "core/play/textmeasure.h"
#include "support/charmeasure.h"

namespace combwise {
namespace {

using testing::CharMeasure;

TEST(WrapText, BreaksAtBlanksAndLineEnds) {
  const CharMeasure m;
  EXPECT_EQ(WrapText("short text", m, 100), (std::vector<std::string>{"short text"}));
  EXPECT_EQ(WrapText("one two three four", m, 80), (std::vector<std::string>{"one two", "three", "four"}));
  EXPECT_EQ(WrapText("a\r\nb c", m, 1000), (std::vector<std::string>{"a", "b c"}));
  EXPECT_EQ(WrapText("tiny enormousword end", m, 60), (std::vector<std::string>{"tiny", "enormousword", "end"}));
  EXPECT_TRUE(WrapText("", m, 100).empty());
}

// Two hexagons' clues, the first inside one wrapping to a text column of
// 700 - 20 - 450 = 230 twips and the second outside one empty.
CluePanel twoHexagons() {
  PuzzleState state;
  state.WordCount = 4;
  state.ClueTexts[1] = "outside one";
  state.ClueTexts[2] = "inside one is long enough to wrap";
  state.ClueTexts[4] = "inside two";
  return layOutClues(state, CharMeasure(), 700);
}

TEST(CluePanel, NumbersInsideThenOutsideCluesAndWrapsToTheColumn) {
  const CluePanel panel = twoHexagons();
  std::vector<std::string> texts;
  for (const auto& line : panel.lines) texts.push_back(line.text);
  EXPECT_EQ(texts,
            (std::vector<std::string>{"--", " INSIDE CLUES:", "01. ", "inside one is long", "enough to wrap", "02. ",
                                      "inside two", "--", " OUTSIDE CLUES:", "01. ", "outside one", "02. ", "--"}));
  // The number and the first line of its clue share a line; where the lines
  // go down the panel is the clue spans' test below.
  EXPECT_EQ(panel.lines[2].y, panel.lines[3].y);
  EXPECT_EQ(panel.lines[3].x, kClueColumn);
  EXPECT_EQ(panel.height, panel.lines[12].y + 400);
}

TEST(CluePanel, LinksEachHexagonToItsTwoCluesAndBack) {
  const CluePanel panel = twoHexagons();
  const HexagonClues first = cluesOfHexagon(panel, 1);
  ASSERT_TRUE(first.inside && first.outside);
  EXPECT_EQ(*first.inside, (ClueSpan{2, 200, 400}));  // both of its wrapped lines
  EXPECT_EQ(*first.outside, (ClueSpan{1, 796, 896}));
  EXPECT_EQ(cluesOfHexagon(panel, 2).outside, (ClueSpan{3, 944, 1044}));  // an empty clue keeps its line
  EXPECT_FALSE(cluesOfHexagon(panel, 3).inside);

  EXPECT_EQ(clueAt(panel, 200), (ClueHit{2, 1, true}));
  EXPECT_EQ(clueAt(panel, 447), (ClueHit{2, 1, true}));  // the gap below belongs to the clue
  EXPECT_EQ(clueAt(panel, 448), (ClueHit{4, 2, true}));
  EXPECT_EQ(clueAt(panel, 1000), (ClueHit{3, 2, false}));
  EXPECT_FALSE(clueAt(panel, 150));  // a heading
  EXPECT_FALSE(clueAt(panel, 5000));
}

TEST(Browsing, ArrowsWrapAndTheRightButtonJumpsToTheEnds) {
  auto none = std::function<double()>{};
  EXPECT_EQ(arrowTarget(0, 1, 1, 10, none), 10);
  EXPECT_EQ(arrowTarget(0, 2, 5, 10, none), 1);
  EXPECT_EQ(arrowTarget(2, 1, 10, 10, none), 1);
  EXPECT_EQ(arrowTarget(2, 1, 3, 1, none), std::nullopt);  // one puzzle: nothing happens
  EXPECT_EQ(arrowTarget(3, 1, 3, 10, none), std::nullopt);
  EXPECT_EQ(arrowTarget(1, 1, 3, 10, [] { return 0.99999; }), 10);
}

}  // namespace
}  // namespace combwise
