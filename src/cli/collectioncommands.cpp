// The commands that work on whole collections: randomize and check.
#include <algorithm>
#include <limits>
#include <ostream>
#include <unordered_set>

#include "cli/args.h"
#include "cli/commands.h"
#include "core/files/collectiontools.h"
#include "core/files/dictionary.h"
#include "core/files/errorlog.h"
#include "core/files/puzzlefile.h"
#include "core/files/textfile.h"
#include "core/generator/distinct.h"
#include "core/model/text.h"

namespace combwise::cli {
namespace {

constexpr const char* kRandomizeHelp =
    "Usage: combwise-cli randomize FILE [--seed S]\n"
    "\n"
    "Writes FILE's puzzles without duplicates and in random order beside it, as\n"
    "the name up to its last '.' followed by -noduprandom.txt. A line is a\n"
    "duplicate when an earlier kept line begins with it, case ignored. FILE\n"
    "itself is left as it is. --seed makes the order reproducible.\n";

constexpr const char* kCheckHelp =
    "Usage: combwise-cli check FILE [--dictionary PATH]\n"
    "\n"
    "Reads every line of the collection FILE and reports the ones that do not\n"
    "load or break a puzzle's rules: letters that do not spell their words,\n"
    "words not in the dictionary (default: english3.txt in the program folder),\n"
    "meaning numbers beyond a word's meanings, a word or a clue text that stands\n"
    "twice in one puzzle. Exit status 1 when any does.\n";

// The problems of one loaded puzzle beyond its invariants.
// Without a usable dictionary or meanings list that check is left out.
void wordProblems(const PuzzleState& state, const std::unordered_set<std::string>* words, const Meanings* meanings,
                  std::vector<std::string>& problems) {
  for (int slot = 1; slot <= state.WordCount; ++slot) {
    const std::string& word = state.WordSlots[slot];
    if (word.empty()) {
      problems.push_back("slot " + NumberText(slot) + ": no word");
      continue;
    }
    if (words && !words->count(word)) {
      problems.push_back("slot " + NumberText(slot) + ": " + word + " is not in the dictionary");
      continue;
    }
    if (!meanings) continue;
    const std::string key = word + ":";
    const int available = meanings->countLines(key, meanings->firstLine(key));
    const int number = state.MeaningNumbers[slot];
    if ((available == 0 && number != 0) || (available > 0 && (number < 1 || number > available)))
      problems.push_back("slot " + NumberText(slot) + ": " + word + " has no meaning " + NumberText(number));
  }
}

}  // namespace

int runRandomize(Context& context, const Arguments& args) {
  ParsedArgs parsed = parseArgs(args, {"--seed"}, {"--help"});
  if (parsed.has("--help")) {
    context.out << kRandomizeHelp;
    return 0;
  }
  const auto seed = parsed.number("--seed", 0, std::numeric_limits<long long>::max());
  if (parsed.error.empty() && parsed.positional.size() != 1) parsed.error = "give one collection FILE";
  if (!parsed.error.empty()) {
    context.err << "combwise-cli randomize: " << parsed.error << "\n\n" << kRandomizeHelp;
    return 2;
  }
  RandomSource random = seed ? RandomSource::seeded(static_cast<std::uint64_t>(*seed)) : RandomSource();
  const RandomizeResult result = randomizeCollection(parsed.positional[0], random);
  if (!result.status.ok()) {
    context.err << "combwise-cli randomize: " << result.status.error << "\n";
    return 1;
  }
  context.out << result.message << "\n"
              << "source " << result.readCount << " lines, " << result.distinctCount << " written\n";
  return 0;
}

int runCheck(Context& context, const Arguments& args) {
  ParsedArgs parsed = parseArgs(args, {"--dictionary"}, {"--help"});
  if (parsed.has("--help")) {
    context.out << kCheckHelp;
    return 0;
  }
  if (parsed.error.empty() && parsed.positional.size() != 1) parsed.error = "give one collection FILE";
  if (!parsed.error.empty()) {
    context.err << "combwise-cli check: " << parsed.error << "\n\n" << kCheckHelp;
    return 2;
  }
  const std::string& path = parsed.positional[0];
  if (auto reason = unreadableReason(path)) {
    context.err << "combwise-cli check: " << *reason << "\n";
    return 1;
  }
  const std::string dictionaryPath = parsed.value("--dictionary").value_or(context.dictionaryPath());
  ErrorLog log(context.errorLogFolder());
  Dictionary dictionary(&log);
  if (Status read = readDictionary(dictionaryPath, dictionary); !read.ok()) {
    context.err << "combwise-cli check: " << read.error << "\n";
    return 1;
  }
  if (const std::string skipped = skippedLinesWarning(dictionary); !skipped.empty())
    context.err << "combwise-cli check: " << skipped << "\n";
  // A dictionary or meanings file that is unfit is said once here, not once
  // for every word of every puzzle.
  std::unordered_set<std::string> words;
  for (int length = 3; length <= 6; ++length) {
    for (const auto& word : dictionary.pool(length)->items()) words.insert(word);
  }
  const std::unordered_set<std::string>* wordsToCheck = &words;
  if (words.empty()) {
    context.err << "combwise-cli check: " << dictionaryPath
                << " holds no words of 3 to 6 letters (words not checked)\n";
    wordsToCheck = nullptr;
  }
  Meanings meanings(&log);
  if (Status read = meanings.read(context.meaningsPath()); !read.ok()) {
    context.err << "combwise-cli check: " << read.error << " (meaning numbers not checked)\n";
  } else if (!meanings.warning().empty()) {
    context.err << "combwise-cli check: " << meanings.warning() << " (meaning numbers not checked)\n";
  }
  const Meanings* meaningsToCheck = meanings.loaded() && meanings.warning().empty() ? &meanings : nullptr;

  LineReader reader(path);
  if (!reader.isOpen()) {
    context.err << "combwise-cli check: " << reader.error() << "\n";
    return 1;
  }
  reader.setMaxLineLength(kMaxPuzzleLineLength);
  Board board;
  PuzzleState state;
  long long number = 0;
  long long bad = 0;
  while (auto line = reader.next()) {
    ++number;
    std::vector<std::string> problems;
    PuzzleReadResult loaded = loadPuzzleLine(*line, board, state, ClueSource{});
    if (!loaded.loaded()) {
      loaded.number = static_cast<int>(std::min<long long>(number, std::numeric_limits<int>::max()));
      context.out << readFailure(path, loaded) << "\n";
      ++bad;
      continue;
    }
    problems = invariantBreaches(board, state);
    wordProblems(state, wordsToCheck, meaningsToCheck, problems);
    for (std::string& repeat : repeatProblems(state, meaningsToCheck)) problems.push_back(std::move(repeat));
    if (problems.empty()) continue;
    ++bad;
    for (const auto& problem : problems) context.out << path << ":" << number << ": " << problem << "\n";
  }
  if (reader.failed()) {
    context.err << "combwise-cli check: " << reader.error() << "\n";
    return 1;
  }
  if (number == 0) {
    context.err << "combwise-cli check: " << noPuzzlesMessage(path) << "\n";
    return 1;
  }
  context.out << number << " puzzles checked, " << bad << (bad == 1 ? " has problems" : " have problems") << "\n";
  return bad == 0 ? 0 : 1;
}

}  // namespace combwise::cli
