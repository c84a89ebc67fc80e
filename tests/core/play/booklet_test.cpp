// The booklet's layout: its pages, where boards and clues go, and that
// nothing leaves the printable area or is lost.
#include "core/play/booklet.h"

#include <gtest/gtest.h>

#include <string>

namespace combwise {
namespace {

// Every character is 100 twips wide (a large clue face).
class WideMeasure : public TextMeasure {
 public:
  double textWidth(std::string_view text) const override { return 100.0 * static_cast<double>(text.size()); }
  double textHeight(std::string_view) const override { return 240.0; }
};

BookletPuzzle puzzle(int number, int size, const std::string& clue) {
  // The drawn boards of the four sizes, in cells.
  const double down = size == 7 ? 6 : size == 10 ? 8 : size == 17 ? 10 : 11;
  const double across = size <= 10 ? 10 : 16;
  BookletPuzzle p{number, across, down, {}, {}};
  for (int h = 1; h <= size; ++h) {
    p.inside.push_back("in " + std::to_string(h) + " " + clue);
    p.outside.push_back("out " + std::to_string(h) + " " + clue);
  }
  return p;
}

bool inside(const BookletRect& box, const BookletRect& area) {
  return box.x >= area.x - 1e-6 && box.y >= area.y - 1e-6 && box.right() <= area.right() + 1e-6 &&
         box.bottom() <= area.bottom() + 1e-6;
}

// All the clue texts of the pages, in order, and checks that each page's
// boards and texts stay in the printable area and clear of each other.
std::vector<std::string> checkedClueLines(const std::vector<BookletPage>& pages, const BookletPaper& paper,
                                          const BookletFaces& faces) {
  std::vector<std::string> lines;
  for (const BookletPage& page : pages) {
    for (const BookletBoard& board : page.boards) EXPECT_TRUE(inside(board.box, paper.printable));
    for (const BookletText& text : page.texts) {
      EXPECT_GE(text.y, paper.printable.y);
      EXPECT_LE(text.y + (text.font == BookletFont::Footer ? faces.footer : faces.clueLine), paper.printable.bottom())
          << text.text;
      if (text.font != BookletFont::Clue) continue;
      EXPECT_LE(text.x + faces.clue.textWidth(text.text), paper.printable.right()) << text.text;
      for (const BookletBoard& board : page.boards) EXPECT_GE(text.y, board.box.bottom()) << text.text;
      if (text.text.find('.') == std::string::npos) lines.push_back(text.text);
    }
  }
  return lines;
}

TEST(Booklet, OnePagePerPuzzleThenKeyPagesAllInsideThePrintableArea) {
  const WideMeasure measure;
  const BookletFaces faces{measure};
  std::vector<BookletPuzzle> puzzles;
  // Clues of two lines: the board gives way to them and they just fit.
  for (int n = 1; n <= 7; ++n)
    puzzles.push_back(puzzle(10 + n, n % 2 ? 7 : 10, "a clue long enough to take two lines here"));
  for (const BookletPaper& paper : {bookletPaper(kA4Width, kA4Height), bookletPaper(kLetterWidth, kLetterHeight)}) {
    const std::vector<BookletPage> pages = layOutBooklet(puzzles, paper, faces, "Class 4b");
    EXPECT_EQ(keysPerPage(puzzles, paper, faces), 6);
    ASSERT_EQ(pages.size(), 7u + 2u);  // seven puzzles, then six keys and one
    for (std::size_t p = 0; p < 7; ++p) {
      ASSERT_EQ(pages[p].boards.size(), 1u);
      EXPECT_EQ(pages[p].boards[0].puzzle, p);
      EXPECT_EQ(pages[p].texts[0].text, "Class 4b");
      EXPECT_EQ(pages[p].texts[1].text, "Puzzle " + std::to_string(11 + p));
      // The board is large: what the clues below leave it.
      EXPECT_GT(pages[p].boards[0].box.width, 0.45 * paper.printable.width);
    }
    EXPECT_EQ(pages[7].boards.size(), 6u);
    EXPECT_EQ(pages[8].boards.size(), 1u);
    EXPECT_TRUE(pages[8].key && pages[8].boards[0].solved);
    EXPECT_EQ(pages[8].texts.back().text, "Page 9 of 9");
    EXPECT_EQ(checkedClueLines(pages, paper, faces).size(), 2u * (4u * 14u + 3u * 20u));
  }
}

TEST(Booklet, CluesThatCannotFitGoOnToTheNextPageAndNoneIsLost) {
  const WideMeasure measure;
  const BookletFaces faces{measure};
  const std::string longClue = "a clue long enough to take three or four lines of its column at this size";
  const std::vector<BookletPuzzle> puzzles{puzzle(1, 22, longClue), puzzle(2, 7, "short")};
  const BookletPaper paper = bookletPaper(kLetterWidth, kLetterHeight);
  const std::vector<BookletPage> pages = layOutBooklet(puzzles, paper, faces);
  ASSERT_GE(pages.size(), 4u);
  EXPECT_EQ(pages[1].texts[1].text, "Puzzle 1 (continued)");
  EXPECT_EQ(pages[pages.size() - 2].boards[0].puzzle, 1u);
  EXPECT_EQ(pages.back().boards.size(), 2u);
  // Each clue's first line, once and in order: inside clues, then outside.
  std::vector<std::string> firsts;
  for (const std::string& line : checkedClueLines(pages, paper, faces))
    if (line.starts_with("in ") || line.starts_with("out ")) firsts.push_back(line.substr(0, line.find(' ', 4)));
  std::vector<std::string> expected;
  for (const BookletPuzzle& p : puzzles)
    for (const char* side : {"in ", "out "})
      for (std::size_t h = 1; h <= p.inside.size(); ++h) expected.push_back(side + std::to_string(h));
  EXPECT_EQ(firsts, expected);
}

}  // namespace
}  // namespace combwise
