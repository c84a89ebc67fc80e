// Keyboard moves from hexagon to hexagon (Tab and Shift+Tab) and the cell a
// clicked clue selects: the first cell of a hexagon, in ring order, that is
// still to be filled in (not given, no entry yet).
#pragma once

#include <optional>

#include "core/model/board.h"
#include "core/model/puzzlestate.h"

namespace combwise {

// The first non-given cell of hexagon `hex` without an entry, in ring
// order. When every non-given cell of it holds a letter, its first
// non-given cell, so that the player can still go there to change one.
// Nothing for a hexagon that is not on the board.
std::optional<GridPos> firstOpenCell(const Board& board, const PuzzleState& state, int hex);

enum class HexStep { Next = 1, Previous = -1 };

// The cell Tab (Next) or Shift+Tab (Previous) goes to: the first open cell
// of the nearest hexagon in that direction, from the hexagon of the
// selected cell, going round past the last hexagon to the first and back.
// Hexagons whose cells are all filled are passed over; when every hexagon
// is full, the move goes to the first non-given cell of the very next
// hexagon instead. Without a selection the search starts at hexagon 1
// itself (Tab: 1, 2, 3, ...; Shift+Tab: 1, then the last, backwards).
// Nothing without a board.
std::optional<GridPos> hexagonStep(const Board& board, const PuzzleState& state, HexStep step);

// hexagonStep, and selects the cell it found.
std::optional<GridPos> moveToHexagon(const Board& board, PuzzleState& state, HexStep step);

}  // namespace combwise
