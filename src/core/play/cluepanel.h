// The clue panel's text: "--" and " INSIDE CLUES:", each inside clue
// numbered "01. " by its hexagon and wrapped to the panel's text column,
// then the same for the outside clues, and a closing "--". Lengths in twips.
#pragma once

#include <optional>
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

// Where one clue stands: from the top of its numbered line to the bottom of
// its last line (the gap before the next clue not included).
struct ClueSpan {
  int slot = 0;  // 2h the inside word, 2h - 1 the outside word of hexagon h
  double top = 0;
  double bottom = 0;
  friend bool operator==(const ClueSpan&, const ClueSpan&) = default;
};

struct CluePanel {
  std::vector<ClueLine> lines;
  std::vector<ClueSpan> clues;  // in panel order
  double height = 0;            // the panel picture's height
};

inline constexpr int kClueMargin = 100;
inline constexpr int kClueColumn = 450;
inline constexpr int kClueGap = 48;

// Lays out the clues of slots up to the word count for a panel `panelWidth`
// twips wide; `measure` is the panel's font.
CluePanel layOutClues(const PuzzleState& state, const TextMeasure& measure, double panelWidth);

// The inside and outside clue of hexagon `hex` (to highlight them and
// scroll them into view); nothing for a clue the panel does not hold.
struct HexagonClues {
  std::optional<ClueSpan> inside;
  std::optional<ClueSpan> outside;
};
HexagonClues cluesOfHexagon(const CluePanel& panel, int hex);

// The clue at a height on the panel: its slot and hexagon. A clue owns the
// gap below it; the headings and the lines between the lists belong to none.
struct ClueHit {
  int slot = 0;
  int hex = 0;
  bool inside = false;
  friend bool operator==(const ClueHit&, const ClueHit&) = default;
};
std::optional<ClueHit> clueAt(const CluePanel& panel, double y);

}  // namespace combwise
