// The booklet: a layout for handing puzzles out. Each puzzle gets a page of
// its own, its board centred and as wide as the printable area allows, its
// inside and outside clues in two columns below it; the answer keys follow
// on pages of their own, several solved boards to a page, each labelled
// with its puzzle's number. Every page has a short header (the title and
// the puzzle's number) and its page number in the footer. Lengths are
// twips from the paper's top-left corner; the painter only draws what this
// places.
#pragma once

#include <string>
#include <vector>

#include "core/play/textmeasure.h"

namespace combwise {

inline constexpr const char* kBookletTitle = "Combwise puzzles";
// The smallest margin, whatever the printer could print up to.
inline constexpr double kBookletMinMargin = 1080;  // three quarters of an inch

// A4 and Letter in twips.
inline constexpr double kA4Width = 11906;
inline constexpr double kA4Height = 16838;
inline constexpr double kLetterWidth = 12240;
inline constexpr double kLetterHeight = 15840;

struct BookletRect {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;
  double bottom() const { return y + height; }
  double right() const { return x + width; }
  friend bool operator==(const BookletRect&, const BookletRect&) = default;
};

// The paper and the part of it that is printed on.
struct BookletPaper {
  double width = kA4Width;
  double height = kA4Height;
  BookletRect printable{kBookletMinMargin, kBookletMinMargin, kA4Width - 2 * kBookletMinMargin,
                        kA4Height - 2 * kBookletMinMargin};
};

// A paper whose printable area keeps at least the smallest margin inside the
// area the device can print on (`margins`: left, top, right, bottom).
BookletPaper bookletPaper(double width, double height, double marginLeft = 0, double marginTop = 0,
                          double marginRight = 0, double marginBottom = 0);

// What the layout needs of a puzzle: its number, how many print cells its
// drawn board spans across and down, and its clues (inside[h - 1] and
// outside[h - 1] belong to hexagon h).
struct BookletPuzzle {
  int number = 0;
  double across = 0;
  double down = 0;
  std::vector<std::string> inside;
  std::vector<std::string> outside;
};

// A board's drawn size at the print cell (500 x 833 twips), scaled by 1.
double boardWidth(double across);
double boardHeight(double down);

enum class BookletFont { Title, Heading, Clue, Label, Footer };
enum class BookletAlign { Left, Centre, Right };

struct BookletText {
  double x = 0;  // the left edge, the centre or the right edge, as aligned
  double y = 0;  // top of the text
  std::string text;
  BookletFont font = BookletFont::Clue;
  BookletAlign align = BookletAlign::Left;
  friend bool operator==(const BookletText&, const BookletText&) = default;
};

// One board: puzzle `puzzle` (an index into the list laid out) drawn with
// its left edge at box.x and its top at box.y, its cells `scale` times the
// print cell. A key's board shows every letter.
struct BookletBoard {
  std::size_t puzzle = 0;
  BookletRect box;
  double scale = 1;
  bool solved = false;
};

struct BookletPage {
  bool key = false;
  std::vector<BookletBoard> boards;
  std::vector<BookletText> texts;
  double headerRule = 0;  // the line under the header
};

// How high a line of each face is, and the clue face's measure for wrapping.
struct BookletFaces {
  const TextMeasure& clue;
  double title = 300;
  double heading = 280;
  double clueLine = 240;
  double label = 260;
  double footer = 220;
};

// The whole booklet: the puzzles' pages in order, then the key pages.
std::vector<BookletPage> layOutBooklet(const std::vector<BookletPuzzle>& puzzles, const BookletPaper& paper,
                                       const BookletFaces& faces, const std::string& title = kBookletTitle);

// How many solved boards a key page holds for these puzzles: six while the
// largest board stays readable at that size, else four, else two.
int keysPerPage(const std::vector<BookletPuzzle>& puzzles, const BookletPaper& paper, const BookletFaces& faces);

}  // namespace combwise
