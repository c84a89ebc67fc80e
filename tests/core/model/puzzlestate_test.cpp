// The puzzle state's set-up and invariant checks.
#include "core/model/puzzlestate.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace combwise {
namespace {

int markedCells(const PuzzleState& state) {
  int marked = 0;
  for (int row = 0; row <= Board::kMaxRow; ++row) {
    for (int col = 0; col <= Board::kMaxCol; ++col) marked += state.Letters.at(row, col).empty() ? 0 : 1;
  }
  return marked;
}

TEST(PuzzleSetUp, MarksEachOutsideCellWithItsHexagonAndKeepsTheEntries) {
  Board board;
  PuzzleState state;
  state.Letters.at(1, 1) = "Q";
  state.Entries.at(3, 6) = "E";
  ASSERT_TRUE(setUpPuzzle(board, state, 7));
  EXPECT_EQ(state.WordCount, 14);
  EXPECT_EQ(GridPos(state.GridRows, state.GridCols), GridPos(7, 11));
  EXPECT_EQ(state.Letters.at(3, 6), "1");  // cell 28: inside hexagon 4, outside word of hexagon 1
  EXPECT_EQ(state.Letters.at(3, 4), "4");  // cell 26: outside word of hexagon 4
  EXPECT_EQ(markedCells(state), 24);       // the outside cells and nothing else

  ASSERT_TRUE(setUpPuzzle(board, state, 22));
  EXPECT_EQ(markedCells(state), 98);  // no mark of the smaller board survives
  EXPECT_EQ(state.Entries.at(3, 6), "E");
  EXPECT_FALSE(setUpPuzzle(board, state, 9));
  EXPECT_EQ(state.PuzzleSize, 22);
  EXPECT_EQ(board.size(), 22);
}

TEST(PuzzleInvariants, ASoundPuzzleHasNoBreachesAndEachKindOfFaultIsFound) {
  Board board;
  board.setUp(7);
  PuzzleState sound;
  sound.WordCount = 14;
  const auto letterAt = [&](int cell) {
    return sound.Letters.at(board.CellRow(cell), board.CellCol(cell)) = std::string(1, 'A' + cell % 26);
  };
  for (int hex = 1; hex <= 7; ++hex) {
    for (int k = 6; k >= 1; --k) {  // words may run either way round
      sound.WordSlots[2 * hex] += letterAt(board.InsideCells(hex, k));
      if (const int cell = board.OutsideCells(hex, k)) sound.WordSlots[2 * hex - 1] += letterAt(cell);
    }
  }
  EXPECT_THAT(invariantBreaches(board, sound), ::testing::IsEmpty());
  const auto breaks = [&](auto change) {
    PuzzleState broken = sound;
    change(broken);
    return invariantBreaches(board, broken).size();
  };
  EXPECT_EQ(breaks([](PuzzleState& s) { s.WordSlots[8][0] = s.WordSlots[8][1]; }), 1u);  // a letter twice
  EXPECT_EQ(breaks([](PuzzleState& s) { s.WordSlots[1].pop_back(); }), 1u);
  EXPECT_EQ(breaks([](PuzzleState& s) { s.WordSlots[15] = "ABC"; }), 1u);   // beyond the word count
  EXPECT_EQ(breaks([](PuzzleState& s) { s.Letters.at(1, 1) = "X"; }), 1u);  // no hexagon owns (1, 1)
}

}  // namespace
}  // namespace combwise
