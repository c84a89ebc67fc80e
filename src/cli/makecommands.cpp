// The commands that make puzzles: create and batch.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <limits>
#include <ostream>

#include "cli/args.h"
#include "cli/commands.h"
#include "cli/progressbar.h"
#include "core/files/dictionary.h"
#include "core/files/errorlog.h"
#include "core/files/textfile.h"
#include "core/generator/batch.h"
#include "core/generator/puzzlemaker.h"
#include "core/model/text.h"

namespace combwise::cli {
namespace {

constexpr const char* kCreateHelp =
    "Usage: combwise-cli create --size N --output FILE [--count K] [--jobs J] [--seed S]\n"
    "                           [--dictionary PATH] [--meanings PATH] [--max-tries T]\n"
    "                           [--distinct]\n"
    "\n"
    "Appends K new puzzles (default 1) of size N (7, 10, 17 or 22) to FILE.\n"
    "  --count K         from 1 to 100000000; puzzles are written as they are made\n"
    "  --jobs J          puzzles made side by side (default: one per core); the\n"
    "                    lines are appended in puzzle order all the same\n"
    "  --seed S          a reproducible run: the same seed gives the same file\n"
    "                    whatever --jobs is\n"
    "  --dictionary PATH the word list (default: english3.txt in the program folder)\n"
    "  --meanings PATH   the meanings file (default: mean3456.txt in the program folder)\n"
    "  --max-tries T     tries for one puzzle before the dictionary is judged unable\n"
    "                    to make puzzles of the size (default 20000; the game's\n"
    "                    dictionary needs far fewer at every size); a dictionary\n"
    "                    so large that its tries take long is judged sooner\n"
    "  --distinct        no word and no clue text twice in a puzzle: the puzzles\n"
    "                    made without it, less the ones with a repeat\n";

constexpr const char* kBatchHelp =
    "Usage: combwise-cli batch [--count K] [--jobs J] [--seed S] [--max-tries T] [--distinct]\n"
    "\n"
    "Appends 2000 puzzles (or K) of size 17, made from the program folder's\n"
    "english3.txt, to puz-18sepsize17D.txt in the program folder (in\n"
    "~/.local/share/combwise when the program folder cannot be written). The\n"
    "file is extended, never truncated.\n";

// The word lists report their own errors to the error log.
struct LoadedWords {
  explicit LoadedWords(const std::string& logFolder) : log(logFolder), dictionary(&log), meanings(&log) {}
  ErrorLog log;
  Dictionary dictionary;
  Meanings meanings;
};

// Reads the dictionary and meanings, saying what failed and, once each,
// what makes them doubtful.
bool loadWords(Context& context, const std::string& command, const std::string& dictionaryPath,
               const std::string& meaningsPath, LoadedWords& words) {
  if (Status read = readDictionary(dictionaryPath, words.dictionary); !read.ok()) {
    context.err << "combwise-cli " << command << ": " << read.error << "\n";
    return false;
  }
  if (const std::string skipped = skippedLinesWarning(words.dictionary); !skipped.empty())
    context.err << "combwise-cli " << command << ": " << skipped << "\n";
  if (Status read = words.meanings.read(meaningsPath); !read.ok()) {
    context.err << "combwise-cli " << command << ": " << read.error << "\n";
    return false;
  }
  if (!words.meanings.warning().empty())
    context.err << "combwise-cli " << command << ": " << words.meanings.warning() << "\n";
  return true;
}

// Runs an append of puzzles with a progress bar and reports the time taken.
int timedRun(Context& context, const std::string& command, const std::string& output, const LineRunOptions& options,
             const std::function<Status(const std::function<void(int)>&)>& run) {
  ProgressBar bar(context.err, options.count, context.progressOnTerminal);
  const auto start = std::chrono::steady_clock::now();
  const Status status = run([&bar](int done) { bar.update(done); });
  bar.finish();
  if (!status.ok()) {
    context.err << "combwise-cli " << command << ": " << status.error << "\n";
    return 1;
  }
  const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  char timing[96];
  std::snprintf(timing, sizeof timing, "%.3f s (%.1f puzzles/s)", seconds, options.count / std::max(seconds, 1e-9));
  context.out << "Appended " << options.count << " puzzles of size " << options.size << " to " << output << " in "
              << timing << "\n";
  return 0;
}

bool readRunOptions(ParsedArgs& parsed, LineRunOptions& options) {
  if (auto jobs = parsed.number("--jobs", 1, 256)) options.jobs = static_cast<int>(*jobs);
  if (auto seed = parsed.number("--seed", 0, std::numeric_limits<long long>::max()))
    options.seed = static_cast<std::uint64_t>(*seed);
  options.maxTries = kDefaultMaxTries;
  options.maxWork = kDefaultMaxWork;
  if (auto tries = parsed.number("--max-tries", 1, 1000000000000LL)) options.maxTries = *tries;
  options.distinct = parsed.has("--distinct");
  return parsed.error.empty();
}

}  // namespace

int runCreate(Context& context, const Arguments& args) {
  ParsedArgs parsed = parseArgs(
      args, {"--size", "--count", "--jobs", "--seed", "--dictionary", "--meanings", "--output", "--max-tries"},
      {"--help", "--distinct"});
  if (parsed.has("--help")) {
    context.out << kCreateHelp;
    return 0;
  }
  LineRunOptions options;
  const auto size = parsed.number("--size", 0, 1000);
  if (const auto count = parsed.number("--count", 1, 100000000)) options.count = static_cast<int>(*count);
  readRunOptions(parsed, options);
  const auto output = parsed.value("--output");
  if (parsed.error.empty() && !parsed.positional.empty())
    parsed.error = "unexpected argument '" + parsed.positional.front() + "'";
  if (parsed.error.empty() && !size) parsed.error = "--size is required";
  if (parsed.error.empty() && !Board::isValidSize(static_cast<int>(*size)))
    parsed.error = "--size must be 7, 10, 17 or 22, not " + NumberText(*size);
  if (parsed.error.empty() && (!output || output->empty())) parsed.error = "--output is required";
  if (!parsed.error.empty()) {
    context.err << "combwise-cli create: " << parsed.error << "\n\n" << kCreateHelp;
    return 2;
  }
  options.size = static_cast<int>(*size);
  const std::string dictionaryPath = parsed.value("--dictionary").value_or(context.dictionaryPath());
  const std::string meaningsPath = parsed.value("--meanings").value_or(context.meaningsPath());
  options.dictionaryPath = dictionaryPath;
  if (PuzzleMaker::refuses(dictionaryPath, options.size)) {
    context.err << "combwise-cli create: " << kLargePuzzleRefusal << "\n";
    return 1;
  }
  if (outputIsAnInput(*output, {dictionaryPath, meaningsPath})) {
    context.err << "combwise-cli create: " << *output
                << " is an input of this command; puzzles are not appended to it\n";
    return 1;
  }
  LoadedWords words(context.errorLogFolder());
  if (!loadWords(context, "create", dictionaryPath, meaningsPath, words)) return 1;
  return timedRun(context, "create", *output, options, [&](const std::function<void(int)>& progress) {
    return appendPuzzleLines(*output, words.dictionary, words.meanings, options, progress);
  });
}

int runBatch(Context& context, const Arguments& args) {
  ParsedArgs parsed = parseArgs(args, {"--count", "--jobs", "--seed", "--max-tries"}, {"--help", "--distinct"});
  if (parsed.has("--help")) {
    context.out << kBatchHelp;
    return 0;
  }
  LineRunOptions options;
  options.size = kBatchSize;
  options.count = kBatchCount;
  if (const auto count = parsed.number("--count", 1, 100000000)) options.count = static_cast<int>(*count);
  readRunOptions(parsed, options);
  if (parsed.error.empty() && !parsed.positional.empty())
    parsed.error = "unexpected argument '" + parsed.positional.front() + "'";
  if (!parsed.error.empty()) {
    context.err << "combwise-cli batch: " << parsed.error << "\n\n" << kBatchHelp;
    return 2;
  }
  LoadedWords words(context.errorLogFolder());
  options.dictionaryPath = context.dictionaryPath();
  if (!loadWords(context, "batch", options.dictionaryPath, context.meaningsPath(), words)) return 1;
  const std::string output = context.files.writePath(kBatchFile);
  const int status = timedRun(context, "batch", output, options, [&](const std::function<void(int)>& progress) {
    return appendPuzzleLines(output, words.dictionary, words.meanings, options, progress);
  });
  if (status == 0) context.out << "done\n";
  return status;
}

}  // namespace combwise::cli
