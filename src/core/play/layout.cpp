// The board's display layout.
#include "core/play/layout.h"

#include "core/model/text.h"

namespace combwise {

PixelPoint boardOrigin(int size) {
  switch (size) {
    case 7:
      return {100, 400};
    case 10:
      return {600, 300};
    case 17:
      return {100, 700};
    default:
      return {100, 200};
  }
}

BoardLayout LayOutBoard(const LayoutInput& in) {
  BoardLayout out;
  out.CellWidth = in.cellWidth;
  out.CellHeight = in.cellHeight;
  out.TwipsPerPixelX = in.twipsPerPixelX;
  out.TwipsPerPixelY = in.twipsPerPixelY;
  const PixelPoint origin = boardOrigin(in.size);
  out.BoardLeft = in.originLeft >= 0 ? in.originLeft : origin.x;
  out.BoardTop = in.originTop >= 0 ? in.originTop : origin.y;

  const int W = in.cellWidth;
  const int H = in.cellHeight;
  // One extra row and column, so positions right of and below the last cell exist.
  for (int r = 1; r <= in.rows + 1 && r < BoardLayout::kRows; ++r) {
    for (int c = 1; c <= in.cols + 1 && c < BoardLayout::kCols; ++c) {
      out.CellX[r][c] = (c - 1) * W + out.BoardLeft;
      out.CellY[r][c] = (r - 1) * H + out.BoardTop;
    }
  }
  // Row 1 and column 1 exist even before any size is set.
  out.CellX[1][1] = out.BoardLeft;
  out.CellY[1][1] = out.BoardTop;

  out.pictureWidth = (in.cols + 2) * W;
  out.pictureHeight = (in.rows + 1) * H + H;
  out.markerSide = W / 2;

  const double w = W / in.twipsPerPixelX;
  const double h = H / in.twipsPerPixelY;
  const double px = (out.CellX[1][1] + W / 2.0) / in.twipsPerPixelX;
  const double py = out.CellY[1][1] / in.twipsPerPixelY;
  const double points[7][2] = {
      {px, py},         {px - w, py + h}, {px, py + 2 * h}, {px + 2 * w, py + 2 * h}, {px + 3 * w, py + h},
      {px + 2 * w, py}, {px, py}};
  for (int k = 0; k < 7; ++k) {
    out.HexTemplate[k] = {static_cast<int>(roundHalfEven(points[k][0])), static_cast<int>(roundHalfEven(points[k][1]))};
  }

  // Middle letters sit higher (top row) and lower (bottom row) than the
  // corner letters, following the slant of the outline.
  const double dx[7] = {0, W / 5.0, W + W / 5.0, 2 * W + W / 5.0, 2 * W + W / 5.0, W + W / 5.0, W / 5.0};
  const double dy[7] = {0, H / 3.0, H / 8.0, H / 3.0, static_cast<double>(H), H + H / 3.0, static_cast<double>(H)};
  for (int k = 1; k <= 6; ++k) {
    out.LetterDX[k] = static_cast<int>(roundHalfEven(dx[k]));
    out.LetterDY[k] = static_cast<int>(roundHalfEven(dy[k]));
  }
  return out;
}

}  // namespace combwise
