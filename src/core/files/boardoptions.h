// The board's settings before any configuration file is read, and the
// rules of the options window's clickable samples: the hexagon border
// width and the board font size.
#pragma once

#include "core/files/config.h"

namespace combwise {

// The ranges of the samples are those the configuration is held to (config.h).

// The settings as start-up sets them: scheme "xp.col", board font "Arial"
// at 10 points, outline width 2, and the board colours of the start-up
// table (near-black outlines, red given letters, grey numbers and grid,
// green entries, near-white hexagons). Paths and recent files are empty.
Settings startupSettings();

// Which mouse button clicked a sample.
enum class SampleClick { Left, Right };

// Left adds 1, right takes 1 away; above 20 wraps round to 1, below 1 is 1.
int nextOutlineWidth(int width, SampleClick click);
// Left adds 1 point, right takes 1 away, held between 8 and 32.
int nextBoardFontSize(int size, SampleClick click);

}  // namespace combwise
