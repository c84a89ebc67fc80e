// The board geometry of the four sizes.
#include "core/model/board.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <vector>

namespace combwise {
namespace {

using Layout = std::vector<GridPos>;  // top-left of hexagons 1, 2, ...
const Layout kFlower = {{1, 5}, {2, 2}, {2, 8}, {3, 5}, {4, 2}, {4, 8}, {5, 5}};
const Layout kWide = {{1, 5},  {1, 11}, {2, 2},  {2, 8}, {2, 14}, {3, 5},  {3, 11}, {4, 2}, {4, 8},
                      {4, 14}, {5, 5},  {5, 11}, {6, 2}, {6, 8},  {6, 14}, {7, 5},  {7, 11}};
Layout operator+(Layout head, const Layout& tail) {
  head.insert(head.end(), tail.begin(), tail.end());
  return head;
}

TEST(BoardSetUp, EverySizeHasItsDimensionsLayoutAndSoundOutsideAndFreeCells) {
  struct Facts {
    int size, rows, cols, used, outside, free;
    Layout layout;
  } const sizes[] = {{7, 7, 11, 42, 24, 18, kFlower},
                     {10, 9, 11, 60, 38, 22, kFlower + Layout{{6, 2}, {6, 8}, {7, 5}}},
                     {17, 10, 17, 102, 72, 30, kWide},
                     {22, 11, 17, 132, 98, 34, kWide + Layout{{8, 2}, {8, 8}, {8, 14}, {9, 5}, {9, 11}}}};
  for (const Facts& facts : sizes) {
    SCOPED_TRACE(facts.size);
    Board board;
    ASSERT_TRUE(board.setUp(facts.size));
    EXPECT_EQ(board.wordCount(), 2 * facts.size);
    EXPECT_EQ(board.rows(), facts.rows);
    EXPECT_EQ(board.cols(), facts.cols);
    std::map<int, int> owner;  // cell -> hexagon
    std::set<int> freeCells, outside;
    for (int row = 1; row <= facts.rows; ++row) {
      for (int col = 1; col <= facts.cols; ++col) {
        const int cell = board.CellAt(row, col);
        ASSERT_EQ(cell, (row - 1) * facts.cols + col);
        EXPECT_EQ(GridPos(board.CellRow(cell), board.CellCol(cell)), GridPos(row, col));
        if (board.HexAt(row, col) != 0) owner[cell] = board.HexAt(row, col);
        if (board.FreeCell(row, col) == 1) freeCells.insert(cell);
      }
    }
    EXPECT_EQ(static_cast<int>(owner.size()), facts.used);  // six each: no overlap
    int outsideEntries = 0;
    for (int hex = 1; hex <= facts.size; ++hex) {
      const auto [r, j] = facts.layout[hex - 1];
      // Ring order: top row left to right, then the bottom row back.
      const GridPos ring[6] = {{r, j}, {r, j + 1}, {r, j + 2}, {r + 1, j + 2}, {r + 1, j + 1}, {r + 1, j}};
      for (int k = 1; k <= 6; ++k) {
        EXPECT_EQ(board.ringPosition(hex, k), ring[k - 1]) << hex << " k " << k;
        EXPECT_EQ(board.InsideCells(hex, k), board.CellAt(ring[k - 1].row, ring[k - 1].col));
        EXPECT_EQ(board.HexAt(ring[k - 1].row, ring[k - 1].col), hex);
        if (const int cell = board.OutsideCells(hex, k)) {
          EXPECT_TRUE(owner[cell] != 0 && owner[cell] != hex) << hex << " k " << k;
          outside.insert(cell);
          ++outsideEntries;
        }
      }
    }
    EXPECT_EQ(static_cast<int>(outside.size()), facts.outside);
    EXPECT_EQ(outsideEntries, facts.outside) << "a cell stands in two outside words";
    std::set<int> ownedNotOutside;
    for (const auto& [cell, hex] : owner) {
      if (!outside.contains(cell)) ownedNotOutside.insert(cell);
    }
    EXPECT_EQ(static_cast<int>(freeCells.size()), facts.free);
    EXPECT_EQ(freeCells, ownedNotOutside);
  }
}

TEST(BoardSetUp, EachSetUpStartsFromScratchAndAnInvalidSizeBuildsNothing) {
  Board board;
  board.setUp(22);
  board.setUp(7);
  EXPECT_EQ(board.HexAt(9, 11) + board.InsideCells(22, 1) + board.HexRow(8), 0);
  EXPECT_FALSE(board.setUp(8));
  EXPECT_EQ(board.wordCount() + board.HexAt(3, 5) + board.CellAt(1, 1) + board.FreeCell(1, 5), 0);
}

TEST(BoardSizes, NextSizeCyclesAndTheFittedCellIsThreeWideToFiveHigh) {
  const int cycle[] = {7, 10, 17, 22, 7};
  for (int i = 0; i < 4; ++i) EXPECT_EQ(Board::nextSize(cycle[i]), cycle[i + 1]);
  EXPECT_EQ(Board::nextSize(0), 7);
  // 11 columns divide the width by the integer part of 12 x 0.6, that is 7.
  EXPECT_EQ(fitCellSize(7, 11, 9000, 3000), (CellSize{257, 429}));       // height limits: 428.57
  EXPECT_EQ(fitCellSize(7, 11, 2000, 9000), (CellSize{171, 286}));       // width limits: 285.71
  EXPECT_EQ(fitCellSize(7, 11, 7 * 300.5, 9000), (CellSize{180, 300}));  // a half goes to even
}

}  // namespace
}  // namespace combwise
