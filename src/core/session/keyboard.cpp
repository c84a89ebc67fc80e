// Keyboard play and the player's own letters: the pointer leaving the
// board, moves from hexagon to hexagon, a clicked clue's cell, redo, and
// clearing the player's letters.
#include "core/model/text.h"
#include "core/play/history.h"
#include "core/session/gamesession.h"

namespace combwise {
namespace {

// The status line as resting the pointer on the hexagon shows it.
std::string hexStatus(int hex) { return "Hex =" + Str(hex); }

}  // namespace

int GameSession::selectedHexagon() const {
  if (m_puzzle.SelRow == 0 || m_board.size() <= 0) return 0;
  return m_board.HexAt(m_puzzle.SelRow, m_puzzle.SelCol);
}

CommandResult GameSession::pointerLeft() {
  CommandResult result;
  if (m_puzzle.SelRow == 0) return result;
  m_puzzle.SelRow = m_puzzle.SelCol = 0;
  result.redraw = Redraw::Marker;
  result.status = "";
  return result;
}

CommandResult GameSession::stepHexagon(HexStep step) {
  CommandResult result;
  if (!createEnabled() || !m_hasPuzzle) return result;
  if (!moveToHexagon(m_board, m_puzzle, step)) return result;
  result.redraw = Redraw::Marker;
  result.status = hexStatus(selectedHexagon());
  return result;
}

CommandResult GameSession::selectHexagon(int hex) {
  CommandResult result;
  if (!createEnabled() || !m_hasPuzzle) return result;
  const auto cell = firstOpenCell(m_board, m_puzzle, hex);
  if (!cell) return result;
  m_puzzle.SelRow = cell->row;
  m_puzzle.SelCol = cell->col;
  result.redraw = Redraw::Marker;
  result.status = hexStatus(hex);
  return result;
}

CommandResult GameSession::redo() {
  CommandResult result;
  if (!createEnabled() || !redoLast(m_puzzle)) return result;
  lettersChanged();
  result.redraw = Redraw::Board;
  return result;
}

CommandResult GameSession::clearLetters() {
  CommandResult result;
  if (!createEnabled() || !m_hasPuzzle) return result;
  if (clearMyLetters(m_board, m_puzzle) == 0) {
    result.status = "No letters to clear";
    return result;
  }
  lettersChanged();
  result.redraw = Redraw::Board;
  result.status = "Letters cleared";
  return result;
}

}  // namespace combwise
