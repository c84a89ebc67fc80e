// Undo and redo steps, clearing the player's letters, and the keyboard's
// moves from hexagon to hexagon.
#include <gtest/gtest.h>

#include "core/play/entry.h"
#include "core/play/hexagonjump.h"
#include "core/play/history.h"

namespace combwise {
namespace {

struct Play {
  explicit Play(int size = 7) { setUpPuzzle(board, state, size); }
  void type(int row, int col, const std::string& letter) {
    state.SelRow = row;
    state.SelCol = col;
    enterAtSelection(state, letter);
  }
  std::string at(int row, int col) const { return state.Entries.at(row, col); }
  Board board;
  PuzzleState state;
};

TEST(UndoRedo, RedoBringsBackUndoneStepsUntilANewChangeOrAPuzzleRead) {
  Play p;
  EXPECT_FALSE(enterAtSelection(p.state, "K"));  // nothing selected
  p.type(3, 8, "K");
  p.type(3, 9, "A");
  p.type(3, 9, "B");
  ASSERT_TRUE(undoLast(p.state));
  ASSERT_TRUE(undoLast(p.state));
  EXPECT_EQ(p.at(3, 9), "");
  EXPECT_EQ(p.state.UndoList.front(), " 3, 8,");  // records keep their form
  ASSERT_TRUE(redoLast(p.state));
  EXPECT_EQ(p.at(3, 9), "A");
  EXPECT_EQ(p.state.UndoList.front(), " 3, 9,");
  ASSERT_TRUE(redoLast(p.state));
  EXPECT_EQ(p.at(3, 9), "B");
  EXPECT_FALSE(redoLast(p.state));

  ASSERT_TRUE(undoLast(p.state));
  p.type(4, 7, "Z");  // a new letter forgets what was undone
  EXPECT_FALSE(redoLast(p.state));
  EXPECT_EQ(p.at(3, 9), "A");
  p.type(4, 7, "");  // "." clears, and is recorded too
  EXPECT_EQ(p.state.UndoList.front(), " 4, 7,Z");

  ASSERT_TRUE(undoLast(p.state));
  p.state.resetPlay();  // as reading a puzzle does
  EXPECT_FALSE(redoLast(p.state) || undoLast(p.state));
}

TEST(UndoRedo, ClearingMyLettersIsOneStep) {
  Play p;
  p.type(3, 8, "K");
  p.type(2, 7, "Q");
  p.type(1, 5, "X");               // a given cell still holds the typed entry
  p.state.Entries.at(0, 3) = "W";  // not a cell of this board
  const PuzzleState before = p.state;

  EXPECT_EQ(clearMyLetters(p.board, p.state), 3);
  EXPECT_EQ(p.at(3, 8), "");
  EXPECT_EQ(p.at(1, 5), "");
  EXPECT_EQ(p.at(0, 3), "W");
  EXPECT_EQ(p.state.UndoList.size(), before.UndoList.size() + 1);

  ASSERT_TRUE(undoLast(p.state));
  EXPECT_EQ(p.state.Entries, before.Entries);
  ASSERT_TRUE(undoLast(p.state));  // then the letters one by one
  EXPECT_EQ(p.at(1, 5), "");
  EXPECT_EQ(p.at(2, 7), "Q");
}

TEST(UndoRedo, StepRecordsReadOldAndNewForms) {
  const std::vector<CellEntry> cells{{12, 18, "@"}, {1, 2, ""}, {3, 4, "K"}};
  EXPECT_EQ(stepRecord(cells), " 12, 18,@; 1, 2,; 3, 4,K");
  EXPECT_EQ(parseStepRecord(stepRecord(cells)), cells);
  EXPECT_TRUE(parseStepRecord("rubbish").empty());
  EXPECT_EQ(parseStepRecord(" 13, 2,A; 2, 2,B"), (std::vector<CellEntry>{{2, 2, "B"}}));
}

TEST(HexagonKeys, TabGoesToTheNextHexagonsFirstOpenCellAndAFullBoardStillMovesOn) {
  Play p;
  EXPECT_EQ(hexagonStep(p.board, p.state, HexStep::Next), (GridPos{2, 7}));      // hexagon 1, past its given cells
  EXPECT_EQ(hexagonStep(p.board, p.state, HexStep::Previous), (GridPos{2, 7}));  // also from hexagon 1

  p.state.SelRow = 2;
  p.state.SelCol = 6;  // hexagon 1
  EXPECT_EQ(moveToHexagon(p.board, p.state, HexStep::Next), (GridPos{2, 4}));
  EXPECT_EQ((GridPos{p.state.SelRow, p.state.SelCol}), (GridPos{2, 4}));
  EXPECT_EQ(moveToHexagon(p.board, p.state, HexStep::Previous), (GridPos{2, 7}));
  EXPECT_EQ(moveToHexagon(p.board, p.state, HexStep::Previous), (GridPos{5, 5}));  // round to hexagon 7

  // Filled cells are passed over; a full hexagon gives its first cell.
  p.type(2, 4, "A");
  p.type(3, 4, "B");
  EXPECT_EQ(firstOpenCell(p.board, p.state, 2), (GridPos{3, 3}));
  p.type(3, 3, "C");
  EXPECT_EQ(firstOpenCell(p.board, p.state, 2), (GridPos{2, 4}));

  for (int r = 1; r <= p.board.rows(); ++r)
    for (int c = 1; c <= p.board.cols(); ++c) p.state.Entries.at(r, c) = "E";
  p.state.SelRow = 5;
  p.state.SelCol = 5;  // hexagon 7
  EXPECT_EQ(hexagonStep(p.board, p.state, HexStep::Next), (GridPos{2, 7}));
  EXPECT_EQ(hexagonStep(p.board, p.state, HexStep::Previous), (GridPos{4, 8}));
  EXPECT_FALSE(hexagonStep(Board(), PuzzleState(), HexStep::Next));
}

}  // namespace
}  // namespace combwise
