// The play commands: the pointer and keys on the board, undo and reset,
// verify and show the solution while held, and zoom.
#include "core/play/entry.h"
#include "core/play/verify.h"
#include "core/session/gamesession.h"

namespace combwise {
namespace {

CommandResult redrawing(Redraw redraw) {
  CommandResult result;
  result.redraw = redraw;
  return result;
}

}  // namespace

CommandResult GameSession::hover(double x, double y) {
  if (!createEnabled()) {
    m_puzzle.SelRow = m_puzzle.SelCol = 0;
    return {};
  }
  const HoverResult hover = hoverAt(m_board, m_layout, m_puzzle, x, y);
  if (hover.kind == HoverResult::Kind::Unchanged) return {};
  CommandResult result = redrawing(Redraw::Marker);
  result.status = hover.status;
  return result;
}

CommandResult GameSession::type(int code) {
  if (m_puzzle.SelRow == 0 || !createEnabled()) return {};
  const auto entry = entryForKey(code);
  if (!entry) return {};
  enterAtSelection(m_puzzle, *entry);
  lettersChanged();
  return redrawing(Redraw::Board);
}

CommandResult GameSession::navigate(int keyCode) {
  if (!MoveSelection(m_board, m_puzzle, directionForKey(keyCode))) return {};
  return redrawing(Redraw::Marker);
}

CommandResult GameSession::undo(int mouseButton) {
  if (!createEnabled() || m_puzzle.UndoList.empty()) return {};
  if (mouseButton == 2) {
    // A right click asks to reset instead, and forgets the undo list either way.
    CommandResult result = reset();
    m_puzzle.UndoList.clear();
    return result;
  }
  undoLast(m_puzzle);
  lettersChanged();
  return redrawing(Redraw::Board);
}

CommandResult GameSession::reset() {
  CommandResult result;
  if (m_puzzle.CollectionPath.empty() || !createEnabled()) return result;
  if (m_host.ask("Reset puzzle?", "vbquestion+vbyesno") != kAnswerYes) return result;
  // The solution, clues and undo list are renewed; the player's letters stay.
  const std::string path = m_puzzle.CollectionPath;
  result.status = showPuzzle(path, m_puzzle.PuzzleNumber, result) ? "Puzzle reset" : "Error reading puzzle";
  return result;
}

CommandResult GameSession::verifyPressed() {
  if (!createEnabled() || !m_hasPuzzle) return {};
  const std::vector<int> unfinished = unfinishedHexagons(m_board, m_puzzle);
  m_marks = verificationCrosses(m_board, m_layout, unfinished);
  CommandResult result = redrawing(Redraw::Marks);
  if (unfinished.empty()) {
    result.status = "All Done ...";
    result.messages.push_back({"All done !", "vbhappy+vbok"});
    puzzleSolved(result);
  } else {
    result.status = "Not done yet";
  }
  return result;
}

CommandResult GameSession::verifyReleased() {
  if (m_puzzle.PuzzleSize <= 0) return {};
  m_marks.clear();
  return redrawing(Redraw::Board);
}

CommandResult GameSession::showSolutionPressed() {
  if (!createEnabled()) return {};
  return redrawing(Redraw::Solution);
}

CommandResult GameSession::showSolutionReleased() {
  if (!createEnabled()) return {};
  return redrawing(Redraw::Board | Redraw::HideSolution);
}

CommandResult GameSession::zoom(int index) {
  if (!createEnabled() || index < 0 || index > 2) return {};
  const ZoomState next = zoomStep(static_cast<ZoomKind>(index), {m_layout.CellWidth, m_layout.CellHeight, m_fontSize},
                                  m_fitWidth, m_fitHeight, look().fontSize);
  m_fontSize = next.fontSize;
  relayout(next.cellWidth, next.cellHeight);
  Redraw redraw = Redraw::Font | Redraw::Layout | Redraw::Board;
  if (static_cast<ZoomKind>(index) == ZoomKind::Reset) redraw |= Redraw::BoardHome;
  return redrawing(redraw);
}

CommandResult GameSession::revealHexagons(int count) {
  combwise::revealHexagons(m_board, m_puzzle, count);
  lettersChanged();
  return redrawing(Redraw::Board);
}

}  // namespace combwise
