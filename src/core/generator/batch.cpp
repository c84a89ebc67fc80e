// Many puzzles at once, on worker threads, handed over in order.
#include "core/generator/batch.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <cstdio>
#include <mutex>
#include <thread>
#include <vector>

#include "core/files/puzzlefile.h"
#include "core/generator/generator.h"
#include "core/model/text.h"

namespace combwise {
namespace {

RandomSource streamFor(const LineRunOptions& options, int index) {
  if (options.seed) return RandomSource::seeded(*options.seed, static_cast<std::uint64_t>(index));
  return RandomSource::timed(static_cast<std::uint64_t>(index));
}

}  // namespace

Status makePuzzleLines(const Dictionary& dictionary, const Meanings& meanings, const LineRunOptions& options,
                       const LineSink& sink) {
  if (!Board::isValidSize(options.size)) return Status::failure("There is no puzzle size " + NumberText(options.size));
  if (options.count <= 0) return Status::success();
  if (!PuzzleGenerator(dictionary, meanings).canGenerate())
    return Status::failure("The dictionary needs at least two words of each length from 3 to 6 letters");

  const int cores = static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
  const int jobs = std::clamp(options.jobs > 0 ? options.jobs : cores, 1, options.count);

  std::mutex mutex;
  std::condition_variable ready;
  std::vector<std::optional<std::string>> lines(static_cast<std::size_t>(options.count) + 1);
  std::atomic<int> next{1};
  std::atomic<bool> stop{false};

  const auto work = [&] {
    PuzzleGenerator generator(dictionary, meanings);
    Board board;
    PuzzleState state;
    setUpPuzzle(board, state, options.size);
    const GeneratorHooks hooks{{}, {}, [&stop] { return stop.load(std::memory_order_relaxed); }};
    for (int index = next++; index <= options.count && !stop; index = next++) {
      generator.resetPools();
      RandomSource random = streamFor(options, index);
      if (!generator.generate(board, state, random, hooks)) break;
      std::string line = puzzleLine(state);
      {
        const std::lock_guard lock(mutex);
        lines[static_cast<std::size_t>(index)] = std::move(line);
      }
      ready.notify_one();
    }
  };

  std::vector<std::jthread> workers;
  workers.reserve(static_cast<std::size_t>(jobs));
  for (int i = 0; i < jobs; ++i) workers.emplace_back(work);

  Status status;
  for (int index = 1; index <= options.count; ++index) {
    std::string line;
    {
      std::unique_lock lock(mutex);
      ready.wait(lock, [&] { return lines[static_cast<std::size_t>(index)].has_value(); });
      line = std::move(*lines[static_cast<std::size_t>(index)]);
      lines[static_cast<std::size_t>(index)].reset();
    }
    if (!sink(index, line)) {
      stop = true;
      status = Status::failure("Stopped after " + NumberText(index) + " puzzles");
      break;
    }
  }
  stop = true;
  return status;
}

Status appendPuzzleLines(const std::string& path, const Dictionary& dictionary, const Meanings& meanings,
                         const LineRunOptions& options, const std::function<void(int)>& progress) {
  std::FILE* file = std::fopen(path.c_str(), "ab");
  if (!file) return Status::failure("Cannot write " + path);
  std::string writeError;
  Status status = makePuzzleLines(dictionary, meanings, options, [&](int index, const std::string& line) {
    // Each puzzle goes to the file as soon as it is made, so an ended run
    // keeps every finished puzzle.
    const bool ok = std::fwrite(line.data(), 1, line.size(), file) == line.size() &&
                    std::fwrite("\r\n", 1, 2, file) == 2 && std::fflush(file) == 0;
    if (!ok) {
      writeError = "Cannot write " + path;
      return false;
    }
    if (progress) progress(index);
    return true;
  });
  if (std::fclose(file) != 0 && writeError.empty()) writeError = "Cannot write " + path;
  if (!writeError.empty()) return Status::failure(writeError);
  return status;
}

}  // namespace combwise
