// Board geometry: set-up of the honeycomb for one of the four sizes.
#include "core/model/board.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

#include "core/model/text.h"

namespace combwise {
namespace {

struct SizeRow {
  int size;
  int rows;
  int cols;
  const char* freeCells;
};

constexpr std::array<SizeRow, 4> kSizeTable = {{
    {7, 7, 11, "5,6,7,13,14,20,21,24,32,35,43,46,47,53,54,60,61,62,"},
    {10, 9, 11, "5,6,7,13,14,20,21,24,32,35,43,46,54,57,65,68,69,75,76,82,83,84,"},
    {17, 10, 17, "5,6,7,11,12,13,19,20,26,32,33,36,50,53,67,70,84,87,101,104,105,111,117,118,124,125,126,130,131,132,"},
    {22, 11, 17,
     "5,6,7,11,12,13,19,20,36,26,32,33,50,53,70,67,84,87,104,101,118,121,139,138,145,135,152,151,160,159,158,166,"
     "165,164,"},
}};

const SizeRow* sizeRow(int size) {
  const auto found =
      std::find_if(kSizeTable.begin(), kSizeTable.end(), [size](const SizeRow& r) { return r.size == size; });
  return found == kSizeTable.end() ? nullptr : &*found;
}

// Outward neighbour offsets (row, column) of ring positions 1..6.
constexpr std::array<GridPos, 7> kOutward = {{{0, 0}, {0, -1}, {-1, 0}, {0, 1}, {0, 1}, {1, 0}, {0, -1}}};
// Ring positions 1..6 relative to a hexagon's top-left cell.
constexpr std::array<GridPos, 7> kRingOffset = {{{0, 0}, {0, 0}, {0, 1}, {0, 2}, {1, 2}, {1, 1}, {1, 0}}};

}  // namespace

bool Board::isValidSize(int size) { return sizeRow(size) != nullptr; }

int Board::nextSize(int size) {
  for (std::size_t i = 0; i < kSizes.size(); ++i) {
    if (kSizes[i] == size) return kSizes[(i + 1) % kSizes.size()];
  }
  return kSizes.front();
}

void Board::clear() { *this = Board(); }

bool Board::setUp(int size) {
  const SizeRow* table = sizeRow(size);
  clear();
  if (!table) return false;
  m_size = size;
  m_rows = table->rows;
  m_cols = table->cols;

  // Cells are numbered row by row from 1.
  for (int row = 1; row <= m_rows; ++row) {
    for (int col = 1; col <= m_cols; ++col) {
      const int cell = (row - 1) * m_cols + col;
      m_cellAt[row][col] = cell;
      m_cellRow[cell] = row;
      m_cellCol[cell] = col;
    }
  }

  // The free-cell list: every element but the empty one after the trailing comma.
  std::string_view list = table->freeCells;
  while (!list.empty()) {
    const auto comma = list.find(',');
    if (comma == std::string_view::npos) break;
    const int cell = static_cast<int>(leadingWhole(list.substr(0, comma)));
    if (cell >= 1 && cell <= kMaxCell) m_freeCell[m_cellRow[cell]][m_cellCol[cell]] = 1;
    list.remove_prefix(comma + 1);
  }

  // Hexagons in a brick pattern: per pair of rows, the high ones in columns
  // 5, 11, 17, ... then the low ones, a row lower, in columns 2, 8, 14, ...
  int counter = 0;
  const auto place = [&](int row, int col) {
    ++counter;
    if (counter > m_size) return;
    for (int r = row; r <= row + 1; ++r) {
      for (int c = col; c <= col + 2; ++c) m_hexAt[r][c] = counter;
    }
    m_hexRow[counter] = row;
    m_hexCol[counter] = col;
  };
  for (int r = 1; r <= m_rows - 1; r += 2) {
    for (int j = 5; j <= m_cols - 3; j += 6) place(r, j);
    for (int j = 2; j <= m_cols - 3; j += 6) place(r + 1, j);
  }

  for (int hex = 1; hex <= m_size; ++hex) {
    for (int k = 1; k <= kRing; ++k) {
      const GridPos at = *ringPosition(hex, k);
      m_inside[hex][k] = m_cellAt[at.row][at.col];
      const GridPos out{at.row + kOutward[k].row, at.col + kOutward[k].col};
      if (inStorage(out.row, out.col) && m_hexAt[out.row][out.col] != 0) m_outside[hex][k] = m_cellAt[out.row][out.col];
    }
  }
  return true;
}

int Board::CellAt(int row, int col) const { return inStorage(row, col) ? m_cellAt[row][col] : 0; }
int Board::CellRow(int cell) const { return cell >= 0 && cell <= kMaxCell ? m_cellRow[cell] : 0; }
int Board::CellCol(int cell) const { return cell >= 0 && cell <= kMaxCell ? m_cellCol[cell] : 0; }
int Board::HexAt(int row, int col) const { return inStorage(row, col) ? m_hexAt[row][col] : 0; }
int Board::HexRow(int hex) const { return hex >= 0 && hex <= kMaxHex ? m_hexRow[hex] : 0; }
int Board::HexCol(int hex) const { return hex >= 0 && hex <= kMaxHex ? m_hexCol[hex] : 0; }
int Board::FreeCell(int row, int col) const { return inStorage(row, col) ? m_freeCell[row][col] : 0; }

int Board::InsideCells(int hex, int k) const {
  return hex >= 0 && hex <= kMaxHex && k >= 0 && k <= kRing ? m_inside[hex][k] : 0;
}

int Board::OutsideCells(int hex, int k) const {
  return hex >= 0 && hex <= kMaxHex && k >= 0 && k <= kRing ? m_outside[hex][k] : 0;
}

std::optional<GridPos> Board::ringPosition(int hex, int k) const {
  if (k < 1 || k > kRing || hex < 1 || hex > hexCount()) return std::nullopt;
  return GridPos{m_hexRow[hex] + kRingOffset[k].row, m_hexCol[hex] + kRingOffset[k].col};
}

int Board::outsideCount(int hex) const {
  if (hex < 1 || hex > hexCount()) return 0;
  return static_cast<int>(
      std::count_if(m_outside[hex].begin() + 1, m_outside[hex].end(), [](int c) { return c != 0; }));
}

CellSize fitCellSize(int rows, int cols, double areaWidth, double areaHeight) {
  if (rows <= 0 || cols <= 0) return {};
  const long long widthUnits = floorWhole((cols + 1) * 225.0 / 375.0);
  const double byWidth = widthUnits > 0 ? areaWidth / static_cast<double>(widthUnits) : areaHeight / rows;
  const double height = std::min(byWidth, areaHeight / rows);
  CellSize size;
  size.height = static_cast<int>(roundHalfEven(height));
  size.width = static_cast<int>(floorWhole(size.height * 225.0 / 375.0));
  return size;
}

}  // namespace combwise
