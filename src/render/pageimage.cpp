// Draws the page picture for the clipboard.
#include "render/pageimage.h"

#include <QPainter>
#include <cmath>

#include "render/boardpainter.h"

namespace combwise {
namespace {

// The drawn part of a white picture.
QRect drawnArea(const QImage& image) {
  int left = image.width();
  int right = -1;
  int top = image.height();
  int bottom = -1;
  for (int y = 0; y < image.height(); ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    for (int x = 0; x < image.width(); ++x) {
      if ((line[x] & 0xffffff) == 0xffffff) continue;
      left = std::min(left, x);
      right = std::max(right, x);
      top = std::min(top, y);
      bottom = std::max(bottom, y);
    }
  }
  return right < 0 ? QRect() : QRect(QPoint(left, top), QPoint(right, bottom));
}

}  // namespace

QImage pageImage(const PagePuzzle& puzzle, LetterMode letters, QPoint* pageOrigin) {
  QImage probe(1, 1, QImage::Format_RGB32);  // gives the resolution first
  const Twips twips = Twips::of(probe);
  // A canvas the page surely fits on, the header's long path included; the
  // page is drawn a cell in from its edge, then cut to what was drawn.
  constexpr int kInset = 500;
  const double width = (puzzle.board.cols() + 3) * kPrintCellWidth + 30000.0;
  const double height = kImageTop + (puzzle.board.rows() + 2) * kPrintCellHeight + kInset;
  QImage canvas(static_cast<int>(std::lround(width / twips.perPixelX)),
                static_cast<int>(std::lround(height / twips.perPixelY)), QImage::Format_RGB32);
  canvas.fill(Qt::white);
  {
    QPainter painter(&canvas);
    painter.translate(kInset / twips.perPixelX, 0);
    PrintPuzzle(painter, puzzle, kImageLeft, kImageTop, 0, letters);
  }
  const QRect drawn = drawnArea(canvas);
  if (drawn.isNull()) return QImage(1, 1, QImage::Format_RGB32);
  const QRect cut = drawn.adjusted(-kImageMargin, -kImageMargin, kImageMargin, kImageMargin);
  QImage image(cut.size(), QImage::Format_RGB32);
  image.fill(Qt::white);
  image.setDotsPerMeterX(canvas.dotsPerMeterX());
  image.setDotsPerMeterY(canvas.dotsPerMeterY());
  {
    QPainter painter(&image);
    painter.drawImage(-cut.topLeft(), canvas);
  }
  if (pageOrigin) *pageOrigin = QPoint(static_cast<int>(std::lround(kInset / twips.perPixelX)), 0) - cut.topLeft();
  return image;
}

}  // namespace combwise
