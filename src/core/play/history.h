// Undo, redo and the player's clearing of the board. Each change is one
// step on the undo list: a typed letter changes one cell, clearing the
// board many at once; undo and redo always take back or bring back a whole
// step.
#pragma once

#include <string>
#include <vector>

#include "core/model/board.h"
#include "core/model/puzzlestate.h"

namespace combwise {

// One cell and the entry it held before a change.
struct CellEntry {
  int row = 0;
  int col = 0;
  std::string entry;
  friend bool operator==(const CellEntry&, const CellEntry&) = default;
};

// The record of a step: each cell's " 3, 8," + old entry, joined by ";".
// A single cell gives exactly the record of a typed letter.
std::string stepRecord(const std::vector<CellEntry>& cells);
// The cells of a step record; a part that names no cell in storage is
// left out.
std::vector<CellEntry> parseStepRecord(const std::string& record);

// Takes back the newest step: its cells get their old entries, and the
// step goes to the redo list. False when there is nothing to undo.
bool undoLast(PuzzleState& state);
// Brings back the newest undone step and puts it back on the undo list.
// False when there is nothing to redo (nothing was undone since the last
// new change).
bool redoLast(PuzzleState& state);

// Clears the player's entries on every cell of the current board's
// hexagons as one step, so that one undo brings them all back. Returns how
// many cells held an entry; with none, nothing is recorded.
int clearMyLetters(const Board& board, PuzzleState& state);

}  // namespace combwise
