// The clue listing of the current puzzle as text: a banner, the puzzle's
// number and collection, then the inside clues and the outside clues, each
// numbered by its hexagon ("01", "02", ...). The GUI writes the same lines
// to a file, and the command-line tool prints them.
#pragma once

#include <string>
#include <vector>

#include "core/model/callbacks.h"
#include "core/model/puzzlestate.h"

namespace combwise {

struct ListingBanner {
  std::string productName = "Combwise";
  std::string makerSite = "hexagonal crosswords";  // the maker's site text, configurable
};

// The lines of the text-file listing, without line ends. Clues are not
// wrapped; a clue holding a line break keeps it.
std::vector<std::string> clueListingLines(const PuzzleState& state, const ListingBanner& banner = {});

// Writes the listing to `path` with CR LF line ends, replacing the file.
Status writeClueListing(const std::string& path, const PuzzleState& state, const ListingBanner& banner = {});

// The entry number of word slot k: the integer part of (k + 1) / 2 with at
// least two digits.
std::string clueNumber(int slot);

}  // namespace combwise
