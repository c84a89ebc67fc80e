// The board picture as a list of things to draw: the hexagon outlines (in
// device pixels), an optional highlighted hexagon over them, the inner cell
// lines, the letters, and the hexagon numbers in their circles (all in
// twips). One scene serves the screen, the printed
// page and the clipboard picture; the painter only maps the colour roles to
// colours and converts twips at the surface.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "core/model/board.h"
#include "core/model/puzzlestate.h"
#include "core/play/layout.h"
#include "core/play/textmeasure.h"

namespace combwise {

enum class ColourRole { Outline, HexFill, HexNumber, GivenLetter, Entry, Highlight };

// The highlight is laid over the hexagon's fill at this opacity, under its
// lines and letters, so that everything on it stays readable.
inline constexpr double kHighlightOpacity = 0.45;

// Which letters a board shows.
enum class LetterMode {
  Play,      // given letters on free cells, the player's entries elsewhere
  Solution,  // every solution letter, in the given-letter colour
  Sheet,     // given letters only: a blank board to solve on paper
};

struct ScenePolygon {
  std::array<PixelPoint, 6> points;
  int penWidth = 2;
};

struct SceneLine {
  int x1 = 0, y1 = 0, x2 = 0, y2 = 0;  // twips
  ColourRole colour = ColourRole::HexNumber;
  int penWidth = 1;
};

struct SceneCircle {
  double cx = 0, cy = 0, radius = 0;  // twips
  ColourRole colour = ColourRole::HexNumber;
};

struct SceneText {
  double x = 0, y = 0;  // twips, the top-left of the text
  std::string text;
  ColourRole colour = ColourRole::GivenLetter;
  // Given letters (and the solution) are drawn bold, so that they differ
  // from the player's letters by more than their colour.
  bool bold = false;
};

struct BoardScene {
  std::vector<ScenePolygon> outlines;
  std::optional<ScenePolygon> highlight;  // filled in ColourRole::Highlight
  std::vector<SceneLine> lines;
  std::vector<SceneCircle> circles;
  std::vector<SceneText> texts;
};

struct SceneOptions {
  LetterMode letters = LetterMode::Play;
  int outlineWidth = 2;
  int shrinkPercent = 0;  // hexagon outlines scaled by 1 - percent/100
  bool numbers = true;    // the hexagon numbers in their circles
  int highlightHex = 0;   // the hexagon to highlight; 0 for none
};

// The whole board. `measure` is the surface's current board font.
BoardScene buildBoardScene(const Board& board, const PuzzleState& state, const BoardLayout& layout,
                           const SceneOptions& options, const TextMeasure& measure);

// The outline of one hexagon whose top-left grid position is (row, col),
// scaled about the picture's origin by `factor`.
ScenePolygon hexagonOutline(const BoardLayout& layout, int row, int col, double factor, int penWidth);

// The crosses over the numbers of the hexagons that verification found
// unfinished, in the entry colour with a pen width of 3.
std::vector<SceneLine> verificationCrosses(const Board& board, const BoardLayout& layout,
                                           const std::vector<int>& unfinished);

}  // namespace combwise
