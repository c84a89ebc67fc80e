// The commands that show one puzzle: show and clues.
#include <filesystem>
#include <ostream>

#include "cli/args.h"
#include "cli/commands.h"
#include "cli/honeycomb.h"
#include "core/files/cluelisting.h"
#include "core/files/dictionary.h"
#include "core/files/errorlog.h"
#include "core/files/puzzlefile.h"
#include "core/files/textfile.h"
#include "core/model/text.h"

namespace combwise::cli {
namespace {

constexpr const char* kShowHelp =
    "Usage: combwise-cli show FILE [N] [--solution]\n"
    "\n"
    "Draws puzzle N (default 1; -1 for the last) of the collection FILE as a\n"
    "honeycomb, with its inside and outside clues. Letters the player fills in\n"
    "are shown as _ unless --solution is given.\n";

constexpr const char* kCluesHelp =
    "Usage: combwise-cli clues FILE N --output OUT [--force]\n"
    "\n"
    "Writes the clue listing of puzzle N (-1 for the last) of the collection\n"
    "FILE to the text file OUT. An existing OUT is replaced only with --force;\n"
    "OUT may never be FILE itself.\n";

struct LoadedPuzzle {
  explicit LoadedPuzzle(const std::string& logFolder) : log(logFolder), meanings(&log) {}
  ErrorLog log;
  Board board;
  PuzzleState state;
  Meanings meanings;
};

}  // namespace

std::string readFailure(const std::string& path, const PuzzleReadResult& read) {
  // A line that does not load is named by file and line, as check names it;
  // the other messages name the file themselves.
  if (read.outcome == ReadOutcome::Malformed) return path + ":" + NumberText(read.number) + ": " + read.message;
  if (read.outcome == ReadOutcome::BeyondCount) return path + ": " + read.message;
  return read.message;
}

namespace {

// Loads puzzle n of a collection with its clues; says what failed.
bool loadPuzzle(Context& context, const std::string& command, const std::string& path, int n, LoadedPuzzle& puzzle) {
  puzzle.state.PuzzleCount = countPuzzles(path);
  const PuzzleReadResult read =
      readPuzzle(path, n, puzzle.board, puzzle.state, ClueSource{&puzzle.meanings, context.meaningsPath(), {}});
  if (!read.loaded()) {
    context.err << "combwise-cli " << command << ": " << readFailure(path, read) << "\n";
    return false;
  }
  if (!read.clues.ok())
    context.err << "combwise-cli " << command << ": " << read.clues.error << " (clues left empty)\n";
  else if (!puzzle.meanings.warning().empty())
    context.err << "combwise-cli " << command << ": " << puzzle.meanings.warning() << "\n";
  return true;
}

std::optional<int> puzzleNumber(ParsedArgs& parsed, std::size_t index, int fallback) {
  if (parsed.positional.size() <= index) return fallback;
  const std::string& text = parsed.positional[index];
  parsed.values["N"] = text;
  const auto n = parsed.number("N", -1, 1000000000);
  if (!n || *n == 0) {
    parsed.error = "N must be a puzzle number (1 for the first, -1 for the last), not '" + text + "'";
    return std::nullopt;
  }
  return static_cast<int>(*n);
}

}  // namespace

int runShow(Context& context, const Arguments& args) {
  ParsedArgs parsed = parseArgs(args, {}, {"--solution", "--help"});
  if (parsed.has("--help")) {
    context.out << kShowHelp;
    return 0;
  }
  const auto n = puzzleNumber(parsed, 1, 1);
  if (parsed.error.empty() && (parsed.positional.empty() || parsed.positional.size() > 2))
    parsed.error = "give a collection FILE and at most one puzzle number";
  if (!parsed.error.empty()) {
    context.err << "combwise-cli show: " << parsed.error << "\n\n" << kShowHelp;
    return 2;
  }
  LoadedPuzzle puzzle(context.errorLogFolder());
  const std::string& path = parsed.positional[0];
  if (!loadPuzzle(context, "show", path, *n, puzzle)) return 1;

  const PuzzleState& state = puzzle.state;
  context.out << fileNameOf(path) << "  " << positionText(state.PuzzleNumber, state.PuzzleCount) << "  ("
              << state.PuzzleSize << " hexagons)\n\n";
  for (const auto& line : honeycombText(puzzle.board, state, parsed.has("--solution")))
    context.out << "  " << line << "\n";
  const bool solution = parsed.has("--solution");
  const auto clues = [&](const char* heading, int first) {
    context.out << "\n" << heading << "\n";
    for (int slot = first; slot <= state.WordCount; slot += 2) {
      context.out << "  " << clueNumber(slot) << ". ";
      if (solution) context.out << state.WordSlots[slot] << " - ";
      context.out << state.ClueTexts[slot] << "\n";
    }
  };
  clues("INSIDE CLUES (the six letters of the hexagon, in any order):", 2);
  clues("OUTSIDE CLUES (the letters touching the hexagon from outside, in any order):", 1);
  return 0;
}

int runClues(Context& context, const Arguments& args) {
  ParsedArgs parsed = parseArgs(args, {"--output"}, {"--force", "--help"});
  if (parsed.has("--help")) {
    context.out << kCluesHelp;
    return 0;
  }
  const auto n = puzzleNumber(parsed, 1, 0);
  const auto output = parsed.value("--output");
  if (parsed.error.empty() && parsed.positional.size() != 2)
    parsed.error = "give a collection FILE and a puzzle number N";
  if (parsed.error.empty() && (!output || output->empty())) parsed.error = "--output is required";
  if (!parsed.error.empty()) {
    context.err << "combwise-cli clues: " << parsed.error << "\n\n" << kCluesHelp;
    return 2;
  }
  const std::string& path = parsed.positional[0];
  if (outputIsAnInput(*output, {path, context.meaningsPath()})) {
    context.err << "combwise-cli clues: " << *output << " is an input of this command; it is not overwritten\n";
    return 1;
  }
  if (std::filesystem::exists(*output) && !parsed.has("--force")) {
    context.err << "combwise-cli clues: " << *output << " exists; give --force to replace it\n";
    return 1;
  }
  LoadedPuzzle puzzle(context.errorLogFolder());
  if (!loadPuzzle(context, "clues", path, *n, puzzle)) return 1;
  if (Status written = writeClueListing(*output, puzzle.state); !written.ok()) {
    context.err << "combwise-cli clues: " << written.error << "\n";
    return 1;
  }
  context.out << "Puzzle printed to file: " << *output << "\n";
  return 0;
}

}  // namespace combwise::cli
