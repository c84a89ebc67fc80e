// The text honeycomb: hexagons are two-by-three blocks of cells, boxed, so
// the brick pattern of the board shows as a honeycomb.
#include "cli/honeycomb.h"

#include "core/model/text.h"

namespace combwise::cli {
namespace {

// A boundary runs between two positions that lie in different hexagons,
// when at least one of them is in a hexagon.
bool boundary(int a, int b) { return a != b && (a != 0 || b != 0); }

}  // namespace

std::vector<std::string> honeycombText(const Board& board, const PuzzleState& state, bool solution) {
  std::vector<std::string> lines;
  for (int row = 1; row <= board.rows() + 1; ++row) {
    // The edge above this row.
    std::string edge;
    for (int col = 1; col <= board.cols() + 1; ++col) {
      const bool corner = boundary(board.HexAt(row - 1, col - 1), board.HexAt(row - 1, col)) ||
                          boundary(board.HexAt(row, col - 1), board.HexAt(row, col)) ||
                          boundary(board.HexAt(row - 1, col - 1), board.HexAt(row, col - 1)) ||
                          boundary(board.HexAt(row - 1, col), board.HexAt(row, col));
      edge += corner ? "+" : " ";
      if (col > board.cols()) break;
      const int below = board.HexAt(row, col);
      if (!boundary(board.HexAt(row - 1, col), below)) {
        edge += "   ";
      } else if (below != 0 && board.HexRow(below) == row && board.HexCol(below) + 1 == col) {
        edge += Format00(below) + "-";  // the hexagon's number on its top edge
      } else {
        edge += "---";
      }
    }
    lines.push_back(edge);
    if (row > board.rows()) break;

    std::string cells;
    for (int col = 1; col <= board.cols() + 1; ++col) {
      cells += boundary(board.HexAt(row, col - 1), board.HexAt(row, col)) ? "|" : " ";
      if (col > board.cols()) break;
      std::string shown = " ";
      if (board.HexAt(row, col) != 0) {
        const std::string& letter = state.Letters.at(row, col);
        shown = (solution || board.FreeCell(row, col)) && !letter.empty() ? letter : "_";
      }
      cells += " " + shown + " ";
    }
    lines.push_back(cells);
  }
  // Trailing blanks, and the empty rows below the last hexagons, are noise
  // in a terminal.
  for (auto& line : lines) line.erase(line.find_last_not_of(' ') + 1);
  while (!lines.empty() && lines.back().empty()) lines.pop_back();
  return lines;
}

}  // namespace combwise::cli
