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
#include "core/model/callbacks.h"

namespace combwise {

inline constexpr const char* kBatchFile = "puz-18sepsize17D.txt";
inline constexpr int kBatchSize = 17;
inline constexpr int kBatchCount = 2000;

struct LineRunOptions {
  int size = kBatchSize;
  int count = 1;
  int jobs = 0;                       // worker threads; 0 for one per core
  std::optional<std::uint64_t> seed;  // reproducible streams; else the clock
};

// Receives puzzle i (from 1) and its collection line, in order, on the
// calling thread; returns false to stop the run.
using LineSink = std::function<bool(int index, const std::string& line)>;

// Makes `count` puzzles of `size`. Fails at once, making nothing, for a
// size that is not one of the four or pools that cannot make a puzzle;
// reports a stop by the sink as an error too.
Status makePuzzleLines(const Dictionary& dictionary, const Meanings& meanings, const LineRunOptions& options,
                       const LineSink& sink);

// Appends each line, as it comes, to a collection (never truncating it).
// Progress, if given, hears each appended puzzle's number.
Status appendPuzzleLines(const std::string& path, const Dictionary& dictionary, const Meanings& meanings,
                         const LineRunOptions& options, const std::function<void(int)>& progress = {});

}  // namespace combwise
