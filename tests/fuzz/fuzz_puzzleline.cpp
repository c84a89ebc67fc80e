// One collection line into the puzzle state: a rejected line leaves the
// state as it was; a loaded one writes a line that loads the same puzzle.
#include <tuple>

#include "core/files/puzzlefile.h"
#include "fuzzsupport.h"

namespace {

using namespace combwise;

auto puzzleOf(const PuzzleState& s) {
  return std::tie(s.PuzzleSize, s.GridRows, s.GridCols, s.WordCount, s.Letters, s.WordSlots, s.MeaningNumbers,
                  s.ClueTexts, s.CollectionPath, s.PuzzleNumber, s.Entries);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // The state carries over from input to input, as the window's does.
  static Board board;
  static PuzzleState state;
  const PuzzleState before = state;
  const int boardSize = board.size();
  const PuzzleReadResult result = loadPuzzleLine(fuzz::asText(data, size), board, state, {});
  if (!result.loaded()) {
    fuzz::require(puzzleOf(state) == puzzleOf(before), "a rejected line leaves the state untouched");
    fuzz::require(board.size() == boardSize, "a rejected line leaves the board untouched");
    return 0;
  }
  fuzz::require(Board::isValidSize(state.PuzzleSize) && board.size() == state.PuzzleSize, "a loaded size is real");
  for (int slot = state.WordCount + 1; slot <= PuzzleState::kMaxSlots; ++slot)
    fuzz::require(state.WordSlots[slot].empty(), "no word beyond the size's slots");
  const std::string written = puzzleLine(state);
  PuzzleState again = before;
  Board otherBoard;
  fuzz::require(loadPuzzleLine(written, otherBoard, again, {}).loaded(), "a written puzzle reads back");
  fuzz::require(again.Letters == state.Letters && again.WordSlots == state.WordSlots &&
                    again.MeaningNumbers == state.MeaningNumbers && again.PuzzleSize == state.PuzzleSize,
                "write then read gives the same puzzle");
  fuzz::require(puzzleLine(again) == written, "the written line is stable");
  return 0;
}
