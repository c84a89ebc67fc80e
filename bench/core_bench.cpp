// Benchmarks of the core's building blocks.
#include <benchmark/benchmark.h>

#include <string>

#include "core/files/simplearray.h"
#include "core/model/board.h"
#include "core/model/puzzlestate.h"

namespace {

void BM_SetUpBoard(benchmark::State& st) {
  combwise::Board board;
  combwise::PuzzleState state;
  const int size = static_cast<int>(st.range(0));
  for (auto _ : st) {
    combwise::setUpPuzzle(board, state, size);
    benchmark::DoNotOptimize(board.OutsideCells(size, 6));
  }
}
BENCHMARK(BM_SetUpBoard)->Arg(7)->Arg(10)->Arg(17)->Arg(22);

// Binary search over a sorted list of the size of a meanings file.
void BM_FindWordInDict(benchmark::State& st) {
  combwise::clsSimpleArray list;
  for (int i = 0; i < 30000; ++i) list.AddItem("W" + std::to_string(100000 + i) + ":clue");
  int i = 0;
  for (auto _ : st) {
    benchmark::DoNotOptimize(list.FindWordInDict("W" + std::to_string(100000 + (i++ % 30000)) + ":"));
  }
}
BENCHMARK(BM_FindWordInDict);

}  // namespace

BENCHMARK_MAIN();
