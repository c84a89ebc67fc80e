// Verification and zoom arithmetic.
#include "core/play/verify.h"

#include <algorithm>

#include "core/model/text.h"

namespace combwise {

std::vector<int> unfinishedHexagons(const Board& board, const PuzzleState& state) {
  std::vector<bool> complete(static_cast<std::size_t>(board.hexCount()) + 1, true);
  for (int r = 1; r <= board.rows(); ++r) {
    for (int c = 1; c <= board.cols(); ++c) {
      if (board.FreeCell(r, c) != 0 || state.Entries.at(r, c) == state.Letters.at(r, c)) continue;
      const int hex = board.HexAt(r, c);
      if (hex >= 1 && hex <= board.hexCount()) complete[static_cast<std::size_t>(hex)] = false;
    }
  }
  std::vector<int> unfinished;
  for (int n = 1; n <= board.hexCount(); ++n) {
    if (!complete[static_cast<std::size_t>(n)]) unfinished.push_back(n);
  }
  return unfinished;
}

ZoomState zoomStep(ZoomKind kind, const ZoomState& current, int fitWidth, int fitHeight, double boardFontSize) {
  ZoomState next = current;
  switch (kind) {
    case ZoomKind::Out:
      next.cellWidth = static_cast<int>(roundHalfEven(current.cellWidth * 0.9));
      next.cellHeight = static_cast<int>(roundHalfEven(current.cellHeight * 0.9));
      next.fontSize = std::max(5.0, current.fontSize - 1.5);
      break;
    case ZoomKind::In:
      next.cellWidth = static_cast<int>(roundHalfEven(current.cellWidth * 1.1));
      next.cellHeight = static_cast<int>(roundHalfEven(current.cellHeight * 1.1));
      next.fontSize = std::min(36.0, current.fontSize + 1.5);
      break;
    case ZoomKind::Reset:
      next = {fitWidth, fitHeight, boardFontSize};
      break;
  }
  return next;
}

}  // namespace combwise
