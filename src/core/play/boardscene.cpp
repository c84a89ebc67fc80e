// Builds the board picture's drawing list.
#include "core/play/boardscene.h"

#include <cmath>

#include "core/model/text.h"

namespace combwise {

ScenePolygon hexagonOutline(const BoardLayout& layout, int row, int col, double factor, int penWidth) {
  ScenePolygon polygon;
  polygon.penWidth = penWidth;
  const double dx = layout.cellX(row, col) - layout.cellX(1, 1);
  const double dy = layout.cellY(row, col) - layout.cellY(1, 1);
  for (int k = 0; k < 6; ++k) {
    // The factor scales the template about the picture's origin, not the
    // hexagon's centre, so shrunken outlines draw towards the top-left.
    polygon.points[k] = {
        static_cast<int>(roundHalfEven(layout.HexTemplate[k].x * factor + dx / layout.TwipsPerPixelX)),
        static_cast<int>(roundHalfEven(layout.HexTemplate[k].y * factor + dy / layout.TwipsPerPixelY))};
  }
  return polygon;
}

namespace {

void addHexagon(BoardScene& scene, const BoardLayout& layout, int row, int col, const SceneOptions& options) {
  const double factor = 1.0 - options.shrinkPercent * 0.01;
  if (!std::isfinite(factor)) return;
  scene.outlines.push_back(hexagonOutline(layout, row, col, factor, options.outlineWidth));

  // The first vertical line takes the scaled width and the second the
  // unscaled one; the horizontal line the scaled height. At no shrink all agree.
  const int W = layout.CellWidth;
  const int scaledW = static_cast<int>(roundHalfEven(W * factor));
  const int scaledH = static_cast<int>(roundHalfEven(layout.CellHeight * factor));
  const int X = layout.cellX(row, col);
  const int Y = layout.cellY(row, col);
  scene.lines.push_back({X + scaledW - 40, Y + 50, X + scaledW - 40, Y + 2 * scaledH - 50});
  scene.lines.push_back({X + 2 * W + 40, Y + 50, X + 2 * W + 40, Y + 2 * scaledH - 50});
  scene.lines.push_back({X - 40, Y + scaledH, X + 3 * W + 40, Y + scaledH});
}

}  // namespace

BoardScene buildBoardScene(const Board& board, const PuzzleState& state, const BoardLayout& layout,
                           const SceneOptions& options, const TextMeasure& measure) {
  BoardScene scene;
  const int hexCount = board.hexCount();
  for (int n = 1; n <= hexCount; ++n) addHexagon(scene, layout, board.HexRow(n), board.HexCol(n), options);
  const double factor = 1.0 - options.shrinkPercent * 0.01;
  if (options.highlightHex >= 1 && options.highlightHex <= hexCount && std::isfinite(factor)) {
    scene.highlight = hexagonOutline(layout, board.HexRow(options.highlightHex), board.HexCol(options.highlightHex),
                                     factor, options.outlineWidth);
  }

  for (int n = 1; n <= hexCount; ++n) {
    const int R = board.HexRow(n);
    const int C = board.HexCol(n);
    const int X = layout.cellX(R, C);
    const int Y = layout.cellY(R, C);
    for (int k = 1; k <= 6; ++k) {
      const int cell = board.InsideCells(n, k);
      const int r = board.CellRow(cell);
      const int c = board.CellCol(cell);
      SceneText letter{static_cast<double>(X + layout.LetterDX[k]),
                       static_cast<double>(Y + layout.LetterDY[k]),
                       {},
                       ColourRole::GivenLetter};
      const bool given = board.FreeCell(r, c) == 1;
      if (options.letters == LetterMode::Solution || given) {
        letter.text = state.Letters.at(r, c);
        letter.bold = true;
      } else if (options.letters == LetterMode::Play && !state.Entries.at(r, c).empty()) {
        letter.text = state.Entries.at(r, c);
        letter.colour = ColourRole::Entry;
      }
      if (!letter.text.empty()) scene.texts.push_back(std::move(letter));
    }
    if (!options.numbers) continue;

    const std::string number = NumberText(n);
    const double height = measure.textHeight(number);
    const double width = measure.textWidth(number);
    const double cx = layout.cellX(R + 1, C + 1) + layout.CellWidth / 2.0;
    const double cy = layout.cellY(R + 1, C + 1);
    scene.circles.push_back({cx, cy, height / 1.75});
    scene.texts.push_back(
        {static_cast<double>(roundHalfEven(layout.cellX(R + 1, C + 1) + (layout.CellWidth - width) / 2.0)),
         static_cast<double>(roundHalfEven(layout.cellY(R, C + 1) + (2.0 * layout.CellHeight - height) / 2.0)), number,
         ColourRole::HexNumber});
  }
  return scene;
}

std::vector<SceneLine> verificationCrosses(const Board& board, const BoardLayout& layout,
                                           const std::vector<int>& unfinished) {
  std::vector<SceneLine> crosses;
  const int q = layout.CellHeight / 4;
  for (int n : unfinished) {
    const int X = layout.cellX(board.HexRow(n) + 1, board.HexCol(n) + 1);
    const int Y = layout.cellY(board.HexRow(n) + 1, board.HexCol(n) + 1);
    crosses.push_back({X, Y - q, X + layout.CellWidth, Y + q, ColourRole::Entry, 3});
    crosses.push_back({X, Y + q, X + layout.CellWidth, Y - q, ColourRole::Entry, 3});
  }
  return crosses;
}

}  // namespace combwise
