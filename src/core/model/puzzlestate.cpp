// The puzzle state's lifecycle helpers and invariant checks.
#include "core/model/puzzlestate.h"

#include <algorithm>

#include "core/model/text.h"

namespace combwise {

void PuzzleState::clearSlots() {
  for (auto& word : WordSlots) word.clear();
  for (auto& clue : ClueTexts) clue.clear();
  MeaningNumbers.fill(0);
}

void PuzzleState::resetPlay() {
  SelRow = 0;
  SelCol = 0;
  UndoList.clear();
}

bool setUpPuzzle(Board& board, PuzzleState& state, int size) {
  if (!Board::isValidSize(size)) return false;
  board.setUp(size);
  state.PuzzleSize = size;
  state.HexCount = board.hexCount();
  state.WordCount = board.wordCount();
  state.GridRows = board.rows();
  state.GridCols = board.cols();
  state.Letters.clear();
  for (int hex = 1; hex <= board.hexCount(); ++hex) {
    for (int k = 1; k <= Board::kRing; ++k) {
      const int cell = board.OutsideCells(hex, k);
      if (cell != 0) state.Letters.at(board.CellRow(cell), board.CellCol(cell)) = NumberText(hex);
    }
  }
  return true;
}

std::vector<std::string> hexagonListLines(const Board& board, const PuzzleState& state) {
  std::vector<std::string> lines;
  for (int hex = 1; hex <= board.hexCount(); ++hex) {
    int marked = 0;
    for (int k = 1; k <= Board::kRing; ++k) {
      const int cell = board.OutsideCells(hex, k);
      if (cell != 0 && !state.Letters.at(board.CellRow(cell), board.CellCol(cell)).empty()) ++marked;
    }
    lines.push_back(Format00(hex) + " - " + NumberText(marked) + " outside");
  }
  return lines;
}

namespace {

std::string sortedLetters(std::string text) {
  std::sort(text.begin(), text.end());
  return text;
}

}  // namespace

std::vector<std::string> invariantBreaches(const Board& board, const PuzzleState& state) {
  std::vector<std::string> breaches;
  for (int hex = 1; hex <= board.hexCount(); ++hex) {
    std::string inside;
    std::string outside;
    for (int k = 1; k <= Board::kRing; ++k) {
      const int in = board.InsideCells(hex, k);
      inside += state.Letters.at(board.CellRow(in), board.CellCol(in));
      if (const int out = board.OutsideCells(hex, k))
        outside += state.Letters.at(board.CellRow(out), board.CellCol(out));
    }
    const std::string& insideWord = state.WordSlots[2 * hex];
    const std::string& outsideWord = state.WordSlots[2 * hex - 1];
    if (sortedLetters(inside) != sortedLetters(insideWord))
      breaches.push_back("hexagon " + NumberText(hex) + ": inside letters " + inside + " do not spell " + insideWord);
    if (sortedLetters(outside) != sortedLetters(outsideWord))
      breaches.push_back("hexagon " + NumberText(hex) + ": outside letters " + outside + " do not spell " +
                         outsideWord);
  }
  for (int slot = std::max(state.WordCount, 0) + 1; slot <= PuzzleState::kMaxSlots; ++slot) {
    if (!state.WordSlots[slot].empty()) breaches.push_back("slot " + NumberText(slot) + " is beyond the word count");
  }
  for (int row = 0; row <= Board::kMaxRow; ++row) {
    for (int col = 0; col <= Board::kMaxCol; ++col) {
      if (board.HexAt(row, col) == 0 && !state.Letters.at(row, col).empty())
        breaches.push_back("a letter stands outside the hexagons at row " + NumberText(row) + ", column " +
                           NumberText(col));
    }
  }
  return breaches;
}

}  // namespace combwise
