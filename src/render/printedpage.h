// The printed page: the puzzle sheet with its header, the small solved
// board, and the clue listing, drawn on any QPainter (a printer, a PDF
// page, the clipboard picture) through the board scene the screen uses, at
// the print cell size. Positions are twips from the page's top-left corner.
#pragma once

#include <QFont>
#include <QString>
#include <functional>

#include "core/files/cluelisting.h"
#include "core/model/board.h"
#include "core/model/puzzlestate.h"
#include "core/play/boardscene.h"

class QPainter;

namespace combwise {

// The print cell; the solved board is 3.25 times smaller (154 x 256).
inline constexpr int kPrintCellWidth = 500;
inline constexpr int kPrintCellHeight = 833;  // 187500 / 225
inline constexpr double kSolvedBoardScale = 3.25;

// The options and screen values a page is drawn with.
struct PrintLook {
  QString fontName = "Arial";  // the letter font
  int fontSize = 10;           // the letter font size, in points
  int outlineWidth = 2;        // the hexagon border width; outlines print twice as wide
  int screenCellWidth = 225;   // the screen board's cell: the header starts one cell in
  int screenCellHeight = 375;
  ListingBanner banner;  // product name and the maker's site text
  QFont wrapFont;        // the screen board's font, which clue wrapping measures with
};

// What a page shows: a puzzle as the window or the tool holds it.
struct PagePuzzle {
  const Board& board;
  const PuzzleState& state;
  PrintLook look;
};

// The puzzle sheet's header: the page header, ":" and the collection's
// path ("Combwise Puzzle ...<site> - Puz# 12:<path>").
QString puzzleHeader(const PagePuzzle& puzzle);

// One board at (left, top). `solution` 0 draws the header and the puzzle
// sheet (letters of free cells only, or all letters with
// LetterMode::Solution, as the copied solution shows them); 1 draws the
// small solved board without a header.
void PrintPuzzle(QPainter& target, const PagePuzzle& puzzle, int left, int top, int solution,
                 LetterMode sheetLetters = LetterMode::Sheet);

// A board alone with its grid's top-left corner at (left, top), its cells
// `scale` times the print cell and its letters at least `minimumPoints`.
void PrintBoardAt(QPainter& target, const PagePuzzle& puzzle, double left, double top, double scale, LetterMode letters,
                  double minimumPoints = 0);

// The clue listing's bottom margin: no line passes the paper's height less this.
inline constexpr int kClueListBottomMargin = 1200;

// The clue listing: banner, collection and number, then the inside and the
// outside clues, each wrapped to its column. A listing longer than the
// page goes on after `newPage` (which turns the target's page) with the
// header repeated; without `newPage` it is drawn on one tall surface.
void PrintClueList(QPainter& target, const PagePuzzle& puzzle, int left, int top,
                   const std::function<void()>& newPage = {});

}  // namespace combwise
