// The window's side of play beyond the board's own keys: where the keys go
// after a menu closes.
#include <QApplication>
#include <QCursor>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>

#include "gui/app/mainwindow.h"
#include "gui/play/boardpicture.h"

namespace combwise {

void MainWindow::wirePlay() {
  for (QMenu* menu : menuBar()->findChildren<QMenu*>()) {
    // Closing a menu with Escape leaves the menu bar holding the keys once
    // the menu is gone, so the keys are taken back a moment later.
    connect(menu, &QMenu::aboutToHide, this, [this] { QTimer::singleShot(0, this, &MainWindow::returnKeysToBoard); });
  }
}

void MainWindow::returnKeysToBoard() {
  if (QApplication::activePopupWidget() || QApplication::activeModalWidget() || !isActiveWindow()) return;
  const QPoint at = m_picture->mapFromGlobal(QCursor::pos());
  if (!m_picture->isVisible() || !m_picture->rect().contains(at)) return;
  m_picture->setFocus(Qt::OtherFocusReason);
  // The selection may have gone while the menu covered the board.
  m_picture->hoverAt(at);
}

}  // namespace combwise
