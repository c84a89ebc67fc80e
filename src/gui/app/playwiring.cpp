// The window's side of play beyond the board's own keys: the hexagon keys,
// redo and clearing the player's letters, clicked clues, the linked
// highlight of board and clues, the puzzle timer and solved record, saving
// the player's letters, and where the keys go after a menu closes.
#include <functional>

#include <QAction>
#include <QApplication>
#include <QCursor>
#include <QEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QTimer>

#include "core/model/text.h"
#include "gui/app/mainwindow.h"
#include "gui/play/boardpicture.h"
#include "gui/play/cluepicture.h"

namespace combwise {
namespace {

constexpr int kProgressDelayMs = 2000;  // typing runs on; the file follows shortly

}  // namespace

void MainWindow::wirePlay() {
  addPlayCommands();
  for (QMenu* menu : menuBar()->findChildren<QMenu*>()) {
    // Closing a menu with Escape leaves the menu bar holding the keys once
    // the menu is gone, so the keys are taken back a moment later.
    connect(menu, &QMenu::aboutToHide, this, [this] { QTimer::singleShot(0, this, &MainWindow::returnKeysToBoard); });
  }
  connect(m_clues, &CluePicture::clueClicked, this, [this](int hex) { paint(m_session.selectHexagon(hex)); });

  m_timerLabel = new QLabel(this);
  m_timerLabel->setObjectName("lbltimer");
  m_timerLabel->setToolTip("Time on this puzzle; it stops while the window is inactive");
  m_timerLabel->setAlignment(Qt::AlignCenter);
  m_timerLabel->setMinimumWidth(m_timerLabel->fontMetrics().horizontalAdvance("00:00:00") + 8);
  statusBar()->addPermanentWidget(m_timerLabel);
  m_clockTimer = new QTimer(this);
  m_clockTimer->setInterval(1000);
  connect(m_clockTimer, &QTimer::timeout, this, [this] {
    if (m_session.timerRunning()) m_timerLabel->setText(QString::fromStdString(m_session.timerText()));
  });
  m_clockTimer->start();

  m_progressTimer = new QTimer(this);
  m_progressTimer->setSingleShot(true);
  m_progressTimer->setInterval(kProgressDelayMs);
  connect(m_progressTimer, &QTimer::timeout, this, [this] { paint(m_session.saveProgress()); });
}

void MainWindow::addPlayCommands() {
  QAction* undo = m_puzzleMenu->findChild<QAction*>("mnuundo");
  const QList<QAction*> actions = m_puzzleMenu->actions();
  const qsizetype undoAt = actions.indexOf(undo);
  QAction* before = undoAt >= 0 && undoAt + 1 < actions.size() ? actions[undoAt + 1] : nullptr;
  auto add = [this, before](const QString& name, const QString& text, auto run, const QList<QKeySequence>& keys) {
    auto* action = new QAction(text, m_puzzleMenu);
    action->setObjectName(name);
    action->setShortcuts(keys);
    m_puzzleMenu->insertAction(before, action);
    connect(action, &QAction::triggered, this, [this, run] { paint(run(m_session)); });
    return action;
  };
  add("mnuredo", "&Redo", std::mem_fn(&GameSession::redo),
      {QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)});
  add("mnuclearletters", "&Clear my letters", std::mem_fn(&GameSession::clearLetters), {});
  add("mnunexthex", "Next &hexagon", [](GameSession& s) { return s.stepHexagon(HexStep::Next); },
      {QKeySequence(Qt::Key_Tab)});
  add("mnuprevioushex", "Pre&vious hexagon", [](GameSession& s) { return s.stepHexagon(HexStep::Previous); },
      {QKeySequence(Qt::SHIFT | Qt::Key_Tab), QKeySequence(Qt::SHIFT | Qt::Key_Backtab)});
}

void MainWindow::returnKeysToBoard() {
  if (QApplication::activePopupWidget() || QApplication::activeModalWidget() || !isActiveWindow()) return;
  const QPoint at = m_picture->mapFromGlobal(QCursor::pos());
  if (!m_picture->isVisible() || !m_picture->rect().contains(at)) return;
  m_picture->setFocus(Qt::OtherFocusReason);
  // The selection may have gone while the menu covered the board.
  m_picture->hoverAt(at);
}

void MainWindow::paintRecord() {
  const PuzzleState& puzzle = m_session.puzzle();
  QString counter = QString::fromStdString(positionText(puzzle.PuzzleNumber, puzzle.PuzzleCount));
  QString tip;
  if (const auto record = m_session.solvedRecord()) {
    const QString best = QString::fromStdString(formatElapsed(record->bestSeconds));
    counter += QStringLiteral("  \u2713 ") + best;
    tip =
        QString("Solved; best time %1, last time %2").arg(best, QString::fromStdString(formatElapsed(record->seconds)));
  }
  m_counter->setText(counter);
  m_counter->setToolTip(tip);
  m_timerLabel->setText(m_session.hasPuzzle() ? QString::fromStdString(m_session.timerText()) : QString());
}

void MainWindow::paintHighlight() {
  const int hex = m_session.selectedHexagon();
  m_picture->setHighlightedHexagon(hex);
  m_clues->setHighlightedHexagon(hex);
}

void MainWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::ActivationChange || event->type() == QEvent::WindowStateChange) {
    m_session.windowActive(isActiveWindow() && !isMinimized());
    if (m_timerLabel && m_session.hasPuzzle()) m_timerLabel->setText(QString::fromStdString(m_session.timerText()));
  }
  QMainWindow::changeEvent(event);
}

}  // namespace combwise
