// Saves the window once the first board is drawn.
#include "gui/app/screenshot.h"

#include <QCoreApplication>
#include <QImage>
#include <QTextStream>
#include <QTimer>

#include "gui/app/mainwindow.h"
#include "gui/play/boardpicture.h"

namespace combwise {

void revealHexagons(MainWindow& window, int count) {
  const Board& board = window.board();
  PuzzleState& puzzle = window.puzzle();
  for (int n = 1; n <= count && n <= board.hexCount(); ++n) {
    for (int k = 1; k <= 6; ++k) {
      const int cell = board.InsideCells(n, k);
      const int r = board.CellRow(cell);
      const int c = board.CellCol(cell);
      if (board.FreeCell(r, c) == 0) puzzle.Entries.at(r, c) = puzzle.Letters.at(r, c);
    }
  }
  window.boardPicture()->DrawBoard(LetterMode::Play);
}

void scheduleScreenshot(MainWindow& window, const ScreenshotRequest& request) {
  auto* poll = new QTimer(&window);
  poll->setInterval(10);
  QObject::connect(poll, &QTimer::timeout, &window, [&window, request, poll] {
    if (!window.startedUp()) return;
    poll->stop();
    if (request.revealHexagons > 0) revealHexagons(window, request.revealHexagons);
    QCoreApplication::processEvents();
    const bool saved = window.grab().save(request.file, "PNG");
    if (!saved) QTextStream(stderr) << "Cannot write " << request.file << "\n";
    QCoreApplication::exit(saved ? 0 : 1);
  });
  poll->start();
}

}  // namespace combwise
