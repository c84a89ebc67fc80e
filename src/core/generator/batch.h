// Making many puzzles at once: puzzle i of a run draws from its own random
// stream and starts from the dictionary's pool order, so it depends on its
// stream alone; worker threads make puzzles side by side and the lines are
// handed over in puzzle order. The batch command of the game and the
// command-line tool's create and batch commands use it.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "core/files/dictionary.h"
#include "core/files/programfiles.h"
#include "core/model/callbacks.h"

namespace combwise {

inline constexpr int kBatchSize = 17;
inline constexpr int kBatchCount = 2000;

struct LineRunOptions {
  int size = kBatchSize;
  int count = 1;
  int jobs = 0;                       // worker threads; 0 for one per core
  std::optional<std::uint64_t> seed;  // reproducible streams; else the clock
  long long maxTries = 0;             // tries per puzzle before giving up; 0: no bound
  long long maxWork = 0;              // work per puzzle before giving up (GeneratorHooks); 0: no bound
  bool distinct = false;              // no word or clue text twice in a puzzle (GeneratorHooks)
  std::string dictionaryPath;         // named when the dictionary cannot make the size
};

// Receives puzzle i (from 1) and its collection line, in order, on the
// calling thread; returns false to stop the run.
using LineSink = std::function<bool(int index, const std::string& line)>;

// Makes `count` puzzles of `size`. Fails at once, making nothing, for a
// size that is not one of the four or pools that cannot make a puzzle;
// fails when a puzzle takes more than maxTries tries; reports a stop by the
// sink as an error too. Lines are streamed: memory does not grow with the
// count, as workers run at most a few puzzles ahead of the sink.
Status makePuzzleLines(const Dictionary& dictionary, const Meanings& meanings, const LineRunOptions& options,
                       const LineSink& sink);

// Appends each line, as it comes, to a collection (never truncating it; a
// last line without its line end is ended first). A failed write leaves
// the collection as it was before that line, and a run that appends
// nothing leaves no new file. Progress hears each appended puzzle's number.
Status appendPuzzleLines(const std::string& path, const Dictionary& dictionary, const Meanings& meanings,
                         const LineRunOptions& options, const std::function<void(int)>& progress = {});

}  // namespace combwise
