// Keyboard moves between hexagons.
#include "core/play/hexagonjump.h"

namespace combwise {

namespace {

// The first non-given cell of a hexagon in ring order, empty or not when
// `emptyOnly` is false.
std::optional<GridPos> firstCell(const Board& board, const PuzzleState& state, int hex, bool emptyOnly) {
  for (int k = 1; k <= Board::kRing; ++k) {
    const auto cell = board.ringPosition(hex, k);
    if (!cell || board.FreeCell(cell->row, cell->col) == 1) continue;
    if (!emptyOnly || state.Entries.at(cell->row, cell->col).empty()) return cell;
  }
  return std::nullopt;
}

}  // namespace

std::optional<GridPos> firstOpenCell(const Board& board, const PuzzleState& state, int hex) {
  if (hex < 1 || hex > board.hexCount()) return std::nullopt;
  if (auto open = firstCell(board, state, hex, true)) return open;
  return firstCell(board, state, hex, false);
}

std::optional<GridPos> hexagonStep(const Board& board, const PuzzleState& state, HexStep step) {
  const int count = board.hexCount();
  if (count == 0) return std::nullopt;
  const int from = state.SelRow != 0 ? board.HexAt(state.SelRow, state.SelCol) : 0;
  const int direction = static_cast<int>(step);
  // Candidates in order: hexagons 1..count numbered from 0 here.
  auto candidate = [&](int i) {
    const int start = from == 0 ? 0 : from - 1 + direction;
    return ((start + direction * i) % count + count) % count + 1;
  };
  for (int i = 0; i < count; ++i) {
    if (auto open = firstCell(board, state, candidate(i), true)) return open;
  }
  for (int i = 0; i < count; ++i) {
    if (auto cell = firstCell(board, state, candidate(i), false)) return cell;
  }
  return std::nullopt;
}

std::optional<GridPos> moveToHexagon(const Board& board, PuzzleState& state, HexStep step) {
  const auto cell = hexagonStep(board, state, step);
  if (cell) {
    state.SelRow = cell->row;
    state.SelCol = cell->col;
  }
  return cell;
}

}  // namespace combwise
