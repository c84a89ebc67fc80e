// The printed clue listing's layout: the page header and the collection
// line, then "INSIDE CLUES:" with each inside clue numbered "01. " by its
// hexagon and wrapped to the text column, then the same for the outside
// clues. The painter only draws the lines where this puts them. Lengths
// are twips on the page.
#pragma once

#include <string>
#include <vector>

#include "core/files/cluelisting.h"
#include "core/model/puzzlestate.h"
#include "core/play/textmeasure.h"

namespace combwise {

// The listing's three faces: the header in 7 points, the rest in 9 points,
// the two headings bold.
enum class SheetFont { Header, Text, Heading };

inline constexpr const char* kSheetFontFamily = "Arial";
inline constexpr int kSheetHeaderPoints = 7;
inline constexpr int kSheetTextPoints = 9;

struct SheetLine {
  double x = 0;
  double y = 0;  // top of the text
  std::string text;
  SheetFont font = SheetFont::Text;
  int page = 0;  // 0 for the first page of the listing
  friend bool operator==(const SheetLine&, const SheetLine&) = default;
};

// How high a line of each face is on the page's device.
struct SheetLineHeights {
  double header = 0;
  double text = 0;
  double heading = 0;
};

// The printed pages' header: "Combwise Puzzle ...<site> - Puz# 12". The
// puzzle sheet follows it with ":" and the collection's path.
std::string pageHeader(const ListingBanner& banner, int puzzleNumber);

// The listing with its top-left corner at (left, top). Clues wrap as
// `wrapMeasure` measures them (the screen board's font, so paper and screen
// break a clue at the same words) to a column from left + 400 to 10000.
// An entry or heading that would pass `pageBottom` goes to the next page,
// which repeats the two header lines; an entry taller than a whole page
// still starts on a page of its own rather than being cut.
std::vector<SheetLine> layOutPrintedClues(const PuzzleState& state, const ListingBanner& banner,
                                          const TextMeasure& wrapMeasure, const SheetLineHeights& heights, int left,
                                          int top, double pageBottom);

}  // namespace combwise
