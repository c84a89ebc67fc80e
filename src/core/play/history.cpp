// Undo and redo steps.
#include "core/play/history.h"

#include "core/model/text.h"

namespace combwise {

namespace {

constexpr char kCellSeparator = ';';

// Puts every cell of a step record on the board and returns the record of
// the entries it replaced, which takes the step back again.
std::string applyStep(PuzzleState& state, const std::string& record) {
  std::vector<CellEntry> replaced;
  for (auto& cell : parseStepRecord(record)) {
    std::string& entry = state.Entries.at(cell.row, cell.col);
    replaced.push_back({cell.row, cell.col, entry});
    entry = std::move(cell.entry);
  }
  return stepRecord(replaced);
}

}  // namespace

std::string stepRecord(const std::vector<CellEntry>& cells) {
  std::string record;
  for (const auto& cell : cells) {
    if (!record.empty()) record += kCellSeparator;
    record += Str(cell.row) + "," + Str(cell.col) + "," + cell.entry;
  }
  return record;
}

std::vector<CellEntry> parseStepRecord(const std::string& record) {
  std::vector<CellEntry> cells;
  std::size_t start = 0;
  while (start <= record.size()) {
    std::size_t end = record.find(kCellSeparator, start);
    if (end == std::string::npos) end = record.size();
    const std::string_view part(record.data() + start, end - start);
    const std::size_t first = part.find(',');
    const std::size_t second = first == std::string_view::npos ? first : part.find(',', first + 1);
    if (second != std::string_view::npos) {
      const auto row = static_cast<int>(leadingWhole(part.substr(0, first)));
      const auto col = static_cast<int>(leadingWhole(part.substr(first + 1, second - first - 1)));
      if (row >= 0 && row <= Board::kMaxRow && col >= 0 && col <= Board::kMaxCol)
        cells.push_back({row, col, std::string(part.substr(second + 1))});
    }
    start = end + 1;
  }
  return cells;
}

bool undoLast(PuzzleState& state) {
  if (state.UndoList.empty()) return false;
  const std::string record = state.UndoList.front();
  state.UndoList.pop_front();
  state.UndoList.pushRedo(applyStep(state, record));
  return true;
}

bool redoLast(PuzzleState& state) {
  const auto record = state.UndoList.takeRedo();
  if (!record) return false;
  state.UndoList.pushRedone(applyStep(state, *record));
  return true;
}

int clearMyLetters(const Board& board, PuzzleState& state) {
  std::vector<CellEntry> cleared;
  for (int r = 1; r <= board.rows(); ++r) {
    for (int c = 1; c <= board.cols(); ++c) {
      if (board.HexAt(r, c) == 0 || state.Entries.at(r, c).empty()) continue;
      cleared.push_back({r, c, state.Entries.at(r, c)});
      state.Entries.at(r, c).clear();
    }
  }
  if (!cleared.empty()) state.UndoList.push_front(stepRecord(cleared));
  return static_cast<int>(cleared.size());
}

}  // namespace combwise
