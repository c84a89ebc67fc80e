// The player's entry on the board: which cell the pointer selects, which
// keys put a letter on it, how the arrow keys move the selection, and the
// undo records of every change. The state changes here; drawing follows.
#pragma once

#include <optional>
#include <string>

#include "core/model/board.h"
#include "core/model/puzzlestate.h"
#include "core/play/history.h"
#include "core/play/layout.h"

namespace combwise {

// The grid position under a pointer at (x, y) twips on the board picture:
// row and column from 1, counted down from the board's origin (a pointer
// less than one cell left of or above it gives 0).
GridPos pointerCell(const BoardLayout& layout, double x, double y);

struct HoverResult {
  enum class Kind {
    Unchanged,  // beyond the grid's storage: the selection stays as it was
    Cleared,    // no hexagon there: no selection, empty status
    Selected,   // a cell of a hexagon
  };
  Kind kind = Kind::Unchanged;
  int hex = 0;
  std::string status;  // "Hex = 12" when selected
};

// Moves the selection to the cell under the pointer, as resting the pointer
// there does. Free cells are selectable too.
HoverResult hoverAt(const Board& board, const BoardLayout& layout, PuzzleState& state, double x, double y);

// Where the selection marker stands for a cell: a quarter cell in from the
// cell's top-left corner.
PixelPoint markerPosition(const BoardLayout& layout, int row, int col);

// What a typed character does to the selected cell: "." and Escape clear it
// (an empty entry), "A" to "Z" in either case and "@" put that upper-case
// letter; nothing for any other character, which is swallowed all the same.
std::optional<std::string> entryForKey(int code);

// Puts an entry on the selected cell with its undo record first. Does
// nothing without a selection.
bool enterAtSelection(PuzzleState& state, const std::string& entry);

// The move direction of a navigation key code: End "E", Home "H", Left "L",
// Up "U", Right "R", Down "D"; 0 for any other key.
char directionForKey(int keyCode);

// Moves the selection one grid step ("R", "L", "D", "U"; "H" and "E" keep
// it). A move never wraps, skips a gap or lands on a free cell: the
// selection then stays. Returns the new selection, nothing without one.
std::optional<GridPos> MoveSelection(const Board& board, PuzzleState& state, char direction);

// The undo record of a cell before it changes: " 3, 8," + the old entry.
std::string undoRecord(int row, int col, const std::string& previous);
void RecordUndo(PuzzleState& state, int row, int col);

// Puts the solution letters of the first `count` hexagons on their
// non-free cells as entries, as a player who had solved them would have.
void revealHexagons(const Board& board, PuzzleState& state, int count);

}  // namespace combwise
