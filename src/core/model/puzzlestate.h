// The current puzzle: its size and grid dimensions, the letters and the
// word slots with their meaning numbers and clue texts, where it came from,
// and the player's entries, selection and undo list. The player's entries
// survive every new puzzle: only undo and the player's own deletions change
// them.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/model/board.h"
#include "core/model/undohistory.h"

namespace combwise {

// A table of texts over the storage grid (rows 0..12, columns 0..18).
class LetterGrid {
 public:
  std::string& at(int row, int col) { return m_cells[index(row, col)]; }
  const std::string& at(int row, int col) const { return m_cells[index(row, col)]; }
  void clear() {
    for (auto& cell : m_cells) cell.clear();
  }
  friend bool operator==(const LetterGrid&, const LetterGrid&) = default;

 private:
  static std::size_t index(int row, int col) {
    if (row < 0 || row > Board::kMaxRow || col < 0 || col > Board::kMaxCol)
      return 0;  // row 0 column 0 never holds a letter
    return static_cast<std::size_t>(row) * (Board::kMaxCol + 1) + static_cast<std::size_t>(col);
  }
  std::array<std::string, (Board::kMaxRow + 1) * (Board::kMaxCol + 1)> m_cells{};
};

struct PuzzleState {
  static constexpr int kMaxSlots = 50;

  int PuzzleSize = -1;  // number of hexagons; -1 before the first puzzle
  int WordCount = 0;    // 2 x PuzzleSize
  int GridRows = 0;
  int GridCols = 0;
  int HexCount = 0;

  LetterGrid Letters;  // the solution letters; set-up marks outside cells with their hexagon's number
  std::array<std::string, kMaxSlots + 1> WordSlots{};  // slot 2h-1 outside word, 2h inside word of hexagon h
  std::array<int, kMaxSlots + 1> MeaningNumbers{};
  std::array<std::string, kMaxSlots + 1> ClueTexts{};

  std::string CollectionPath;
  int PuzzleNumber = 0;
  int PuzzleCount = 0;

  LetterGrid Entries;  // the player's letters; never cleared by the program
  int SelRow = 0;      // 0: no selection
  int SelCol = 0;
  UndoHistory UndoList;  // newest record first, with the steps to redo

  // Empties word slots 1..50 with their meaning numbers and clue texts.
  void clearSlots();
  // Forgets the selection and the undo and redo lists, as reading a puzzle
  // does.
  void resetPlay();
};

// Sets up the board for `size` and the puzzle state to match: word count,
// grid dimensions, letters cleared and every outside cell marked with the
// number of the hexagon whose outside word it belongs to. Returns false,
// changing nothing, for a size that is not one of the four.
bool setUpPuzzle(Board& board, PuzzleState& state, int size);

// The lines of the hexagon list shown beside the board: the "00" hexagon
// number and how many outside cells the hexagon has.
std::vector<std::string> hexagonListLines(const Board& board, const PuzzleState& state);

// Breaches of the puzzle invariants, one text each; empty when the puzzle
// is sound: every hexagon's inside letters are its inside word's letters,
// its outside letters its outside word's, slots above the word count are
// empty, and no letter stands outside the hexagons.
std::vector<std::string> invariantBreaches(const Board& board, const PuzzleState& state);

}  // namespace combwise
