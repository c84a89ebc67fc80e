// Board geometry: for one puzzle size, the letter grid's dimensions, the cell
// and hexagon numbering, each hexagon's six inside cells in ring order, the
// cells that form its outside word, and the free cells (in no outside word).
// Rows and columns count from 1; row 0 and column 0 exist and stay empty.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace combwise {

// A grid position, row and column from 1.
struct GridPos {
  int row = 0;
  int col = 0;
  friend bool operator==(const GridPos&, const GridPos&) = default;
};

class Board {
 public:
  static constexpr int kMaxRow = 12;    // storage rows 0..12
  static constexpr int kMaxCol = 18;    // storage columns 0..18
  static constexpr int kMaxCell = 216;  // cells 1..216
  static constexpr int kMaxHex = 25;    // hexagons 1..25
  static constexpr int kRing = 6;       // cells per hexagon

  // The four puzzle sizes, in the order the size label cycles through them.
  static constexpr std::array<int, 4> kSizes = {7, 10, 17, 22};
  static bool isValidSize(int size);
  // The next size after `size` in the cycle 7, 10, 17, 22, 7; 7 for any
  // other value.
  static int nextSize(int size);

  // Builds the geometry of `size` from scratch. A size that is not one of
  // the four builds nothing: the board is left empty and false is returned.
  bool setUp(int size);

  int size() const { return m_size; }  // -1 before any set-up
  int hexCount() const { return m_size > 0 ? m_size : 0; }
  int wordCount() const { return 2 * hexCount(); }
  int rows() const { return m_rows; }
  int cols() const { return m_cols; }

  int CellAt(int row, int col) const;
  int CellRow(int cell) const;
  int CellCol(int cell) const;
  int HexAt(int row, int col) const;
  int HexRow(int hex) const;
  int HexCol(int hex) const;
  int InsideCells(int hex, int k) const;
  int OutsideCells(int hex, int k) const;
  int FreeCell(int row, int col) const;

  // The grid position of ring position k (1..6) of a hexagon: top row left
  // to right, then bottom row right to left. Nothing for k outside 1..6 or
  // a hexagon that is not on the board.
  std::optional<GridPos> ringPosition(int hex, int k) const;
  // Number of non-zero outside cells of a hexagon (3 to 6 on real boards).
  int outsideCount(int hex) const;

 private:
  void clear();
  static bool inStorage(int row, int col) { return row >= 0 && row <= kMaxRow && col >= 0 && col <= kMaxCol; }

  int m_size = -1;
  int m_rows = 0;
  int m_cols = 0;
  std::array<std::array<int, kMaxCol + 1>, kMaxRow + 1> m_cellAt{};
  std::array<std::array<int, kMaxCol + 1>, kMaxRow + 1> m_hexAt{};
  std::array<std::array<int, kMaxCol + 1>, kMaxRow + 1> m_freeCell{};
  std::array<int, kMaxCell + 1> m_cellRow{};
  std::array<int, kMaxCell + 1> m_cellCol{};
  std::array<int, kMaxHex + 1> m_hexRow{};
  std::array<int, kMaxHex + 1> m_hexCol{};
  std::array<std::array<int, kRing + 1>, kMaxHex + 1> m_inside{};
  std::array<std::array<int, kRing + 1>, kMaxHex + 1> m_outside{};
};

// The cell size that fits a board area (all in twips): a cell is 3 wide to
// 5 high, sized so that the grid's columns (plus one) fit the width and its
// rows fit the height.
struct CellSize {
  int width = 225;
  int height = 375;
  friend bool operator==(const CellSize&, const CellSize&) = default;
};
CellSize fitCellSize(int rows, int cols, double areaWidth, double areaHeight);

}  // namespace combwise
