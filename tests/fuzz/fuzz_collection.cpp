// A whole collection through count and read: the count agrees with the
// lines a reader sees, numbers outside the count load nothing, and what
// loads is a real puzzle.
#include "core/files/puzzlefile.h"
#include "fuzzsupport.h"

using namespace combwise;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string path = fuzz::scratchFile("set.txt", fuzz::asText(data, size));
  const int count = countPuzzles(path);
  const auto lines = readLines(path);
  fuzz::require(lines && static_cast<int>(lines->size()) == count, "the count is the number of lines read");
  Board board;
  PuzzleState state;
  state.PuzzleCount = count;
  for (const int n : {1, -1, count / 2 + 1, count + 1, 0}) {
    const PuzzleReadResult result = readPuzzle(path, n, board, state, {});
    if (count == 0) {
      fuzz::require(result.outcome == ReadOutcome::NoPuzzles, "an empty collection has no puzzles");
      continue;
    }
    if (n == count + 1 || n == 0) {
      fuzz::require(result.outcome == ReadOutcome::BeyondCount, "a number outside the count loads nothing");
      continue;
    }
    fuzz::require(result.outcome == ReadOutcome::Loaded || result.outcome == ReadOutcome::Malformed,
                  "every counted line can be read");
    if (!result.loaded()) continue;
    fuzz::require(state.PuzzleNumber == (n == -1 ? count : n) && state.CollectionPath == path, "the position is kept");
    fuzz::require(Board::isValidSize(state.PuzzleSize), "a loaded size is real");
  }
  return 0;
}
