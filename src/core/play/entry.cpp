// The player's entry on the board.
#include "core/play/entry.h"

#include <cctype>

#include "core/model/text.h"

namespace combwise {

GridPos pointerCell(const BoardLayout& layout, double x, double y) {
  const auto row = floorWhole((y - layout.BoardTop) / layout.CellHeight) + 1;
  const auto col = floorWhole((x - layout.BoardLeft) / layout.CellWidth) + 1;
  return {static_cast<int>(row), static_cast<int>(col)};
}

HoverResult hoverAt(const Board& board, const BoardLayout& layout, PuzzleState& state, double x, double y) {
  HoverResult result;
  if (layout.CellWidth <= 0 || layout.CellHeight <= 0) return result;
  const GridPos cell = pointerCell(layout, x, y);
  if (cell.row < 0 || cell.row > Board::kMaxRow || cell.col < 0 || cell.col > Board::kMaxCol) return result;
  const int hex = board.HexAt(cell.row, cell.col);
  if (hex == 0) {
    result.kind = HoverResult::Kind::Cleared;
    state.SelRow = state.SelCol = 0;
    return result;
  }
  result.kind = HoverResult::Kind::Selected;
  result.hex = hex;
  result.status = "Hex =" + Str(hex);
  state.SelRow = cell.row;
  state.SelCol = cell.col;
  return result;
}

PixelPoint markerPosition(const BoardLayout& layout, int row, int col) {
  return {layout.cellX(row, col) + layout.CellWidth / 4, layout.cellY(row, col) + layout.CellHeight / 4};
}

std::optional<std::string> entryForKey(int code) {
  if (code == '.' || code == 27) return std::string();
  if (code < 0 || code > 255) return std::nullopt;
  const int upper = std::toupper(static_cast<unsigned char>(code));
  // "@" is let through on purpose, beside the letters.
  if (upper >= 64 && upper <= 90) return std::string(1, static_cast<char>(upper));
  return std::nullopt;
}

bool enterAtSelection(PuzzleState& state, const std::string& entry) {
  if (state.SelRow == 0) return false;
  RecordUndo(state, state.SelRow, state.SelCol);
  state.Entries.at(state.SelRow, state.SelCol) = entry;
  return true;
}

char directionForKey(int keyCode) {
  switch (keyCode) {
    case 35:
      return 'E';
    case 36:
      return 'H';
    case 37:
      return 'L';
    case 38:
      return 'U';
    case 39:
      return 'R';
    case 40:
      return 'D';
    default:
      return 0;
  }
}

std::optional<GridPos> MoveSelection(const Board& board, PuzzleState& state, char direction) {
  if (state.SelRow == 0) return std::nullopt;
  GridPos to{state.SelRow, state.SelCol};
  switch (direction) {
    case 'R':
      ++to.col;
      break;
    case 'L':
      --to.col;
      break;
    case 'D':
      ++to.row;
      break;
    case 'U':
      --to.row;
      break;
    default:
      break;
  }
  const bool moved = to.row != state.SelRow || to.col != state.SelCol;
  if (moved && (board.FreeCell(to.row, to.col) == 1 || board.HexAt(to.row, to.col) < 1)) {
    return GridPos{state.SelRow, state.SelCol};
  }
  state.SelRow = to.row;
  state.SelCol = to.col;
  return to;
}

std::string undoRecord(int row, int col, const std::string& previous) {
  return Str(row) + "," + Str(col) + "," + previous;
}

void RecordUndo(PuzzleState& state, int row, int col) {
  state.UndoList.push_front(undoRecord(row, col, state.Entries.at(row, col)));
}

void revealHexagons(const Board& board, PuzzleState& state, int count) {
  for (int n = 1; n <= count && n <= board.hexCount(); ++n) {
    for (int k = 1; k <= 6; ++k) {
      const int cell = board.InsideCells(n, k);
      const int r = board.CellRow(cell);
      const int c = board.CellCol(cell);
      if (board.FreeCell(r, c) == 0) state.Entries.at(r, c) = state.Letters.at(r, c);
    }
  }
}

}  // namespace combwise
