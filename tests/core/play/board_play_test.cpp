// The board's layout, the selection under the pointer, typing, moves, undo,
// verification and zoom.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/play/boardscene.h"
#include "core/play/entry.h"
#include "core/play/layout.h"
#include "core/play/verify.h"
#include "support/charmeasure.h"

namespace combwise {
namespace {

struct PlayBoard {
  explicit PlayBoard(int size) {
    setUpPuzzle(board, state, size);
    layout = LayOutBoard({size, board.rows(), board.cols(), 225, 375, 15, 15});
  }
  Board board;
  PuzzleState state;
  BoardLayout layout;
};

TEST(BoardLayout, OriginsAndCellPositions) {
  const BoardLayout l = PlayBoard(22).layout;
  EXPECT_EQ(std::vector({l.BoardLeft, l.BoardTop, l.CellX[1][5], l.CellY[12][18]}),
            std::vector({100, 200, 1000, 11 * 375 + 200}));  // the extra row and column exist
  EXPECT_EQ(std::vector({l.pictureWidth, l.pictureHeight, l.markerSide}), std::vector({19 * 225, 13 * 375, 112}));
  EXPECT_EQ(std::vector({boardOrigin(7).y, boardOrigin(10).x, boardOrigin(17).y}), std::vector({400, 600, 700}));
}

TEST(BoardScene, LettersFollowTheModeAndTheHighlightLiesOnItsHexagon) {
  PlayBoard p(7);
  p.state.Letters.clear();  // drop the set-up's outside-cell markers
  const int r = p.board.CellRow(p.board.InsideCells(4, 1));
  const int c = p.board.CellCol(p.board.InsideCells(4, 1));
  p.state.Letters.at(r, c) = "Q";
  p.state.Entries.at(r, c) = "Z";
  p.state.Letters.at(1, 6) = "F";  // a free cell of hexagon 1
  p.state.Entries.at(1, 6) = "X";
  const testing::CharMeasure measure;
  auto textsOf = [&](LetterMode mode) {
    std::vector<std::string> texts;
    for (const auto& t : buildBoardScene(p.board, p.state, p.layout, {mode, 2, 0, false}, measure).texts)
      texts.push_back(t.text + (t.colour == ColourRole::Entry ? "e" : "g") + (t.bold ? "!" : ""));
    return texts;
  };
  // Given letters are bold as well as coloured; typed ones are not.
  EXPECT_EQ(textsOf(LetterMode::Play), (std::vector<std::string>{"Fg!", "Ze"}));
  EXPECT_EQ(textsOf(LetterMode::Solution), (std::vector<std::string>{"Fg!", "Qg!"}));
  EXPECT_EQ(textsOf(LetterMode::Sheet), (std::vector<std::string>{"Fg!"}));

  // The highlighted hexagon lies exactly on its outline, shrunken or not.
  for (const int shrink : {0, 20}) {
    SceneOptions options{LetterMode::Play, 3, shrink, true, 4};
    const BoardScene lit = buildBoardScene(p.board, p.state, p.layout, options, measure);
    ASSERT_TRUE(lit.highlight);
    EXPECT_EQ(lit.highlight->points, lit.outlines[3].points);
    EXPECT_EQ(lit.highlight->penWidth, 3);
  }
  EXPECT_FALSE(buildBoardScene(p.board, p.state, p.layout, {LetterMode::Play, 2, 0, true, 8}, measure).highlight);
}

TEST(PointerEntry, PointerSelectsCellsOfHexagonsAndClearsElsewhere) {
  PlayBoard p(7);
  const BoardLayout& l = p.layout;
  // Column 5 begins exactly at its left edge; a twip left is column 4.
  EXPECT_EQ(pointerCell(l, l.CellX[1][5], l.CellY[1][5]).col, 5);
  EXPECT_EQ(pointerCell(l, l.CellX[1][5] - 1, l.CellY[1][5]).col, 4);

  HoverResult hover = hoverAt(p.board, l, p.state, l.CellX[3][6] + 5, l.CellY[3][6] + 5);
  EXPECT_EQ(hover.kind, HoverResult::Kind::Selected);
  EXPECT_EQ(hover.status, "Hex = 4");
  EXPECT_EQ(p.state.SelRow, 3);
  EXPECT_EQ(p.state.SelCol, 6);

  hoverAt(p.board, l, p.state, l.BoardLeft - 10, l.BoardTop + 10);  // column 0
  EXPECT_EQ(p.state.SelRow, 0);

  p.state.SelRow = 3;
  hover = hoverAt(p.board, l, p.state, l.BoardLeft + 30 * l.CellWidth, l.BoardTop);  // beyond storage
  EXPECT_EQ(hover.kind, HoverResult::Kind::Unchanged);
  EXPECT_EQ(p.state.SelRow, 3);
}

TEST(PointerEntry, KeysTypeUpperCaseLettersAndAtAndSwallowTheRest) {
  const std::pair<int, std::optional<std::string>> keys[] = {
      {'a', "A"}, {'@', "@"}, {'.', ""}, {27, ""}, {'[', std::nullopt}, {'1', std::nullopt}, {8, std::nullopt}};
  for (const auto& [key, entry] : keys) EXPECT_EQ(entryForKey(key), entry) << key;
  EXPECT_EQ(std::vector({directionForKey(39), directionForKey(36), directionForKey(65)}),
            std::vector<char>({'R', 'H', 0}));
}

TEST(PointerEntry, MovesStopAtGapsAndFreeCells) {
  PlayBoard p(7);
  // Hexagon 4 (centre) spans (3..4, 5..7); (3,5)->(3,4) enters hexagon 2's cell.
  p.state.SelRow = 3;
  p.state.SelCol = 5;
  EXPECT_EQ(MoveSelection(p.board, p.state, 'L'), (GridPos{3, 4}));
  // Up from (3,4) reaches (2,4) of hexagon 2; further up is no hexagon.
  EXPECT_EQ(MoveSelection(p.board, p.state, 'U'), (GridPos{2, 4}));
  EXPECT_EQ(MoveSelection(p.board, p.state, 'U'), (GridPos{2, 4}));
  // Hexagon 1's top row (1,5..7): (1,6) is a free cell, so a move from (1,5) stays.
  p.state.SelRow = 1;
  p.state.SelCol = 5;
  EXPECT_EQ(MoveSelection(p.board, p.state, 'R'), (GridPos{1, 5}));
  EXPECT_EQ(MoveSelection(p.board, p.state, 'H'), (GridPos{1, 5}));
  p.state.SelRow = 0;
  EXPECT_EQ(MoveSelection(p.board, p.state, 'R'), std::nullopt);
}

TEST(Verification, OnlyHexagonsWithAWrongNonFreeCellAreUnfinished) {
  PlayBoard p(7);
  for (int r = 1; r <= p.board.rows(); ++r)
    for (int c = 1; c <= p.board.cols(); ++c)
      if (p.board.HexAt(r, c)) p.state.Letters.at(r, c) = "A";
  EXPECT_EQ(unfinishedHexagons(p.board, p.state).size(), 7u);
  for (int r = 1; r <= p.board.rows(); ++r)
    for (int c = 1; c <= p.board.cols(); ++c)
      if (p.board.HexAt(r, c) && !p.board.FreeCell(r, c)) p.state.Entries.at(r, c) = "A";
  p.state.Entries.at(1, 6) = "Z";  // a free cell: never checked
  EXPECT_TRUE(unfinishedHexagons(p.board, p.state).empty());
  p.state.Entries.at(3, 6) = "a";  // case matters; only hexagon 4 owns (3,6)
  EXPECT_EQ(unfinishedHexagons(p.board, p.state), std::vector<int>{4});
}

TEST(Zoom, StepsRoundHalvesToEvenAndClampTheFont) {
  EXPECT_EQ(zoomStep(ZoomKind::Out, {200, 333, 10}, 0, 0, 10), (ZoomState{180, 300, 8.5}));
  EXPECT_EQ(zoomStep(ZoomKind::In, {180, 300, 8.5}, 0, 0, 10), (ZoomState{198, 330, 10}));
  EXPECT_EQ(zoomStep(ZoomKind::Out, {225, 375, 6}, 0, 0, 10), (ZoomState{202, 338, 5}));
  EXPECT_EQ(zoomStep(ZoomKind::In, {225, 375, 35}, 0, 0, 10).fontSize, 36);
  EXPECT_EQ(zoomStep(ZoomKind::Reset, {99, 99, 20}, 210, 350, 12), (ZoomState{210, 350, 12}));
}

}  // namespace
}  // namespace combwise
