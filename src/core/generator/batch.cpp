// Many puzzles at once, on worker threads, handed over in order.
#include "core/generator/batch.h"

#include <algorithm>
#include <condition_variable>
#include <map>
#include <mutex>
#include <thread>
#include <vector>

#include "core/files/puzzlefile.h"
#include "core/files/textfile.h"
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
  if (!PuzzleGenerator::canGenerate(dictionary))
    return Status::failure("The dictionary " + (options.dictionaryPath.empty() ? "in use" : options.dictionaryPath) +
                           " needs at least two words of each length from 3 to 6 letters");

  const int cores = static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
  const int jobs = std::clamp(options.jobs > 0 ? options.jobs : cores, 1, options.count);
  // How far the workers may run ahead of the sink: lines wait in memory
  // only this far, whatever the count.
  const long long window = 4LL * jobs;

  std::mutex mutex;
  std::condition_variable ready;  // a line is made, or a worker gave up
  std::condition_variable room;   // the sink took a line
  std::map<int, std::string> lines;
  int next = 1;      // the next puzzle a worker takes
  int handed = 0;    // puzzles the sink has taken
  int failedAt = 0;  // the first puzzle that could not be made
  long long failedTries = 0;
  bool stop = false;

  const auto work = [&] {
    PuzzleGenerator generator(dictionary, meanings);
    Board board;
    PuzzleState state;
    setUpPuzzle(board, state, options.size);
    GeneratorHooks hooks;
    hooks.stop = [&] {
      const std::lock_guard lock(mutex);
      return stop;
    };
    hooks.maxTries = options.maxTries;
    hooks.maxWork = options.maxWork;
    hooks.distinct = options.distinct;
    for (;;) {
      int index = 0;
      {
        std::unique_lock lock(mutex);
        room.wait(lock, [&] { return stop || next > options.count || next - handed <= window; });
        if (stop || next > options.count) return;
        index = next++;
      }
      generator.resetPools();
      RandomSource random = streamFor(options, index);
      const bool made = generator.generate(board, state, random, hooks);
      {
        const std::lock_guard lock(mutex);
        if (made) {
          lines.emplace(index, puzzleLine(state));
        } else if (failedAt == 0 || index < failedAt) {
          failedAt = index;
          failedTries = generator.stats().lastTries;
        }
      }
      ready.notify_all();
      if (!made) return;
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
      ready.wait(lock, [&] { return lines.count(index) > 0 || (failedAt != 0 && failedAt <= index); });
      const auto found = lines.find(index);
      if (found == lines.end()) {
        stop = true;
        status = Status::failure(gaveUpMessage(options.dictionaryPath.empty() ? "in use" : options.dictionaryPath,
                                               options.size, failedTries));
        break;
      }
      line = std::move(found->second);
      lines.erase(found);
      handed = index;
    }
    room.notify_all();
    if (!sink(index, line)) {
      const std::lock_guard lock(mutex);
      stop = true;
      status = Status::failure("Stopped after " + NumberText(index) + " puzzles");
      break;
    }
  }
  {
    const std::lock_guard lock(mutex);
    stop = true;
  }
  room.notify_all();
  return status;
}

Status appendPuzzleLines(const std::string& path, const Dictionary& dictionary, const Meanings& meanings,
                         const LineRunOptions& options, const std::function<void(int)>& progress) {
  // The file is opened with the first puzzle, so a run that gives up or is
  // interrupted before it leaves no empty file.
  LineAppender file(path);
  Status writeError;
  Status status = makePuzzleLines(dictionary, meanings, options, [&](int index, const std::string& line) {
    // Each puzzle goes to the file as soon as it is made, so an ended run
    // keeps every finished puzzle.
    writeError = file.add(line);
    if (!writeError.ok()) return false;
    if (progress) progress(index);
    return true;
  });
  const Status closed = file.close();
  if (!writeError.ok()) return writeError;
  if (!status.ok()) return status;
  return closed;
}

}  // namespace combwise
