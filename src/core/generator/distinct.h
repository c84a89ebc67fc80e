// Puzzles without repeats: no word twice, no clue text twice. The generator
// filters its puzzles by them when asked, and the collection check reports
// the repeats of any puzzle.
#pragma once

#include <string>
#include <vector>

#include "core/files/dictionary.h"
#include "core/model/puzzlestate.h"
#include "core/model/random.h"

namespace combwise {

// True when two word slots hold the same word (case ignored).
bool hasRepeatedWord(const PuzzleState& state);

// Attaches clues as attachClues does, drawing the same numbers; a clue
// whose text an earlier slot already has takes instead the first other
// meaning line of its word whose text is new to the puzzle. False when a
// word has no such line (the clues are then incomplete).
bool attachDistinctClues(PuzzleState& state, const Meanings& meanings, RandomSource& random);

// "word CHANGE stands 3 times", "clue "an armed thief" stands for BANDIT
// and BRIGAND": one line per repeat. Clue texts are looked up in `meanings`
// when given, else taken from the state.
std::vector<std::string> repeatProblems(const PuzzleState& state, const Meanings* meanings);

}  // namespace combwise
