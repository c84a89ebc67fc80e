// Verification and zoom: which hexagons the player has not finished, and
// how a zoom step changes the cell size and the board font.
#pragma once

#include <vector>

#include "core/model/board.h"
#include "core/model/puzzlestate.h"

namespace combwise {

// The hexagons, in ascending order, with a non-free cell whose entry is not
// exactly its solution letter. Free cells are never checked, and letters
// are checked in place, not as an anagram.
std::vector<int> unfinishedHexagons(const Board& board, const PuzzleState& state);

enum class ZoomKind { Out = 0, In = 1, Reset = 2 };

struct ZoomState {
  int cellWidth = 225;
  int cellHeight = 375;
  double fontSize = 10;
  friend bool operator==(const ZoomState&, const ZoomState&) = default;
};

// One zoom step. Out and In scale the cell by 0.9 and 1.1 (halves to even)
// and the font by -1.5 and +1.5 points within 5 to 36; Reset returns to the
// fitted cell and the configured font size. The cell itself has no limit.
ZoomState zoomStep(ZoomKind kind, const ZoomState& current, int fitWidth, int fitHeight, double boardFontSize);

}  // namespace combwise
