// Puzzle generation and the loads it needs, with the game's own dictionary
// and meanings. Generation runs one puzzle per repetition so the median
// over many puzzles is reported (a puzzle's time varies a lot with its
// number of tries).
#include <benchmark/benchmark.h>

#include <string>

#include "core/files/dictionary.h"
#include "core/generator/generator.h"
#include "core/model/board.h"
#include "core/model/puzzlestate.h"

namespace {

using namespace combwise;

std::string dataPath(const char* name) { return std::string(COMBWISE_BIN_DIR) + "/" + name; }

struct GameWords {
  Dictionary dictionary;
  Meanings meanings;
  GameWords() {
    if (!readDictionary(dataPath("english3.txt"), dictionary).ok() || !meanings.read(dataPath("mean3456.txt")).ok())
      std::abort();
  }
};

const GameWords& gameWords() {
  static const GameWords words;
  return words;
}

// The generator keeps its pools' order from one puzzle to the next, as in
// the game; the random source reads the time of day before every draw.
void BM_GeneratePuzzle(benchmark::State& state) {
  static PuzzleGenerator generator(gameWords().dictionary, gameWords().meanings);
  static RandomSource random;
  const int size = static_cast<int>(state.range(0));
  Board board;
  PuzzleState puzzle;
  setUpPuzzle(board, puzzle, size);
  for (auto _ : state) {
    if (!generator.generate(board, puzzle, random)) state.SkipWithError("no puzzle");
  }
}
BENCHMARK(BM_GeneratePuzzle)
    ->Arg(7)
    ->Arg(10)
    ->Arg(17)
    ->Arg(22)
    ->Iterations(1)
    ->Repetitions(300)
    ->ReportAggregatesOnly(true)
    ->Unit(benchmark::kMillisecond);

void BM_LoadDictionaryAndMeanings(benchmark::State& state) {
  for (auto _ : state) {
    Dictionary dictionary;
    Meanings meanings;
    benchmark::DoNotOptimize(readDictionary(dataPath("english3.txt"), dictionary).ok());
    benchmark::DoNotOptimize(meanings.read(dataPath("mean3456.txt")).ok());
  }
}
BENCHMARK(BM_LoadDictionaryAndMeanings)->Unit(benchmark::kMillisecond);

}  // namespace
