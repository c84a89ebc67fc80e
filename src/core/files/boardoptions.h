// The board's settings before any configuration file is read, and the
// rules of the options window's clickable samples: the hexagon border
// width and the board font size.
#pragma once

#include <array>
#include <string>

#include "core/files/colourscheme.h"
#include "core/files/config.h"

namespace combwise {

inline constexpr const char* kDefaultBoardFontName = "Arial";
inline constexpr int kDefaultBoardFontSize = 10;
inline constexpr int kDefaultOutlineWidth = 2;

// The ranges of the samples are those the configuration is held to (config.h).

// The settings as start-up sets them: scheme "xp.col", board font "Arial"
// at 10 points, outline width 2, and the board colours of the start-up
// table (near-black outlines, red given letters, grey numbers and grid,
// green entries, near-white hexagons), each readable on the hexagons. Paths and recent files are empty.
Settings startupSettings();

// How the board is drawn: the settings, with the start-up values standing in
// for a font, size or width that the configuration left unset.
struct BoardLook {
  std::string fontName = kDefaultBoardFontName;
  int fontSize = kDefaultBoardFontSize;
  int outlineWidth = kDefaultOutlineWidth;
  int outline = 0;
  int fill = 0;
  int numbers = 0;
  int given = 0;
  int entries = 0;
};
BoardLook boardLook(const Settings& settings);

// The five board colours in the order the options window lists them.
enum class BoardColour { Border, FixedLetters, Grid, User, HexFill };
inline constexpr int kBoardColours = 5;

// What the options window hands over on Apply.
struct OptionsChoice {
  ColourScheme scheme;  // the scheme chosen, already named
  std::array<int, kBoardColours> colours{};
  int outlineWidth = kDefaultOutlineWidth;
  int fontSize = kDefaultBoardFontSize;
  std::string fontName;
};
// The board colours of the settings, in the options window's order.
std::array<int, kBoardColours> boardColours(const Settings& settings);
// Takes the choice into the settings and the scheme, the scheme's button
// colour settled first.
void applyOptions(const OptionsChoice& choice, Settings& settings, ColourScheme& scheme);

// Which mouse button clicked a sample.
enum class SampleClick { Left, Right };

// Left adds 1, right takes 1 away; above 20 wraps round to 1, below 1 is 1.
int nextOutlineWidth(int width, SampleClick click);
// Left adds 1 point, right takes 1 away, held between 8 and 32.
int nextBoardFontSize(int size, SampleClick click);

}  // namespace combwise
