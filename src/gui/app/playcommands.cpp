// The play commands: undo, reset, verify and show the solution while held,
// and zoom.
#include <QAction>
#include <QCoreApplication>
#include <QFrame>
#include <QGroupBox>
#include <QListWidget>

#include "core/play/boardscene.h"
#include "core/play/entry.h"
#include "gui/app/mainwindow.h"
#include "gui/play/boardpicture.h"
#include "gui/play/cluepicture.h"
#include "gui/ui/prompter.h"

namespace combwise {

void MainWindow::undoClicked(int mouseButton) {
  if (!createEnabled() || m_puzzle.UndoList.empty()) return;
  if (mouseButton == 2) {
    // A right click asks to reset instead, and forgets the undo list either way.
    resetPuzzle();
    m_puzzle.UndoList.clear();
    return;
  }
  undoLast(m_puzzle);
  m_picture->DrawBoard(LetterMode::Play);
}

void MainWindow::resetPuzzle() {
  if (m_puzzle.CollectionPath.empty() || !createEnabled()) return;
  if (m_prompter->ShowMessage("Reset puzzle?", "vbquestion+vbyesno") != kMsgYes) return;
  // The solution, clues and undo list are renewed; the player's letters stay.
  if (showPuzzle(m_puzzle.CollectionPath, m_puzzle.PuzzleNumber)) {
    setStatus("Puzzle reset");
  } else {
    setStatus("Error reading puzzle");
  }
}

void MainWindow::verifyPressed() {
  if (!createEnabled() || m_insideWords->count() == 0) return;
  const std::vector<int> unfinished = unfinishedHexagons(m_board, m_puzzle);
  m_picture->setMarks(verificationCrosses(m_board, m_layout, unfinished));
  if (unfinished.empty()) {
    setStatus("All Done ...");
    m_prompter->ShowMessage("All done !", "vbhappy+vbok");
    QCoreApplication::processEvents();
  } else {
    setStatus("Not done yet");
  }
}

void MainWindow::verifyReleased() {
  if (m_puzzle.PuzzleSize > 0) m_picture->DrawBoard(LetterMode::Play);
}

void MainWindow::showSolutionPressed() {
  if (!createEnabled()) return;
  m_picture->DrawBoard(LetterMode::Solution);
  if (m_insideWords->count() > 0) {
    for (QListWidget* list : {m_insideWords, m_outsideWords}) {
      list->show();
      list->raise();
    }
    m_clueFrame->setTitle("Solution");
  }
}

void MainWindow::showSolutionReleased() {
  if (!createEnabled()) return;
  m_picture->DrawBoard(LetterMode::Play);
  m_insideWords->hide();
  m_outsideWords->hide();
  m_clueFrame->setTitle("Clues");
}

void MainWindow::zoomClicked(int index) {
  if (!createEnabled() || index < 0 || index > 2) return;
  // No intermediate state shows while the board is laid out again.
  m_boardFrame->setUpdatesEnabled(false);
  const ZoomState next = zoomStep(static_cast<ZoomKind>(index), {m_layout.CellWidth, m_layout.CellHeight, m_fontSize},
                                  m_fitWidth, m_fitHeight, m_settings.BoardFontSize > 0 ? m_settings.BoardFontSize : 10);
  if (index == 2) {
    const Twips twips = Twips::of(*this);
    m_picture->move(qRound(64 / twips.perPixelX), qRound(64 / twips.perPixelY));
  }
  m_fontSize = next.fontSize;
  BoardView view = m_picture->view();
  view.font.setPointSizeF(m_fontSize);
  m_picture->setView(view);
  relayout(next.cellWidth, next.cellHeight);
  m_picture->DrawBoard(LetterMode::Play);
  m_boardFrame->setUpdatesEnabled(true);
}

}  // namespace combwise
