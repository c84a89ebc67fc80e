// Draws the page picture for the clipboard.
#include "render/pageimage.h"

#include <QPainter>
#include <cmath>

#include "render/boardpainter.h"

namespace combwise {

QSizeF pageImageTwips(const PagePuzzle& puzzle) {
  return {(puzzle.board.cols() + 1) * (puzzle.look.screenCellWidth * 1.4),
          (puzzle.board.rows() + 2) * (puzzle.look.screenCellHeight * 1.25)};
}

QImage pageImage(const PagePuzzle& puzzle, LetterMode letters) {
  QImage image(1, 1, QImage::Format_RGB32);  // gives the resolution first
  const Twips twips = Twips::of(image);
  const QSizeF size = pageImageTwips(puzzle);
  image = QImage(std::max(1, static_cast<int>(std::lround(size.width() / twips.perPixelX))),
                 std::max(1, static_cast<int>(std::lround(size.height() / twips.perPixelY))), QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  PrintPuzzle(painter, puzzle, kImageLeft, kImageTop, 0, letters);
  return image;
}

}  // namespace combwise
