// Puzzle generation and the loads it needs, with the game's own dictionary
// and meanings. Generation runs one puzzle per repetition so the median
// over many puzzles is reported (a puzzle's time varies a lot with its
// number of tries).
#include <benchmark/benchmark.h>

#include <cstdint>
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

// Puzzle i of a repetition run is made as a seeded batch makes it: its own
// random stream, pools in the dictionary's order. So the fast and the
// straightforward form make the same puzzles from the same draws, and their
// times compare like for like. Arguments: size, form (0 fast, 1
// straightforward).
void BM_GeneratePuzzle(benchmark::State& state) {
  const int size = static_cast<int>(state.range(0));
  const auto form = state.range(1) == 0 ? GeneratorForm::Fast : GeneratorForm::Straightforward;
  PuzzleGenerator generator(gameWords().dictionary, gameWords().meanings, form);
  Board board;
  PuzzleState puzzle;
  setUpPuzzle(board, puzzle, size);
  std::uint64_t stream = 0;
  for (auto _ : state) {
    generator.resetPools();
    RandomSource random = RandomSource::seeded(20261121, ++stream);
    if (!generator.generate(board, puzzle, random)) state.SkipWithError("no puzzle");
  }
  state.counters["tries"] =
      benchmark::Counter(static_cast<double>(generator.stats().tries), benchmark::Counter::kAvgIterations);
  state.SetLabel(form == GeneratorForm::Fast ? "fast" : "straightforward");
}
BENCHMARK(BM_GeneratePuzzle)
    ->ArgNames({"size", "form"})
    ->ArgsProduct({{7, 10, 17, 22}, {0, 1}})
    ->Iterations(100)
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
