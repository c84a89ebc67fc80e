// Reading puzzles from a long collection: the last puzzle of 100,000 lines,
// counted and read as the game does when it opens a collection at its end.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>
#include <vector>

#include "core/files/dictionary.h"
#include "core/files/puzzlefile.h"
#include "core/files/textfile.h"
#include "core/generator/batch.h"

namespace {

using namespace combwise;

const std::string& longCollection() {
  static const std::string path = [] {
    const std::string file = (std::filesystem::temp_directory_path() / "combwise-bench-100000.txt").string();
    Dictionary dictionary;
    Meanings meanings;
    const std::string folder = COMBWISE_BIN_DIR;
    readDictionary(folder + "/english3.txt", dictionary);
    meanings.read(folder + "/mean3456.txt");
    std::vector<std::string> made;
    LineRunOptions options;
    options.count = 500;
    options.seed = 1;
    makePuzzleLines(dictionary, meanings, options, [&made](int, const std::string& line) {
      made.push_back(line);
      return true;
    });
    std::vector<std::string> lines;
    for (int i = 0; i < 100000; ++i) lines.push_back(made[static_cast<std::size_t>(i) % made.size()]);
    writeLines(file, lines, WriteMode::Truncate);
    return file;
  }();
  return path;
}

// Argument 1 counts the collection before every read, as opening it does;
// argument 0 reads with the count already known, as browsing does.
void BM_LastOf100000(benchmark::State& state) {
  const std::string& path = longCollection();
  const bool countEachTime = state.range(0) != 0;
  Meanings meanings;
  meanings.read(std::string(COMBWISE_BIN_DIR) + "/mean3456.txt");
  Board board;
  PuzzleState puzzle;
  puzzle.PuzzleCount = countPuzzles(path);
  for (auto _ : state) {
    if (countEachTime) puzzle.PuzzleCount = countPuzzles(path);
    const auto read = readPuzzle(path, -1, board, puzzle, ClueSource{&meanings, {}, {}});
    if (!read.loaded()) state.SkipWithError("not loaded");
  }
}
BENCHMARK(BM_LastOf100000)->ArgName("count")->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond);

}  // namespace
