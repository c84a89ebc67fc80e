// Prints a run of puzzles of a collection, one page each: the puzzle sheet
// with its solved board below, and optionally the clue listing on the page
// after it. The window and the makers' tool load the puzzles their own way.
#pragma once

#include <functional>
#include <optional>

#include "render/printedpage.h"
#include "render/printtarget.h"

namespace combwise {

// Where the range pages put their boards and clues, in twips.
inline constexpr int kPageLeft = 1600;
inline constexpr int kSheetTop = 1200;
inline constexpr int kRangeSolvedTop = 12000;
inline constexpr int kSinglePrintSolvedTop = 12500;
inline constexpr int kClueListLeft = 1200;
inline constexpr int kClueListTop = 1200;

// Loads puzzle n and returns what its page shows, or nothing when it does
// not load (that puzzle is skipped without a page).
using PageLoader = std::function<std::optional<PagePuzzle>(int n)>;

struct RangeOutcome {
  bool opened = false;   // the printer or file could be opened
  bool written = false;  // the document was ended and sent or written in full
  int printed = 0;       // puzzles printed
};

// Puzzles first..last, stopping after `count` (the collection's last).
// `events` runs after each page so the window stays responsive.
RangeOutcome PrintPuzzleRange(PrintTarget& target, int first, int last, int count, const PageLoader& load,
                              bool withClues = false, const std::function<void()>& events = {});

}  // namespace combwise
