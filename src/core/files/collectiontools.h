// Randomize: a copy of a collection without duplicate puzzles and in random
// order, written beside it as "<name>-noduprandom.txt". It works on whole
// lines and leaves the source untouched.
#pragma once

#include <optional>
#include <string>

#include "core/model/callbacks.h"
#include "core/model/random.h"

namespace combwise {

// The output of a collection: its path up to its last "." (wherever that
// is, even in a folder name) and "-noduprandom.txt"; nothing when the path
// holds no ".".
std::optional<std::string> randomizedPath(const std::string& collectionPath);

struct RandomizeResult {
  Status status;
  std::string outputPath;
  long long readCount = 0;      // lines of the source
  long long distinctCount = 0;  // lines written
  std::string message;          // "<output path> randomized", or why nothing was done
};

// De-duplicates and shuffles a collection. A line is left out when an
// earlier kept line begins with it, case ignored (so repeats, case variants
// and beginnings of earlier lines go). Each kept line is then ranked by a
// five-digit key drawn from `random`; equal keys fall back to the lines'
// own order. Progress goes to `progress` ("source 12 10", "no dup 3",
// "random 3"); events run after every source line.
RandomizeResult randomizeCollection(const std::string& collectionPath, RandomSource& random,
                                    const StatusReport& progress = {}, const PumpEvents& events = {});

}  // namespace combwise
