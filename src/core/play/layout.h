// The board's display layout: where every grid position, the hexagon
// outline and each letter of a hexagon lie. Lengths are twips (1/1440 inch)
// from the board picture's top-left corner, except the outline template,
// which is in device pixels.
#pragma once

#include <array>

#include "core/model/board.h"

namespace combwise {

struct PixelPoint {
  int x = 0;
  int y = 0;
  friend bool operator==(const PixelPoint&, const PixelPoint&) = default;
};

// What the layout is computed from. An origin left at -1 takes the
// size's own (the screen board); printing gives its page position.
struct LayoutInput {
  int size = -1;
  int rows = 0;
  int cols = 0;
  int cellWidth = 225;
  int cellHeight = 375;
  double twipsPerPixelX = 15;
  double twipsPerPixelY = 15;
  int originLeft = -1;
  int originTop = -1;
};

struct BoardLayout {
  static constexpr int kRows = Board::kMaxRow + 1;  // storage 0..12
  static constexpr int kCols = Board::kMaxCol + 1;  // storage 0..18

  int CellWidth = 225;
  int CellHeight = 375;
  int BoardLeft = 100;
  int BoardTop = 200;
  double TwipsPerPixelX = 15;
  double TwipsPerPixelY = 15;
  std::array<std::array<int, kCols>, kRows> CellX{};
  std::array<std::array<int, kCols>, kRows> CellY{};
  std::array<int, 7> LetterDX{};  // ring positions 1..6
  std::array<int, 7> LetterDY{};
  std::array<PixelPoint, 7> HexTemplate{};  // P0..P5 drawn, P6 closes
  int pictureWidth = 0;                     // the board picture's size
  int pictureHeight = 0;
  int markerSide = 0;  // the selection marker, a square

  // CellX/CellY with indices clamped to storage.
  int cellX(int row, int col) const { return CellX[clampRow(row)][clampCol(col)]; }
  int cellY(int row, int col) const { return CellY[clampRow(row)][clampCol(col)]; }

 private:
  static int clampRow(int r) { return r < 0 ? 0 : (r >= kRows ? kRows - 1 : r); }
  static int clampCol(int c) { return c < 0 ? 0 : (c >= kCols ? kCols - 1 : c); }
};

// Where the board picture stands inside its frame (twips from the frame's
// top-left corner) once the board is fitted or the zoom reset.
inline constexpr int kBoardPictureOffset = 64;

// The origin of the screen board for a size: (100, 200), but size 7 at
// (100, 400), size 10 at (600, 300) and size 17 at (100, 700).
PixelPoint boardOrigin(int size);

BoardLayout LayOutBoard(const LayoutInput& input);

}  // namespace combwise
