// How well colours read against each other, by the contrast ratio of the
// web accessibility guidelines (1:1 for equal colours up to 21:1 for black
// on white), and the board colours a scheme's table holds.
#pragma once

#include "core/files/colourscheme.h"

namespace combwise {

// Letters need at least 4.5:1 against what they stand on; lines, circles
// and hexagon numbers at least 3:1.
inline constexpr double kTextContrast = 4.5;
inline constexpr double kGraphicContrast = 3.0;

// The relative luminance of a colour (red in the low byte), 0 to 1.
double relativeLuminance(int colour);
// (lighter + 0.05) / (darker + 0.05), whichever order the colours come in.
double contrastRatio(int a, int b);
// `over` laid on `under` at `opacity` (0 to 1), channel by channel.
int blendColours(int over, int under, double opacity);

// The board's colours in a scheme's table.
struct SchemeBoardColours {
  static constexpr int kHexFill = 5;
  static constexpr int kOutline = 6;
  static constexpr int kNumbers = 7;  // hexagon numbers, circles, inner lines
  static constexpr int kGiven = 8;
  static constexpr int kEntries = 9;
  static constexpr int kHighlight = 10;  // the selected cell's hexagon

  int fill = 0;
  int outline = 0;
  int numbers = 0;
  int given = 0;
  int entries = 0;
  int highlight = 0;

  static SchemeBoardColours of(const ColourScheme& scheme);
};

}  // namespace combwise
