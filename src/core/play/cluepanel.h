// The clue panel's text: "--" and " INSIDE CLUES:", each inside clue
// numbered "01. " by its hexagon and wrapped to the panel's text column,
// then the same for the outside clues, and a closing "--". Lengths in twips.
#pragma once

#include <string>
#include <vector>

#include "core/model/puzzlestate.h"
#include "core/play/textmeasure.h"

namespace combwise {

struct ClueLine {
  double x = 0;
  double y = 0;  // top of the text
  std::string text;
  friend bool operator==(const ClueLine&, const ClueLine&) = default;
};

struct CluePanel {
  std::vector<ClueLine> lines;
  double height = 0;  // the panel picture's height
};

inline constexpr int kClueMargin = 100;
inline constexpr int kClueColumn = 450;

// Lays out the clues of slots up to the word count for a panel `panelWidth`
// twips wide; `measure` is the panel's font.
CluePanel layOutClues(const PuzzleState& state, const TextMeasure& measure, double panelWidth);

}  // namespace combwise
