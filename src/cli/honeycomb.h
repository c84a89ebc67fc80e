// The puzzle drawn as text for a terminal: every grid cell of a hexagon as
// its letter (or "_" for a letter the player fills in), each hexagon boxed
// and its number written on its top edge.
#pragma once

#include <string>
#include <vector>

#include "core/model/board.h"
#include "core/model/puzzlestate.h"

namespace combwise::cli {

std::vector<std::string> honeycombText(const Board& board, const PuzzleState& state, bool solution);

}  // namespace combwise::cli
