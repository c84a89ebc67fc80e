// The printed clue listing's layout: where each line of the page goes.
#include "core/play/printedclues.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <ostream>
#include <string>

#include "support/charmeasure.h"

namespace combwise {
namespace {

using testing::CharMeasure;

}  // namespace

void PrintTo(const SheetLine& line, std::ostream* out) {
  *out << "(" << line.x << ", " << line.y << ", \"" << line.text << "\", face " << static_cast<int>(line.font) << ")";
}

namespace {

constexpr SheetLineHeights kHeights{60, 100, 110};
constexpr double kTallPage = 1e9;

TEST(PrintedClues, TheHeaderNamesTheGivenProgramAndWrappedEmptyAndBrokenCluesKeepTheirPlaces) {
  PuzzleState state;
  state.WordCount = 4;
  state.PuzzleNumber = 12;
  state.CollectionPath = "/p/set.txt";
  state.ClueTexts[1] = "outside one";
  state.ClueTexts[2] = "inside one is long enough to need a second line";
  state.ClueTexts[3] = "two\r\nlines";
  const CharMeasure measure;
  // The text column runs from 9600 to 10000: 40 characters.
  const std::vector<SheetLine> lines =
      layOutPrintedClues(state, {"Hexes", "site"}, measure, kHeights, 9200, 1000, kTallPage);
  using F = SheetFont;
  const std::vector<SheetLine> expected{
      {9200, 1000, "Hexes Puzzle ...site - Puz# 12", F::Header},
      {9200, 1060, "/p/set.txt -  12", F::Text},  // the number with its leading blank
      {9200, 1700, "INSIDE CLUES:", F::Heading},
      {9200, 2000, "01. ", F::Text},
      {9600, 2000, "inside one is long enough to need a", F::Text},
      {9600, 2100, "second line", F::Text},
      {9200, 2248, "02. ", F::Text},  // no clue: the number's line alone
      {9200, 2896, "OUTSIDE CLUES:", F::Heading},
      {9200, 3106, "01. ", F::Text},
      {9600, 3106, "outside one", F::Text},
      {9200, 3254, "02. ", F::Text},
      {9600, 3254, "two", F::Text},
      {9600, 3354, "lines", F::Text},
  };
  EXPECT_EQ(lines, expected);
}

TEST(PrintedClues, AListingTallerThanThePageGoesOnWithTheHeaderRepeatedAndLosesNothing) {
  PuzzleState state;
  state.WordCount = 44;
  state.PuzzleNumber = 7;
  for (int k = 1; k <= 44; ++k)
    state.ClueTexts[static_cast<std::size_t>(k)] =
        "clue " + std::to_string(k) + " is long enough to wrap onto a second line";
  const CharMeasure measure;
  // A column of 40 characters; every entry takes two lines and the gap (248).
  constexpr double kBottom = 4000;
  const std::vector<SheetLine> lines = layOutPrintedClues(state, {}, measure, kHeights, 9200, 1000, kBottom);
  int pages = 0;
  std::vector<std::string> texts;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const SheetLine& line = lines[i];
    pages = std::max(pages, line.page + 1);
    EXPECT_LE(line.y + (line.font == SheetFont::Header ? 60 : 100), kBottom) << line.text;
    EXPECT_GE(line.page, i > 0 ? lines[i - 1].page : 0) << "pages run in order";
    if (line.x == 9600) texts.push_back(line.text);
  }
  // Each page starts with the header and the collection line again.
  for (int page = 0; page < pages; ++page) {
    const auto first = std::find_if(lines.begin(), lines.end(), [&](const SheetLine& l) { return l.page == page; });
    ASSERT_NE(first, lines.end());
    EXPECT_EQ(first->text, "Combwise Puzzle ...hexagonal crosswords - Puz# 7");
    EXPECT_EQ(first->y, 1000);
    EXPECT_EQ(std::next(first)->text, " -  7");
  }
  EXPECT_GE(pages, 4);
  // Every clue is there, in order: inside clues first, then outside.
  std::vector<std::string> expected;
  for (int first : {2, 1})
    for (int k = first; k <= 44; k += 2) {
      expected.push_back("clue " + std::to_string(k) + " is long enough to wrap onto a");
      expected.push_back("second line");
    }
  EXPECT_EQ(texts, expected);
  // The outside heading never ends a page without an entry after it.
  const auto heading =
      std::find_if(lines.begin(), lines.end(), [](const SheetLine& l) { return l.text == "OUTSIDE CLUES:"; });
  ASSERT_NE(heading, lines.end());
  EXPECT_EQ(std::next(heading)->page, heading->page);
}

}  // namespace
}  // namespace combwise
